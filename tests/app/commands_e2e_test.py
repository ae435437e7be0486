#!/usr/bin/python3
"""End-to-end: the host's commands run by the console host on scripts, as a
user or a tool types them; each saved drawing is read back by ezdxf, which
must audit it without errors and find what the commands made.

Usage: commands_e2e_test.py <verdani-console> <fixtures folder>
"""
import math
import os
import subprocess
import sys
import tempfile

import ezdxf

console, fixtures = sys.argv[1], sys.argv[2]
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAIL:", what)


def run(name, script, drawing=None):
    """Runs the script in throw-away user folders; gives the transcript and
    the folder, where the script saves its drawing as out.dxf."""
    folder = tempfile.mkdtemp(prefix="verdani-e2e-")
    env = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder + "/config", XDG_DATA_HOME=folder + "/data")
    script = script.replace("@OUT@", folder + "/out.dxf").replace("@DIR@", folder).replace("@FIX@", fixtures)
    path = os.path.join(folder, "script.txt")
    with open(path, "w") as f:
        f.write(script)
    args = [console, "--script", path] + ([drawing] if drawing else [])
    done = subprocess.run(args, env=env, capture_output=True, text=True, timeout=120)
    print("=== %s\n%s" % (name, done.stdout + done.stderr))
    check(done.returncode == 0, "%s: exit code %d" % (name, done.returncode))
    return done.stdout, folder


def saved(name, folder):
    """The saved drawing, audited; None when it is missing or damaged."""
    path = os.path.join(folder, "out.dxf")
    if not os.path.exists(path):
        check(False, "%s: no drawing was saved" % name)
        return None
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    check(not auditor.has_errors, "%s: ezdxf audit errors %s" % (name, [str(e) for e in auditor.errors]))
    return doc


def close(a, b, tolerance=1e-9):
    return abs(a - b) <= tolerance


# A tool's macro: blanks act as Enter, so the line is drawn and LINE ends.
out, folder = run("macro line", "^C^CLINE 0,0 500,0 \nSaveAsDocument\n@OUT@\nExit\n")
doc = saved("macro line", folder)
if doc:
    lines = doc.modelspace().query("LINE")
    check(len(lines) == 1, "macro line: one LINE, found %d" % len(lines))
    if lines:
        check(tuple(lines[0].dxf.end) == (500, 0, 0), "macro line: end point %s" % (lines[0].dxf.end,))
    check("Command: SaveAsDocument" in out, "macro line: LINE did not end before the next command")

# The drawing's current properties go onto what the commands make.
script = """SETVAR CECOLOR 1
SETVAR CELTSCALE 2
SETVAR CELWEIGHT 35
SETVAR CETRANSPARENCY 40
SETVAR TEXTSIZE 4
CIRCLE 10,10 5
TEXT 0,0  30 Label text

PLINE 0,0 10,0 10,10 C
SaveAsDocument
@OUT@
Exit
"""
out, folder = run("current properties", script)
doc = saved("current properties", folder)
if doc:
    msp = doc.modelspace()
    check(len(msp) == 3, "current properties: three entities, found %d" % len(msp))
    for e in msp:
        check(e.dxf.color == 1, "current properties: %s colour %s" % (e.dxftype(), e.dxf.color))
        check(e.dxf.ltscale == 2, "current properties: %s linetype scale %s" % (e.dxftype(), e.dxf.ltscale))
        check(e.dxf.lineweight == 35, "current properties: %s lineweight %s" % (e.dxftype(), e.dxf.lineweight))
        check(abs(e.transparency - 0.4) < 0.01, "current properties: %s transparency %s" % (e.dxftype(), e.transparency))
    texts = msp.query("TEXT")
    check(len(texts) == 1 and texts[0].dxf.height == 4 and close(texts[0].dxf.rotation, 30),
          "current properties: text height 4 (TEXTSIZE) and rotation 30")
    check(doc.header.get("$TEXTSIZE") == 4, "current properties: $TEXTSIZE saved")
    polylines = msp.query("LWPOLYLINE")
    check(len(polylines) == 1 and polylines[0].closed, "current properties: a closed light polyline")

# Undo and redo of whole commands.
script = """LINE 0,0 10,0 10,10 
CIRCLE 5,5 2
ARC 0,0 5,5 10,0
U
U
REDO
SaveAsDocument
@OUT@
Exit
"""
out, folder = run("undo redo", script)
doc = saved("undo redo", folder)
if doc:
    types = sorted(e.dxftype() for e in doc.modelspace())
    check(types == ["CIRCLE", "LINE", "LINE"], "undo redo: entities %s" % types)
    check("Undone: ARC" in out and "Redone: CIRCLE" in out, "undo redo: the steps are named")

if failures:
    print("%d failure(s)" % len(failures))
    sys.exit(1)
print("commands end-to-end test passed")
