#!/usr/bin/python3
"""End-to-end: the sample catalog that comes with the host is found through
the default "CommonDirs" of a fresh configuration, and its tools draw: a
command tool starts its command for the user's points, a hatch tool and a
gradient tool hatch the boundary the user gives.

Usage: sample_catalog_test.py <verdani-console>
"""
import os
import subprocess
import sys
import tempfile

import ezdxf

console = sys.argv[1]
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAIL:", what)


def run(script):
    home = tempfile.mkdtemp(prefix="verdani-samples-")
    env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home + "/config", XDG_DATA_HOME=home + "/data")
    done = subprocess.run([console], input=script.replace("@OUT@", home + "/out.dxf"), env=env, capture_output=True,
                          text=True, timeout=120)
    print(done.stdout + done.stderr)
    check(done.returncode == 0, "exit code %d" % done.returncode)
    return done.stdout, home


out, _ = run("ToolPalettesList\nExit\n")
check("catalog Verdani samples" in out, "the sample catalog is found without settings")
for line in ("palette Draw", "tool Circle [command]", "palette Hatches", "tool Brick [hatch]",
             "tool Cylinder gradient [hatch]"):
    check(line in out, "listed: " + line)

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

print("%d passed, %d failed" % (0 if failures else 1, len(failures)))
sys.exit(1 if failures else 0)
