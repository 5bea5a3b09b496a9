#pragma once
// Where the help pages and the tips file are: MORVE_DATA_DIR first, then beside
// the program (../share/morve/ajuda, the source tree's data/ajuda for a build
// tree), then the install prefix.
#include <QString>

namespace morve {

QString helpFolder();
// The full path of a help page ("Ajuda7" gives ".../Ajuda7.html"), whether it
// exists or not.
QString helpPagePath(const QString& baseName);
QString tipsFilePath();

}  // namespace morve
