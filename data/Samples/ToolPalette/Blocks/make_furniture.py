#!/usr/bin/python3
"""Writes Furniture.dxf, the source drawing of the sample block tools: a
chair, a table, a desk, a door swing, a sink and a bed, in millimetres, on
the layer "FURNITURE", drawn here from plain dimensions. Run once; the
drawing is kept beside this script.

Usage: make_furniture.py [OUTPUT.dxf]
"""
import os
import sys

import ezdxf

LAYER = {"layer": "FURNITURE"}


def chair(block):
    # Seat 450 by 450 with a backrest along the top edge.
    block.add_lwpolyline([(0, 0), (450, 0), (450, 450), (0, 450)], close=True, dxfattribs=LAYER)
    block.add_lwpolyline([(0, 450), (450, 450), (450, 520), (0, 520)], close=True, dxfattribs=LAYER)
    block.add_line((40, 40), (410, 40), dxfattribs=LAYER)


def table(block):
    # A round table of 1200 for four, the chairs' places marked by arcs.
    block.add_circle((0, 0), 600, dxfattribs=LAYER)
    for angle in (0, 90, 180, 270):
        block.add_arc((0, 0), 750, angle - 20, angle + 20, dxfattribs=LAYER)


def desk(block):
    # 1600 by 800 with a drawer unit and the seat number as an attribute.
    block.add_lwpolyline([(0, 0), (1600, 0), (1600, 800), (0, 800)], close=True, dxfattribs=LAYER)
    block.add_lwpolyline([(1150, 0), (1600, 0), (1600, 600), (1150, 600)], close=True, dxfattribs=LAYER)
    for y in (200, 400):
        block.add_line((1150, y), (1600, y), dxfattribs=LAYER)
    attdef = block.add_attdef("SEAT", (100, 650), dxfattribs=dict(LAYER, height=80, prompt="Seat number"))
    attdef.dxf.text = "1"


def door(block):
    # A 900 door leaf open at right angles, with its swing.
    block.add_lwpolyline([(0, 0), (40, 0), (40, 900), (0, 900)], close=True, dxfattribs=LAYER)
    block.add_arc((0, 0), 900, 0, 90, dxfattribs=LAYER)
    block.add_line((0, 0), (900, 0), dxfattribs=LAYER)


def sink(block):
    # A worktop sink 600 by 450: rounded basin, drain and tap.
    block.add_lwpolyline([(0, 0), (600, 0), (600, 450), (0, 450)], close=True, dxfattribs=LAYER)
    bulge = 0.414214  # a quarter circle
    block.add_lwpolyline([(100, 50, 0, 0, 0), (450, 50, 0, 0, bulge), (500, 100, 0, 0, 0),
                          (500, 300, 0, 0, bulge), (450, 350, 0, 0, 0), (150, 350, 0, 0, bulge),
                          (100, 300, 0, 0, 0), (100, 50, 0, 0, 0)], format="xyseb", close=True,
                         dxfattribs=LAYER)
    block.add_circle((300, 200), 25, dxfattribs=LAYER)
    block.add_circle((300, 400), 20, dxfattribs=LAYER)


def bed(block):
    # A double bed 1600 by 2000 with two pillows and the folded-back cover.
    block.add_lwpolyline([(0, 0), (1600, 0), (1600, 2000), (0, 2000)], close=True, dxfattribs=LAYER)
    for x in (100, 850):
        block.add_lwpolyline([(x, 1650), (x + 650, 1650), (x + 650, 1900), (x, 1900)], close=True,
                             dxfattribs=LAYER)
    block.add_line((0, 1450), (1600, 1450), dxfattribs=LAYER)
    block.add_line((0, 1450), (300, 1600), dxfattribs=LAYER)


BLOCKS = {"CHAIR": chair, "TABLE": table, "DESK": desk, "DOOR": door, "SINK": sink, "BED": bed}


def main():
    target = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "Furniture.dxf")
    doc = ezdxf.new("R2018")
    doc.header["$INSUNITS"] = 4  # millimetres
    doc.header["$MEASUREMENT"] = 1
    doc.layers.add("FURNITURE", color=8)
    msp = doc.modelspace()
    x = 0
    for name, draw in BLOCKS.items():
        block = doc.blocks.new(name, base_point=(0, 0))
        block.block_record.dxf.units = 4
        draw(block)
        # The drawing shows each block once, in a row.
        msp.add_blockref(name, (x, 0), dxfattribs=LAYER)
        x += 2500
    doc.saveas(target)


if __name__ == "__main__":
    main()
