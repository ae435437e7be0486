#!/usr/bin/python3
"""End-to-end: the host's commands run by the console host on scripts, as a
user or a tool types them; each saved drawing is read back by ezdxf, which
must audit it without errors and find what the commands made.

Usage: commands_e2e_test.py <verdani-console> <fixtures folder> [external data folder]
"""
import math
import os
import struct
import subprocess
import sys
import tempfile
import zlib

import ezdxf

console, fixtures = sys.argv[1], sys.argv[2]
external = sys.argv[3] if len(sys.argv) > 3 and os.path.isdir(sys.argv[3]) else None
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


# --- fixtures of our own, written by ezdxf -------------------------------------
fixtures_dir = tempfile.mkdtemp(prefix="verdani-e2e-fixtures-")


def write_fixtures():
    """A drawing with a block CHAIR (two attributes, one asked, one preset),
    a drawing whose model space is a table with an attribute, a drawing to
    attach, and a small PNG picture."""
    doc = ezdxf.new("R2018")
    doc.header["$INSUNITS"] = 4
    chair = doc.blocks.new("CHAIR")
    chair.add_lwpolyline([(0, 0), (500, 0), (500, 500), (0, 500)], close=True)
    chair.add_attdef("SEAT", (0, -100), dxfattribs={"prompt": "Seat number", "height": 50}).dxf.text = "S1"
    preset = chair.add_attdef("MAKER", (0, -200), dxfattribs={"height": 50})
    preset.dxf.text = "ACME"
    preset.dxf.flags = 8
    doc.saveas(os.path.join(fixtures_dir, "furniture.dxf"))

    table = ezdxf.new("R2018")
    table.modelspace().add_circle((0, 0), 400)
    table.modelspace().add_attdef("LABEL", (0, 0), dxfattribs={"prompt": "Table label", "height": 60}).dxf.text = "T"
    table.saveas(os.path.join(fixtures_dir, "table.dxf"))

    site = ezdxf.new("R2018")
    site.header["$INSUNITS"] = 4
    site.modelspace().add_line((0, 0), (10000, 0))
    site.modelspace().add_line((0, 0), (0, 8000))
    site.saveas(os.path.join(fixtures_dir, "site.dxf"))

    width, height = 64, 32
    raw = b"".join(b"\x00" + b"\x30\x80\xc0" * width for _ in range(height))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF)

    with open(os.path.join(fixtures_dir, "logo.png"), "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                + chunk(b"IDAT", zlib.compress(raw)) + chunk(b"IEND", b""))


write_fixtures()
fixture = lambda name: os.path.join(fixtures_dir, name)


def attribs(insert):
    return {a.dxf.tag: a.dxf.text for a in insert.attribs}


# A block of the drawing, its attributes asked (ATTREQ 1); a drawing file
# as a block; and the same insertion undone and redone.
script = """InsertBlock
CHAIR
1000,2000
2
90
12
InsertBlock
@FIX@/table.dxf
0,0
1
0

InsertBlock
CHAIR
0,0
1
0

U
REDO
SaveAsDocument
@OUT@
Exit
""".replace("@FIX@", fixtures_dir)
out, folder = run("insert block", script, fixture("furniture.dxf"))
doc = saved("insert block", folder)
if doc:
    inserts = doc.modelspace().query("INSERT")
    check(len(inserts) == 3, "insert block: three references, found %d" % len(inserts))
    chairs = [i for i in inserts if i.dxf.name == "CHAIR"]
    if chairs:
        first = chairs[0]
        check(tuple(first.dxf.insert)[:2] == (1000, 2000) and first.dxf.xscale == 2 and close(first.dxf.rotation, 90),
              "insert block: placement %s %s %s" % (first.dxf.insert, first.dxf.xscale, first.dxf.rotation))
        check(attribs(first) == {"SEAT": "12", "MAKER": "ACME"}, "insert block: attributes %s" % attribs(first))
        seat = [a for a in first.attribs if a.dxf.tag == "SEAT"][0]
        # The definition's point (0,-100) turned a quarter and doubled.
        check(abs(seat.dxf.insert[0] - 1200) < 1e-6 and abs(seat.dxf.insert[1] - 2000) < 1e-6,
              "insert block: attribute position %s" % (seat.dxf.insert,))
        check(attribs(chairs[-1]) == {"SEAT": "S1", "MAKER": "ACME"}, "insert block: default attribute value")
    tables = [i for i in inserts if i.dxf.name == "table"]
    check(len(tables) == 1 and attribs(tables[0]) == {"LABEL": "T"}, "insert block: a file as a block, its attribute")
    check("Seat number <S1>: 12" in out, "insert block: the attribute is asked with its prompt")
    check("Undone: InsertBlock" in out and "Redone: InsertBlock" in out, "insert block: undo and redo")

# An external reference attached, a missing one refused.
script = """XATTACH
@FIX@/site.dxf
10,10
1
0
XATTACH
@FIX@/nowhere.dxf
SaveAsDocument
@OUT@
Exit
""".replace("@FIX@", fixtures_dir)
out, folder = run("xattach", script)
doc = saved("xattach", folder)
if doc:
    xrefs = [b for b in doc.blocks if b.block.is_xref]
    check(len(xrefs) == 1 and xrefs[0].name == "site", "xattach: one XREF block 'site'")
    if xrefs:
        check(xrefs[0].block.dxf.flags & 4 and xrefs[0].block.dxf.xref_path == fixture("site.dxf"),
              "xattach: flag 4 and the path kept")
    inserts = doc.modelspace().query("INSERT")
    check(len(inserts) == 1 and inserts[0].dxf.name == "site", "xattach: one reference")
    check("nowhere.dxf\": the file does not exist. Nothing was attached." in out, "xattach: missing file refused")

# A picture placed twice with one definition.
script = """INSERTRASTER
@FIX@/logo.png
0,0
0.5
0
INSERTRASTER
@FIX@/logo.png
100,0
1
90
SaveAsDocument
@OUT@
Exit
""".replace("@FIX@", fixtures_dir)
out, folder = run("raster", script)
doc = saved("raster", folder)
if doc:
    images = doc.modelspace().query("IMAGE")
    defs = doc.objects.query("IMAGEDEF")
    check(len(images) == 2 and len(defs) == 1, "raster: two images, one definition (%d, %d)" % (len(images), len(defs)))
    if len(images) == 2 and defs:
        check(images[0].dxf.image_def_handle == images[1].dxf.image_def_handle == defs[0].dxf.handle,
              "raster: both images show the one definition")
        check(tuple(images[0].dxf.image_size)[:2] == (64, 32), "raster: size in pixels %s" % (images[0].dxf.image_size,))
        check(abs(images[0].dxf.u_pixel[0] - 0.5) < 1e-9, "raster: half a unit per pixel")
        check(len(doc.objects.query("IMAGEDEF_REACTOR")) == 2, "raster: a reactor per image")

# A hatch with its pattern lines from the HP variables, and a gradient. An
# empty line closes a polygon; the next one ends the choice of boundaries.
script = """CIRCLE 0,0 50
SETVAR HPNAME ANSI31
SETVAR HPANG 30
SETVAR HPSCALE 2
FASTHATCHCMD
@CIRCLE@
200,0
300,0
300,100


SETVAR GFNAME 4
SETVAR GFCLR1 RGB:255,0,0
FASTGRADIENTCMD
400,0
500,0
500,100


SaveAsDocument
@OUT@
Exit
"""
out, folder = run("hatch", script.replace("@CIRCLE@", "1F"))
doc = saved("hatch", folder)
if doc:
    hatches = doc.modelspace().query("HATCH")
    check(len(hatches) == 2, "hatch: two hatches, found %d" % len(hatches))
    pattern = [h for h in hatches if h.dxf.pattern_name == "ANSI31"]
    check(len(pattern) == 1, "hatch: an ANSI31 hatch")
    if pattern:
        h = pattern[0]
        check(close(h.dxf.pattern_angle, 30) and h.dxf.pattern_scale == 2, "hatch: angle 30 and scale 2")
        check(len(h.paths) == 2, "hatch: the circle and the polygon as boundaries")
        lines = h.pattern.lines
        check(len(lines) == 1 and close(lines[0].angle, 75), "hatch: one line family at 45+30 degrees")
        if lines:
            check(abs(math.hypot(*lines[0].offset) - 6.35) < 1e-9, "hatch: lines 2 x 3.175 apart")
    gradients = [h for h in hatches if h.gradient]
    check(len(gradients) == 1 and gradients[0].gradient.name == "SPHERICAL"
          and tuple(gradients[0].gradient.color1) == (255, 0, 0), "hatch: a red SPHERICAL gradient")

# Real drawings and pictures of others, when they are beside the sources: a
# block with three attributes in a drawing of another program, that program's
# external reference, and a JPEG photograph.
if external:
    flags = os.path.join(external, "mozman__ezdxf/examples_dxf/multi_insert_with_attribs.dxf")
    xref = os.path.join(external, "Genidiot__dxf_create/xref.dxf")
    photo = os.path.join(external, "mozman__ezdxf/examples_dxf/image/image1.jpg")
    script = """InsertBlock FLAG 500,500 1 0
North
1
2
XATTACH
%s
0,0
1
0
INSERTRASTER
%s
0,0
0.01
0
SaveAsDocument
@OUT@
Exit
""" % (xref, photo)
    out, folder = run("external drawings", script, flags)
    doc = saved("external drawings", folder)
    if doc:
        placed = [i for i in doc.modelspace().query("INSERT") if tuple(i.dxf.insert)[:2] == (500, 500)]
        check(len(placed) == 1 and attribs(placed[0]) == {"NAME": "North", "XPOS": "1", "YPOS": "2"},
              "external drawings: FLAG with its three attributes")
        check(any(b.block.is_xref and b.name == "xref" for b in doc.blocks), "external drawings: the XREF block")
        images = doc.modelspace().query("IMAGE")
        check(len(images) == 1 and tuple(images[0].dxf.image_size)[:2] == (1000, 667),
              "external drawings: the photograph at its pixel size")

if failures:
    print("%d failure(s)" % len(failures))
    sys.exit(1)
print("commands end-to-end test passed")
