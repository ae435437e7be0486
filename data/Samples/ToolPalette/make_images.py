#!/usr/bin/python3
"""Draws the pictures of the sample tools into Palettes/Images at 16, 32 and
64 pixels: each block of Blocks/Furniture.dxf from its own geometry, each
hatch from its pattern lines in verdaniiso.pat, each gradient as the host
shades it, and a small drawing of what each command tool draws. Run once
after a change of the drawing, the patterns or the tools; the pictures are
kept beside the palettes.

Usage: make_images.py
"""
import math
import os

import ezdxf
import ezdxf.path
import ezdxf.render.hatching as hatching
import ezdxf.tools.pattern as patterns
from PIL import Image, ImageDraw

HERE = os.path.dirname(os.path.abspath(__file__))
IMAGES = os.path.join(HERE, "Palettes", "Images")
PATTERN_FILE = os.path.join(HERE, "..", "..", "patterns", "verdaniiso.pat")
SIZES = (16, 32, 64)
OVERSAMPLE = 4  # drawn large and reduced, for smooth lines
INK = (24, 40, 72)
PAPER = (255, 255, 255)


def save(picture, name, size):
    picture.resize((size, size), Image.LANCZOS).save(os.path.join(IMAGES, "%s%d.png" % (name, size)))


def draw_polylines(polylines, size, margin=0.1, closed_fill=None):
    """Polylines in drawing units fitted into a square picture of `size`."""
    big = size * OVERSAMPLE
    picture = Image.new("RGB", (big, big), PAPER)
    pen = ImageDraw.Draw(picture)
    xs = [x for line in polylines for x, _ in line]
    ys = [y for line in polylines for _, y in line]
    extent = max(max(xs) - min(xs), max(ys) - min(ys)) or 1.0
    scale = big * (1 - 2 * margin) / extent
    cx, cy = (max(xs) + min(xs)) / 2, (max(ys) + min(ys)) / 2
    width = max(1, round(big / 28))
    for line in polylines:
        points = [(big / 2 + (x - cx) * scale, big / 2 - (y - cy) * scale) for x, y in line]
        pen.line(points, fill=INK, width=width, joint="curve")
    return picture


def block_pictures():
    doc = ezdxf.readfile(os.path.join(HERE, "Blocks", "Furniture.dxf"))
    for block in doc.blocks:
        if block.name.startswith("*"):
            continue
        polylines = []
        for entity in block:
            if entity.dxftype() in ("LINE", "ARC", "CIRCLE", "LWPOLYLINE"):
                path = ezdxf.path.make_path(entity)
                polylines.append([(v.x, v.y) for v in path.flattening(distance=1.0)])
        for size in SIZES:
            save(draw_polylines(polylines, size), block.name, size)


def framed(picture):
    ImageDraw.Draw(picture).rectangle((0, 0, picture.width - 1, picture.height - 1), outline=(0, 0, 0))
    return picture


def hatch_picture(name, lines, scale, size):
    """The pattern's lines clipped to a square of 12.7 units at the tool's
    scale, as a hatch of that square shows them."""
    big = size * OVERSAMPLE
    picture = Image.new("RGB", (big, big), PAPER)
    side = 25.4 * scale
    if name == "SOLID":
        picture.paste(INK, (0, 0, big, big))
    else:
        doc = ezdxf.new("R2018")
        hatch = doc.modelspace().add_hatch()
        hatch.set_pattern_fill(name, definition=lines, scale=1.0)
        hatch.paths.add_polyline_path([(0, 0), (side, 0), (side, side), (0, side)], is_closed=True)
        pen = ImageDraw.Draw(picture)
        factor = big / side
        for start, end in hatching.hatch_entity(hatch):
            pen.line([(start.x * factor, big - start.y * factor), (end.x * factor, big - end.y * factor)],
                     fill=INK, width=max(1, OVERSAMPLE // 2 + size // 32))
    return framed(picture.resize((size, size), Image.LANCZOS))


def hatch_pictures():
    with open(PATTERN_FILE) as f:
        table = patterns.parse(f.read())
    for name, scale in (("ANSI31", 1), ("ANSI32", 1), ("BRICK", 1), ("EARTH", 2), ("HONEY", 1), ("SOLID", 1)):
        for size in SIZES:
            hatch_picture(name, table[name], scale, size).save(os.path.join(IMAGES, "Hatch_%s%d.png" % (name, size)))


def mix(c1, c2, t):
    return tuple(round(a + (b - a) * t) for a, b in zip(c1, c2))


def gradient_picture(name, size, c1=(30, 80, 160), c2=(255, 255, 224)):
    picture = Image.new("RGB", (size, size))
    pixels = picture.load()
    for y in range(size):
        for x in range(size):
            u = x / (size - 1)
            if name == "LINEAR":
                t = u
            elif name == "CYLINDER":
                t = 1 - abs(2 * u - 1)
            else:  # SPHERICAL: the second colour at the centre
                r = math.hypot(x - size / 2, y - size / 2) / (size / 2)
                t = max(0.0, 1 - r)
            pixels[x, y] = mix(c1, c2, t)
    return framed(picture)


def gradient_pictures():
    for name in ("LINEAR", "CYLINDER", "SPHERICAL"):
        for size in SIZES:
            gradient_picture(name, size).save(os.path.join(IMAGES, "Gradient_%s%d.png" % (name, size)))


def arc(cx, cy, r, start, end, steps=24):
    return [(cx + r * math.cos(math.radians(start + (end - start) * i / steps)),
             cy + r * math.sin(math.radians(start + (end - start) * i / steps))) for i in range(steps + 1)]


COMMANDS = {
    "LINE": [[(0, 0), (10, 10)]],
    "PLINE": [[(0, 2), (3, 8), (6, 3), (10, 9)]],
    "CIRCLE": [arc(5, 5, 5, 0, 360, 48)],
    "ARC": [arc(5, 2, 5, 20, 160)],
    # A capital T of three strokes, and a base line under it.
    "TEXT": [[(1, 10), (9, 10)], [(5, 10), (5, 1)], [(0, 0), (10, 0)]],
}


def command_pictures():
    for name, polylines in COMMANDS.items():
        for size in SIZES:
            save(draw_polylines(polylines, size, margin=0.15), "Command_" + name, size)


def main():
    os.makedirs(IMAGES, exist_ok=True)
    block_pictures()
    hatch_pictures()
    gradient_pictures()
    command_pictures()


if __name__ == "__main__":
    main()
