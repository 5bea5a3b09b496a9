#pragma once
// Plate theory worked out apart from the program, to hold its fitted tables and
// series against: the Navier double series of the simply supported rectangle, and
// a Ritz solution of any rectangle with each side simply supported, fixed or free
// (products of Legendre polynomials times the factors that keep the supports).
// Everything for a unit load on a plate of unit rigidity.
#include <array>
#include <cmath>
#include <vector>

namespace morve::testing {

inline constexpr double kPi = 3.14159265358979323846;

struct PlatePoint {
    double w = 0, mx = 0, my = 0;
};

// Uniform load, simply supported a by b, at (x, y), odd terms up to `terms`.
inline PlatePoint navierUniform(double a, double b, double x, double y, double nu, int terms = 401) {
    PlatePoint p;
    for (int m = 1; m <= terms; m += 2)
        for (int n = 1; n <= terms; n += 2) {
            const double km = m * kPi / a, kn = n * kPi / b, s = km * km + kn * kn;
            const double t = 16 / (kPi * kPi * m * n) * std::sin(km * x) * std::sin(kn * y) / (s * s);
            p.w += t;
            p.mx += t * (km * km + nu * kn * kn);
            p.my += t * (kn * kn + nu * km * km);
        }
    return p;
}

// Point load at (px, py), deflection at (x, y), by the double series.
inline double navierPointDeflection(double a, double b, double px, double py, double x, double y, int terms) {
    double w = 0;
    for (int m = 1; m <= terms; ++m)
        for (int n = 1; n <= terms; ++n) {
            const double km = m * kPi / a, kn = n * kPi / b, s = km * km + kn * kn;
            w += 4 / (a * b) * std::sin(km * px) * std::sin(kn * py) * std::sin(km * x) * std::sin(kn * y) / (s * s);
        }
    return w;
}

// How a side holds the plate: the power of the factor that vanishes on it.
enum class Side { Free = 0, Supported = 1, Fixed = 2 };

class RitzPlate {
public:
    // Sides x = 0, x = a, y = 0, y = b; n polynomials each way.
    RitzPlate(double a, double b, std::array<Side, 4> sides, double nu, int n = 14)
        : a_(a), b_(b), nu_(nu), n_(n), sx_{int(sides[0]), int(sides[1])}, sy_{int(sides[2]), int(sides[3])} {
        const auto gx = gram(a_, sx_), gy = gram(b_, sy_);
        const int size = n_ * n_;
        std::vector<double> k(size * size), f(size);
        for (int i = 0; i < n_; ++i)
            for (int j = 0; j < n_; ++j) {
                const int r = i * n_ + j;
                f[r] = gx.f[i] * gy.f[j];
                for (int p = 0; p < n_; ++p)
                    for (int q = 0; q < n_; ++q) {
                        const int c = p * n_ + q;
                        k[r * size + c] = gx.a2[i][p] * gy.a0[j][q] + gx.a0[i][p] * gy.a2[j][q] +
                                          nu_ * (gx.a02[p][i] * gy.a02[j][q] + gx.a02[i][p] * gy.a02[q][j]) +
                                          2 * (1 - nu_) * gx.a1[i][p] * gy.a1[j][q];
                    }
            }
        coef_ = solve(k, f, size);
    }

    PlatePoint at(double x, double y) const {
        const auto bx = basis(x / a_, sx_, a_), by = basis(y / b_, sy_, b_);
        double w = 0, wxx = 0, wyy = 0;
        for (int i = 0; i < n_; ++i)
            for (int j = 0; j < n_; ++j) {
                const double c = coef_[i * n_ + j];
                w += c * bx[i][0] * by[j][0];
                wxx += c * bx[i][2] * by[j][0];
                wyy += c * bx[i][0] * by[j][2];
            }
        return {w, -(wxx + nu_ * wyy), -(wyy + nu_ * wxx)};
    }

private:
    using Values = std::vector<std::array<double, 3>>;  // value, first and second derivative
    struct Gram {
        std::vector<std::vector<double>> a0, a1, a2, a02;
        std::vector<double> f;
    };

