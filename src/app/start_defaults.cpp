#include "app/start_defaults.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "numeric/elementary.h"

namespace morve {

double computeEcs(double fck, std::string_view code) {
    if (code == "CEB/90") return 18275.0 * portable::cbrt((fck + 8.0) / 10.0);
    double alpha = std::min(1.0, 0.8 + 0.2 * fck / 80.0);
    if (fck <= 50) return alpha * 5600.0 * std::sqrt(fck);
    return alpha * 21500.0 * portable::cbrt((fck + 12.5) / 10.0);
}

const std::vector<std::string>& StartDefaults::fckItems() {
    static const std::vector<std::string> items{"20", "25", "30", "35", "40", "45",
                                                "50", "55", "60", "70", "80", "90"};
    return items;
}

const std::vector<std::string>& StartDefaults::steelItems() {
    static const std::vector<std::string> items{"CA-50", "CA-60"};
    return items;
}

const std::vector<std::string>& StartDefaults::codeItems() {
    static const std::vector<std::string> items{"NBR-6118", "CEB/90"};
    return items;
}

const std::vector<std::string>& StartDefaults::captions() {
    static const std::vector<std::string> items{
        "fck (MPa)=", "Estribos e armaduras de lajes:", "Demais armaduras:",
        "Módulo de deformação longitudinal:", "Módulo de elasticidade:"};
    return items;
}

namespace {

const std::vector<std::string>& itemsOf(int n) {
    if (n == 1) return StartDefaults::fckItems();
    if (n == 2 || n == 3) return StartDefaults::steelItems();
    return StartDefaults::codeItems();
}

}  // namespace

std::string StartDefaults::list(int n) const {
    const int indices[] = {fck, stirrupSteel, barSteel, ecsCode, esCode};
    if (n < 1 || n > 5) return "";
    const auto& items = itemsOf(n);
    int i = indices[n - 1];
    if (i < 0 || i >= static_cast<int>(items.size())) return "";
    return items[static_cast<std::size_t>(i)];
}

std::string StartDefaults::ecsText() const { return formatPlain(std::trunc(ecs)); }

void StartDefaults::confirm() { ecs = computeEcs(readNumber(list(1)), list(4)); }

bool StartDefaults::select(int n, const std::string& itemText) {
    if (n < 1 || n > 5) return false;
    const auto& items = itemsOf(n);
    auto it = std::find(items.begin(), items.end(), itemText);
    if (it == items.end()) return false;
    int index = static_cast<int>(it - items.begin());
    int* fields[] = {&fck, &stirrupSteel, &barSteel, &ecsCode, &esCode};
    *fields[n - 1] = index;
    confirm();
    return true;
}

}  // namespace morve
