// The desktop as a user meets it: Portuguese buttons, windows wholly on the
// screen, Esc in the report panel, the name of a saved report, windows that use
// their room, and the decimal point of the help.
// The start dialog, the screen synced before a box, the phrase on one row and the
// report lines inside the page are checked in the runs of the modules and reports.
#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "gui/qt_texts.h"
#include "gui/report_panel.h"
#include "gui/window_places.h"
#include "module_user.h"

using namespace morve;

namespace {

// The texts of the buttons of the box that comes up, and the one pressed by a key.
struct BoxSeen {
    QStringList buttons;
    bool seen = false;
};
void answerByKey(BoxSeen& seen, Qt::Key key) {
    QTimer::singleShot(0, [&seen, key] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        seen.seen = true;
        for (QAbstractButton* b : box->buttons()) seen.buttons << b->text().remove('&');
        QTest::keyClick(box, key);
    });
}

bool onScreen(const QWidget* w) { return screenArea(w).contains(framedGeometry(w)); }

}  // namespace

class DesktopTest : public QObject {
    Q_OBJECT

private slots:
    void messageBoxesSpeakPortugueseAndKeepNoAsDefault() {
        QtPrompter boxes;
        BoxSeen yesNo, okCancel, warning, escaped;
        answerByKey(yesNo, Qt::Key_Return);
        QVERIFY(!boxes.askYesNo("Deseja sair do programa?"));  // Enter takes the default, No
        QCOMPARE(QSet<QString>(yesNo.buttons.begin(), yesNo.buttons.end()), QSet<QString>({"Sim", "Não"}));
        answerByKey(escaped, Qt::Key_Escape);
        QVERIFY(!boxes.askYesNo("VOCÊ QUER MUDAR?"));
        answerByKey(okCancel, Qt::Key_Return);
        QVERIFY(boxes.askOkCancel("?"));
        QCOMPARE(QSet<QString>(okCancel.buttons.begin(), okCancel.buttons.end()), QSet<QString>({"OK", "Cancelar"}));
        answerByKey(warning, Qt::Key_Return);
        boxes.warn("Forneça um valor não nulo para Mk.");
        QCOMPARE(warning.buttons, QStringList({"OK"}));
        QVERIFY(escaped.seen);
        // Qt's own texts (file dialog, the boxes' context menu) from its pt_BR file.
        if (!installQtTranslations(*QCoreApplication::instance())) QSKIP("qt6-translations-l10n missing");
        QCOMPARE(QCoreApplication::translate("QLineEdit", "&Undo"), QString("&Desfazer"));
    }

