#!/usr/bin/python3
"""End-to-end: every DXF drawing of the external fixtures goes through the
console host (open, SaveAsDocument, Exit); ezdxf must read and audit what we
wrote, with the same tables, blocks and entities as the original. DWG
drawings are refused with a message that names the format.

Usage: drawings_roundtrip_test.py <verdani-console> <external data folder>
"""
import collections
import os
import subprocess
import sys
import tempfile

import ezdxf
from ezdxf import recover

console, external = sys.argv[1], sys.argv[2]

# Drawings whose model space cannot be compared, with the reason.
MODEL_SPACE_EXEMPT = {
    # The writer named the model space's block record "*U" (the true name
    # only in extended data): the entities stay in that block, which ezdxf
    # then takes for an ordinary anonymous block.
    "LibreDWG__libredwg/test/test-data/example_r14.dxf",
}


def summary(doc, raw=None):
    """What must survive: names of the table records, the entity types in
    model space and in every block, by count. With `raw`, the text of the
    original file, only blocks named in it count: ezdxf adds standard arrow
    blocks to drawings of old versions while it reads them."""
    def names(table):
        return sorted(r.dxf.name.upper() for r in table)
    blocks = {}
    for block in doc.blocks:
        if block.name.upper().startswith(("*MODEL_SPACE", "*PAPER_SPACE")):
            continue
        if raw is not None and block.name.encode("utf-8", "replace") not in raw:
            continue
        blocks[block.name.upper()] = collections.Counter(e.dxftype() for e in block)
    return {
        "layers": names(doc.layers),
        "linetypes": names(doc.linetypes),
        "styles": sorted(s.dxf.name.upper() for s in doc.styles if s.dxf.name),
        "dimstyles": names(doc.dimstyles),
        "blocks": blocks,
        "modelspace": collections.Counter(e.dxftype() for e in doc.modelspace()),
    }


def read_original(path):
    try:
        return ezdxf.readfile(path)
    except Exception:
        try:
            doc, _ = recover.readfile(path)
            return doc
        except Exception:
            return None


failures = []
checked = 0
with tempfile.TemporaryDirectory() as home:
    env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home + "/config", XDG_DATA_HOME=home + "/data")
    for root, _, files in sorted(os.walk(external)):
        for name in sorted(files):
            path = os.path.join(root, name)
            lower = name.lower()
            if not (lower.endswith(".dxf") or lower.endswith(".dwg")):
                continue
            out = os.path.join(home, "out.dxf")
            if os.path.exists(out):
                os.remove(out)
            script = "SaveAsDocument\n%s\nExit\n" % out
            run = subprocess.run([console, path], input=script, capture_output=True, text=True, env=env,
                                 timeout=120)
            rel = os.path.relpath(path, external)
            if run.returncode != 0:
                failures.append("%s: exit code %d\n%s" % (rel, run.returncode, run.stdout + run.stderr))
                continue
            if lower.endswith(".dwg"):
                if "DWG" not in run.stdout or os.path.exists(out) and "Cannot open" not in run.stdout:
                    failures.append("%s: a DWG drawing was not refused clearly:\n%s" % (rel, run.stdout))
                continue
            if "Cannot open the drawing" in run.stdout or not os.path.exists(out):
                failures.append("%s: not opened or not saved:\n%s" % (rel, run.stdout))
                continue
            try:
                ours = ezdxf.readfile(out)
            except Exception as e:
                failures.append("%s: ezdxf cannot read what we wrote: %s" % (rel, e))
                continue
            got = summary(ours)  # before the audit, which may repair things
            auditor = ours.audit()
            if auditor.has_errors:
                failures.append("%s: ezdxf audit errors: %s" % (rel, [str(e.message) for e in auditor.errors][:5]))
            original = read_original(path)
            if original is not None:
                with open(path, "rb") as f:
                    want = summary(original, f.read())
                for key in ("layers", "linetypes", "styles", "dimstyles"):
                    missing = sorted(set(want[key]) - set(got[key]))
                    if missing:
                        failures.append("%s: %s lost: %s" % (rel, key, missing[:10]))
                if rel in MODEL_SPACE_EXEMPT:
                    want["blocks"].pop("*U", None)
                    want["modelspace"].clear()
                for block, counts in want["blocks"].items():
                    if block not in got["blocks"]:
                        failures.append("%s: block %s lost" % (rel, block))
                    elif got["blocks"][block] != counts:
                        failures.append("%s: block %s: %s became %s" % (rel, block, dict(counts),
                                                                         dict(got["blocks"][block])))
                lost = want["modelspace"] - got["modelspace"]
                if lost:
                    failures.append("%s: model space lost %s" % (rel, dict(lost)))
            checked += 1
            print("ok %s" % rel, flush=True)

for f in failures:
    print("FAIL: " + f)
print("%d drawings round-tripped, %d failures" % (checked, len(failures)))
sys.exit(1 if failures else 0)
