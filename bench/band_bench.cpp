// Factor and solve the largest band the screens allow (2406 equations, semi-
// bandwidth 200), the program's routines, reference LAPACK's and OpenBLAS's
// dpbtrf/dpbtrs side by side on the same matrix, on one thread.
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

#include "bench/lapack_libraries.h"
#include "numeric/band.h"
#include "tests/numeric/lapack_band.h"

using namespace morve;

namespace {

constexpr int kN = band_limits::kEquations;
constexpr int kNb = band_limits::kSemiBandwidth;

const BandMatrix& spdBand() {
    static const BandMatrix a = [] {
        std::mt19937 rng(5);
        return lapack::randomSpd(kN, kNb, rng);
    }();
    return a;
}

LoadVector rightHandSide() {
    LoadVector b(kN);
    for (int i = 1; i <= kN; ++i) b(i) = std::sin(i);
    return b;
}

void BandCholeskySolve(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        BandMatrix a = spdBand();
        LoadVector b = rightHandSide();
        state.ResumeTiming();
        const bool regular = BandCholesky(a);
        BandSolve(a, b);
        benchmark::DoNotOptimize(regular);
        benchmark::DoNotOptimize(b.data());
    }
}
BENCHMARK(BandCholeskySolve)->Unit(benchmark::kMillisecond);

void timeLapack(benchmark::State& state, const bench::BandLapack& lib) {
    if (!lib.fault.empty()) {
        state.SkipWithError(lib.fault.c_str());
        return;
    }
    const std::vector<double> ab0 = lapack::upperBand(spdBand());
    const int n = kN, kd = kNb - 1, ldab = kNb, one = 1;
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<double> ab = ab0;
        LoadVector b = rightHandSide();
        state.ResumeTiming();
        int info = 0;
        lib.dpbtrf("U", &n, &kd, ab.data(), &ldab, &info);
        lib.dpbtrs("U", &n, &kd, &one, ab.data(), &ldab, b.data(), &n, &info);
        if (info != 0) {
            state.SkipWithError("dpbtrf/dpbtrs failed");
            break;
        }
        benchmark::DoNotOptimize(b.data());
    }
}

#ifdef MORVE_REFERENCE_LAPACK
void ReferenceLapackDpbtrfDpbtrs(benchmark::State& state) { timeLapack(state, bench::referenceLapack()); }
BENCHMARK(ReferenceLapackDpbtrfDpbtrs)->Unit(benchmark::kMillisecond);
#endif

#ifdef MORVE_OPENBLAS
void OpenblasDpbtrfDpbtrs(benchmark::State& state) { timeLapack(state, bench::openBlas()); }
BENCHMARK(OpenblasDpbtrfDpbtrs)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
