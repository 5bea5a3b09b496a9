#pragma once
// Continuous beam by the direct stiffness method: two dof per node (vertical
// displacement, down positive; rotation, clockwise positive), one bar per span.
// The model holds the values already read and checked from the screens; the
// analysis gives end actions, the 101-point diagrams, zero-moment points, the
// reactions and the design table.
#include <array>
#include <optional>
#include <vector>

#include "numeric/band.h"

namespace morve {

inline constexpr int kBeamMaxSpans = 20;
inline constexpr int kBeamMaxSupports = 20;
inline constexpr int kBeamMaxBarLoads = 20;
inline constexpr int kBeamMaxSegments = 40;
inline constexpr int kBeamPoints = 101;
inline constexpr int kBeamBandwidth = 4;  // two nodes of two dof
inline constexpr int kBeamElementOrder = 4;
// The reactions table of the program holds ten restrained displacements.
inline constexpr int kBeamMaxReactions = 10;

enum class SupportType { Simple = 1, Fixed = 2 };

struct BeamSupport {
    int node = 1;
    SupportType type = SupportType::Simple;
    double ig = 0;  // equivalent inertia of the columns, m3
};

struct NodalLoad { int node = 1; double force = 0, moment = 0; };
struct BarLoad { int bar = 1; double a = 0, force = 0, moment = 0; };
struct UniformSegment { int bar = 1; double start = 0, length = 0, q = 0; };

struct BeamModel {
    double e = 0;                        // kN/m2, creep included
    std::vector<double> length, inertia;  // per span: m, m4
    std::vector<BeamSupport> supports;    // in table order
    std::vector<NodalLoad> nodalLoads;
    std::vector<BarLoad> barLoads;
    std::vector<UniformSegment> segments;
    std::vector<double> initialMa, initialMb;  // kNm, per span

    int spans() const { return static_cast<int>(length.size()); }
    int equations() const { return 2 * (spans() + 1); }
};

// A restrained equation and the displacement it is held at.
struct PrescribedDof {
    int node = 1, dof = 1;
    double value = 0;
};

struct DiagramPoint { double x = 0, m = 0, v = 0; };

struct SpanResult {
    double va = 0, vb = 0, ma = 0, mb = 0;
    double maxMoment = 0, maxMomentX = 0;  // the largest of the 101 points and its x
    double maxShear = 0;                   // largest |V|
    std::vector<double> zeroMoments;       // up to two x, from the span's start
    std::vector<DiagramPoint> points;      // 101 points, x from the beam's start
    std::vector<double> deflection;        // 101 points, mm, down positive
};

struct ReactionRow { int node = 1; double force = 0, moment = 0; };

struct DesignRow {
    std::optional<double> maxShear, positiveMoment;  // spans
    std::optional<int> support;                      // support rows
    std::optional<double> supportMoment;
};

enum class BeamStatus { Done, Singular, TooManyReactions, NotFinite };

struct BeamResults {
    BeamStatus status = BeamStatus::Done;
    std::vector<double> displacement;  // equation order
    std::vector<SpanResult> spans;
    std::vector<ReactionRow> reactions;
    std::vector<double> fixedSpanMoments;  // largest M with the interior supports fixed
    std::vector<DesignRow> design;
    double totalLength = 0;
};

// The 4 x 4 bar matrix over (w, theta) of its left node, then of its right node.
ElementStiffness BeamStiffness(double ei, double length);
// Adds the bar matrix into the band from its first equation on.
void BeamAssemble(BandMatrix& band, const ElementStiffness& k, int firstRow);
// Fixed-end actions RA, MA, RB, MB of each bar, and the equivalent nodal loads they
// add to the load vector.
std::vector<std::array<double, 4>> BeamFixedEndActions(const BeamModel& model, LoadVector& load);
// Holds each restrained equation at its value: the column's terms go to the right
// side times the value, the equation becomes the identity.
void BeamRestrain(BandMatrix& band, LoadVector& load, const std::vector<PrescribedDof>& dofs);
// The restraints of the supports, in table order; the elastic restraint (Ig > 0)
// leaves the rotation free.
std::vector<PrescribedDof> beamRestraints(const BeamModel& model);

BeamResults analyseBeam(const BeamModel& model);

}  // namespace morve
