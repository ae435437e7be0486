#!/usr/bin/python3
"""Writes a drawing shaped like a real one, with ezdxf, for bench_dxf.

  make_drawing.py FILE VERSION SCALE

VERSION is a DXF version name ezdxf knows (R2000, R2018). At SCALE 1 the
drawing holds 60,000 each of lines, circles and light polylines, 15,000
texts, 12,000 block references and 1,200 hatches, on 40 layers, with a few
blocks, true colours and texts outside the code page (which R2000 keeps as
\\U+XXXX escapes): about 37 MB of DXF.
"""
import math
import random
import sys

import ezdxf


def main():
    path, version, scale = sys.argv[1], sys.argv[2], float(sys.argv[3])
    rnd = random.Random(20240611)
    doc = ezdxf.new(version, setup=True)
    layers = [f"A-{kind}-{n:02d}" for kind in ("WALL", "DOOR", "GRID", "TEXT") for n in range(10)]
    for i, name in enumerate(layers):
        layer = doc.layers.add(name, color=1 + i % 250)
        if i % 7 == 0:
            layer.rgb = (i * 5 % 256, 120, 200)
    for name in ("DOOR", "WINDOW", "CHAIR", "DESK"):
        blk = doc.blocks.new(name, base_point=(0, 0))
        blk.add_lwpolyline([(0, 0), (1, 0), (1, 1), (0, 1)], close=True)
        blk.add_arc((0, 0), 1, 0, 90)
        blk.add_line((0, 0), (1, 1))
        blk.add_attdef("TAG", (0, -0.5), dxfattribs={"height": 0.2})
    texts = ["Room {}", "Ø {} mm", "Straße {}", "Ключ {}", "Axis {} – east", "Level {}"]
    msp = doc.modelspace()

    def count(n):
        return int(n * scale)

    def at():
        return round(rnd.uniform(0, 10000), 4), round(rnd.uniform(0, 10000), 4)

    def props(i):
        attribs = {"layer": layers[i % len(layers)]}
        if i % 11 == 0:
            attribs["color"] = 1 + i % 255
        if i % 97 == 0:
            attribs["true_color"] = ezdxf.rgb2int((i % 256, 80, 160))
        return attribs

    for i in range(count(60000)):
        x, y = at()
        msp.add_line((x, y), (round(x + rnd.uniform(-50, 50), 4), round(y + rnd.uniform(-50, 50), 4)), dxfattribs=props(i))
    for i in range(count(60000)):
        msp.add_circle(at(), round(rnd.uniform(0.5, 40), 4), dxfattribs=props(i))
    for i in range(count(60000)):
        x, y = at()
        points = [(round(x + k * rnd.uniform(1, 5), 4), round(y + rnd.uniform(-3, 3), 4)) for k in range(4 + i % 5)]
        msp.add_lwpolyline(points, close=i % 3 == 0, dxfattribs=props(i))
    for i in range(count(15000)):
        attribs = props(i)
        attribs["height"] = 2.5
        attribs["rotation"] = (i % 8) * 45.0
        msp.add_text(texts[i % len(texts)].format(i), dxfattribs=attribs).set_placement(at())
    names = ("DOOR", "WINDOW", "CHAIR", "DESK")
    for i in range(count(12000)):
        attribs = props(i)
        attribs["rotation"] = (i % 4) * 90.0
        ref = msp.add_blockref(names[i % 4], at(), dxfattribs=attribs)
        if i % 5 == 0:
            ref.add_auto_attribs({"TAG": f"T{i}"})
    for i in range(count(1200)):
        x, y = at()
        hatch = msp.add_hatch(color=1 + i % 7, dxfattribs={"layer": layers[i % len(layers)]})
        corners = 3 + i % 6
        radius = rnd.uniform(5, 30)
        hatch.paths.add_polyline_path(
            [(x + radius * math.cos(2 * math.pi * k / corners), y + radius * math.sin(2 * math.pi * k / corners))
             for k in range(corners)], is_closed=True)
        if i % 3 == 0:
            hatch.set_solid_fill(color=1 + i % 7)
        else:
            hatch.set_pattern_fill("ANSI31" if i % 3 == 1 else "AR-BRSTD", scale=0.5 + i % 4)
    doc.saveas(path)


if __name__ == "__main__":
    main()
