#!/usr/bin/python3
"""End-to-end: the sample catalog that comes with the host is found through
the default "CommonDirs" of a fresh configuration, and its tools draw: a
command tool starts its command for the user's points, a hatch tool and a
gradient tool hatch the boundary the user gives, a block tool brings its
block over from the catalog's own furniture drawing, wherever the catalog
lies. Every sample tool shows its pictures from the palette's Images folder.

Usage: sample_catalog_test.py <verdani-console>
"""
import os
import shutil
import subprocess
import sys
import tempfile

import ezdxf

console = os.path.abspath(sys.argv[1])
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAIL:", what)


def run(script, settings=(), prepare=None):
    """Runs the console host in a fresh home, started in that home so that
    nothing is found through the folder the host starts in; `prepare` gets
    the home first."""
    home = tempfile.mkdtemp(prefix="verdani-samples-")
    env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home + "/config", XDG_DATA_HOME=home + "/data")
    arguments = [console] + [a for s in settings for a in ("--set", s.replace("@HOME@", home))]
    if prepare:
        prepare(home)
    done = subprocess.run(arguments, input=script.replace("@OUT@", home + "/out.dxf"), env=env, capture_output=True,
                          text=True, timeout=120, cwd=home)
    print(done.stdout + done.stderr)
    check(done.returncode == 0, "exit code %d" % done.returncode)
    return done.stdout, home


FURNITURE = ("Chair", "Table", "Desk", "Door", "Sink", "Bed")

out, _ = run("ToolPalettesList\nExit\n")
check("catalog Verdani samples" in out, "the sample catalog is found without settings")
for line in ("palette Draw", "tool Circle [command]", "palette Hatches", "tool Brick [hatch]",
             "tool Cylinder gradient [hatch]", "palette Furniture") + tuple("tool %s [block]" % t for t in FURNITURE):
    check(line in out, "listed: " + line)
paths = [l for l in out.splitlines() if l.startswith("paths: ")]
samples_folder = paths[0][len("paths: "):].split(";")[1] if paths else ""
check(samples_folder.endswith("/Samples/ToolPalette"), "the sample catalog's folder is listed: %r" % samples_folder)


def sample_pictures(listing):
    """Each item of the sample catalog with its picture lines, from the
    output of ToolPalettesImages."""
    items, current, inside = {}, None, False
    for line in listing.splitlines():
        if line.startswith("catalog "):
            inside = line.startswith("catalog Verdani samples")
            continue
        text = line.strip()
        if not inside or not text:
            continue
        if text.startswith("image "):
            if current:
                items[current].append(text)
        else:
            current = text
            items[current] = []
    return items


out, _ = run("ToolPalettesImages\nExit\n")
pictures = sample_pictures(out)
tools = [item for item in pictures if item.startswith("tool ")]
check(len(tools) == 5 + 9 + len(FURNITURE), "every sample tool is listed with its pictures: %d" % len(tools))
images_folder = os.path.join(samples_folder, "Palettes", "Images") + "/"
for tool in tools:
    lines = pictures[tool]
    sizes = sorted(int(l.split()[1]) for l in lines)
    check(sizes[:1] == [1] and 3 in sizes and 4 in sizes, "%s: pictures at 16, 32 and 64 pixels: %s" % (tool, lines))
    for line in lines:
        check(line.endswith(" loaded") and line.split()[3].startswith(images_folder),
              "%s: a picture of the Images folder, loaded: %s" % (tool, line))
check(any("CHAIR64.png loaded" in l for l in pictures.get("tool Chair [block]", [])), "the chair's own picture")

out, home = run("ToolPalettesRun\nCircle\n0,0\n50\n"
                "ToolPalettesRun\nBrick\n100,0\n300,0\n300,200\n\n\n"
                "ToolPalettesRun\nCylinder gradient\n400,0\n600,0\n600,200\n\n\n"
                "SaveAsDocument\n@OUT@\nExit\n")
