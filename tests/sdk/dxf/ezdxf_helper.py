#!/usr/bin/python3
"""Independent check of DXF files with ezdxf, for the DXF tests.

  ezdxf_helper.py fixtures DIR      write the fixture drawings into DIR
  ezdxf_helper.py summary FILE      read FILE, audit it, print a JSON summary
  ezdxf_helper.py compare ORIG OURS read both, audit OURS, print the
                                    differences as JSON
  ezdxf_helper.py probe             exit 0 when ezdxf is importable
"""
import json
import re
import sys

import ezdxf


def attr(e, name, default=None):
    try:
        return e.dxf.get(name, default)
    except ezdxf.DXFError:
        return default


def color_of(e):
    return [attr(e, "color", 256), attr(e, "true_color"), attr(e, "color_name")]


def summarize(path):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    out = {
        "version": doc.dxfversion,
        "audit_errors": [str(err.message) for err in auditor.errors],
        "layers": {},
        "linetypes": {},
        "styles": {},
        "dimstyles": {},
        "blocks": {},
        "modelspace": [],
        "images": [],
    }
    for layer in doc.layers:
        d = layer.dxf
        out["layers"][d.name] = {
            "color": d.get("color", 7), "true_color": d.get("true_color", None),
            "linetype": d.get("linetype", "Continuous"), "lineweight": d.get("lineweight", -3),
            "plot": d.get("plot", 1), "flags": d.get("flags", 0),
        }
    for lt in doc.linetypes:
        tags = [list(t) for t in lt.pattern_tags.tags] if lt.pattern_tags else []
        out["linetypes"][lt.dxf.name] = {
            "description": lt.dxf.get("description", ""),
            "length": round(lt.dxf.get("length", 0.0), 9) if hasattr(lt.dxf, "length") else None,
            "dashes": [round(t[1], 9) for t in tags if t[0] == 49],
            "texts": [t[1] for t in tags if t[0] == 9],
            "shapes": [t[1] for t in tags if t[0] == 75],
        }
    for st in doc.styles:
        d = st.dxf
        out["styles"][d.name] = {"font": d.get("font", ""), "bigfont": d.get("bigfont", ""),
                                 "width": d.get("width", 1.0), "oblique": d.get("oblique", 0.0),
                                 "flags": d.get("flags", 0), "generation": d.get("generation_flags", 0)}
    for ds in doc.dimstyles:
        vals = {}
        for name in ("dimasz", "dimtxt", "dimscale", "dimexo", "dimgap", "dimdec", "dimtad", "dimlunit",
                     "dimclrd", "dimclre", "dimclrt", "dimlwd", "dimlwe", "dimtfill", "dimfxlon", "dimfxl",
                     "dimjogang", "dimpost", "dimapost", "dimtih", "dimtoh", "dimse1", "dimsah"):
            v = ds.dxf.get(name, None)
            vals[name] = round(v, 9) if isinstance(v, float) else v
        vals["dimtxsty"] = ds.dxf.get("dimtxsty", None)
        vals["dimblk"] = ds.dxf.get("dimblk", None)
        out["dimstyles"][ds.dxf.name] = vals
    for blk in doc.blocks:
        out["blocks"][blk.name] = {
            "count": len(blk),
            "types": sorted(e.dxftype() for e in blk),
            "base": [round(c, 9) for c in blk.block.dxf.base_point],
            "description": blk.block.dxf.get("description", ""),
            "flags": blk.block.dxf.get("flags", 0),
            "xref_path": blk.block.dxf.get("xref_path", ""),
            "units": blk.block_record.dxf.get("units", 0),
            "scaling": blk.block_record.dxf.get("scale", 0),
        }
    for e in doc.modelspace():
        item = {"type": e.dxftype(), "layer": attr(e, "layer", "0"), "color": color_of(e),
                "linetype": attr(e, "linetype", "BYLAYER"), "lineweight": attr(e, "lineweight", -1),
                "ltscale": attr(e, "ltscale", 1.0), "transparency": attr(e, "transparency")}
        t = e.dxftype()
        if t == "HATCH":
            item["pattern"] = e.dxf.pattern_name
            item["solid"] = e.dxf.solid_fill
            item["loops"] = len(e.paths)
            item["pattern_lines"] = len(e.pattern.lines) if e.pattern else 0
            item["pattern_angle"] = round(e.dxf.get("pattern_angle", 0.0), 6)
            item["pattern_scale"] = round(e.dxf.get("pattern_scale", 1.0), 6)
            g = e.gradient
            item["gradient"] = None if g is None else {
                "name": g.name, "rotation": round(g.rotation, 6), "centered": round(g.centered, 6),
                "color1": list(g.color1) if g.color1 else None, "color2": list(g.color2) if g.color2 else None}
        elif t == "INSERT":
            item["name"] = e.dxf.name
            item["attribs"] = {a.dxf.tag: a.dxf.text for a in e.attribs}
        elif t == "IMAGE":
            item["imagedef"] = e.image_def.dxf.filename if e.image_def else None
        elif t in ("TEXT", "ATTDEF"):
            item["text"] = e.dxf.text
        elif t == "MTEXT":
            item["text"] = e.text
        elif t == "LWPOLYLINE":
            item["points"] = len(e)
        elif t == "POLYLINE":
            item["points"] = len(e.vertices)
        out["modelspace"].append(item)
    for d in doc.objects.query("IMAGEDEF"):
        out["images"].append(d.dxf.filename)
    return out


