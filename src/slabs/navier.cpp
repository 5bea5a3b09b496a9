#include "slabs/navier.h"

#include <array>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

namespace {

constexpr double kPi = 3.14159265358979323846;
using Terms = std::array<double, kSeriesTerms + 1>;

// sin(k pi u / span) for k = 1 .. terms; at the centre u = span / 2.
Terms sines(double u, double span) {
    Terms s{};
    for (int k = 1; k <= kSeriesTerms; ++k) s[k] = portable::sin(k * kPi * u / span);
    return s;
}

// The double series of a load whose sine coefficients are lx[m] ly[n]: the sums
// for D w, and for the curvatures of x and y (their sizes), at the centre.
CentreValues doubleSeries(double a, double b, const Terms& lx, const Terms& ly, double factor, double nu) {
    const Terms cx = sines(a / 2, a), cy = sines(b / 2, b);
    double w = 0, x = 0, y = 0;
    for (int m = 1; m <= kSeriesTerms; ++m) {
        if (lx[m] * cx[m] == 0) continue;
        const double km = m / a, kxx = portable::pow(m * kPi / a, 2);
        for (int n = 1; n <= kSeriesTerms; ++n) {
            const double kn = n / b, s = km * km + kn * kn;
            const double t = lx[m] * cx[m] * ly[n] * cy[n] / (s * s);
            w += t;
            x += t * kxx;
            y += t * portable::pow(n * kPi / b, 2);
        }
    }
    return {factor * w, factor * (x + nu * y), factor * (y + nu * x)};
}

}  // namespace

CentreValues pointLoadAtCentre(double a, double b, double p, double ax, double ay, double nu) {
    const double pi4 = portable::pow(kPi, 4);
    return doubleSeries(a, b, sines(ax, a), sines(ay, b), 4 * p / (pi4 * a * b), nu);
}

CentreValues patchLoadAtCentre(double a, double b, double p, double ax, double ay, double bx, double by,
                               double nu) {
    // Each term of the uniform patch is the point's term times sin(k pi B / 2 span) / k.
    Terms lx = sines(ax, a), ly = sines(ay, b);
    for (int k = 1; k <= kSeriesTerms; ++k) {
        lx[k] *= portable::sin(k * kPi * bx / (2 * a)) / k;
        ly[k] *= portable::sin(k * kPi * by / (2 * b)) / k;
    }
    return doubleSeries(a, b, lx, ly, 16 * p / portable::pow(kPi, 6), nu);
}

CentreValues lineLoadAtCentre(double a, double b, double p, double ax, double nu) {
    // Each sine term of the line load across x is carried along y as a strip with
    // the edges y = 0 and y = b simply supported (the Levy solution).
    double w = 0, x = 0, y = 0;
    for (int m = 1; m <= kSeriesTerms; ++m) {
        const double load = 2 * p / a * portable::sin(m * kPi * ax / a) * portable::sin(m * kPi / 2);
        if (load == 0) continue;
        const double alpha = m * kPi / a, am = m * kPi * b / (2 * a);
        const double e = portable::exp(am), ch = (e + 1 / e) / 2, sh = (e - 1 / e) / 2, th = sh / ch;
        const double shape = 1 - (2 + am * th) / (2 * ch);  // D alpha^4 w / load at the centre
        const double bend = am * th / (2 * ch);             // -w_yy / (alpha^2 w_strip)
        w += load * shape / portable::pow(alpha, 4);
        x += load * shape / (alpha * alpha);
        y += load * bend / (alpha * alpha);
    }
    return {w, x + nu * y, y + nu * x};
}

}  // namespace morve
