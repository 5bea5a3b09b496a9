#include "gui/qt_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace morve {

bool installQtTranslations(QCoreApplication& app) {
    auto* translator = new QTranslator(&app);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    // qtbase holds the dialogs and widgets; the "qt" meta file pulls in the others.
    bool loaded = false;
    for (const char* file : {"qtbase_pt_BR", "qt_pt_BR"}) {
        if (translator->load(QString::fromLatin1(file), folder)) {
            loaded = app.installTranslator(translator);
            break;
        }
    }
    if (!loaded) delete translator;
    return loaded;
}

}  // namespace morve