    // The functions of one direction at u in [0, 1] of a span L, derivatives in x.
    Values basis(double u, const std::array<int, 2>& s, double span) const {
        auto power = [](double v, int e, int d) {  // d-th derivative of v^e
            if (d > e) return 0.0;
            double c = 1;
            for (int i = 0; i < d; ++i) c *= e - i;
            return c * std::pow(v, e - d);
        };
        const double v = 1 - u;
        const double b0 = power(u, s[0], 0) * power(v, s[1], 0);
        const double b1 = power(u, s[0], 1) * power(v, s[1], 0) - power(u, s[0], 0) * power(v, s[1], 1);
        const double b2 = power(u, s[0], 2) * power(v, s[1], 0) - 2 * power(u, s[0], 1) * power(v, s[1], 1) +
                          power(u, s[0], 0) * power(v, s[1], 2);
        const double t = 2 * u - 1;
        std::vector<std::array<double, 3>> p(n_);  // Legendre in t, derivatives in u
        double p0 = 1, d0 = 0, e0 = 0, p1 = t, d1 = 1, e1 = 0;
        for (int k = 0; k < n_; ++k) {
            if (k == 0) p[k] = {p0, 0, 0};
            else if (k == 1) p[k] = {p1, 2 * d1, 0};
            else {
                const int m = k - 1;
                const double p2 = ((2 * m + 1) * t * p1 - m * p0) / (m + 1);
                const double d2 = ((2 * m + 1) * (p1 + t * d1) - m * d0) / (m + 1);
                const double e2 = ((2 * m + 1) * (2 * d1 + t * e1) - m * e0) / (m + 1);
                p0 = p1, d0 = d1, e0 = e1, p1 = p2, d1 = d2, e1 = e2;
                p[k] = {p2, 2 * d2, 4 * e2};
            }
        }
        Values out(n_);
        for (int k = 0; k < n_; ++k)
            out[k] = {b0 * p[k][0], (b1 * p[k][0] + b0 * p[k][1]) / span,
                      (b2 * p[k][0] + 2 * b1 * p[k][1] + b0 * p[k][2]) / (span * span)};
        return out;
    }

    Gram gram(double span, const std::array<int, 2>& s) const {
        // Gauss-Legendre points on [0, 1], found by Newton's method.
        const int g = 2 * n_ + 8;
        std::vector<double> xs(g), ws(g);
        for (int i = 0; i < g; ++i) {
            double x = std::cos(kPi * (i + 0.75) / (g + 0.5)), dp = 0;
            for (int it = 0; it < 100; ++it) {
                double q0 = 1, q1 = x;
                for (int k = 2; k <= g; ++k) {
                    const double q2 = ((2 * k - 1) * x * q1 - (k - 1) * q0) / k;
                    q0 = q1, q1 = q2;
                }
                dp = g * (x * q1 - q0) / (x * x - 1);
                const double dx = q1 / dp;
                x -= dx;
                if (std::fabs(dx) < 1e-15) break;
            }
            xs[i] = (x + 1) / 2;
            ws[i] = 1 / ((1 - x * x) * dp * dp);
        }
        Gram m;
        m.a0 = m.a1 = m.a2 = m.a02 = std::vector<std::vector<double>>(n_, std::vector<double>(n_));
        m.f.assign(n_, 0);
        for (int q = 0; q < g; ++q) {
            const Values v = basis(xs[q], s, span);
            const double w = ws[q] * span;
            for (int i = 0; i < n_; ++i) {
                m.f[i] += w * v[i][0];
                for (int k = 0; k < n_; ++k) {
                    m.a0[i][k] += w * v[i][0] * v[k][0];
                    m.a1[i][k] += w * v[i][1] * v[k][1];
                    m.a2[i][k] += w * v[i][2] * v[k][2];
                    m.a02[i][k] += w * v[i][0] * v[k][2];
                }
            }
        }
        return m;
    }

    static std::vector<double> solve(std::vector<double> k, std::vector<double> f, int n) {
        for (int c = 0; c < n; ++c) {
            int pivot = c;
            for (int r = c + 1; r < n; ++r)
                if (std::fabs(k[r * n + c]) > std::fabs(k[pivot * n + c])) pivot = r;
            for (int j = 0; j < n; ++j) std::swap(k[c * n + j], k[pivot * n + j]);
            std::swap(f[c], f[pivot]);
            for (int r = c + 1; r < n; ++r) {
                const double factor = k[r * n + c] / k[c * n + c];
                if (factor == 0) continue;
                for (int j = c; j < n; ++j) k[r * n + j] -= factor * k[c * n + j];
                f[r] -= factor * f[c];
            }
        }
        std::vector<double> x(n);
        for (int r = n - 1; r >= 0; --r) {
            double s = f[r];
            for (int j = r + 1; j < n; ++j) s -= k[r * n + j] * x[j];
            x[r] = s / k[r * n + r];
        }
        return x;
    }

    double a_, b_, nu_;
    int n_;
    std::array<int, 2> sx_, sy_;
    std::vector<double> coef_;
};

}  // namespace morve::testing
