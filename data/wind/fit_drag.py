#!/usr/bin/env python3
"""Fits the two drag charts of nbr6123_drag_readings.txt as the reading routines
DragLowTurbulence and DragHighTurbulence hold them.

Each chart is one polynomial surface in the logarithms of its two ratios, scaled to
[-1, 1] over the range the program accepts:
    u = ln(l1/l2) / ln 4                            (l1/l2 from 0.25 to 4)
    v = 2 ln(h/l1 / 0.5) / ln(top / 0.5) - 1        (h/l1 from 0.5 to top, 40 or 6)
    Ca = sum over i <= 6, j <= 4 of k[i][j] u^i v^j
The readings at l1/l2 = 0.2 lie outside the accepted range and are left out.

Why this form: the older form, the height as a quadratic in Ca with cubic
coefficients in ln(l1/l2), misses the low turbulence readings by up to 0.057 (its
curves for slender buildings bend over near l1/l2 = 2); a surface of degree 6 by 4
holds every reading within about 0.02, and needs no root to be chosen.

The fit is least squares, then two rounds of weights proportional to each reading's
error, which trades a little of the mean error for a smaller largest one. Prints,
per chart, the largest and mean error over the readings, the range of Ca over a
fine grid of the accepted range and how often Ca falls as h/l1 grows there (it
should not), then the coefficients as the program keeps them (rows i = 0..6, each
j = 0..4). Plain Python: python3 fit_drag.py"""
import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))
TOP = {"low": 40.0, "high": 6.0}
DEGREE_U, DEGREE_V = 6, 4
REWEIGHTINGS = 2


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


def terms(chart, ratio, height):
    u = math.log(ratio) / math.log(4)
    v = 2 * math.log(height / 0.5) / math.log(TOP[chart] / 0.5) - 1
    return [u ** i * v ** j for i in range(DEGREE_U + 1) for j in range(DEGREE_V + 1)]


def drag(co, chart, ratio, height):
    return sum(c * t for c, t in zip(co, terms(chart, ratio, height)))


readings = {}
for line in open(os.path.join(HERE, "nbr6123_drag_readings.txt")):
    if line.startswith("#") or not line.strip():
        continue
    chart, height, ratio, ca = line.split()
    if float(ratio) >= 0.25:
        readings.setdefault(chart, []).append((float(ratio), float(height), float(ca)))

for chart, data in readings.items():
    n = (DEGREE_U + 1) * (DEGREE_V + 1)
    weight = [1.0] * len(data)
    for _ in range(REWEIGHTINGS + 1):
        m = [[0.0] * n for _ in range(n)]
        rhs = [0.0] * n
        for (ratio, height, ca), w in zip(data, weight):
            t = terms(chart, ratio, height)
            for i in range(n):
                rhs[i] += w * t[i] * ca
                for j in range(n):
                    m[i][j] += w * t[i] * t[j]
        co = solve(m, rhs)
        errors = [abs(drag(co, chart, r, h) - ca) for r, h, ca in data]
        total = sum(w * e for w, e in zip(weight, errors))
        weight = [w * e / total * len(data) + 1e-12 for w, e in zip(weight, errors)]
    lo, hi, falls = 9.0, -9.0, 0
    for i in range(81):
        ratio = 0.25 * 16 ** (i / 80)
        before = None
        for j in range(161):
            ca = drag(co, chart, ratio, 0.5 * (TOP[chart] / 0.5) ** (j / 160))
            lo, hi = min(lo, ca), max(hi, ca)
            falls += before is not None and ca < before - 1e-9
            before = ca
    print("%s: %d readings, largest error %.4f, mean %.4f, Ca from %.3f to %.3f, falls %d"
          % (chart, len(data), max(errors), sum(errors) / len(errors), lo, hi, falls))
    for i in range(DEGREE_U + 1):
        row = co[i * (DEGREE_V + 1):(i + 1) * (DEGREE_V + 1)]
        print("    {" + ", ".join("%.10g" % c for c in row) + "},")
