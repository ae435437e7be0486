#!/usr/bin/python3
"""End-to-end: palette tools with general properties run by the console host
on an empty drawing and on real drawings; ezdxf reads the saved drawing back,
audits it, and finds the objects drawn with the tool's values, the records
made from the tool's snapshots, and the drawing's current values as they were.

Usage: tool_properties_e2e_test.py <verdani-console> <catalog fixture folder> [external data folder]
"""
import os
import shutil
import subprocess
import sys
import tempfile

import ezdxf

console, fixture = sys.argv[1], sys.argv[2]
external = sys.argv[3] if len(sys.argv) > 3 and os.path.isdir(sys.argv[3]) else None
failures = []
# Every run's folders, kept when something fails.
root = tempfile.mkdtemp(prefix="verdani-toolprops-")

# Header values that change with every save or every new object, whatever a
# tool does; ezdxf sets the creation dates itself when it reads a drawing.
VOLATILE = {"$HANDSEED", "$FINGERPRINTGUID", "$VERSIONGUID", "$TDCREATE", "$TDUCREATE"}
CURRENT_VALUES = ["$CECOLOR", "$CLAYER", "$CELTYPE", "$CELTSCALE", "$CELWEIGHT", "$TEXTSTYLE", "$DIMSTYLE",
                  "$CETRANSPARENCY"]


def user_settings(color):
    """The user's own settings in the empty drawing, made before any tool
    runs; the names too, so that the header holds every value a tool sets."""
    return "".join("SETVAR\n%s\n%s\n" % pair for pair in (
        ("CECOLOR", color), ("CELTSCALE", "0.5"), ("CELWEIGHT", "18"), ("CETRANSPARENCY", "20"), ("CLAYER", "0"),
        ("CELTYPE", "ByLayer"), ("TEXTSTYLE", "Standard"), ("DIMSTYLE", "Standard")))


USER_SETTINGS = user_settings("4")
# The prompts of the tools that start a command and leave its input to the
# user: the Walls tool's LINE and the Label tool's TEXT.
WALLS = "ToolPalettesRun\nWalls\n0,0\n100,0\n\n"
LABEL = "ToolPalettesRun\nLabel\n10,20\n0\nWALLS\n\n"
# Records the Walls and Label tools bring along, by table.
MADE = {"layers": {"WALLS-NEW"}, "linetypes": {"WALLS_DASHED", "PIPE_GAS", "DIM_CENTER"},
        "styles": {"LT-TEXT", "LT-SHAPES", "WALL-TEXT", "DIM-TEXT"}, "dimstyles": {"WALL-DIM"}}


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAIL:", what)


def close(a, b, tolerance=1e-6):
    return a is not None and abs(a - b) <= tolerance


def run(name, script, drawing=None):
    """Runs the script with the fixture as a shared catalog; gives the
    transcript, the saved drawing, audited (None when missing), and the
    catalog folder."""
    folder = tempfile.mkdtemp(dir=root)
    catalog = os.path.join(folder, "common", "Props", "ToolPalette")
    shutil.copytree(fixture, catalog)
    env = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder + "/config", XDG_DATA_HOME=folder + "/data")
    out = os.path.join(folder, "out.dxf")
    path = os.path.join(folder, "script.txt")
    with open(path, "w") as f:
        f.write(script + "SaveAsDocument\n%s\nExit\n" % out)
    args = [console, "--set", "CommonDirs=" + folder + "/common", "--script", path] + ([drawing] if drawing else [])
    done = subprocess.run(args, env=env, capture_output=True, text=True, timeout=120)
    transcript = done.stdout + done.stderr
    print("=== %s\n%s" % (name, transcript))
    check(done.returncode == 0, "%s: exit code %d" % (name, done.returncode))
    check("already running" not in transcript, "%s: every tool's run ended with its command" % name)
    if not os.path.exists(out):
        check(False, "%s: no drawing was saved" % name)
        return transcript, None, catalog
    try:
        doc = ezdxf.readfile(out)
    except (IOError, ezdxf.DXFError) as e:
        check(False, "%s: ezdxf cannot read the drawing: %s" % (name, e))
        return transcript, None, catalog
    auditor = doc.audit()
    check(not auditor.has_errors, "%s: ezdxf audit errors %s" % (name, [str(e) for e in auditor.errors]))
    return transcript, doc, catalog


