#!/usr/bin/python3
"""The drawing view against an independent renderer.

For real drawings, verdani renders model space into a picture
(--render) and ezdxf's drawing add-on renders the same part of the drawing
with matplotlib. A pixel has ink when it differs from the background. Most
of each side's ink must have ink of the other side within a few pixels:
the measure forgives line widths, fonts and smoothing, but a missing kind
of entity, a wrong transform or a wrong place leaves ink on one side only.

Usage: render_compare_test.py VERDANI EXTERNAL_FOLDER [WORK_FOLDER]
"""

import os
import subprocess
import sys
import tempfile

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402
import numpy  # noqa: E402
from PIL import Image  # noqa: E402

import ezdxf  # noqa: E402
from ezdxf.addons.drawing import Frontend, RenderContext  # noqa: E402
from ezdxf.addons.drawing.matplotlib import MatplotlibBackend  # noqa: E402

WIDTH, HEIGHT = 800, 600
REACH = 3  # pixels between ink and ink that still count as the same place
BACKGROUND = (33, 40, 48)  # the view's background, used for both

# Drawings of the kinds the view draws (ezdxf does not draw raster images,
# and the view does not draw MLINE, MESH or MULTILEADER: drawings with
# those are left out), with the least share of either side's ink that must
# have ink of the other side near it.
DRAWINGS = [
    ("qcad__qcad/examples/example00.dxf", 0.9),  # hatch patterns, linetypes, splines
    ("qcad__qcad/examples/entities.dxf", 0.9),  # every entity kind, dimensions, blocks
    ("mozman__ezdxf/examples_dxf/transform_hatch_pattern.dxf", 0.9),  # hatches in blocks
    ("mozman__ezdxf/examples_dxf/multi_insert_with_attribs.dxf", 0.9),  # attributes
    ("mozman__ezdxf/examples_dxf/dimension_in_nested_blocks.dxf", 0.9),
    ("mozman__ezdxf/examples_dxf/insert_bricscad_level_1.dxf", 0.9),  # nested, mirrored inserts
    ("qcad__qcad/examples/flange.dxf", 0.9),  # many linetypes
    ("LibreDWG__libredwg/test/test-data/r9/entities.dxf", 0.85),  # an old file
]


def render_ours(verdani, drawing, out):
    env = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    result = subprocess.run(
        [verdani, "--render", out, "--size", f"{WIDTH}x{HEIGHT}", drawing],
        capture_output=True, text=True, env=env, timeout=120, check=False)
    if result.returncode != 0:
        raise RuntimeError(f"verdani --render failed: {result.stderr}")
    for line in result.stdout.splitlines():
        if line.startswith("window: "):
            return [float(v) for v in line[len("window: "):].split(",")]
    raise RuntimeError("verdani --render printed no window")


def render_ezdxf(drawing, window, out):
    doc = ezdxf.readfile(drawing)
    fig = plt.figure(figsize=(WIDTH / 100, HEIGHT / 100), dpi=100)
    ax = fig.add_axes([0, 0, 1, 1])
    ctx = RenderContext(doc)
    Frontend(ctx, MatplotlibBackend(ax)).draw_layout(doc.modelspace(), finalize=False)
    ax.set_axis_off()
    x0, y0, x1, y1 = window
    ax.set_xlim(x0, x1)
    ax.set_ylim(y0, y1)
    ax.set_aspect("auto")
    fig.set_size_inches(WIDTH / 100, HEIGHT / 100)
    fig.savefig(out, dpi=100, facecolor=tuple(c / 255 for c in BACKGROUND))
    plt.close(fig)


def ink(path):
    rgb = numpy.asarray(Image.open(path).convert("RGB").resize((WIDTH, HEIGHT)), dtype=numpy.int32)
    return numpy.abs(rgb - numpy.array(BACKGROUND)).sum(axis=2) > 60


def spread(mask, reach):
    """The pixels within `reach` of an inked one."""
    out = mask.copy()
    for dy in range(-reach, reach + 1):
        for dx in range(-reach, reach + 1):
            out |= numpy.roll(numpy.roll(mask, dy, axis=0), dx, axis=1)
    return out


def overlap(ours, theirs):
    """The share of our ink near theirs, and of theirs near ours."""
    a = (ours & spread(theirs, REACH)).sum() / max(1, ours.sum())
    b = (theirs & spread(ours, REACH)).sum() / max(1, theirs.sum())
    return a, b


def main():
    verdani, external = sys.argv[1], sys.argv[2]
    work = sys.argv[3] if len(sys.argv) > 3 else tempfile.mkdtemp(prefix="render-compare-")
    failures = 0
    for relative, least in DRAWINGS:
        drawing = os.path.join(external, relative)
        if not os.path.exists(drawing):
            print(f"skipped (missing): {relative}")
            continue
        name = os.path.splitext(relative.replace("/", "_"))[0]
        ours_png = os.path.join(work, name + "-verdani.png")
        theirs_png = os.path.join(work, name + "-ezdxf.png")
        window = render_ours(verdani, drawing, ours_png)
        render_ezdxf(drawing, window, theirs_png)
        ours, theirs = ink(ours_png), ink(theirs_png)
        a, b = overlap(ours, theirs)
        verdict = "ok" if min(a, b) >= least and ours.sum() > 0 and theirs.sum() > 0 else "FAILED"
        failures += verdict != "ok"
        print(f"{verdict}: {relative}: ours near theirs {a:.2f}, theirs near ours {b:.2f} "
              f"(at least {least}; {ours.sum()} and {theirs.sum()} pixels of ink)")
    print(f"pictures in {work}")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
