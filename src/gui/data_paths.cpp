#include "gui/data_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace morve {

namespace {

bool sameFolder(const QString& a, const QString& b) {
    if (a.isEmpty() || b.isEmpty()) return false;
    const QString ca = QFileInfo(a).canonicalFilePath(), cb = QFileInfo(b).canonicalFilePath();
    return !ca.isEmpty() && ca == cb;
}

}  // namespace

QString chooseHelpFolder(const DataPlaces& places) {
    QStringList candidates;
    candidates << places.programDir + "/../share/morve/ajuda";
    // The source tree only serves the program built from it: an installed or
    // copied program must not pick up the pages of whatever checkout it was made in.
    if (sameFolder(places.programDir, places.buildDir) && !places.sourceData.isEmpty())
        candidates << places.sourceData + "/ajuda";
    if (!places.environment.isEmpty()) candidates << places.environment + "/ajuda";
    if (!places.installData.isEmpty()) candidates << places.installData + "/ajuda";
    for (const QString& c : candidates)
        if (QFileInfo(c).isDir()) return QDir::cleanPath(c);
    return QDir::cleanPath(candidates.front());
}

QString helpFolder() {
    DataPlaces places;
    places.programDir = QCoreApplication::applicationDirPath();
#ifdef MORVE_BUILD_DIR
    places.buildDir = QStringLiteral(MORVE_BUILD_DIR);
#endif
#ifdef MORVE_SOURCE_DATA_DIR
    places.sourceData = QStringLiteral(MORVE_SOURCE_DATA_DIR);
#endif
    places.environment = qEnvironmentVariable("MORVE_DATA_DIR");
#ifdef MORVE_INSTALL_DATA_DIR
    places.installData = QStringLiteral(MORVE_INSTALL_DATA_DIR);
#endif
    return chooseHelpFolder(places);
}

QString helpPagePath(const QString& baseName) { return helpFolder() + "/" + baseName + ".html"; }

QString tipsFilePath() { return helpFolder() + "/Tipofday.txt"; }

}  // namespace morve
