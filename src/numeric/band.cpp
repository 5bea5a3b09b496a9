#include "numeric/band.h"

#include <cmath>

namespace morve {

std::string bandLimitMessage(const BandSize& s) {
    using namespace band_limits;
    if (s.equations > kEquations)
        return "Este programa está limitado a 2406 equações (802 nós com 3 graus de liberdade). Revise os dados.";
    if (s.semiBandwidth > kSemiBandwidth)
        return "A semilargura de banda da matriz de rigidez passa de 200. Numere os nós de modo que os nós de "
               "cada barra fiquem mais próximos.";
    if (s.restraints > kRestraints)
        return "Este programa está limitado a 120 deslocamentos impedidos nos apoios. Revise os dados.";
    if (s.elementOrder > kElementOrder)
        return "Este programa está limitado a elementos com até 12 graus de liberdade.";
    return {};
}

void BandSolve(const BandMatrix& band, LoadVector& load) {
    const int n = band.size();
    const int nb = band.bandwidth();
    if (n < 1) return;
    double* v = load.data();
    // Forward pass with the transposed factor: once an unknown is known, its row of
    // the factor is taken off the equations below it, in the order of the rows.
    v[0] /= band(1, 1);
    for (int k = 1; k <= n; ++k) {
        if (k > 1) v[k - 1] /= band(k, 1);
        const double* row = band.row(k);
        const int reach = std::min(nb, n - k + 1);
        const double y = v[k - 1];
        for (int m = 1; m < reach; ++m) v[k - 1 + m] -= row[m] * y;
    }
    v[n - 1] /= band(n, 1);
    for (int i = n - 1; i >= 1; --i) {
        const double* row = band.row(i);
        const int reach = std::min(nb, n - i + 1);
        double t = v[i - 1];
        for (int m = 1; m < reach; ++m) t -= row[m] * v[i - 1 + m];
        v[i - 1] = t / row[0];
    }
}

int BandWidth(const Incidence& incidence, int nd) {
    const int nn = incidence.nodesPerElement;
    int widest = 0;
    for (int e = 1; e <= incidence.elements(); ++e) {
        int low = incidence.node(e, 1), high = low;
        for (int i = 2; i <= nn; ++i) {
            low = std::min(low, incidence.node(e, i));
            high = std::max(high, incidence.node(e, i));
        }
        widest = std::max(widest, high - low);
    }
    return (widest + 1) * nd;
}

bool BandAssemble(BandMatrix& band, const ElementStiffness& k, const Incidence& incidence,
                  int element, int nd) {
    const int nn = incidence.nodesPerElement;
    bool inside = true;
    auto add = [&](int r, int m, double value) {
        if (r < 1 || r > band.size() || m < 1 || m > band.bandwidth()) {
            inside = false;
            return;
        }
        band(r, m) += value;
    };
    for (int i = 1; i <= nn; ++i) {
        const int nodeI = incidence.node(element, i);
        const int ii = (i - 1) * nd, gI = (nodeI - 1) * nd;
        for (int j = i; j <= nn; ++j) {
            const int nodeJ = incidence.node(element, j);
            const int jj = (j - 1) * nd, gJ = (nodeJ - 1) * nd;
            for (int a = 1; a <= nd; ++a) {
                if (nodeI > nodeJ) {
                    // The pair lies below the diagonal: its transpose is written.
                    const int r = gJ + a;
                    for (int l = 1; l <= nd; ++l) add(r, gI + l - r + 1, k(ii + l, jj + a));
                } else {
                    const int r = gI + a;
                    for (int l = nodeI == nodeJ ? a : 1; l <= nd; ++l)
                        add(r, gJ + l - r + 1, k(ii + a, jj + l));
                }
            }
        }
    }
    return inside;
}

void BandRestrain(BandMatrix& band, const std::vector<Restraint>& restraints, int nd) {
    const int n = band.size();
    const int nb = band.bandwidth();
    for (const Restraint& r : restraints) {
        const int q = (r.node - 1) * nd + r.dof;
        if (q < 1 || q > n) continue;
        for (int i = std::max(1, q - nb + 1); i <= q; ++i) band(i, q - i + 1) = 0;
        for (int j = q + 1; j <= std::min(q + nb - 1, n); ++j) band(q, j - q + 1) = 0;
        band(q, 1) = 1;
    }
}

}  // namespace morve