UNICODE_ESCAPE = re.compile(r"\\U\+([0-9A-Fa-f]{4})")


def normalized(value):
    """Old files spell characters as \\U+XXXX, which ezdxf leaves as they
    are; an empty text and a missing one mean the same."""
    if isinstance(value, str):
        return UNICODE_ESCAPE.sub(lambda m: chr(int(m.group(1), 16)), value) or None
    if isinstance(value, dict):
        return {normalized(k): normalized(v) for k, v in value.items()}
    if isinstance(value, list):
        return [normalized(v) for v in value]
    return value


def compare(orig, ours):
    b = normalized(summarize(ours))
    try:
        a = normalized(summarize(orig))
    except Exception:  # ezdxf cannot read some old or odd files at all
        return {"audit_errors": b["audit_errors"], "diffs": [], "original_unreadable": True}
    diffs = []
    for key in ("layers", "linetypes", "styles", "dimstyles", "blocks", "images", "modelspace"):
        x, y = a[key], b[key]
        if isinstance(x, dict):
            for name in sorted(set(x) | set(y), key=str):
                if name in x and name not in y and key == "blocks" and name.startswith("_"):
                    continue  # arrow blocks that ezdxf makes for old files
                if x.get(name) != y.get(name):
                    diffs.append([key, name, x.get(name), y.get(name)])
        elif x != y:
            diffs.append([key, len(x), len(y), [i for i, (p, q) in enumerate(zip(x, y)) if p != q][:5]])
    return {"audit_errors": b["audit_errors"], "diffs": diffs}


