#include "gui/locale_state.h"

#include <clocale>

namespace morve {

void ProcessLocaleState::force() {
    if (forced_) return;
    const char* current = std::setlocale(LC_NUMERIC, nullptr);
    savedNumeric_ = current ? current : "C";
    savedQt_ = QLocale();
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    forced_ = true;
}

void ProcessLocaleState::restore() {
    if (!forced_) return;
    std::setlocale(LC_NUMERIC, savedNumeric_.c_str());
    QLocale::setDefault(savedQt_);
    forced_ = false;
}

}  // namespace morve
