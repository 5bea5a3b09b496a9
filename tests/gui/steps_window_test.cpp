// "Passo a passo" on the desktop: the toolbar button of a module window opens the
// steps of the latest CALCULAR (or says there is none yet), and the page saves as
// one HTML file and as a PDF. With MORVE_SHOTS set, the windows of the rectangular
// beam and of the column design are kept as pictures there.
#include <QScrollBar>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QToolBar>

#include "gui/module_host.h"
#include "gui/steps_window.h"
#include "module_user.h"

using namespace morve;

class StepsWindowTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    StepsWindow* openSteps(const std::string& module) {
        QAction* a = user->screen(module)->findChild<QAction*>(QStringLiteral("PassoAPasso"));
        if (!a) return nullptr;
        a->trigger();
        settle();
        StepsWindow* w = user->screen(module)->findChild<StepsWindow*>();
        return w && w->isVisible() ? w : nullptr;
    }
    static void keepPicture(QWidget* w, const char* name) {
        const QString folder = qEnvironmentVariable("MORVE_SHOTS");
        if (folder.isEmpty()) return;
        w->resize(820, 900);
        settle();
        QVERIFY(w->grab().save(folder + "/" + name));
    }
    static QString shown(StepsWindow* w) { return w->browser()->toPlainText(); }
private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void beamStepsFollowTheLastCalculationAndSave() {
        QVERIFY(user->open("Form7"));
        StepsWindow* w = openSteps("Form7");
        QVERIFY(w);
        QVERIFY(shown(w).contains(QStringLiteral("Nenhum cálculo realizado")));
        w->close();
        // The access key opens it as the button does.
        QApplication::setActiveWindow(user->screen("Form7"));
        QVERIFY(QTest::qWaitForWindowActive(user->screen("Form7")));
        QTest::keyClick(user->screen("Form7"), Qt::Key_P, Qt::AltModifier);
        settle();
        QVERIFY(w->isVisible());
        w->close();

        user->type("Form7", "Text10", "4");
        user->type("Form7", "Text6", "100");
        user->pick("Form7", "List6", "1");
        user->click("Form7", "Command1");
        QCOMPARE(user->text("Form7", "Text7"), QStringLiteral("10.62"));
        QVERIFY((w = openSteps("Form7")));
        const QString text = shown(w);
        QVERIFY(text.contains(QStringLiteral("Momento reduzido")));
        QVERIFY(text.contains(QStringLiteral("= 10.62 cm²")));
        QVERIFY(!text.contains(QStringLiteral("nan")) && !text.contains(QStringLiteral("inf")));
        keepPicture(w, "form7-passo-a-passo.png");
        if (!qEnvironmentVariable("MORVE_SHOTS").isEmpty())
            QVERIFY(user->screen("Form7")->grab().save(qEnvironmentVariable("MORVE_SHOTS") + "/form7-janela.png"));

        QTemporaryDir dir;
        const QString html = dir.filePath(QStringLiteral("passos.html")), pdf = dir.filePath(QStringLiteral("passos.pdf"));
        QCOMPARE(QString::fromStdString(w->saveHtml(html)), QString());
        QCOMPARE(QString::fromStdString(w->savePdf(pdf)), QString());
        QFile h(html), p(pdf);
        QVERIFY(h.open(QIODevice::ReadOnly) && p.open(QIODevice::ReadOnly));
        QCOMPARE(h.readAll().toStdString(), w->html());
        QVERIFY(p.read(5) == "%PDF-");

        // A run stopped by a check shows the steps up to it, with its message, in
        // the window left open.
        user->type("Form7", "Text6", "400");
        user->click("Form7", "Command1");
        QVERIFY(w->isVisible());
        QVERIFY(shown(w).contains(QStringLiteral("O cálculo parou")));
        w->browser()->verticalScrollBar()->setValue(w->browser()->verticalScrollBar()->maximum());
        keepPicture(w, "form7-parou.png");
    }

    void columnStepsShowTheSearchBracketAndRoot() {
        QVERIFY(user->open("Form12"));
        user->fill("Form12", {{"Text1", "25"}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"}, {"Text7", "2"}, {"Text8", "1000"}, {"Text9", "120"}});
        GridRows& rows = user->app().module()->session().state().grid("Form12b.Grade1");
        rows.resize(1);
        rows.push_back({"1", "3"});
        rows.push_back({"2", "3"});
        user->click("Form12", "Command4");
        const QString as = user->text("Form12", "Text10");
        QVERIFY(as.toDouble() > 17);
        StepsWindow* w = openSteps("Form12");
        QVERIFY(w);
        const QString text = shown(w);
        QVERIFY(text.contains(QStringLiteral("Intervalo inicial")));
        QVERIFY(text.contains(QStringLiteral("= ") + as + QStringLiteral(" cm²")));
        keepPicture(w, "form12-passo-a-passo.png");
        w->browser()->verticalScrollBar()->setValue(w->browser()->verticalScrollBar()->maximum() * 2 / 3);
        keepPicture(w, "form12-linha-neutra.png");
    }
};

QTEST_MAIN(StepsWindowTest)
#include "steps_window_test.moc"
