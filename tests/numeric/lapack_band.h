#pragma once
// LAPACK's band Cholesky, the reference the band routines are measured against in
// the tests and the benchmark (never used by the program). Upper storage, column
// major: AB(nb + i - j, j) holds A(i, j).
#include <random>
#include <vector>

#include "numeric/band.h"

extern "C" {
void dpbtrf_(const char* uplo, const int* n, const int* kd, double* ab, const int* ldab, int* info);
void dpbtrs_(const char* uplo, const int* n, const int* kd, const int* nrhs, const double* ab,
             const int* ldab, double* b, const int* ldb, int* info);
void dpbsv_(const char* uplo, const int* n, const int* kd, const int* nrhs, double* ab, const int* ldab,
            double* b, const int* ldb, int* info);
}

namespace lapack {

// The band of the program laid out as LAPACK's upper band.
inline std::vector<double> upperBand(const morve::BandMatrix& a) {
    const int n = a.size(), nb = a.bandwidth();
    std::vector<double> ab(static_cast<std::size_t>(n) * nb, 0.0);
    for (int i = 1; i <= n; ++i)
        for (int m = 1; m <= nb && i + m - 1 <= n; ++m) {
            const int j = i + m - 1;
            ab[static_cast<std::size_t>(j - 1) * nb + (nb - 1 + i - j)] = a(i, m);
        }
    return ab;
}

// A random symmetric band matrix made positive definite by a dominant diagonal.
inline morve::BandMatrix randomSpd(int n, int nb, std::mt19937& rng) {
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    morve::BandMatrix a(n, nb);
    for (int i = 1; i <= n; ++i) {
        a(i, 1) = 2.0 * nb + u(rng);
        for (int m = 2; m <= nb && i + m - 1 <= n; ++m) a(i, m) = u(rng);
    }
    return a;
}

}  // namespace lapack
