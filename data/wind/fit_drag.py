#!/usr/bin/env python3
"""Fits the drag charts of drag_charts.txt as the reading routines hold them.

With x = ln(l1/l2) and y = ln(h/l1), each chart is held as
    y + d(x) y^2 = a(x) + b(x) Ca + c(x) Ca^2,
with a, b, c, d cubics in x (d is zero for the high turbulence chart, which needs
no bend in y), and Ca is read back by solving that quadratic in Ca. The fit is
least squares in y weighted by 1/(dy/dCa)^2, so that it weighs the error in Ca,
repeated until the weights settle. Prints the sixteen coefficients in the order
the program keeps them (a, b, c, d, each from x^0 to x^3), the largest error in
Ca over the points, and over a fine grid of the chart's bounds the range of Ca,
the places where the quadratic has no root and where Ca falls as h/l1 grows.
Plain Python: python3 fit_drag.py"""
import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))
TOP = {"low": 40.0, "high": 6.0}
BEND = {"low": True, "high": False}


def solve(m, v):
    n = len(v)
    a = [row[:] + [v[i]] for i, row in enumerate(m)]
    for k in range(n):
        p = max(range(k, n), key=lambda r: abs(a[r][k]))
        a[k], a[p] = a[p], a[k]
        for r in range(k + 1, n):
            f = a[r][k] / a[k][k]
            for c in range(k, n + 1):
                a[r][c] -= f * a[k][c]
    x = [0.0] * n
    for k in reversed(range(n)):
        x[k] = (a[k][n] - sum(a[k][c] * x[c] for c in range(k + 1, n))) / a[k][k]
    return x


def poly(co, part, x):
    return sum(co[4 * part + i] * x ** i for i in range(4))


def read(co, x, y):
    rhs = y + poly(co, 3, x) * y * y - poly(co, 0, x)
    b, c = poly(co, 1, x), poly(co, 2, x)
    d = b * b + 4 * c * rhs
    return None if d < 0 else 2 * rhs / (b + math.sqrt(d))


points = {}
for line in open(os.path.join(HERE, "drag_charts.txt")):
    if line.startswith("#") or not line.strip():
        continue
    chart, r, h, ca = line.split()
    points.setdefault(chart, []).append((math.log(float(r)), math.log(float(h)), float(ca)))

for chart, data in points.items():
    n = 16 if BEND[chart] else 12

    def features(x, y, ca):
        f = [x ** i * ca ** j for j in range(3) for i in range(4)]
        return f + ([-x ** i * y * y for i in range(4)] if BEND[chart] else [])

    w = [1.0] * len(data)
    for _ in range(40):
        m = [[0.0] * n for _ in range(n)]
        v = [0.0] * n
        for (x, y, ca), wi in zip(data, w):
            t = features(x, y, ca)
            for i in range(n):
                v[i] += wi * t[i] * y
                for j in range(n):
                    m[i][j] += wi * t[i] * t[j]
        co = solve(m, v) + [0.0] * (16 - n)
        for i, (x, y, ca) in enumerate(data):
            w[i] = 1.0 / max(abs(poly(co, 1, x) + 2 * poly(co, 2, x) * ca), 1e-3) ** 2
    worst = max(abs((read(co, x, y) or 99) - ca) for x, y, ca in data)
    lo, hi, holes, falls = 9, -9, 0, 0
    for i in range(81):
        x = math.log(0.2501 * (4 / 0.2501) ** (i / 80))
        before = None
        for j in range(81):
            c = read(co, x, math.log(0.5001 * (TOP[chart] / 0.5001) ** (j / 80)))
            if c is None:
                holes += 1
                continue
            lo, hi = min(lo, c), max(hi, c)
            falls += before is not None and c < before
            before = c
    print(chart, "worst", round(worst, 4), "range", round(lo, 3), round(hi, 3), "holes", holes, "falls", falls)
    print("   ", ", ".join("%.10g" % c for c in co))
