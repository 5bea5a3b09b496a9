#pragma once
// Where the help pages and the tips file are. In order: an installed program's own
// share/morve/ajuda (beside its bin folder), the source tree's data/ajuda for a
// program run from its build tree, the folder named by MORVE_DATA_DIR, and last
// the install prefix the program was configured for.
#include <QString>

namespace morve {

// The places helpFolder() looks at, so that the choice can be made for any
// program location and environment.
struct DataPlaces {
    QString programDir;   // the folder of the running program
    QString buildDir;     // the build tree it was made in
    QString sourceData;   // the source tree's data folder
    QString environment;  // MORVE_DATA_DIR, empty when unset
    QString installData;  // PREFIX/share/morve
};

// The help folder for these places: the first that exists, or the first one
// looked at when none does (so that a missing page names where it was expected).
QString chooseHelpFolder(const DataPlaces& places);

QString helpFolder();
// The full path of a help page ("Ajuda7" gives ".../Ajuda7.html"), whether it
// exists or not.
QString helpPagePath(const QString& baseName);
QString tipsFilePath();

}  // namespace morve
