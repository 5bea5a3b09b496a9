// The band Cholesky factorisation, blocked for speed with the arithmetic of the
// plain row-by-row algorithm kept bit for bit: every term of the factor takes the
// products of the rows above it one at a time, in the order of those rows, each
// product rounded before it is subtracted. Only the order in which different terms
// are worked on changes, so the factor, and every result built on it, is the same
// on every machine and with or without the vector instructions chosen at run time.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "numeric/band.h"

namespace morve {
namespace {

// W terms of a row side by side in one vector register: four with AVX2, two with
// the SSE2 that every x86-64 has. The vectors never cross a call (every helper is
// inlined), so the warning that such values change the calling convention between
// builds with and without AVX does not concern them.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wpsabi"
#endif
template <int W>
struct Lanes {
    typedef double Terms __attribute__((vector_size(8 * W)));
    typedef long long Mask __attribute__((vector_size(8 * W)));
    static constexpr int kTile = 2 * W;  // columns of a tile: two vectors

    [[gnu::always_inline]] static Terms load(const double* p) {
        Terms v;
        std::memcpy(&v, p, sizeof v);
        return v;
    }
    [[gnu::always_inline]] static void store(double* p, const Terms& v) { std::memcpy(p, &v, sizeof v); }
    // Lanes h*W ... h*W + W - 1 of the tile: on where the lane's column index
    // within the tile lies in [from, to].
    [[gnu::always_inline]] static Mask between(int h, int from, int to) {
        long long on[W];
        for (int l = 0; l < W; ++l) on[l] = h * W + l >= from && h * W + l <= to ? -1 : 0;
        Mask m;
        std::memcpy(&m, on, sizeof m);
        return m;
    }
};

constexpr int kGroup = 4;  // rows of the factor built together
// Narrower bands gain nothing from the tiles.
constexpr int kTiledFrom = 24;

// A row's diagonal against the term it started from: the row is singular when what
// is left is not above that share of it (zero: not above zero).
inline bool pivotHolds(double left, double start, double tolerance) {
    return left > tolerance * std::abs(start);
}

// Row i of the factor from the rows k in [first, i - 1], already final: each one
// reaches the terms of row i up to column k + nb - 1.
void takeRowsAbove(BandMatrix& band, int i, int first) {
    const int n = band.size(), nb = band.bandwidth();
    double* acc = band.row(i);
    const int width = std::min(nb, n - i + 1);
    for (int k = std::max(first, i - nb + 1); k <= i - 1; ++k) {
        const double* above = band.row(k);
        const int offset = i - k;  // (k, i) sits at column offset + 1 of row k
        const double c = above[offset];
        const int reach = std::min(nb - offset, width);
        const double* from = above + offset;
        for (int m = 0; m < reach; ++m) acc[m] -= c * from[m];
    }
}

// The pivot of row i, and the row divided by it. False when singular.
bool finishRow(BandMatrix& band, int i, double start, double tolerance) {
    double* acc = band.row(i);
    const double t = acc[0];
    if (!pivotHolds(t, start, tolerance)) return false;
    acc[0] = std::sqrt(t);
    const double d = acc[0];
    const int width = std::min(band.bandwidth(), band.size() - i + 1);
    for (int m = 1; m < width; ++m) acc[m] /= d;
    return true;
}

// Columns j0 ... j0 + 2W - 1 of the group's rows i0 ... i0 + 3 less the products of
// the rows k < i0 that reach them. A lane takes a product only where the plain
// algorithm does (row k reaches the column, and the term lies on or right of its
// row's diagonal); elsewhere it keeps its value, so what the tile stores back
// there is what it read.
template <int W, bool kLeftEdge>
[[gnu::always_inline]] inline void tileFromAbove(BandMatrix& band, int i0, int j0) {
    using L = Lanes<W>;
    using Terms = typename L::Terms;
    using Mask = typename L::Mask;
    const int nb = band.bandwidth();
    double* at[kGroup];
    Terms acc[kGroup][2];
    Mask right[kGroup][2];
    for (int r = 0; r < kGroup; ++r) {
        at[r] = band.row(i0 + r) + (j0 - (i0 + r));
        acc[r][0] = L::load(at[r]);
        acc[r][1] = L::load(at[r] + W);
        right[r][0] = L::between(0, i0 + r - j0, L::kTile);
        right[r][1] = L::between(1, i0 + r - j0, L::kTile);
    }
    const int first = std::max(1, j0 - nb + 1);
    const int full = std::clamp(j0 + L::kTile - nb, first, i0);
    int k = first;
    // The first rows reach only the tile's left columns.
    for (; k < full; ++k) {
        const double* above = band.row(k);
        const Terms v0 = L::load(above + (j0 - k)), v1 = L::load(above + (j0 - k) + W);
        const int last = k + nb - 1 - j0;
        const Mask reach0 = L::between(0, 0, last), reach1 = L::between(1, 0, last);
        for (int r = 0; r < kGroup; ++r) {
            const double u = above[i0 + r - k];
            acc[r][0] = (reach0 & right[r][0]) ? acc[r][0] - u * v0 : acc[r][0];
            acc[r][1] = (reach1 & right[r][1]) ? acc[r][1] - u * v1 : acc[r][1];
        }
    }
    for (; k < i0; ++k) {
        const double* above = band.row(k);
        const Terms v0 = L::load(above + (j0 - k)), v1 = L::load(above + (j0 - k) + W);
        for (int r = 0; r < kGroup; ++r) {
            const double u = above[i0 + r - k];
            if constexpr (kLeftEdge) {
                acc[r][0] = right[r][0] ? acc[r][0] - u * v0 : acc[r][0];
                acc[r][1] = right[r][1] ? acc[r][1] - u * v1 : acc[r][1];
            } else {
                acc[r][0] = acc[r][0] - u * v0;
                acc[r][1] = acc[r][1] - u * v1;
            }
        }
    }
    for (int r = 0; r < kGroup; ++r) {
        L::store(at[r], acc[r][0]);
        L::store(at[r] + W, acc[r][1]);
    }
}

// The group's terms that the rows above it reach, columns i0 ... min(i0 + nb - 2, n):
// whole tiles, then the few right-hand columns term by term (only the last rows
// above reach those, so their sums are short).
template <int W>
[[gnu::always_inline]] inline void groupFromAbove(BandMatrix& band, int i0) {
    constexpr int kTile = Lanes<W>::kTile;
    const int nb = band.bandwidth();
    const int last = std::min(i0 + nb - 2, band.size());
    int j0 = i0;
    if (j0 + kTile - 1 <= last) {
        tileFromAbove<W, true>(band, i0, j0);
        for (j0 += kTile; j0 + kTile - 1 <= last; j0 += kTile) tileFromAbove<W, false>(band, i0, j0);
    }
    for (int r = 0; r < kGroup; ++r) {
        const int i = i0 + r;
        double* row = band.row(i);
        for (int j = std::max(j0, i); j <= last; ++j) {
            double t = row[j - i];
            for (int k = std::max(1, j - nb + 1); k < i0; ++k) {
                const double* above = band.row(k);
                t -= above[i - k] * above[j - k];
            }
            row[j - i] = t;
        }
    }
}

#if defined(__x86_64__) && defined(__GNUC__)
// Built for AVX2 as well, and chosen when the processor has it; AVX2 without FMA,
// so that no product is fused with its subtraction.
[[gnu::target("avx2")]] void groupFromAboveAvx2(BandMatrix& band, int i0) { groupFromAbove<4>(band, i0); }
void groupFromAboveSse2(BandMatrix& band, int i0) { groupFromAbove<2>(band, i0); }
void groupStep(BandMatrix& band, int i0) {
    static const auto step = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("avx2") ? groupFromAboveAvx2 : groupFromAboveSse2;
    }();
    step(band, i0);
}
#else
void groupStep(BandMatrix& band, int i0) { groupFromAbove<2>(band, i0); }
#endif

bool factorRows(BandMatrix& band, double tolerance) {
    const int n = band.size(), nb = band.bandwidth();
    int i = 2;
    if (nb >= kTiledFrom) {
        for (; i + kGroup - 1 <= n; i += kGroup) {
            double start[kGroup];
            for (int r = 0; r < kGroup; ++r) start[r] = band(i + r, 1);
            groupStep(band, i);
            for (int r = 0; r < kGroup; ++r) {
                takeRowsAbove(band, i + r, i);
                if (!finishRow(band, i + r, start[r], tolerance)) return false;
            }
        }
    }
    for (; i <= n; ++i) {
        const double start = band(i, 1);
        takeRowsAbove(band, i, 1);
        if (!finishRow(band, i, start, tolerance)) return false;
    }
    return true;
}

}  // namespace

bool BandCholesky(BandMatrix& band, double tolerance) {
    const int n = band.size();
    const int nb = band.bandwidth();
    if (n < 1) return true;
    double* first = band.row(1);
    if (!pivotHolds(first[0], first[0], tolerance)) return false;
    // Row 1 is divided across the whole band width, even past the last equation.
    first[0] = std::sqrt(first[0]);
    for (int m = 2; m <= nb; ++m) first[m - 1] /= first[0];
    if (n == 1) {
        // The single row goes through the last-row step as well, so its diagonal is
        // rooted twice.
        first[0] = std::sqrt(first[0]);
        return true;
    }
    return factorRows(band, tolerance);
}

}  // namespace morve
