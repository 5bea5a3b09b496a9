// "Arquivos recentes": the newest eight files opened or saved, listed with access
// keys in the main menu; a listed file opens its module with its data, and a file
// that is gone is dropped with a message.
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "gui/gui_prompter.h"
#include "gui/main_window.h"
#include "gui/project_dialogs.h"
#include "gui/recent_files.h"
#include "gui/screen_window.h"
#include "../reports/file_module.h"
#include "gui_test_support.h"

using namespace morve;

namespace {

const RegisterModule<FileModule> registered;

QList<QAction*> shownItems(MainWindow& menu) {
    auto* recent = menu.menuBar()->findChild<QMenu*>(QStringLiteral("recentes"));
    if (!recent) return {};
    emit recent->aboutToShow();
    return recent->actions();
}

}  // namespace

class RecentFilesTest : public QObject {
    Q_OBJECT

private slots:
    void theNewestEightOpenTheirModuleAndAFileThatIsGoneIsDropped() {
        QSettings(QStringLiteral("MORVE"), QStringLiteral("morve")).clear();
        ScriptedPrompter prompter;
        setGuiPrompter(&prompter);
        QTemporaryDir dir;
        MorveApp app(quickOptions());
        app.start();
        app.openModule("Form90");
        settle();
        FormState& s = app.module()->session().state();
        for (int k = 1; k <= kRecentFiles + 1; ++k) {
            s.setText("Form90.Text1", "viga " + std::to_string(k));
            app.module()->refreshWindows();
            QVERIFY(saveProjectFrom(*app.module(), QDir(dir.path()).filePath(QStringLiteral("v%1.mor").arg(k)).toStdString()));
        }
        // Saved again: once in the list, on top.
        QVERIFY(saveProjectFrom(*app.module(), QDir(dir.path()).filePath("v3.mor").toStdString()));
        const QStringList files = recentFiles();
        QCOMPARE(files.size(), kRecentFiles);
        QVERIFY(files[0].endsWith("v3.mor") && files[1].endsWith("v9.mor") && files.last().endsWith("v2.mor"));

        app.returnToMenu();
        settle();
        const QList<QAction*> items = shownItems(*app.menu());
        QCOMPARE(items.size(), kRecentFiles);
        QVERIFY(items[0]->text().startsWith("&1  v3.mor  (") && items[7]->text().startsWith("&8  v2.mor"));
        items[1]->trigger();
        settle();
        QVERIFY(app.module());
        QCOMPARE(app.module()->session().state().text("Form90.Text1"), std::string("viga 9"));

        app.returnToMenu();
        settle();
        QVERIFY(QFile::remove(QDir(dir.path()).filePath("v5.mor")));
        shownItems(*app.menu())[5]->trigger();
        settle();
        QVERIFY(!app.module());
        QVERIFY(QString::fromStdString(prompter.messages().back().text).endsWith(
            "v5.mor não existe mais e foi retirado da lista de arquivos recentes."));
        QCOMPARE(recentFiles().size(), kRecentFiles - 1);
        QCOMPARE(shownItems(*app.menu()).size(), kRecentFiles - 1);
        app.shutdown();
        settle();
        setGuiPrompter(nullptr);
    }
};

QTEST_MAIN(RecentFilesTest)
#include "recent_files_test.moc"
