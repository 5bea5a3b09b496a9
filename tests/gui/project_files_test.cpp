// Project files on the desktop: "Salvar" through the dialog with the program's
// labels and name filter, "Abrir" refusing another module's file without losing
// what was typed, and `morve FILE.mor` going straight to the module with its data;
// "Arquivos recentes": the newest eight files opened or saved, listed with access
// keys in the main menu; a listed file opens its module with its data, and a file
// that is gone is dropped with a message.
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <fstream>

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

class ProjectFilesTest : public QObject {
    Q_OBJECT

    static QLineEdit* title(MorveApp& app) {
        return qobject_cast<QLineEdit*>(app.module()->mainWindow()->control("Text1"));
    }
    static FormState& state(MorveApp& app) { return app.module()->session().state(); }

private slots:
    void savedThroughTheDialogAndOpenedBack() {
        QTemporaryDir dir;
        ProgramInModule program("Form90");
        MorveApp& app = program.app;
        title(app)->setText("Viga \"V1\", térreo");
        state(app).grid("Form90b.Grade1")[1][1] = "4.5";

        QString labels, startFolder;
        QVERIFY(QDir(dir.path()).mkdir("obra"));
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            for (auto label : {QFileDialog::LookIn, QFileDialog::FileName, QFileDialog::Accept, QFileDialog::Reject})
                labels += dialog->labelText(label) + "|";
            dialog->setDirectory(dir.path());
            auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
            // A folder typed before the name is the dialog's to follow; the name
            // keeps its blank and its extension.
            name->setText("obra/laje L2.mor");  // typed keys would open the completer's list
            QTest::keyClick(name, Qt::Key_Return);
        });
        app.module()->mainWindow()->toolbarAction("Salvar")->trigger();
        QCOMPARE(labels, QString("Salvar em:|Nome do arquivo:|&Salvar|Cancelar|"));
        const std::string saved = QDir(dir.path()).filePath("obra/laje L2.mor").toStdString();
        QVERIFY(QFileInfo::exists(QString::fromStdString(saved)));
        // The next dialog opens where the last file went.
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            startFolder = dialog->directory().absolutePath();
            dialog->reject();
        });
        app.module()->mainWindow()->toolbarAction("Salvar")->trigger();
        QCOMPARE(startFolder, QDir(dir.path()).filePath("obra"));
        // The program's filter still holds for the base name.
        QCOMPARE(savedProjectPath("/tmp/viga.v2"), QString("/tmp/viga_v2.mor"));
        QCOMPARE(savedProjectPath("/tmp/a|b*.mor"), QString("/tmp/a_b_.mor"));

        // Another module's file: the message, and the texts typed since are kept.
        const std::string other = QDir(dir.path()).filePath("outro.mor").toStdString();
        std::ofstream(other) << "\"Form34\"\r\n\"x\"\r\n";
        title(app)->setText("typed after saving");
        QVERIFY(!openProjectInto(*app.module(), other));
        QCOMPARE(program.prompter.messages().back().text,
                 std::string("O arquivo selecionado não corresponde ao módulo atual. Escolha outro arquivo."));
        QCOMPARE(title(app)->text(), QString("typed after saving"));

        state(app).grid("Form90b.Grade1")[1][1] = "";
        QVERIFY(openProjectInto(*app.module(), saved));
        QCOMPARE(title(app)->text(), QString("Viga \"V1\", térreo"));
        QCOMPARE(state(app).cell("Form90b.Grade1", 1, 1), std::string("4.5"));

        // From the command line: the module of the file, with its data.
        app.returnToMenu();
        settle();
        QVERIFY(startWithProject(app, QString::fromStdString(saved)));
        settle();
        QCOMPARE(app.module()->session().info().key, std::string("Form90"));
        QCOMPARE(title(app)->text(), QString("Viga \"V1\", térreo"));
        QVERIFY(!app.menu()->isVisible());
        app.shutdown();
        settle();
    }

    void theNewestEightOpenTheirModuleAndAFileThatIsGoneIsDropped() {
        QSettings(QStringLiteral("MORVE"), QStringLiteral("morve")).clear();
        QTemporaryDir dir;
        ProgramInModule program("Form90");
        MorveApp& app = program.app;
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
        QVERIFY(QString::fromStdString(program.prompter.messages().back().text).endsWith(
            "v5.mor não existe mais e foi retirado da lista de arquivos recentes."));
        QCOMPARE(recentFiles().size(), kRecentFiles - 1);
        QCOMPARE(shownItems(*app.menu()).size(), kRecentFiles - 1);
        app.shutdown();
        settle();
    }
};

QTEST_MAIN(ProjectFilesTest)
#include "project_files_test.moc"
