#!/usr/bin/env python3
"""Results to a spreadsheet, read back by a second reader (openpyxl): every table
cell and every result box of the workbook is the value of the outcome, numbers as
numbers, headers as on the screen."""
import json, os, subprocess, sys, tempfile
import openpyxl

calc, examples = sys.argv[1], sys.argv[2]
failures = []

def number(text):
    try:
        v = float(text.strip())
        return v if v == v and abs(v) != float("inf") else None
    except ValueError:
        return None

def same(cell, text):
    v = number(text)
    if v is not None:
        return isinstance(cell, (int, float)) and not isinstance(cell, bool) and cell == v
    return (cell or "") == text

for case in ("form34-tres-vaos.json", "form33-portico-vento.json", "form7-armadura-simples.json"):
    path = os.path.join(examples, case)
    outcome = json.loads(subprocess.run([calc, path], capture_output=True, check=True).stdout)
    out = os.path.join(tempfile.mkdtemp(), "r.xlsx")
    subprocess.run([calc, "--xlsx", out, path], check=True)
    book = openpyxl.load_workbook(out)
    boxes = book["Resultados"]
    rows = list(boxes.iter_rows(values_only=True))
    if rows[0] != ("Resultado", "Valor", "Unidade") or (case.startswith("form7") and len(rows) < 3):
        failures.append(f"{case}: sheet of boxes {rows[:3]}")
    for caption, value, unit in rows[1:]:
        if not any(same(value, text) for text in outcome["fields"].values()):
            failures.append(f"{case}: box {caption} = {value!r} is no value of the outcome")
    tables = [n for n, g in outcome["grids"].items() if len(g) > 1]
    if sorted(book.sheetnames[1:]) != sorted(tables):
        failures.append(f"{case}: sheets {book.sheetnames[1:]} for tables {tables}")
    for name in tables:
        if name not in book.sheetnames:
            continue
        sheet = list(book[name].iter_rows(values_only=True))
        for r, row in enumerate(outcome["grids"][name]):
            for c, text in enumerate(row):
                got = sheet[r][c] if r < len(sheet) and c < len(sheet[r]) else None
                if not (same(got, text) if r else (got or "") == text):
                    failures.append(f"{case}: {name}[{r}][{c}] = {got!r}, outcome {text!r}")

print("\n".join(failures[:20]) or "ok")
sys.exit(1 if failures else 0)
