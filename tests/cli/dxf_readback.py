#!/usr/bin/env python3
"""Drawings to DXF, read back by a second reader (ezdxf) as a user's CAD program
would: the file passes ezdxf's audit, carries its real unit, puts each kind of
shape on its layer, and measures what the case typed (a 20 x 40 cm section with
four bars; a frame of spans 5 + 6 m and storeys 3.5 + 3 + 3 m under three forces).
Then every picture of every example: its unit (none for a chart of values or a
sketch without a scale) and the layers of what it draws, as dxf_layers.json has
them by module and picture, and nothing but text on layer 0."""
import glob, json, os, subprocess, sys, tempfile
from collections import Counter
import ezdxf
from ezdxf import bbox

calc, examples = sys.argv[1], sys.argv[2]
failures = []

def drawn(picture, case):
    out = os.path.join(tempfile.mkdtemp(), "d.dxf")
    subprocess.run([calc, "--picture", picture, out, os.path.join(examples, case)], check=True)
    doc = ezdxf.readfile(out)
    if doc.audit().has_errors:
        failures.append(f"{picture}: the audit finds errors")
    return doc, doc.modelspace()

def extents(msp, layer):
    box = bbox.extents(e for e in msp if e.dxf.layer == layer and e.dxftype() != "TEXT")
    return round(box.size.x, 6), round(box.size.y, 6)

def expect(what, got, wanted):
    if got != wanted:
        failures.append(f"{what}: {got!r}, expected {wanted!r}")

doc, msp = drawn("Form8b.Picture1", "form8-detalhamento-viga-retangular.json")
expect("section unit", doc.header.get("$INSUNITS"), 5)
expect("section outline (cm)", extents(msp, "CONCRETO"), (20.0, 40.0))
kinds = Counter((e.dxftype(), e.dxf.layer) for e in msp)
expect("section bars", kinds[("CIRCLE", "ARMADURAS")], 4)
expect("section texts", sorted(e.dxf.text for e in msp.query("TEXT")), ["b = 20 cm", "h = 40 cm"])
expect("section layers", {l.dxf.name for l in doc.layers} >= {"CONCRETO", "ARMADURAS", "COTAS", "TEXTOS"}, True)

doc, msp = drawn("Form33f.Picture1", "form33-portico-vento.json")
expect("frame unit", doc.header.get("$INSUNITS"), 6)
# The supports' strokes stand 3% of the larger side (11 m) beyond the outer columns.
expect("frame outline (m)", extents(msp, "CONCRETO"), (round(11.0 + 2 * 0.03 * 11.0, 6), 9.5))
expect("frame members", Counter(e.dxftype() for e in msp if e.dxf.layer == "CONCRETO")["LINE"], 3 * 3 + 3 * 2 + 3)
expect("frame load arrows", len(msp.query('LINE[layer=="CARGAS"]')), 9)
expect("frame force texts", sorted(e.dxf.text for e in msp.query("TEXT")), ["10", "12", "6"])

# A beam is drawn to scale along its axis: its longest line is the whole beam,
# spans of 4 + 5 + 4 m and a single span of 6 m.
for picture, case, length in [("Form34b2.Picture1", "form34-tres-vaos.json", 13.0),
                              ("Form39b2.Picture1", "form39-viga-biapoiada.json", 6.0)]:
    doc, msp = drawn(picture, case)
    expect(f"{picture} beam (m)", round(max(e.dxf.start.distance(e.dxf.end) for e in msp.query('LINE[layer=="CONCRETO"]')), 6), length)

with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "dxf_layers.json")) as f:
    wanted = json.load(f)
seen = set()
for path in sorted(glob.glob(os.path.join(examples, "*.json"))):
    case = os.path.basename(path)
    with open(path) as f:
        module = json.load(f)["module"]
    listed = subprocess.run([calc, "--pictures", path], capture_output=True, text=True, check=True).stdout.split()
    for picture in listed:
        out = os.path.join(tempfile.mkdtemp(), "d.dxf")
        if subprocess.run([calc, "--picture", picture, out, path], capture_output=True).returncode:
            continue  # nothing drawn for this case
        key = f"{module} {picture}"
        seen.add(key)
        doc = ezdxf.readfile(out)
        layers = {e.dxf.layer for e in doc.modelspace()}
        expect(f"{case} {picture} on layer 0", [e.dxftype() for e in doc.modelspace() if e.dxf.layer == "0" and e.dxftype() != "TEXT"], [])
        expect(f"{case} {picture} unit and layers", [doc.header.get("$INSUNITS"), " ".join(sorted(layers))], wanted.get(key))
expect("pictures of the examples", sorted(seen), sorted(wanted))

print("\n".join(failures) or "ok")
sys.exit(1 if failures else 0)