def tools(*names):
    return "".join("ToolPalettesRun\n%s\n" % n for n in names)


def header_changes(before, after):
    """The header variables whose values differ, volatile ones left out."""
    names = (set(before.header.varnames()) | set(after.header.varnames())) - VOLATILE
    return {n: (before.header.get(n), after.header.get(n)) for n in sorted(names)
            if before.header.get(n) != after.header.get(n)}


def records(doc, table):
    return {r.dxf.name: r for r in getattr(doc, table)}


def entity(doc, kind):
    """The one entity of the kind that the tool drew (the last in model space)."""
    found = [e for e in doc.modelspace() if e.dxftype() == kind]
    return found[-1] if found else None


def check_left_as_before(name, base, doc, changed=(), dim_base=None):
    """The header is that of the same drawing saved without the tools, but
    for the variables named; the current values are checked one by one so
    that a failure names them. Putting the dimension style back brings the
    dimension variables in line with it: with dim_base, the drawing saved
    after making its own style current, they are compared with that."""
    changes = header_changes(base, doc)
    for var in CURRENT_VALUES:
        check(var not in changes, "%s: %s restored, %r" % (name, var, changes.get(var)))
    if dim_base is not None:
        changes = {n: v for n, v in changes.items() if not n.startswith("$DIM") or n == "$DIMSTYLE"}
        changes.update({n: v for n, v in header_changes(dim_base, doc).items()
                        if n.startswith("$DIM") and n != "$DIMSTYLE"})
    rest = {n: v for n, v in changes.items() if n not in CURRENT_VALUES and n not in changed}
    check(not rest, "%s: the rest of the header as before: %r" % (name, rest))


def values(record):
    """A record's values without handles: objects the writer makes when it
    saves a new drawing (its materials, the layer "Defpoints") get handles
    after those of the objects drawn."""
    return {k: v for k, v in record.dxf.all_existing_dxf_attribs().items() if k != "handle" and not k.endswith("_handle")}


def check_existing_unchanged(name, base, doc):
    """Every record the drawing had is there with the same values: a record
    of the same name wins over a snapshot, and nothing else is touched."""
    for table in ("layers", "linetypes", "styles", "dimstyles"):
        after = records(doc, table)
        for rname, record in records(base, table).items():
            other = after.get(rname)
            if other is None:
                check(False, "%s: %s %s still there" % (name, table, rname))
                continue
            check(values(record) == values(other), "%s: %s %s unchanged: %r, now %r"
                  % (name, table, rname, values(record), values(other)))
            if table == "linetypes":
                check(record.pattern_tags.tags == other.pattern_tags.tags,
                      "%s: the pattern of linetype %s unchanged" % (name, rname))


def check_new_records(name, base, doc, expected):
    for table, names in expected.items():
        made = set(records(doc, table)) - set(records(base, table))
        check(made == names, "%s: new %s %r, expected %r" % (name, table, sorted(made), sorted(names)))


