#!/usr/bin/python3
"""End-to-end: tools of a shared catalog listed and run by the console host
as a click runs them; the saved drawing is read back by ezdxf.

Usage: tools_run_test.py <verdani-console> <catalog fixture folder>
"""
import os
import shutil
import subprocess
import sys
import tempfile

import ezdxf

console, fixture = sys.argv[1], sys.argv[2]
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAIL:", what)


def run(name, script):
    """Runs the script with the catalog of the fixture as a shared one; gives
    the transcript and the folder, where the script saves as out.dxf."""
    folder = tempfile.mkdtemp(prefix="verdani-tools-")
    shutil.copytree(fixture, os.path.join(folder, "common", "Tools", "ToolPalette"))
    env = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder + "/config", XDG_DATA_HOME=folder + "/data")
    path = os.path.join(folder, "script.txt")
    with open(path, "w") as f:
        f.write(script.replace("@OUT@", folder + "/out.dxf"))
    done = subprocess.run([console, "--set", "CommonDirs=" + folder + "/common", "--script", path],
                          env=env, capture_output=True, text=True, timeout=120)
    print("=== %s\n%s" % (name, done.stdout + done.stderr))
    return done.stdout + done.stderr, folder


def lines_of(folder):
    doc = ezdxf.readfile(os.path.join(folder, "out.dxf"))
    return doc.modelspace()


# Each tool of the palette in the order the palette shows (by name), with
# its kind.
out, _ = run("list", "ToolPalettesList\nExit\n")
listed = [l.strip() for l in out.splitlines() if l.strip().startswith("tool ")]
check(listed == ["tool Circle [none]", "tool Door [block]", "tool Held [command]", "tool Line [command]", "tool Plain [none]",
                 "tool Scaled [command]", "tool Stuck [command]", "tool Style [visualstyle]", "tool Twin [command]",
                 "tool Twin [command]", "tool Widget [none]"],
      "the tools listed: %r" % listed)
# A multitool whose class the host's route map knows becomes a regular tool
# named after the command; one of an unknown class stays as it was.
check('Multitool "Circle" has been converted to regular.' in out, "message 134 for the converted multitool")
check(out.count("Tool Palette Import:") == 1, "the multitool message shown once")

# A command tool's macro draws, and its run ends with the command: the next
# tool runs in another document without message 138.
out, folder = run("line", "NewDocument\nToolPalettesRun\nLine\nSaveAsDocument\n@OUT@\n"
                          "NewDocument\nToolPalettesRun\n{T2}\nExit\n")
msp = lines_of(folder)
found = [e for e in msp if e.dxftype() == "LINE"]
check(len(found) == 1 and tuple(found[0].dxf.start)[:2] == (0, 0) and tuple(found[0].dxf.end)[:2] == (100, 0),
      "the Line tool drew one line from 0,0 to 100,0")
check("already running" not in out, "the run of Line ended with its command")

# A name that several tools have runs the first in catalog order, and says so.
out, folder = run("twin", "NewDocument\nToolPalettesRun\ntwin\nSaveAsDocument\n@OUT@\nExit\n")
check("2 tools are named \"twin\": running the first, {T2}." in out, "the message of a name of several tools")
circles = [e for e in lines_of(folder) if e.dxftype() == "CIRCLE"]
check(len(circles) == 1 and circles[0].dxf.radius == 25, "the first Twin drew its circle of radius 25")

# A tool whose command never starts stays running in its document: a click
# in another document prints message 138 and does nothing there.
out, folder = run("other document", "NewDocument\nToolPalettesRun\nStuck\nNewDocument\nToolPalettesRun\nLine\n"
                                    "SaveAsDocument\n@OUT@\nExit\n")
check("Execution canceled. Tool \"Stuck\" is already running in document" in out, "message 138")
check(not [e for e in lines_of(folder) if e.dxftype() == "LINE"], "nothing drawn in the second document")

# A second click in the same document (a completion entry, which runs no
# command of its own) stops the first tool and puts back its linetype scale
# before the second saves the drawing's; each run ends with its command.
out, folder = run("second click", "NewDocument\nTOOL:Held\nTOOL:Scaled\nSETVAR\nCELTSCALE\n\n"
                                  "SaveAsDocument\n@OUT@\nExit\n")
check("CELTSCALE = 1" in out, "the drawing's linetype scale restored to 1, not left at the first tool's 3")
scaled = [e.dxf.get("ltscale") for e in lines_of(folder) if e.dxftype() == "LINE"]
check(scaled == [2.5], "the second tool's line drawn with its linetype scale: %r" % scaled)

# Closing the tool's document drops its run: the next tool runs anywhere.
out, folder = run("close during a run", "NewDocument\nNewDocument\nTOOL:Held\nCloseDocument\n"
                                        "ToolPalettesRun\nLine\nSaveAsDocument\n@OUT@\nExit\n")
check("already running" not in out, "no message 138 once the tool's document closed")
check(len([e for e in lines_of(folder) if e.dxftype() == "LINE"]) == 1, "the Line tool ran after the close")

# Saved, the palette keeps every tool, the converted one as a regular tool.
out, folder = run("save", "ToolPalettesSave\nExit\n")
with open(os.path.join(folder, "common", "Tools", "ToolPalette", "Palettes", "Draw.vtc")) as f:
    saved = f.read()
check(saved.count("<Tool ") == 11, "the saved palette has its eleven tools")
check("<ItemName>Circle</ItemName>" in saved and "<ItemName>Multi circle</ItemName>" not in saved,
      "the converted multitool saved under the command's name")

# A block tool whose source file is gone says so and draws nothing; the next
# tool runs.
out, folder = run("block", "NewDocument\nToolPalettesRun\nDoor\nToolPalettesRun\nLine\n"
                           "SaveAsDocument\n@OUT@\nExit\n")
check('Could not find the original file' in out and 'for block "DOOR"' in out,
      "the block tool names its missing source")
check(not [e for e in lines_of(folder) if e.dxftype() == "INSERT"], "no block reference without a source")
check("already running" not in out, "the block tool's run ended with the next command")

# Unknown tools and kinds that cannot run say so and change nothing.
out, _ = run("unknown", "NewDocument\nToolPalettesRun\nNobody\nExit\n")
check("No tool is named \"Nobody\"." in out, "an unknown tool name")

if failures:
    print("%d failure(s)" % len(failures))
    sys.exit(1)
print("tools run test passed")
