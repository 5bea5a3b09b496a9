// The band routines against LAPACK's band Cholesky and against a dense assembly
// written here, and the edge cases the screens rely on.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "numeric/band.h"
#include "lapack_band.h"

using namespace morve;

namespace {

using lapack::randomSpd;

TEST(BandSolver, AgreesWithLapackOnRandomSpdSystems) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-10.0, 10.0);
    const struct { int n, nb; } sizes[] = {{2, 2}, {5, 5}, {17, 4}, {60, 1}, {120, 30}, {300, 200}, {2406, 200}};
    for (auto [n, nb] : sizes) {
        SCOPED_TRACE(testing::Message() << "N " << n << " nb " << nb);
        BandMatrix a = randomSpd(n, nb, rng);
        LoadVector b(n);
        std::vector<double> ref(static_cast<std::size_t>(n));
        for (int i = 1; i <= n; ++i) ref[i - 1] = b(i) = u(rng);
        std::vector<double> ab = lapack::upperBand(a);
        const int kd = nb - 1, one = 1;
        int info = 0;
        dpbsv_("U", &n, &kd, &one, ab.data(), &nb, ref.data(), &n, &info);
        ASSERT_EQ(info, 0);

        ASSERT_TRUE(BandCholesky(a));
        BandSolve(a, b);
        double worst = 0, scale = 0;
        for (int i = 1; i <= n; ++i) {
            worst = std::max(worst, std::abs(b(i) - ref[i - 1]));
            scale = std::max(scale, std::abs(ref[i - 1]));
        }
        EXPECT_LE(worst, 1e-12 * scale);
    }
}

// The factor by its definition, term by term: each term less the products of the
// rows above, taken in their order.
BandMatrix textbookFactor(const BandMatrix& a) {
    const int n = a.size(), nb = a.bandwidth();
    BandMatrix u(n, nb);
    for (int i = 1; i <= n; ++i)
        for (int j = i; j <= std::min(i + nb - 1, n); ++j) {
            double t = a(i, j - i + 1);
            for (int k = std::max(1, j - nb + 1); k < i; ++k) t -= u(k, i - k + 1) * u(k, j - k + 1);
            u(i, j - i + 1) = j == i ? std::sqrt(t) : t / u(i, 1);
        }
    return u;
}

TEST(BandSolver, FactorIsTheTextbookFactorForEveryShapeOfBand) {
    // Bands narrower and wider than the equations, counts of rows that leave partial
    // groups, widths that leave partial tiles.
    std::mt19937 rng(13);
    const struct { int n, nb; } sizes[] = {{7, 30}, {30, 24}, {31, 25}, {40, 33}, {101, 40},
                                            {250, 64}, {603, 200}, {2406, 200}};
    for (auto [n, nb] : sizes) {
        SCOPED_TRACE(testing::Message() << "N " << n << " nb " << nb);
        BandMatrix a = randomSpd(n, nb, rng);
        const BandMatrix expected = textbookFactor(a);
        ASSERT_TRUE(BandCholesky(a));
        double worst = 0;
        for (int i = 2; i <= n; ++i)
            for (int j = i; j <= std::min(i + nb - 1, n); ++j)
                worst = std::max(worst, std::abs(a(i, j - i + 1) - expected(i, j - i + 1)) / expected(i, 1));
        EXPECT_LE(worst, 1e-12);
    }
}

TEST(BandSolver, PivotTestAndTheSingleEquation) {
    // [[p, c, 0], [c, d, 0], [0, 0, 1]]: pivots p and d - c^2/p. A zero or negative
    // pivot in any row is singular; a tiny positive one is not.
    const struct { double p, c, d; bool regular; } cases[] = {
        {1, 1, 4, true}, {1, 1, 1, false}, {1, 1, 0.5, false}, {0, 0, 1, false}, {1e-300, 0, 1, true}, {1, 0, 1e-300, true}};
    for (auto [p, c, d, regular] : cases) {
        BandMatrix a(3, 2);
        a(1, 1) = p, a(1, 2) = c, a(2, 1) = d, a(3, 1) = 1;
        EXPECT_EQ(BandCholesky(a), regular) << p << " " << c << " " << d;
    }

    // One equation: the diagonal is rooted twice (16 leaves 2), and the solve divides
    // twice by what is left: 4 / (2 * 2).
    BandMatrix single(1, 3);
    single(1, 1) = 16;
    ASSERT_TRUE(BandCholesky(single));
    EXPECT_DOUBLE_EQ(single(1, 1), 2.0);
    LoadVector b(1);
    b(1) = 4;
    BandSolve(single, b);
    EXPECT_DOUBLE_EQ(b(1), 1.0);
}

