#pragma once
// The ultimate state of a polygonal column section under a normal force and two
// bending moments. The section is turned until the neutral axis is horizontal with
// the compressed side on top; there the strain diagram follows the pivots of the
// layered sections (steel at 10 per mille at the deepest bar, concrete at eps_cu at
// the top, or eps_c2 at kappa h), the rectangular stress block is the part of the
// polygon above ymax - lambda x, integrated exactly, and each bar takes the bilinear
// steel stress. Three nested searches sit on this evaluation: the depth x of the
// neutral axis that balances the normal force, its angle that turns the resisting
// moment onto the acting one, and the steel area that makes the section just
// enough (or the factor that brings the forces onto the failure surface).
//
// Units: kN and cm; moments in kN cm; angles in radians. Moments about the
// centroid of the outline: Mx = sum of F y and My = sum of F x, compressive forces
// positive, so a positive Mx compresses the side of positive y.
#include <vector>

#include "basis/materials.h"
#include "draw/polygon.h"

namespace morve {

struct ObliqueSection {
    std::vector<Point> outline;  // in the order that gives a positive area
    std::vector<Point> bars;
    std::vector<double> shares;  // the part of the total steel each bar holds, summing to 1
    double area = 0;             // Ac, cm2
};

// The section as typed, moved so that the outline's centroid is the origin. An
// outline of zero or negative area is left where it is, with that area.
ObliqueSection centredSection(std::vector<Point> outline, std::vector<Point> bars, std::vector<double> shares);

struct ObliqueMaterial {
    StressBlockParametersValues block{};
    double sigmacd = 0;  // the stress of the block, kN/cm2
    double fyd = 0;      // kN/cm2
    double es = 0;       // kN/cm2
};

// The section turned by an angle: y' = -sin(a) x + cos(a) y is the height above
// the neutral axis's direction, so the compressed side points along (-sin a, cos a).
struct TurnedSection {
    double angle = 0, cosine = 1, sine = 0;
    std::vector<Point> outline, bars;
    std::vector<double> depth;  // of each bar under the top
    double ymax = 0, h = 0, dmax = 0;
};

struct Resultant {
    double n = 0, mx = 0, my = 0;
};

class ObliqueModel {
public:
    ObliqueModel(ObliqueSection section, ObliqueMaterial material);

    const ObliqueSection& section() const { return section_; }
    const ObliqueMaterial& material() const { return material_; }
    TurnedSection turn(double angle) const;
    // The forces of the concrete block and the bars, for the neutral axis at depth x
    // under the top of the turned section, with the total steel area as.
    Resultant at(const TurnedSection& turned, double x, double as) const;
    // The largest compression the section takes, wholly at eps_c2.
    double squashForce(double as) const;

private:
    ObliqueSection section_;
    ObliqueMaterial material_;
};

// How far each search may go and how close it must come. The depth and steel
// searches stop on |g| <= 0.001 kN and |f| <= 0.001; the angle search on the
// difference of the two moment directions, as a fraction of pi.
struct SearchLimits {
    int depthRounds = 100;
    int anglePasses = 51;
    double angleTolerance = 0.001;
    int steelRounds = 100;
    // A section with two axes of symmetry and its bars balanced about them: one
    // moment alone puts the neutral axis square to it, and the contour of moments
    // under any force below the squash load surrounds the origin.
    bool twoAxesOfSymmetry = true;
};

// The neutral axis found for a normal force: its angle and depth and the resultant.
struct NeutralAxisSolution {
    double angle = 0, depth = 0;
    Resultant r;
    bool converged = true;  // false: a limit was reached and the value in hand is kept
    int rounds = 0;         // evaluations of the depth search, passes of the angle search
};

// The depth that balances nd at the given angle.
NeutralAxisSolution balanceDepth(const ObliqueModel& model, const TurnedSection& turned, double as, double nd,
                                 int maxRounds);

// The angle and depth whose resisting moment points along (mxd, myd) under nd.
// Either moment zero fixes the angle when the limits say so. Otherwise the rule is: start with the neutral
// axis square to the acting moment (exact for a section equally stiff about every
// axis); while the direction error keeps its sign, turn by the error over the
// secant slope of the last two passes (slope -1 at first), at most an eighth of a
// turn a pass; once the error has changed sign, Illinois false position inside
// that bracket. The direction of the resisting moment turns monotonically with the
// angle; for a doubly symmetric section it is 0 at angle 0 and a quarter turn at
// -pi/2, so the bracket is never wider than a quarter turn and the search ends in
// about twenty passes at worst, well inside the limit of 51.
// With a centre, the moment less the centre is turned onto (mxd, myd) instead.
NeutralAxisSolution alignMoment(const ObliqueModel& model, double as, double nd, double mxd, double myd,
                                const SearchLimits& limits, Point centre = {0, 0});

// The total steel that makes the resisting moment just equal to the acting one
// (without two axes of symmetry: that puts the forces on the failure surface):
// the uniform-compression steel first, then doubling until the moment is reached,
// then false position.
// `converged` tells of the search and of the last evaluation, whose neutral axis
// is kept; the trials on the way may fail to converge (the uniform-compression
// steel squashes the section, where no angle can be sought) without harm.
struct SteelDesign {
    double as = 0;
    NeutralAxisSolution axis;
    bool converged = true;
};
SteelDesign designSteel(const ObliqueModel& model, double nd, double mxd, double myd, const SearchLimits& limits);

// The safety factor S on a proportional load path: the factor by which nd, mxd and
// myd together must grow (or shrink) to reach the failure surface, with or without
// moments, with the bars centred on the concrete or not. Not finite when all three
// are zero.
struct SafetyFactor {
    double s = 0;
    NeutralAxisSolution axis;
    bool converged = true;
};
SafetyFactor safetyFactor(const ObliqueModel& model, double as, double nd, double mxd, double myd,
                          const SearchLimits& limits);

// The resisting moments under nd for neutral axes turned in equal steps: the
// moment contour of the section. Points in kN cm.
std::vector<Point> momentContour(const ObliqueModel& model, double as, double nd, int directions);

}  // namespace morve
