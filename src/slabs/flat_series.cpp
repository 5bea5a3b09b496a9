#include "slabs/flat_series.h"

#include <algorithm>
#include <cmath>

#include "numeric/band.h"
#include "numeric/elementary.h"
#include "slabs/slab_basis.h"

namespace morve {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kT = kFlatTerms, kS = kFlatSamples;

using Terms = std::array<std::array<double, kT>, kT>;    // [m-1][n-1]
using Table = std::array<std::array<double, kT>, kS>;    // [sample][m-1]

// sin(t) / t, 1 at t = 0.
double sinc(double t) { return t == 0 ? 1 : portable::sin(t) / t; }

// How a column's section weights each term: the sine at its centre times the mean
// of the sine over its width, in each direction.
struct ColumnShape {
    std::array<double, kT> ex{}, ey{};
};

ColumnShape shapeOf(const FlatColumn& c, double a, double b) {
    ColumnShape s;
    for (int k = 1; k <= kT; ++k) {
        const double am = k * kPi / a, bn = k * kPi / b;
        s.ex[k - 1] = portable::sin(am * c.x) * sinc(am * c.hx / 2);
        s.ey[k - 1] = portable::sin(bn * c.y) * sinc(bn * c.hy / 2);
    }
    return s;
}

// Sums g(m, n) f(x_i, m) h(y_j, n) over the terms at every sample, a row of y at
// a time, so that the sines are looked up and never recomputed.
FlatSurface sample(const Terms& g, const Table& fx, const Table& fy) {
    FlatSurface s;
    for (int j = 0; j < kS; ++j) {
        std::array<double, kT> t{};
        for (int m = 0; m < kT; ++m)
            for (int n = 0; n < kT; ++n) t[m] += g[m][n] * fy[j][n];
        for (int i = 0; i < kS; ++i) {
            double v = 0;
            for (int m = 0; m < kT; ++m) v += t[m] * fx[i][m];
            s.at[i][j] = v;
        }
    }
    s.max = s.min = s.at[0][0];
    for (const auto& row : s.at)
        for (double v : row) {
            s.max = std::max(s.max, v);
            s.min = std::min(s.min, v);
        }
    return s;
}

bool finite(const FlatSurface& s) {
    for (const auto& row : s.at)
        for (double v : row)
            if (!std::isfinite(v)) return false;
    return true;
}

}  // namespace

