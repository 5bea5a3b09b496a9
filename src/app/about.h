#pragma once
// What the program says of itself: its version, as the build's project version
// gives it, and the terms it is distributed on. The desktop's windows and both
// programs' --version print these same texts.
#include <string>

namespace morve {

inline constexpr const char* kVersionCaption = "Versão " MORVE_VERSION;
inline constexpr const char* kLicenceLine =
    "Licença GPL-3.0-or-later: GNU GPL versão 3 ou posterior <https://www.gnu.org/licenses/gpl-3.0.html>";
inline constexpr const char* kNoWarrantyLine =
    "Este programa é software livre: você pode redistribuí-lo e modificá-lo nesses termos. "
    "Não há garantia, na extensão permitida pela lei.";

// The "Sobre" box: its heading and what the program is for, above the version and
// the terms.
inline constexpr const char* kAboutHeading = "MORVE - 2014";
inline constexpr const char* kAboutPurpose =
    "Ferramenta destinada à elaboração de projeto de estruturas de concreto armado, com cálculo passo a "
    "passo. Ideal para o ensino e para o projetista iniciante.";

// The lines of `program --version`: name and version, licence, no warranty.
inline std::string versionText(const std::string& program) {
    return program + " (MORVE) " MORVE_VERSION "\n" + kLicenceLine + "\n" + kNoWarrantyLine + "\n";
}

}  // namespace morve