    void everyPlacementLeavesTheWindowWhollyOnTheScreen() {
        const QRect area = screenArea(nullptr);
        const QSize sizes[] = {{300, 200}, {area.width() + 300, 200}, {400, area.height() + 100}, area.size()};
        for (const QSize& size : sizes) {
            for (int how = 0; how < 3; ++how) {
                QWidget w, other;
                w.resize(size);
                other.resize(500, 400);
                centreOnScreen(&other);
                if (how == 0) centreOnScreen(&w);
                if (how == 1) placeTopRight(&w);
                if (how == 2) placeBeside(&w, &other);
                QVERIFY2(onScreen(&w), qPrintable(QString("%1x%2 / %3").arg(size.width()).arg(size.height()).arg(how)));
            }
        }
        // The preview takes the screen, frame included, and Esc walks back out of it.
        ReportOnly report([](ReportWriter& out) { out.write("Linha"); });
        FormState state;
        QWidget caller;
        auto* panel = new ReportPanel("Form41", report, state, &caller);
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel));
        panel->preview();
        QVERIFY(onScreen(panel));
        QTest::keyClick(panel, Qt::Key_Escape);
        QVERIFY(!panel->previewing());
        QTest::keyClick(panel, Qt::Key_Escape);
        QVERIFY(caller.isEnabled());
    }

    void pdfNameComesFromTheTitles() {
        const struct {
            const char *example, *title, *caption, *name;
        } cases[] = {
            {"Viga V1/2", "Dimensionamento", "x", "Viga V1 - 2.pdf"},
            {"  ", "Flexo-Compressão Normal: Seção retangular maciça", "x",
             "Flexo-Compressão Normal - Seção retangular maciça.pdf"},
            {"", "", "Helicoidais", "Helicoidais.pdf"},
            {"../..", "", "", "relatorio.pdf"},
        };
        for (const auto& c : cases) QCOMPARE(suggestedPdfName(c.example, c.title, c.caption), QString(c.name));
    }

    void picturesTakeTheRoomOfALargerWindow() {
        ModuleUser user;
        QVERIFY(user.open("Form7"));
        ScreenWindow* form7 = user.screen("Form7");
        const int usual = form7->control("Picture1")->height();
        form7->resize(1900, 1000);
        settle();
        QVERIFY(form7->control("Picture1")->height() > usual + 250);
        // Nothing but margins below the last frame.
        QWidget* answer = form7->control("Frame8");
        QVERIFY(form7->height() - (answer->mapTo(form7, QPoint(0, 0)).y() + answer->height()) < 40);
        // A result screen whose page scrolls on a small screen: maximised, its
        // diagrams take the room.
        for (const ScreenDecl& screen : ModuleRegistry::find("Form34")->screens()) {
            if (screen.name != "Form34e") continue;
            ScreenWindow diagrams(screen);
            diagrams.fitToScreen();
            diagrams.show();
            settle();
            const int small = diagrams.control("Picture1")->width();
            diagrams.resize(1900, 1400);
            settle();
            QVERIFY(diagrams.control("Picture1")->width() > small + 500);
            QVERIFY(diagrams.control("Picture2")->height() > 230);
        }
    }

    // A long calculation shows its status button while it runs and hides it after.
    // The first check of an empty screen stops each one with a box: the box comes
    // up in the middle of the run, which is when the notice must stand.
    void statusButtonStandsWhileTheCalculationRuns() {
        const char* runs[][3] = {{"Form16", "Command4", "Command11"}, {"Form24f", "Command7", "Command13"},
                                 {"Form40", "Command3", "Command13"}, {"Form33", "Command3", "Command13"}};
        for (const auto& [module, command, notice] : runs) {
            ModuleUser user;
            QVERIFY2(user.open(module), module);
            QWidget* status = user.control(module, notice);
            QVERIFY2(status && !status->isVisible(), module);
            int boxes = 0, shown = 0;
            user.prompter().onBox = [&] { ++boxes, shown += status->isVisible(); };
            user.click(module, command);
            QVERIFY2(boxes > 0 && shown == boxes && !status->isVisible(), module);
        }
    }

    // Enter on a focused button presses it, as Space does; Esc leaves a result
    // screen by its way back, whatever that is called.
    void keysPressTheButtonsUsersExpect() {
        ModuleUser user;
        QVERIFY(user.open("Form34"));
        QWidget* beam = user.control("Form34", "Command8");
        user.type("Form34", "Text3", "2");
        user.type("Form34", "Text4", "3");
        beam->setFocus();
        QTest::keyClick(beam, Qt::Key_Return);
        settle();
        QVERIFY(user.shown("Form34b"));
        std::vector<std::string> pressed;
        for (const ScreenDecl& screen : ModuleRegistry::find("Form33")->screens()) {
            if (screen.name != "Form33e") continue;
            ScreenWindow results(screen);
            results.onCommand = [&](const std::string& c) { pressed.push_back(c); };
            results.show();
            results.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&results));
            QTest::keyClick(&results, Qt::Key_Escape);
        }
        QCOMPARE(pressed, std::vector<std::string>{"Command4"});
    }

    void helpPagesWriteDecimalsWithAPoint() {
        const QDir folder(qEnvironmentVariable("MORVE_DATA_DIR") + "/ajuda");
        const QStringList files = folder.entryList({"*.html", "*.txt"});
        QVERIFY(files.size() > 10);
        QTextBrowser reader;
        for (const QString& name : files) {
            QFile f(folder.filePath(name));
            QVERIFY(f.open(QIODevice::ReadOnly));
            reader.setHtml(QString::fromUtf8(f.readAll()));
            const auto comma = QRegularExpression("\\d,\\d").match(reader.toPlainText());
            QVERIFY2(!comma.hasMatch(), qPrintable(name + ": " + comma.captured()));
        }
    }
};

QTEST_MAIN(DesktopTest)
#include "desktop_test.moc"
