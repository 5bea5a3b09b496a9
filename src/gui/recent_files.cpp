#include "gui/recent_files.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

#include "gui/gui_prompter.h"
#include "gui/project_dialogs.h"

namespace morve {

namespace {

const QString kKey = QStringLiteral("arquivosRecentes");


void store(const QStringList& files) {
    QSettings s(QStringLiteral("MORVE"), QStringLiteral("morve"));
    s.setValue(kKey, files);
}

// One spelling per file, so that a file opened by two paths is listed once.
QString canonical(const QString& path) {
    const QFileInfo info(path);
    const QString real = info.canonicalFilePath();
    return QDir::toNativeSeparators(real.isEmpty() ? info.absoluteFilePath() : real);
}

}  // namespace

QStringList recentFiles() {
    QSettings s(QStringLiteral("MORVE"), QStringLiteral("morve"));
    QStringList files = s.value(kKey).toStringList();
    files.removeAll(QString());
    return files.mid(0, kRecentFiles);
}

void noteRecentFile(const QString& path) {
    const QString file = canonical(path);
    QStringList files = recentFiles();
    files.removeAll(file);
    files.prepend(file);
    store(files.mid(0, kRecentFiles));
}

void dropRecentFile(const QString& path) {
    QStringList files = recentFiles();
    files.removeAll(path);
    files.removeAll(canonical(path));
    store(files);
}

void fillRecentMenu(QMenu* menu, const std::function<void(const QString&)>& open) {
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, open] {
        menu->clear();
        const QStringList files = recentFiles();
        if (files.isEmpty()) menu->addAction(QStringLiteral("(nenhum arquivo)"))->setEnabled(false);
        for (int i = 0; i < files.size(); ++i) {
            // The name first, so that eight files of one folder read apart; "&&"
            // keeps an ampersand of a name from taking the access key.
            QString name = QFileInfo(files[i]).fileName(), folder = QFileInfo(files[i]).absolutePath();
            name.replace(QLatin1Char('&'), QStringLiteral("&&"));
            folder.replace(QLatin1Char('&'), QStringLiteral("&&"));
            QAction* a = menu->addAction(QStringLiteral("&%1  %2  (%3)").arg(i + 1).arg(name, folder));
            a->setObjectName(QStringLiteral("Recente%1").arg(i + 1));
            const QString file = files[i];
            QObject::connect(a, &QAction::triggered, menu, [open, file] { open(file); });
        }
    });
}

void openRecentFile(MorveApp& app, const QString& path) {
    if (!QFileInfo(path).isFile()) {
        dropRecentFile(path);
        guiPrompter().warn("O arquivo " + path.toStdString() +
                           " não existe mais e foi retirado da lista de arquivos recentes.");
        return;
    }
    startWithProject(app, path);
}

}  // namespace morve