def check_walls_records(name, doc):
    """The records of the Walls tool as its snapshots describe them."""
    layers, linetypes, styles = records(doc, "layers"), records(doc, "linetypes"), records(doc, "styles")
    dimstyles = records(doc, "dimstyles")
    layer = layers.get("WALLS-NEW")
    check(layer is not None, "%s: layer WALLS-NEW made" % name)
    if layer is not None:
        check(layer.dxf.color == 5 and layer.dxf.linetype == "WALLS_DASHED" and layer.dxf.lineweight == 50,
              "%s: layer WALLS-NEW blue, on WALLS_DASHED, 0.50 mm: %r" % (name, layer.dxf.all_existing_dxf_attribs()))
        check(layer.dxf.get("plot", 1) == 0, "%s: layer WALLS-NEW not plotted, as its snapshot" % name)

    dashed = linetypes.get("WALLS_DASHED")
    check(dashed is not None, "%s: the layer's linetype WALLS_DASHED made before the layer" % name)
    if dashed is not None:
        tags = [(t.code, t.value) for t in dashed.pattern_tags.tags]
        check(dashed.dxf.description == "Walls dashed __ __ __", "%s: WALLS_DASHED description" % name)
        check((40, 0.75) in tags and (73, 2) in tags and [v for c, v in tags if c == 49] == [0.5, -0.25],
              "%s: WALLS_DASHED pattern: %r" % (name, tags))

    gas = linetypes.get("PIPE_GAS")
    check(gas is not None, "%s: linetype PIPE_GAS made" % name)
    if gas is not None:
        check(gas.dxf.description == "Gas pipe ----GAS----<>----", "%s: PIPE_GAS description" % name)
        tags = [(t.code, t.value) for t in gas.pattern_tags.tags]
        check([v for c, v in tags if c == 49] == [0.5, -0.2, -0.3, -0.2, -0.25] and (40, 1.45) in tags,
              "%s: PIPE_GAS dashes: %r" % (name, tags))
        handles = {r.dxf.handle: n for n, r in styles.items()}
        check([handles.get(v) for c, v in tags if c == 340] == ["LT-TEXT", "LT-SHAPES"],
              "%s: PIPE_GAS elements on their own text styles: %r" % (name, tags))
        check((9, "GAS") in tags and (75, 132) in tags, "%s: PIPE_GAS text GAS and shape 132" % name)
        check([v for c, v in tags if c == 46] == [0.1, 0.15] and [v for c, v in tags if c == 44] == [-0.1, 0.05]
              and [v for c, v in tags if c == 45] == [-0.05, 0.0], "%s: PIPE_GAS scales and offsets" % name)
        check([v for c, v in tags if c == 74] == [0, 3, 0, 4, 0],
              "%s: PIPE_GAS text with absolute rotation, shape relative: %r" % (name, tags))

    expected_styles = {"LT-TEXT": ("romans.shx", 0.8, 0.0, 0), "LT-SHAPES": ("ltypeshp.shx", 1.0, 0.0, 1),
                       "WALL-TEXT": ("DejaVuSans.ttf", 0.9, 3.5, 0), "DIM-TEXT": ("isocp.shx", 0.75, 0.0, 0)}
    for sname, (font, width, height, shapes) in expected_styles.items():
        style = styles.get(sname)
        check(style is not None, "%s: text style %s made" % (name, sname))
        if style is not None:
            check(style.dxf.font == font and close(style.dxf.width, width) and close(style.dxf.height, height)
                  and style.dxf.flags & 1 == shapes,
                  "%s: text style %s: %r" % (name, sname, style.dxf.all_existing_dxf_attribs()))
    wall_text = styles.get("WALL-TEXT")
    if wall_text is not None:
        check(close(wall_text.dxf.oblique, 15.0, 1e-3), "%s: WALL-TEXT obliqued 15 degrees" % name)

    dim = dimstyles.get("WALL-DIM")
    check(dim is not None, "%s: dimension style WALL-DIM made" % name)
    if dim is not None:
        a = dim.dxf
        check(close(a.dimasz, 3.5) and close(a.dimtxt, 2.5) and a.dimdec == 2 and a.dimpost == "<> mm"
              and a.dimtofl == 1 and a.dimclrd == 2,
              "%s: WALL-DIM variables: %r" % (name, a.all_existing_dxf_attribs()))
        check(a.get("dimfxlon", 0) == 0 and not close(a.get("dimfxl", 1.0), 5.0),
              "%s: WALL-DIM fixed extension length left while fixed extension lines are off" % name)
        check(a.dimblk == "_ArchTick" and a.dimldrblk == "_Dot" and "_ArchTick" in doc.blocks and "_Dot" in doc.blocks,
              "%s: WALL-DIM arrows and their blocks: %r %r" % (name, a.get("dimblk"), a.get("dimldrblk")))
        check(a.dimtxsty == "DIM-TEXT" and a.dimltype == "DIM_CENTER" and a.dimltex1 == "WALLS_DASHED",
              "%s: WALL-DIM text style and linetypes: %r %r %r"
              % (name, a.get("dimtxsty"), a.get("dimltype"), a.get("dimltex1")))


