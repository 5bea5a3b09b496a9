#pragma once
// The symmetric positive-definite band solver shared by every matrix analysis, and
// the finite-element bookkeeping round it. Each analysis owns its band and load
// vector: nothing here lives beyond the call that uses it. Indices are 1-based, as
// equations and nodes are numbered on the screens.
#include <algorithm>
#include <cassert>
#include <cstddef>
#include <string>
#include <vector>

namespace morve {

// Limits of every analysis screen; the screens check them, with a message, before
// building a band.
namespace band_limits {
inline constexpr int kEquations = 2406;
inline constexpr int kSemiBandwidth = 200;
inline constexpr int kRestraints = 120;
inline constexpr int kElementOrder = 12;
}  // namespace band_limits

// The size of a band problem as a screen is about to build it.
struct BandSize {
    int equations = 0;
    int semiBandwidth = 1;
    int restraints = 0;
    int elementOrder = 1;
};

// The message that stops a screen whose problem passes a limit of the solver, ""
// when it fits.
std::string bandLimitMessage(const BandSize& size);

// The upper half-band of a symmetric matrix: (i, 1) is the diagonal of equation i,
// (i, m) the term (i, i + m - 1). Rows are contiguous, so that a row of the factor
// is built by sweeping the rows above it in memory order.
class BandMatrix {
public:
    BandMatrix() = default;
    BandMatrix(int n, int nb) : n_(n), nb_(nb), a_(static_cast<std::size_t>(n) * nb, 0.0) {
        assert(n >= 0 && nb >= 1);
    }

    int size() const { return n_; }
    int bandwidth() const { return nb_; }

    double& operator()(int i, int m) { return a_[index(i, m)]; }
    double operator()(int i, int m) const { return a_[index(i, m)]; }
    // The row's cells (i, 1) ... (i, nb) in memory order.
    double* row(int i) { return &a_[index(i, 1)]; }
    const double* row(int i) const { return &a_[index(i, 1)]; }

    void clear() { std::fill(a_.begin(), a_.end(), 0.0); }

private:
    std::size_t index(int i, int m) const {
        assert(i >= 1 && i <= n_ && m >= 1 && m <= nb_);
        return static_cast<std::size_t>(i - 1) * nb_ + (m - 1);
    }
    int n_ = 0, nb_ = 1;
    std::vector<double> a_;
};

// Right-hand side on entry to BandSolve, solution on return.
class LoadVector {
public:
    LoadVector() = default;
    explicit LoadVector(int n) : v_(static_cast<std::size_t>(n), 0.0) {}
    int size() const { return static_cast<int>(v_.size()); }
    double& operator()(int i) {
        assert(i >= 1 && i <= size());
        return v_[static_cast<std::size_t>(i - 1)];
    }
    double operator()(int i) const {
        assert(i >= 1 && i <= size());
        return v_[static_cast<std::size_t>(i - 1)];
    }
    double* data() { return v_.data(); }
    void clear() { std::fill(v_.begin(), v_.end(), 0.0); }

private:
    std::vector<double> v_;
};

// Stiffness matrix of the element being assembled, in the element's node order with
// all dof of a node together; order up to band_limits::kElementOrder.
class ElementStiffness {
public:
    explicit ElementStiffness(int order = band_limits::kElementOrder) : order_(order) {
        assert(order >= 1 && order <= band_limits::kElementOrder);
    }
    int order() const { return order_; }
    double& operator()(int i, int j) { return k_[index(i, j)]; }
    double operator()(int i, int j) const { return k_[index(i, j)]; }

private:
    std::size_t index(int i, int j) const {
        assert(i >= 1 && i <= order_ && j >= 1 && j <= order_);
        return static_cast<std::size_t>(i - 1) * band_limits::kElementOrder + (j - 1);
    }
    int order_;
    double k_[band_limits::kElementOrder * band_limits::kElementOrder] = {};
};

// Node numbers of all elements, element after element: element e holds the
// entries (e-1)*nn + 1 ... e*nn.
struct Incidence {
    int nodesPerElement = 2;
    std::vector<int> nodes;

    int elements() const { return nodesPerElement > 0 ? static_cast<int>(nodes.size()) / nodesPerElement : 0; }
    int node(int element, int i) const {
        assert(element >= 1 && i >= 1 && i <= nodesPerElement);
        return nodes.at(static_cast<std::size_t>((element - 1) * nodesPerElement + i - 1));
    }
};

// A restrained dof: the node and its local dof number 1 ... nd.
struct Restraint {
    int node = 1;
    int dof = 1;
};

// The share of its starting diagonal term that a row's pivot term must keep for the
// band to be regular. A structure free to move (a mechanism) leaves, instead of a
// zero, a pivot of the size of the round-off in its diagonal, a few parts in 1e16
// and of either sign with the last bits of the data; a usable structure keeps far
// more than this share. One rule for every analysis, so that a mechanism is refused
// on every machine.
inline constexpr double kPivotShare = 1e-9;

// Factors the band in place into the upper triangular factor, row after row.
// Returns false (singular), leaving the band half factored, at the first row whose
// pivot term, all products of the rows above taken off, is not above `tolerance`
// times the term the row's diagonal started from; a tolerance of zero refuses only
// pivots not greater than zero. With one equation the diagonal ends as the fourth
// root of the term, as the program has always done.
bool BandCholesky(BandMatrix& band, double tolerance = kPivotShare);
// Overwrites the load vector with the solution, from a factored band.
void BandSolve(const BandMatrix& band, LoadVector& load);
// The semi-bandwidth from the incidences: (largest node difference in an element
// + 1) * nd, or nd with no element.
int BandWidth(const Incidence& incidence, int nd);
// Adds the element's stiffness into the upper half of the band. False, with nothing
// written for the terms concerned, when a node lies outside the band's equations or
// two nodes are farther apart than its width allows.
bool BandAssemble(BandMatrix& band, const ElementStiffness& k, const Incidence& incidence,
                  int element, int nd);
// Each restrained equation gets a unit diagonal and no coupling; the caller puts the
// displacement it wants (0, as a rule) in that equation of the load vector.
void BandRestrain(BandMatrix& band, const std::vector<Restraint>& restraints, int nd);

}  // namespace morve
