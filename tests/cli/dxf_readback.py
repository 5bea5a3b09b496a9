#!/usr/bin/env python3
"""Drawings to DXF, read back by a second reader (ezdxf) as a user's CAD program
would: the file passes ezdxf's audit, carries its real unit, puts each kind of
shape on its layer, and measures what the case typed (a 20 x 40 cm section with
four bars; a frame of spans 5 + 6 m and storeys 3.5 + 3 + 3 m under three forces)."""
import os, subprocess, sys, tempfile
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

print("\n".join(failures) or "ok")
sys.exit(1 if failures else 0)