path = os.path.join(home, "out.dxf")
check(os.path.exists(path), "the drawing was saved")
if os.path.exists(path):
    doc = ezdxf.readfile(path)
    check(not doc.audit().has_errors, "ezdxf audits the drawing without errors")
    msp = doc.modelspace()
    circles = msp.query("CIRCLE")
    check(len(circles) == 1 and circles[0].dxf.radius == 50, "the Circle tool drew a circle of radius 50")
    hatches = msp.query("HATCH")
    check([h.dxf.pattern_name for h in hatches if not h.gradient] == ["BRICK"], "the Brick tool hatched with BRICK")
    check([h.gradient.name for h in hatches if h.gradient] == ["CYLINDER"], "the gradient tool made a CYLINDER")


def check_furniture(doc, what):
    check(not doc.audit().has_errors, "%s: ezdxf audits the drawing without errors" % what)
    inserts = {e.dxf.name: e for e in doc.modelspace().query("INSERT")}
    chair = inserts.get("CHAIR")
    check(chair is not None and tuple(chair.dxf.insert)[:2] == (1000, 0), "%s: the chair stands at 1000,0" % what)
    check("CHAIR" in doc.blocks and any(e.dxf.layer == "FURNITURE" for e in doc.blocks.get("CHAIR")),
          "%s: the chair's block came over with its layer" % what)
    check(doc.layers.has_entry("FURNITURE"), "%s: the layer FURNITURE came over" % what)
    return inserts


# No settings at all: the furniture drawing is found beside the catalog.
out, home = run("ToolPalettesRun\nChair\n1000,0\n"
                "ToolPalettesRun\nDesk\n3000,0\n7\n"
                "ToolPalettesRun\nDoor\n5000,0\n90\n"
                "SaveAsDocument\n@OUT@\nExit\n")
check("Could not find" not in out and "is not found" not in out, "the block tools find their source drawing")
path = os.path.join(home, "out.dxf")
check(os.path.exists(path), "the drawing with the furniture was saved")
if os.path.exists(path):
    inserts = check_furniture(ezdxf.readfile(path), "build tree")
    desk = inserts.get("DESK")
    seats = [a.dxf.text for a in desk.attribs if a.dxf.tag == "SEAT"] if desk else []
    check(seats == ["7"], "the desk got the seat number typed: %s" % seats)
    door = inserts.get("DOOR")
    check(door is not None and abs(door.dxf.rotation - 90) < 1e-9, "the door took the rotation typed")

def copy_catalog(home):
    """The catalog copied as an installation puts it, its chair marked with
    a circle of radius 123 so that the copy's drawing is known by it."""
    copy = os.path.join(home, "share", "verdani", "Samples", "ToolPalette")
    shutil.copytree(samples_folder, copy)
    drawing = os.path.join(copy, "Blocks", "Furniture.dxf")
    doc = ezdxf.readfile(drawing)
    doc.blocks.get("CHAIR").add_circle((225, 225), 123, dxfattribs={"layer": "FURNITURE"})
    doc.saveas(drawing)


# The copy found alone: its tools take their drawing from where it lies.
out, home = run("ToolPalettesList\nToolPalettesRun\nChair\n1000,0\nSaveAsDocument\n@OUT@\nExit\n",
                settings=("CommonDirs=@HOME@/share/verdani",), prepare=copy_catalog)
check("Could not find" not in out, "the copied catalog's block tool finds its drawing")
check(home + "/share/verdani/Samples/ToolPalette;" in out, "the copied catalog is the one listed")
path = os.path.join(home, "out.dxf")
check(os.path.exists(path), "the drawing from the copied catalog was saved")
if os.path.exists(path):
    doc = ezdxf.readfile(path)
    check_furniture(doc, "copied catalog")
    circles = doc.blocks.get("CHAIR").query("CIRCLE") if "CHAIR" in doc.blocks else []
    check([c.dxf.radius for c in circles] == [123], "the chair came from the copy's drawing")

print("%d passed, %d failed" % (0 if failures else 1, len(failures)))
sys.exit(1 if failures else 0)
