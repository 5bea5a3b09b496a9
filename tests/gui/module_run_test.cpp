// Form7 driven from the menu as a user drives it: the start dialog, the menu
// command, the boxes typed, "&CALCULAR" with the message boxes answered by a
// script, the toolbar, and the way back to the menu and out of the program.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <clocale>
#include <cmath>
#include <cstring>

#include "gui/gui_prompter.h"
#include "gui/main_window.h"
#include "gui/morve_app.h"
#include "gui_test_support.h"
#include "gui/screen_window.h"

using namespace morve;

class ModuleRunTest : public QObject {
    Q_OBJECT
    std::unique_ptr<MorveApp> app;
    std::unique_ptr<ScriptedPrompter> prompter;

    ScreenWindow* form7() { return app->module() ? app->module()->window("Form7") : nullptr; }
    QLineEdit* box(const char* name) { return qobject_cast<QLineEdit*>(form7()->control(name)); }
    void type(const char* name, const char* text) {
        QLineEdit* edit = box(name);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void answer(std::vector<std::string> answers) {
        prompter = std::make_unique<ScriptedPrompter>(std::move(answers));
        setGuiPrompter(prompter.get());
    }
    void calculate() {
        QTest::mouseClick(qobject_cast<QPushButton*>(form7()->control("Command1")), Qt::LeftButton);
        settle();
    }
    bool printEnabled() { return form7()->toolbarAction("Imprimir")->isEnabled(); }
    QWidget* focused() { return form7()->focusWidget(); }
    void openForm7() {
        app->menu()->moduleAction("Form7")->trigger();
        settle();
        QVERIFY(form7());
    }

private slots:
    void init() {
        setBeepHandler([] {});
        app = std::make_unique<MorveApp>(quickOptions());
        app->start();
        settle();
        answer({});
    }
    void cleanup() {
        setGuiPrompter(nullptr);
        app.reset();
        settle();
    }

    void startShowsMenuDefaultsAndTip() {
        QVERIFY(app->menu()->isVisible());
        QVERIFY(app->startDialog() && app->startDialog()->isVisible());
        QVERIFY(app->backdrop()->isVisible());
        QVERIFY(app->tipWindow()->isVisible());
        // "&OK" with the first selections: fck 20 and Ecs by the CEB/90,
        // 18275 x (2.8)^(1/3) = 25757.9 MPa.
        app->startDialog()->confirm();
        settle();
        QCOMPARE(app->defaults().list(1), std::string("20"));
        QCOMPARE(app->defaults().list(2), std::string("CA-60"));
        QCOMPARE(app->defaults().list(3), std::string("CA-50"));
        QVERIFY(std::fabs(app->defaults().ecs - 25757.9) < 0.1);
        QVERIFY(!app->startDialog());
        QVERIFY(!app->backdrop()->isVisible());
        QVERIFY(!app->tipWindow()->isVisible());
    }

    void splashGivesWayToTheMenuAndClosingTheMenuEnds() {
        AppOptions o = quickOptions();
        o.splash = true;
        o.splashMs = 1;
        app = std::make_unique<MorveApp>(o);
        app->start();
        QWidget* splash = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "Form0entra" && w->isVisible()) splash = w;
        QVERIFY(splash);
        QVERIFY(!app->menu()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(app->menu()->isVisible(), 1000);
        QVERIFY(app->startDialog() && app->startDialog()->isVisible());
        app->startDialog()->confirm();
        settle();
        app->menu()->close();
        settle();
        QVERIFY(app->exiting());
        QVERIFY(app->exitWindow()->isVisible() || !app->menu()->isVisible());
    }

    void form7RunWithQuestionsAndWarnings() {
        app->startDialog()->confirm();
        openForm7();
        QVERIFY(!app->menu()->isVisible());
        QVERIFY(app->backdrop()->isVisible());
        QVERIFY(form7()->isVisible());
        QCOMPARE(form7()->windowTitle(), QString(" MORVE"));
        QCOMPARE(form7()->findChild<QLabel*>("heading")->text(),
                 QString(" DIMENSIONAMENTO À FLEXÃO SIMPLES DE SEÇÕES RETANGULARES "));
        QVERIFY(!printEnabled());
        QVERIFY(!form7()->control("Command3")->isEnabled());
        // The class of aggressiveness starts unchosen.
        QVERIFY(qobject_cast<QListWidget*>(form7()->control("List6"))->selectedItems().isEmpty());

        // No class chosen: the warning, and the focus on the list.
        type("Text6", "50");
        calculate();
        QCOMPARE(prompter->messages().size(), std::size_t(1));
        QCOMPARE(prompter->messages()[0].kind, MessageKind::Warning);
        QCOMPARE(prompter->messages()[0].title, std::string("MORVE"));
        QCOMPARE(focused(), form7()->control("List6"));
        QVERIFY(!printEnabled());

        // A narrow beam asks; "No" goes on to the blank d'.
        qobject_cast<QListWidget*>(form7()->control("List6"))->item(0)->setSelected(true);
        type("Text3", "10");
        answer({"no"});
        calculate();
        QCOMPARE(prompter->messages().size(), std::size_t(2));
        QCOMPARE(prompter->messages()[0].kind, MessageKind::YesNo);
        QVERIFY(prompter->messages()[0].text.find("VOCÊ QUER CORRIGIR A LARGURA?") != std::string::npos);
        QCOMPARE(prompter->messages()[1].text, std::string("Forneça um valor positivo para d'."));
        QCOMPARE(focused(), form7()->control("Text10"));

        // "Yes" stops at once, with the focus on the width.
        answer({"yes"});
        calculate();
        QCOMPARE(prompter->messages().size(), std::size_t(1));
        QCOMPARE(focused(), form7()->control("Text3"));
        QVERIFY(!printEnabled());

        // The worked example of the help page: As = 5.13 cm2, A's = 0.
        type("Text3", "20");
        type("Text10", "4");
        answer({});
        calculate();
        QVERIFY(prompter->messages().empty());
        QCOMPARE(box("Text7")->text(), QString("5.13"));
        QCOMPARE(box("Text8")->text(), QString("0"));
        QVERIFY(printEnabled());
        QVERIFY(form7()->control("Command3")->isEnabled());

        // "Detalhamento" goes on to the detailing screen when the module declares
        // it; a window of the module stays in front in any case.
        QTest::mouseClick(qobject_cast<QPushButton*>(form7()->control("Command3")), Qt::LeftButton);
        settle();
        ScreenWindow* detailing = app->module()->window("Form8");
        QVERIFY((detailing && detailing->isVisible()) || form7()->isVisible());
        QVERIFY(!app->moduleHelp()->isVisible());
        if (detailing) detailing->close();
        settle();
        QVERIFY(form7()->isVisible());

        // A later failure blanks the results but leaves "Imprimir" enabled.
        type("Text6", "0");
        calculate();
        QCOMPARE(prompter->messages().size(), std::size_t(1));
        QCOMPARE(focused(), form7()->control("Text6"));
        QCOMPARE(box("Text7")->text(), QString(" "));
        QVERIFY(printEnabled());
    }

    void toolbarNovoAndCloseGoBackToTheMenu() {
        app->startDialog()->confirm();
        openForm7();
        form7()->toolbarAction("Ajuda")->trigger();
        settle();
        QVERIFY(app->moduleHelp()->isVisible());
        form7()->toolbarAction("Novo")->trigger();
        settle();
        QVERIFY(!app->module());
        QVERIFY(app->menu()->isVisible());
        QVERIFY(!app->backdrop()->isVisible());
        QVERIFY(!app->moduleHelp()->isVisible());
        // The window's own close does the same, without a word.
        openForm7();
        type("Text6", "77");
        form7()->close();
        settle();
        QVERIFY(!app->module());
        QVERIFY(app->menu()->isVisible());
        QVERIFY(prompter->messages().empty());
        // A new visit starts from the defaults.
        openForm7();
        QCOMPARE(box("Text6")->text(), QString(""));
    }

    void inicioBringsNewDefaults() {
        app->startDialog()->confirm();
        openForm7();
        form7()->toolbarAction("Início")->trigger();
        settle();
        QVERIFY(!app->module());
        StartDialog* aviso = app->startDialog();
        QVERIFY(aviso && aviso->isVisible());
        QVERIFY(app->menu()->isVisible());
        // The dialog opens with the first selections again.
        QCOMPARE(aviso->list(1)->currentItem()->text(), QString("20"));
        aviso->list(1)->setCurrentRow(2);  // 30
        aviso->list(3)->setCurrentRow(1);  // CA-60
        aviso->list(5)->setCurrentRow(0);  // NBR-6118
        QTest::mouseClick(aviso->findChild<QPushButton*>("Command1"), Qt::LeftButton);
        settle();
        openForm7();
        QCOMPARE(box("Text1")->text(), QString("30"));
        QCOMPARE(box("Text2")->text(), QString("600"));
        QCOMPARE(box("Text9")->text(), QString("210"));
    }

    void sairAsksAndNoLeavesTheModule() {
        const char* before = "C.utf8";
        app.reset();
        std::setlocale(LC_NUMERIC, before);
        app = std::make_unique<MorveApp>(quickOptions());
        app->start();
        settle();
        // The point for the whole run, whatever the user's setting.
        QCOMPARE(std::string(std::setlocale(LC_NUMERIC, nullptr)), std::string("C"));
        QCOMPARE(QLocale().decimalPoint(), QString("."));
        app->startDialog()->confirm();
        openForm7();
        type("Text6", "50");
        answer({"no"});
        form7()->toolbarAction("Sair")->trigger();
        settle();
        QCOMPARE(prompter->messages().size(), std::size_t(1));
        QCOMPARE(prompter->messages()[0].text, std::string("Deseja sair do programa?"));
        QCOMPARE(prompter->messages()[0].kind, MessageKind::YesNo);
        QVERIFY(form7()->isVisible());
        QCOMPARE(box("Text6")->text(), QString("50"));
        QVERIFY(!app->exiting());

        answer({"yes"});
        form7()->toolbarAction("Sair")->trigger();
        settle();
        QVERIFY(app->exiting());
        QCOMPARE(std::string(std::setlocale(LC_NUMERIC, nullptr)), std::string(before));
        QTest::qWait(5);
        settle();
        QVERIFY(!app->module());
        QVERIFY(!app->menu()->isVisible());
        std::setlocale(LC_NUMERIC, "C");
    }
};

QTEST_MAIN(ModuleRunTest)
#include "module_run_test.moc"
