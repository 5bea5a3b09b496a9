#pragma once
// Material numbers and code limits shared by every design module.
#include <optional>
#include <string>
#include <vector>

namespace morve {

// The rectangular stress block of a concrete of fck MPa.
struct StressBlockValues {
    double lambda;  // depth factor
    double alphac;  // stress factor
    double ecu;     // ultimate strain, per mille
};
StressBlockValues StressBlock(double fck);

// The block of the column and tie solvers: the beam block with the strains that
// place the pivots of the strain diagram (per mille) and kappa = 1 - eps_c2/eps_cu,
// the relative height that stays at eps_c2 when the whole section is compressed.
struct StressBlockParametersValues {
    double alphac, lambda, epsC2, epsCu, kappa;
};
StressBlockParametersValues StressBlockParameters(double fck);

enum class DuctilityCriterion { CEB90, NBR6118, Balanced };
// The text of the "Ductilidade" list; nothing for an unknown text.
std::optional<DuctilityCriterion> ductilityCriterion(const std::string& listText);
const std::vector<std::string>& ductilityItems();      // "CEB/90", "NBR-6118", "Balanceada"
const std::vector<std::string>& redistributionItems();  // "1.00" ... "0.75"

// xlim/d. fck and fyk in MPa, Es in GPa. The balanced limit takes the strain 3.5
// per mille whatever the concrete, and no Beta.
double DuctilityLimit(DuctilityCriterion criterion, double beta, double fck, double fyk,
                      double gamas, double es);

// fctm (MPa), the mean tensile strength of a concrete of fck MPa.
double meanTensileStrength(double fck);

// rhomin, with fck and fyd in MPa; never below 0.0015.
double MinimumSteelRatio(double fck, double fyd);

// Steel stress of a strain (any consistent units): elastic below the yield strain,
// fyd at and beyond it, with the sign of the strain.
double BilinearStress(double es, double strain, double fyd);

struct AggressivenessLimits {
    int cls;
    double minFck;      // MPa
    double slabCover;   // cm
    double beamCover;   // cm
};
// Class 1 to 4 from the list's text; nothing when none is chosen.
std::optional<AggressivenessLimits> AggressivenessClass(const std::string& listText);
const std::vector<std::string>& aggressivenessItems();  // "1" ... "4"

// Fixed lists of the detailing and stirrup modules, read by numeric value.
namespace BarCatalogue {
const std::vector<std::string>& tensionBars();      // mm
const std::vector<std::string>& compressionBars();  // mm
const std::vector<std::string>& stirrups();         // mm
const std::vector<std::string>& slabBars();         // mm
const std::vector<std::string>& covers();           // cm
const std::vector<std::string>& aggregates();       // mm
const std::vector<std::string>& vibratorSpaces();   // cm
extern const char* const kBarListTip;
// Area in cm2 of a bar of the diameter in mm.
double barArea(double diameterMm);
}  // namespace BarCatalogue

}  // namespace morve