def fixtures(folder):
    """Drawings that use every table, entity and value the database models."""
    doc = ezdxf.new("R2018", setup=True)
    doc.header["$INSUNITS"] = 4
    doc.header["$DIMSCALE"] = 2.5
    msp = doc.modelspace()
    doc.layers.add("Walls", color=1, linetype="DASHED", lineweight=35)
    lay = doc.layers.add("NoPlot", color=3)
    lay.dxf.plot = 0
    lay.dxf.true_color = ezdxf.rgb2int((10, 20, 30))
    doc.layers.add("Frozen").freeze()
    doc.layers.add("Locked").lock()
    doc.layers.add("Off").off()
    doc.layers.add("Кириллица", color=5)
    doc.styles.add("Arial", font="arial.ttf").set_extended_font_data("Arial", italic=True, bold=True)
    doc.styles.add("Shapes", font="ltypeshp.shx").dxf.flags = 1
    doc.linetypes.add("GASLINE", pattern="A,.5,-.2,[\"GAS\",Arial,S=.1,U=0.0,X=-0.1,Y=-.05],-.25",
                      description="Gas line ----GAS----GAS----", length=0.95)
    doc.linetypes.add("TRACKS2", pattern="A,.25,-.1,[132,ltypeshp.shx,S=.25,R=0.0,X=-.1,Y=-.05],-.1",
                      description="Tracks", length=0.45)
    ds = doc.dimstyles.new("Custom")
    ds.dxf.dimasz = 0.25
    ds.dxf.dimtxt = 3.5
    ds.dxf.dimscale = 10.0
    ds.dxf.dimclrd = 1
    ds.dxf.dimclre = 2
    ds.dxf.dimclrt = 3
    ds.dxf.dimlwd = 25
    ds.dxf.dimdec = 2
    ds.dxf.dimtad = 1
    ds.dxf.dimpost = "<> mm"
    ds.dxf.dimtxsty = "Arial"
    ds.dxf.dimfxlon = 1
    ds.dxf.dimfxl = 1.5
    ds.dxf.dimjogang = 0.5
    msp.add_line((0, 0), (10, 5), dxfattribs={"layer": "Walls", "color": 1, "lineweight": 50, "ltscale": 2.0})
    msp.add_circle((5, 5), 3, dxfattribs={"true_color": ezdxf.rgb2int((200, 100, 50)), "transparency": 0x2000040,
                                          "color_name": "RAL CLASSIC$RAL 2001"})
    msp.add_arc((0, 0), 4, 10, 80, dxfattribs={"linetype": "GASLINE"})
    msp.add_ellipse((1, 1), major_axis=(3, 0), ratio=0.5)
    msp.add_lwpolyline([(0, 0, 0, 0, 0.5), (4, 0), (4, 4)], format="xyseb", close=True)
    msp.add_polyline2d([(0, 0), (1, 1), (2, 0)])
    msp.add_spline([(0, 0), (1, 2), (3, 1), (4, 4)])
    msp.add_point((7, 7))
    msp.add_solid([(0, 0), (1, 0), (0, 1), (1, 1)])
    msp.add_text("Hello Ωmega", dxfattribs={"style": "Arial", "height": 2.5, "rotation": 30})
    msp.add_mtext("Line one\\Pline two " + "x" * 300, dxfattribs={"char_height": 1.5})
    blk = doc.blocks.new("FLAG", base_point=(1, 2))
    blk.block.dxf.description = "A flag with attributes"
    blk.add_line((0, 0), (0, 5), dxfattribs={"layer": "Walls", "linetype": "TRACKS2"})
    blk.add_text("F", dxfattribs={"style": "Arial"})
    blk.add_attdef("NAME", (0, 6), dxfattribs={"prompt": "Name?"})
    doc.block_records.get("FLAG").dxf.units = 4
    doc.block_records.get("FLAG").dxf.scale = 1
    ref = msp.add_blockref("FLAG", (20, 20), dxfattribs={"xscale": 2, "yscale": 2, "rotation": 45})
    ref.add_attrib("NAME", "North", (20, 26))
    h = msp.add_hatch(color=2)
    h.set_pattern_fill("ANSI31", scale=2.0, angle=45.0)
    h.paths.add_polyline_path([(0, 0), (10, 0), (10, 10), (0, 10)], is_closed=True)
    h.paths.add_edge_path().add_arc((5, 5), 2, 0, 360)
    g = msp.add_hatch()
    g.set_gradient((255, 0, 0), (0, 0, 255), rotation=60.0, centered=0.0, name="CYLINDER")
    g.paths.add_polyline_path([(20, 0), (30, 0), (30, 10)], is_closed=True)
    s = msp.add_hatch(color=5)
    s.paths.add_polyline_path([(40, 0), (50, 0), (50, 10)], is_closed=True)
    imgdef = doc.add_image_def(filename="image.png", size_in_pixel=(640, 480))
    msp.add_image(imgdef, insert=(0, 30), size_in_units=(6.4, 4.8), rotation=0)
    dim = msp.add_linear_dim(base=(0, -3), p1=(0, 0), p2=(10, 0), dimstyle="Custom")
    dim.render()
    doc.saveas(f"{folder}/all_r2018.dxf")

    r2000 = ezdxf.new("R2000", setup=True)
    r2000.layers.add("Layer2000", color=4)
    m = r2000.modelspace()
    m.add_line((0, 0), (1, 1), dxfattribs={"layer": "Layer2000"})
    m.add_text("Größe", dxfattribs={"height": 1})
    r2000.saveas(f"{folder}/small_r2000.dxf")

    r12 = ezdxf.new("R12")
    r12.layers.add("ΛΑΓΕΡ", color=2)
    m = r12.modelspace()
    m.add_line((0, 0), (3, 3), dxfattribs={"layer": "ΛΑΓΕΡ"})
    m.add_polyline2d([(0, 0), (1, 0), (1, 1)])
    b = r12.blocks.new("R12BLOCK")
    b.add_circle((0, 0), 1)
    m.add_blockref("R12BLOCK", (5, 5))
    r12.saveas(f"{folder}/small_r12.dxf")

    # Text in the code pages of older versions, and characters outside
    # the code page, which ezdxf writes as \\U+ escapes.
    for name, codepage, encoding, layer, text in (
            ("cp1251_r2000", "ANSI_1251", "cp1251", "Слой", "Привет, мир"),
            ("cp932_r2000", "ANSI_932", "cp932", "図面", "日本語のテキスト"),
            ("escapes_r2000", "ANSI_1252", "cp1252", "Ωmega Größe", "Δ = 5 €")):
        doc = ezdxf.new("R2000")
        doc.encoding = encoding
        doc.header["$DWGCODEPAGE"] = codepage
        doc.layers.add(layer, color=2)
        doc.modelspace().add_text(text, dxfattribs={"layer": layer})
        doc.saveas(f"{folder}/{name}.dxf", encoding=encoding)

    # An xref host and its referenced drawing, side by side.
    xref = ezdxf.new("R2018")
    xref.layers.add("GEAR", color=6)
    xref.modelspace().add_circle((0, 0), 5, dxfattribs={"layer": "GEAR"})
    xref.saveas(f"{folder}/xref_target.dxf")
    host = ezdxf.new("R2018")
    host.add_xref_def("xref_target.dxf", "XREF1")
    host.modelspace().add_blockref("XREF1", (0, 0))
    host.saveas(f"{folder}/xref_host.dxf")


def main():
    if sys.argv[1] == "probe":
        return 0
    if sys.argv[1] == "fixtures":
        fixtures(sys.argv[2])
        return 0
    if sys.argv[1] == "compare":
        print(json.dumps(compare(sys.argv[2], sys.argv[3]), ensure_ascii=False, default=str))
        return 0
    if sys.argv[1] == "summary":
        print(json.dumps(summarize(sys.argv[2]), ensure_ascii=False, sort_keys=True, default=str))
        return 0
    return 2


if __name__ == "__main__":
    sys.exit(main())