def check_walls_line(name, doc):
    line = entity(doc, "LINE")
    check(line is not None, "%s: the Walls tool drew a line" % name)
    if line is None:
        return
    a = line.dxf
    check(a.layer == "WALLS-NEW", "%s: line on layer WALLS-NEW, not %r" % (name, a.layer))
    check(line.rgb == (200, 100, 50), "%s: line in true colour 200,100,50, not %r" % (name, line.rgb))
    check(a.linetype == "PIPE_GAS" and close(a.ltscale, 2.5), "%s: line in PIPE_GAS at scale 2.5" % name)
    check(a.lineweight == 35, "%s: line 0.35 mm, not %r" % (name, a.lineweight))
    check(a.get("transparency") == 0x2000099 and close(line.transparency, 0.4, 0.01),
          "%s: line 40%% transparent, not %r" % (name, a.get("transparency")))


def check_label_text(name, doc, layer_default):
    text = entity(doc, "TEXT")
    check(text is not None, "%s: the Label tool wrote a text" % name)
    if text is None:
        return
    a = text.dxf
    check(a.style == "WALL-TEXT" and close(a.height, 3.5), "%s: text in WALL-TEXT at its fixed height 3.5" % name)
    check(a.layer == "WALLS-NEW" and a.color == 3 and not a.hasattr("true_color"),
          "%s: text green (index 3) on WALLS-NEW: %r" % (name, a.all_existing_dxf_attribs()))
    check(a.get("lineweight", -1) == layer_default["lineweight"] and
          close(a.get("ltscale", 1.0), layer_default["ltscale"]),
          "%s: the text's own unset properties are the drawing's current ones" % name)


# An empty drawing with settings of the user's own: the tools draw with their
# values, make their records, and put the user's settings back; the plot
# style type alone is left as the tool set it.
_, base, _ = run("empty, no tool", "NewDocument\n" + USER_SETTINGS)
out, doc, _ = run("empty, Walls and Label", "NewDocument\n" + USER_SETTINGS + WALLS + LABEL
               + "SETVAR\nCLAYER\n\nSETVAR\nDIMSTYLE\n\n")
if base and doc:
    check_walls_line("empty", doc)
    check_label_text("empty", doc, {"lineweight": 18, "ltscale": 0.5})
    check_walls_records("empty", doc)
    check_new_records("empty", base, doc, MADE)
    check_existing_unchanged("empty", base, doc)
    check_left_as_before("empty", base, doc, changed={"$CEPSNTYPE"})
    check(doc.header.get("$CECOLOR") == 4 and close(doc.header.get("$CELTSCALE"), 0.5)
          and doc.header.get("$CELWEIGHT") == 18, "empty: the user's colour, scale and lineweight back")
    check(doc.header.get("$CEPSNTYPE") == 1, "empty: the plot style type stays by block, never restored")
    check('CLAYER = "0"' in out and 'DIMSTYLE = "Standard"' in out,
          "empty: the command line reads the user's layer and dimension style after the tools")

# U takes back the tool's command with all the tool did before it: the
# records it made, and its plot style type; REDO brings them back.
_, doc, _ = run("empty, Walls undone", "NewDocument\n" + USER_SETTINGS + WALLS + "U\n")
if base and doc:
    check(entity(doc, "LINE") is None, "undone: no line")
    check_new_records("undone", base, doc, {t: set() for t in MADE})
    changes = header_changes(base, doc)
    check(not changes, "undone: the header as it was: %r" % changes)
_, doc, _ = run("empty, Walls undone and redone", "NewDocument\n" + USER_SETTINGS + WALLS + "U\nREDO\n")
if base and doc:
    check_walls_line("redone", doc)
    check_new_records("redone", base, doc, MADE)
    check_left_as_before("redone", base, doc, changed={"$CEPSNTYPE"})

# Run and saved, the palette keeps every tool's properties and snapshots
# as they were read.
_, _, catalog = run("saved", "NewDocument\n" + WALLS + LABEL + tools("Current") + "ToolPalettesSave\n")
palette = os.path.join("Palettes", "Standards.vtc")
with open(os.path.join(fixture, palette)) as f, open(os.path.join(catalog, palette)) as g:
    check(f.read() == g.read(), "saved: the palette file as it was read, after its tools ran")

