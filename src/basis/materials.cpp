#include "basis/materials.h"

#include <algorithm>
#include <cmath>

#include "numeric/elementary.h"

namespace morve {

StressBlockValues StressBlock(double fck) {
    if (fck <= 50) return {0.8, 0.85, 3.5};
    return {0.8 - (fck - 50) / 400, 0.85 * (1 - (fck - 50) / 200),
            2.6 + 35 * portable::pow((90 - fck) / 100, 4)};
}

StressBlockParametersValues StressBlockParameters(double fck) {
    StressBlockValues b = StressBlock(fck);
    double epsC2 = fck <= 50 ? 2.0 : 2 + 0.085 * portable::pow(fck - 50, 0.53);
    return {b.alphac, b.lambda, epsC2, b.ecu, 1 - epsC2 / b.ecu};
}

const std::vector<std::string>& ductilityItems() {
    static const std::vector<std::string> items{"CEB/90", "NBR-6118", "Balanceada"};
    return items;
}

const std::vector<std::string>& redistributionItems() {
    static const std::vector<std::string> items{"1.00", "0.95", "0.90", "0.85", "0.80", "0.75"};
    return items;
}

std::optional<DuctilityCriterion> ductilityCriterion(const std::string& listText) {
    if (listText == "CEB/90") return DuctilityCriterion::CEB90;
    if (listText == "NBR-6118") return DuctilityCriterion::NBR6118;
    if (listText == "Balanceada") return DuctilityCriterion::Balanced;
    return std::nullopt;
}

double DuctilityLimit(DuctilityCriterion criterion, double beta, double fck, double fyk,
                      double gamas, double es) {
    switch (criterion) {
        case DuctilityCriterion::CEB90: return fck <= 35 ? 0.8 * beta - 0.35 : 0.8 * beta - 0.45;
        case DuctilityCriterion::NBR6118: return fck <= 50 ? 0.8 * beta - 0.35 : 0.8 * beta - 0.45;
        case DuctilityCriterion::Balanced: {
            double eyd = (0.1 * fyk / gamas) / (es * 100);
            return 0.0035 / (eyd + 0.0035);
        }
    }
    return 0;
}

double meanTensileStrength(double fck) {
    return fck <= 50 ? 0.3 * portable::pow(fck, 2.0 / 3.0) : 2.12 * portable::log(1 + 0.11 * fck);
}

double MinimumSteelRatio(double fck, double fyd) {
    double rho = fck <= 50 ? 0.078 * portable::pow(fck, 2.0 / 3.0) / fyd
                           : 0.5512 * portable::log(1 + 0.11 * fck) / fyd;
    return rho < 0.0015 ? 0.0015 : rho;
}

double BilinearStress(double es, double strain, double fyd) {
    double a = std::fabs(strain);
    double stress = a < fyd / es ? a * es : fyd;
    return strain < 0 ? -stress : stress;
}

std::optional<AggressivenessLimits> AggressivenessClass(const std::string& listText) {
    static const AggressivenessLimits table[] = {
        {1, 20, 2.0, 2.5}, {2, 25, 2.5, 3.0}, {3, 30, 3.5, 4.0}, {4, 40, 4.5, 5.0}};
    for (const auto& row : table)
        if (listText == std::to_string(row.cls)) return row;
    return std::nullopt;
}

const std::vector<std::string>& aggressivenessItems() {
    static const std::vector<std::string> items{"1", "2", "3", "4"};
    return items;
}

namespace BarCatalogue {

const std::vector<std::string>& tensionBars() {
    static const std::vector<std::string> items{"6.3", "8.0", "10", "12.5", "16", "20", "25"};
    return items;
}
const std::vector<std::string>& compressionBars() {
    static const std::vector<std::string> items{"5.0", "6.3", "8.0", "10", "12.5", "16", "20"};
    return items;
}
const std::vector<std::string>& stirrups() {
    static const std::vector<std::string> items{"5.0", "6.0", "6.3", "7.0", "8.0", "9.5"};
    return items;
}
const std::vector<std::string>& slabBars() {
    static const std::vector<std::string> items{"5.0", "6.0", "6.3", "7.0",
                                                "8.0", "9.5", "10.0", "12.5"};
    return items;
}
const std::vector<std::string>& covers() {
    static const std::vector<std::string> items{"2.5", "3", "4", "5"};
    return items;
}
const std::vector<std::string>& aggregates() {
    static const std::vector<std::string> items{"12.5", "19", "25", "38"};
    return items;
}
const std::vector<std::string>& vibratorSpaces() {
    static const std::vector<std::string> items{"3", "4", "5", "6", "7", "8"};
    return items;
}

const char* const kBarListTip = "Consulte a Ajuda para ver os diâmetros comerciais";

double barArea(double diameterMm) {
    const double pi = 3.141592654;
    double d = diameterMm / 10;
    return pi * d * d / 4;
}

}  // namespace BarCatalogue

}  // namespace morve
