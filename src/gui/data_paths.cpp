#include "gui/data_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace morve {

QString helpFolder() {
    QStringList candidates;
    const QString env = qEnvironmentVariable("MORVE_DATA_DIR");
    if (!env.isEmpty()) candidates << env + "/ajuda";
    const QString bin = QCoreApplication::applicationDirPath();
    candidates << bin + "/../share/morve/ajuda";
#ifdef MORVE_SOURCE_DATA_DIR
    candidates << QStringLiteral(MORVE_SOURCE_DATA_DIR) + "/ajuda";
#endif
#ifdef MORVE_INSTALL_DATA_DIR
    candidates << QStringLiteral(MORVE_INSTALL_DATA_DIR) + "/ajuda";
#endif
    for (const QString& c : candidates)
        if (QFileInfo(c).isDir()) return QDir::cleanPath(c);
    return candidates.isEmpty() ? QString() : QDir::cleanPath(candidates.front());
}

QString helpPagePath(const QString& baseName) { return helpFolder() + "/" + baseName + ".html"; }

QString tipsFilePath() { return helpFolder() + "/Tipofday.txt"; }

}  // namespace morve