# Every property "-- use current": the drawing's header is as it was, and the
# circle takes the user's settings.
_, doc, _ = run("empty, Current", "NewDocument\n" + USER_SETTINGS + tools("Current"))
if base and doc:
    changes = header_changes(base, doc)
    check(not changes, "empty, use current: the header as it was: %r" % changes)
    check_new_records("empty, use current", base, doc, {t: set() for t in MADE})
    circle = entity(doc, "CIRCLE")
    check(circle is not None and circle.dxf.color == 4 and circle.dxf.layer == "0"
          and close(circle.dxf.ltscale, 0.5) and circle.dxf.lineweight == 18
          and circle.dxf.get("transparency") == 0x20000CC,
          "empty, use current: the circle in the user's settings: %r"
          % (circle.dxf.all_existing_dxf_attribs() if circle else None))

# A tool whose command is cancelled at its first prompt puts the user's
# settings back, a true colour among them, and leaves the records it made.
settings = user_settings("RGB:10,20,30")
_, base, _ = run("empty, true colour, no tool", "NewDocument\n" + settings)
out, doc, _ = run("empty, Walls cancelled", "NewDocument\n" + settings + "ToolPalettesRun\nWalls\n0,0\n^C\n"
               "SETVAR\nCECOLOR\n\n")
# The file has the index of a true current colour; the command line shows it whole.
check('CECOLOR = "RGB:10,20,30"' in out, "cancelled: the user's true colour back")
if base and doc:
    check(entity(doc, "LINE") is None, "cancelled: nothing drawn")
    check_walls_records("cancelled", doc)
    check_left_as_before("cancelled", base, doc, changed={"$CEPSNTYPE"})

# Real drawings of other programs: the same tools, the drawing's own records
# untouched, its header as the same drawing saved without them.
REAL = ["DomCR__ACadSharp/samples/sample_AC1032_ascii.dxf", "DomCR__ACadSharp/samples/sample_AC1015_ascii.dxf",
        "qcad__qcad/examples/flange.dxf"]
for relative in REAL if external else []:
    drawing = os.path.join(external, relative)
    label = os.path.basename(relative)
    _, base, _ = run("%s, no tool" % label, "", drawing)
    _, doc, _ = run("%s, Walls, Label and Current" % label, WALLS + LABEL + tools("Current"), drawing)
    if not (base and doc):
        continue
    _, dim_base, _ = run("%s, its own dimension style made current" % label,
                      "SETVAR\nDIMSTYLE\n%s\n" % base.header.get("$DIMSTYLE", "Standard"), drawing)
    check_walls_line(label, doc)
    check_label_text(label, doc, {"lineweight": base.header.get("$CELWEIGHT", -1),
                                  "ltscale": base.header.get("$CELTSCALE", 1.0)})
    check_walls_records(label, doc)
    check_new_records(label, base, doc, {t: n - set(records(base, t)) for t, n in MADE.items()})
    check_existing_unchanged(label, base, doc)
    check_left_as_before(label, base, doc, changed={"$CEPSNTYPE"}, dim_base=dim_base)
    circle = entity(doc, "CIRCLE")
    check(circle is not None and circle.dxf.layer == base.header.get("$CLAYER")
          and circle.dxf.get("color", 256) == base.header.get("$CECOLOR", 256),
          "%s: the Current tool's circle in the drawing's own layer and colour" % label)

    _, doc, _ = run("%s, Current" % label, tools("Current"), drawing)
    if doc:
        changes = header_changes(base, doc)
        check(not changes, "%s, use current: the header as it was: %r" % (label, changes))

# Records of the same names as the drawing's, with other settings in the
# tool's snapshots: the drawing's win, unchanged, and nothing the snapshots
# carry besides is made.
if external:
    drawing = os.path.join(external, REAL[0])
    _, base, _ = run("rival, no tool", "", drawing)
    _, doc, _ = run("rival", tools("Rival"), drawing)
    if base and doc:
        check_new_records("rival", base, doc, {t: set() for t in MADE})
        check_existing_unchanged("rival", base, doc)
        check_left_as_before("rival", base, doc)
        line = entity(doc, "LINE")
        check(line is not None and line.dxf.layer == "Layer1" and line.dxf.linetype == "GAS_LINE"
              and line.dxf.color == 6, "rival: the line on the drawing's Layer1 and GAS_LINE, magenta")

if failures:
    print("%d failure(s); the runs are in %s" % (len(failures), root))
    sys.exit(1)
shutil.rmtree(root)
print("tool properties end-to-end test passed")