// Dense upper triangle of a band, for comparison.
std::vector<std::vector<double>> dense(const BandMatrix& a) {
    const int n = a.size();
    std::vector<std::vector<double>> d(n + 1, std::vector<double>(n + 1, 0.0));
    for (int i = 1; i <= n; ++i)
        for (int m = 1; m <= a.bandwidth() && i + m - 1 <= n; ++m) d[i][i + m - 1] = a(i, m);
    return d;
}

TEST(BandAssembly, WidthAndTermsMatchADenseAssembly) {
    // Two-node bars with adjacent nodes and three dof: width 6.
    EXPECT_EQ(BandWidth(Incidence{2, {1, 2, 2, 3}}, 3), 6);
    EXPECT_EQ(BandWidth(Incidence{2, {}}, 3), 3);
    // Three-node elements with their nodes in any order.
    const Incidence inc{3, {1, 3, 2, 5, 3, 4, 4, 6, 5}};
    const int nd = 2, nodes = 6, n = nodes * nd;
    const int nb = BandWidth(inc, nd);
    EXPECT_EQ(nb, 6);

    std::mt19937 rng(3);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    BandMatrix band(n, nb);
    std::vector<std::vector<double>> full(n + 1, std::vector<double>(n + 1, 0.0));
    auto global = [&](int e, int local) {
        return (inc.node(e, (local - 1) / nd + 1) - 1) * nd + (local - 1) % nd + 1;
    };
    for (int e = 1; e <= inc.elements(); ++e) {
        ElementStiffness k(3 * nd);
        for (int i = 1; i <= 3 * nd; ++i)
            for (int j = i; j <= 3 * nd; ++j) k(i, j) = k(j, i) = u(rng);
        ASSERT_TRUE(BandAssemble(band, k, inc, e, nd));
        for (int i = 1; i <= 3 * nd; ++i)
            for (int j = 1; j <= 3 * nd; ++j) full[global(e, i)][global(e, j)] += k(i, j);
    }
    const auto upper = dense(band);
    for (int i = 1; i <= n; ++i)
        for (int j = i; j <= n; ++j) EXPECT_NEAR(upper[i][j], full[i][j], 1e-14) << i << "," << j;

    // A node given twice in one element couples with itself through the upper half
    // only: K = [[1, 2], [2, 3]] on nodes (1, 1) leaves 1 + 2 + 3.
    BandMatrix twice(1, 1);
    ElementStiffness k2(2);
    k2(1, 1) = 1, k2(1, 2) = k2(2, 1) = 2, k2(2, 2) = 3;
    ASSERT_TRUE(BandAssemble(twice, k2, Incidence{2, {1, 1}}, 1, 1));
    EXPECT_EQ(twice(1, 1), 6.0);

    // Too narrow a band is refused, and no cell outside it is written.
    BandMatrix narrow(n, 2);
    ElementStiffness k(3 * nd);
    k(1, 6) = k(6, 1) = 1;
    EXPECT_FALSE(BandAssemble(narrow, k, inc, 1, nd));
}

TEST(BandLimits, EachLimitOfTheScreensHasItsMessage) {
    EXPECT_EQ(bandLimitMessage({2406, 200, 120, 12}), "");
    for (const BandSize& over : {BandSize{2407, 200, 120, 12}, BandSize{2406, 201, 120, 12},
                                 BandSize{2406, 200, 121, 12}, BandSize{2406, 200, 120, 13}})
        EXPECT_NE(bandLimitMessage(over), "");
}

TEST(BandRestraints, RestrainedDofTakeTheirLoadAndTheRestSolvesTheRemainingEquations) {
    std::mt19937 rng(11);
    const int n = 12, nb = 4, nd = 2;
    BandMatrix a = randomSpd(n, nb, rng);
    const auto full = dense(a);
    // Node 3 entirely restrained, and the rotation of node 5.
    const std::vector<Restraint> restraints{{3, 1}, {3, 2}, {5, 2}};
    BandRestrain(a, restraints, nd);
    for (int q : {5, 6, 10}) EXPECT_EQ(a(q, 1), 1.0);
    ASSERT_TRUE(BandCholesky(a));
    for (int q : {5, 6, 10}) EXPECT_EQ(a(q, 1), 1.0);  // unit pivots stay unit

    LoadVector b(n);
    for (int i = 1; i <= n; ++i) b(i) = i;
    for (int q : {5, 6, 10}) b(q) = 0;
    LoadVector x = b;
    BandSolve(a, x);
    for (int q : {5, 6, 10}) EXPECT_NEAR(x(q), 0.0, 1e-15);
    for (int i = 1; i <= n; ++i) {
        if (i == 5 || i == 6 || i == 10) continue;
        double r = 0;
        for (int j = 1; j <= n; ++j) r += (i <= j ? full[i][j] : full[j][i]) * x(j);
        EXPECT_NEAR(r, b(i), 1e-12) << i;
    }
}

}  // namespace
