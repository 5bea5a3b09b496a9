// The plane analyses (beam, frame, floor of panels, grillage, flat slab) on their
// mechanisms; see nudged_mechanism.h.
#include <gtest/gtest.h>

#include "continuous/beam_analysis.h"
#include "frames/plane_frame.h"
#include "frames/wind_floor.h"
#include "nudged_mechanism.h"
#include "slabs/flat_series.h"
#include "slabs/grillage_analysis.h"
#include "slabs/polygon_mesh.h"

using namespace morve;
using mechanisms::refusedWhateverTheLastBits;

namespace {

TEST(Mechanisms, PlaneAnalysesRefuseThemWhateverTheLastBits) {
    // A beam of two spans on one simple support turns about it.
    refusedWhateverTheLastBits("beam on one support", [](double f) {
        BeamModel m;
        m.e = 3e7 * f;
        m.length = {5 * f, 4 / f};
        m.inertia = {1e-3, 1e-3 * f};
        m.supports = {{2, SupportType::Simple, 0}};
        m.initialMa.assign(2, 0);
        m.initialMb.assign(2, 0);
        m.segments.push_back({1, 0, 5 * f, 10});
        return analyseBeam(m).status == BeamStatus::Singular;
    });
    // A portal whose columns carry no bending sways freely.
    refusedWhateverTheLastBits("portal on hinged columns", [](double f) {
        FrameModel m;
        m.e = 25e6;
        m.heights = {3 * f, 2.8 / f};
        m.spans = {5 * f, 4.5};
        m.columns.assign(3, BarSection{0.12 * f, 0});
        m.beams.assign(2, BarSection{0.1, 0.002 / f});
        return FrameSolver(m, frameBars(m)).singular();
    });
    // Bracing panels all parallel leave the floor free to slide along them.
    refusedWhateverTheLastBits("parallel panels", [](double f) {
        const FloorLoad load{10, 5, 3};
        return distributeToPanels({{0, 0, 30, 10}, {5 * f, 9, 30 * f, 30}, {7, 2 / f, 30 / f, 20}}, load).status ==
               FloorStatus::Singular;
    });
    // A slab free all round moves as a body.
    refusedWhateverTheLastBits("free slab", [](double f) {
        const SlabPolygon loose{{{0, 0}, {4 * f, 0}, {4 * f, 3 / f}, {0, 3 / f}},
                                std::vector<SideSupport>(4, SideSupport::Free)};
        return analyseGrillage(loose, generateMesh(loose, 5).mesh, {1, 1, 1}).status == GrillageStatus::Singular;
    });
    // Two columns on the same spot of a flat slab share one load in any proportion.
    refusedWhateverTheLastBits("two columns on one spot", [](double f) {
        const FlatSlab slab{600, 500, 1, 1e-3, 1e-3, {{200, 150, 30, 30}, {200 * f, 150 / f, 30, 30}, {400, 350, 30, 30}}};
        return analyseFlatSlab(slab).status == FlatStatus::Singular;
    });
}

}  // namespace
