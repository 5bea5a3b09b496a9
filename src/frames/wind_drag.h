#pragma once
// The wind on a rectangular building: the pressure at a height from the terrain
// and the building's class, and the drag coefficients read from the two charts
// of the wind code (low and high turbulence), held as curve fits.
#include <optional>
#include <string>

namespace morve {

// S2 = b Fr (z/10)^p; Fr is the gust factor of category II for the class.
struct RoughnessParameters {
    double b = 0;
    double p = 0;
    double fr = 0;
};

// Category "I" ... "V" and class "A", "B", "C" as the lists show them; nullopt
// for anything else.
std::optional<RoughnessParameters> roughnessParameters(const std::string& category, const std::string& buildingClass);

// q = 0.613 Vk^2 in N/m2 at height z, Vk = Vo S1 S2 S3. The height enters last:
// (Vo S1 S3 b Fr)^2 is formed first and (z/10)^(2p) multiplies it.
double windPressure(double vo, double s1, double s3, const RoughnessParameters& r, double z);

enum class DragStatus { Read, FacesOutside, HeightOutside };

struct DragReading {
    DragStatus status = DragStatus::Read;
    double ca = 0;
};

// Ca of a face l1 wide across the wind, the building being l2 deep along the wind
// and h high. The low turbulence chart covers l1/l2 in [0.25, 4] and h/l1 in
// [0.5, 40]; the high turbulence one the same l1/l2 and h/l1 in [0.5, 6].
DragReading DragLowTurbulence(double l1OverL2, double hOverL1);
DragReading DragHighTurbulence(double l1OverL2, double hOverL1);

}  // namespace morve