FlatResults analyseFlatSlab(const FlatSlab& slab) {
    FlatResults r;
    const double a = slab.a, b = slab.b, d = slab.d, nu = kSlabPoisson;
    const int nc = static_cast<int>(slab.columns.size());

    // K(m, n) = D (am^2 + bn^2)^2 with am = m pi / a, bn = n pi / b: the stiffness of
    // each term; the uniform load has only the odd ones.
    Terms k{}, uniform{};
    for (int m = 1; m <= kT; ++m)
        for (int n = 1; n <= kT; ++n) {
            const double am = m * kPi / a, bn = n * kPi / b, s = am * am + bn * bn;
            k[m - 1][n - 1] = d * s * s;
            if (m % 2 == 1 && n % 2 == 1)
                uniform[m - 1][n - 1] = 16 * slab.p / (kPi * kPi * m * n) / k[m - 1][n - 1];
        }

    // A unit load spread over column j gives the terms 4 ex ey / (a b K); the mean
    // deflection under column i of any terms C is the sum of C ex ey. Holding the
    // mean, not the centre, under each column is what a rigid column does over its
    // whole section, and keeps the flexibility symmetric whatever the sections.
    std::vector<ColumnShape> shapes;
    for (const FlatColumn& c : slab.columns) shapes.push_back(shapeOf(c, a, b));
    auto weight = [&](int m, int n) { return 4 / (a * b * k[m][n]); };
    if (nc > 0) {
        BandMatrix f(nc, nc);
        LoadVector sink(nc);
        for (int i = 0; i < nc; ++i) {
            const ColumnShape& si = shapes[i];
            for (int m = 0; m < kT; ++m)
                for (int n = 0; n < kT; ++n) sink(i + 1) += uniform[m][n] * si.ex[m] * si.ey[n];
            for (int j = i; j < nc; ++j) {
                const ColumnShape& sj = shapes[j];
                double fij = 0;
                for (int m = 0; m < kT; ++m)
                    for (int n = 0; n < kT; ++n) fij += weight(m, n) * si.ex[m] * sj.ex[m] * si.ey[n] * sj.ey[n];
                f(i + 1, j - i + 1) = fij;
            }
        }
        if (nc == 1) {
            // One column needs no factorisation.
            if (!(f(1, 1) > 0)) {
                r.status = FlatStatus::Singular;
                return r;
            }
            sink(1) /= f(1, 1);
        } else {
            if (!BandCholesky(f)) {
                r.status = FlatStatus::Singular;
                return r;
            }
            BandSolve(f, sink);
        }
        for (int i = 1; i <= nc; ++i) r.columnLoads.push_back(sink(i));
    }

    // The slab's terms: the uniform load less the column loads.
    Terms c = uniform;
    for (int j = 0; j < nc; ++j)
        for (int m = 0; m < kT; ++m)
            for (int n = 0; n < kT; ++n)
                c[m][n] -= r.columnLoads[j] * weight(m, n) * shapes[j].ex[m] * shapes[j].ey[n];

    // The sines and cosines of the samples, once for the four surfaces.
    Table sx{}, sy{}, cx{}, cy{};
    for (int i = 0; i < kS; ++i)
        for (int m = 1; m <= kT; ++m) {
            const double tx = m * kPi * i / (kS - 1);
            sx[i][m - 1] = sy[i][m - 1] = portable::sin(tx);
            cx[i][m - 1] = cy[i][m - 1] = portable::cos(tx);
        }
    // The edge samples sit exactly on the supports.
    for (int m = 0; m < kT; ++m) sx[0][m] = sx[kS - 1][m] = sy[0][m] = sy[kS - 1][m] = 0;

    Terms gw{}, gx{}, gy{}, gxy{};
    const double toMm = slab.p != 0 ? 10 * slab.pqp / slab.p : 0;
    double e1 = 0, e2 = 0, e3 = 0, e4 = 0;
    for (int m = 1; m <= kT; ++m)
        for (int n = 1; n <= kT; ++n) {
            const double am = m * kPi / a, bn = n * kPi / b, s = am * am + bn * bn;
            const double cmn = c[m - 1][n - 1];
            gw[m - 1][n - 1] = cmn * toMm;
            gx[m - 1][n - 1] = cmn * d * (am * am + nu * bn * bn);
            gy[m - 1][n - 1] = cmn * d * (bn * bn + nu * am * am);
            gxy[m - 1][n - 1] = -cmn * d * (1 - nu) * am * bn;
            // The shear of the plate on each edge, integrated along it term by term:
            // the integral of sin(k pi t / L) over L is L (1 - cos k pi) / (k pi).
            const double signM = m % 2 ? -1 : 1, signN = n % 2 ? -1 : 1;  // cos(m pi), cos(n pi)
            const double alongY = b / (n * kPi) * (1 - signN), alongX = a / (m * kPi) * (1 - signM);
            const double qx = d * am * s * cmn * alongY, qy = d * bn * s * cmn * alongX;
            e3 += qx;
            e4 -= signM * qx;
            e2 += qy;
            e1 -= signN * qy;
        }
    r.w = sample(gw, sx, sy);
    r.mx = sample(gx, sx, sy);
    r.my = sample(gy, sx, sy);
    r.mxy = sample(gxy, cx, cy);

    // The series leaves out the corner forces and its last terms; one factor on the
    // four sums puts the equilibrium with the load back exactly.
    double columns = 0;
    for (double p : r.columnLoads) columns += p;
    const double edges = e1 + e2 + e3 + e4;
    r.edgeScale = edges != 0 ? (slab.p * a * b - columns) / edges : 1;
    r.r1 = e1 * r.edgeScale;
    r.r2 = e2 * r.edgeScale;
    r.r3 = e3 * r.edgeScale;
    r.r4 = e4 * r.edgeScale;

    bool ok = std::isfinite(r.r1) && std::isfinite(r.r2) && std::isfinite(r.r3) && std::isfinite(r.r4);
    for (double p : r.columnLoads) ok = ok && std::isfinite(p);
    for (const FlatSurface* s : {&r.w, &r.mx, &r.my, &r.mxy}) ok = ok && finite(*s);
    if (!ok) r.status = FlatStatus::NotFinite;
    return r;
}

}  // namespace morve
