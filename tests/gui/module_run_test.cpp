// Form7 driven from the menu as a user drives it: the start dialog, the menu
// command, the boxes typed, "&CALCULAR" with the message boxes answered by a
// script, the toolbar, and the way back to the menu and out of the program.
#include <QLabel>
#include <QPushButton>

#include <clocale>

#include "gui/window_places.h"
#include "module_user.h"

using namespace morve;

class ModuleRunTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    MorveApp& app() { return user->app(); }
    ScreenWindow* form7() { return user->screen("Form7"); }
    void toolbar(const char* action) {
        form7()->toolbarAction(action)->trigger();
        settle();
    }
    std::size_t told() { return user->told().messages().size(); }
    const Message& message(std::size_t i) { return user->told().messages()[i]; }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    void startShowsMenuDefaultsAndTip() {
        user = std::make_unique<ModuleUser>(false);
        QVERIFY(app().menu()->isVisible());
        QVERIFY(app().startDialog() && app().startDialog()->isVisible());
        QVERIFY(app().backdrop()->isVisible());
        // The dialog holds the program; the tip beside it covers nothing of it and
        // stays live, and Esc does not skip the choice.
        StartDialog* aviso = app().startDialog();
        TipWindow* tip = app().tipWindow();
        QVERIFY(tip->isVisible());
        QCOMPARE(QApplication::activeModalWidget(), aviso);
        QCOMPARE(tip->parentWidget(), aviso);
        QVERIFY(!framedGeometry(tip).intersects(framedGeometry(aviso)));
        QTest::keyClick(aviso, Qt::Key_Escape);
        settle();
        QVERIFY(app().startDialog());
        tip->close();
        QTest::mouseClick(aviso->findChild<QPushButton*>("Command2"), Qt::LeftButton);
        QVERIFY(tip->isVisible() && !framedGeometry(tip).intersects(framedGeometry(aviso)));
        // Enter is "&OK", with the first selections, wherever the focus is.
        aviso->list(1)->setFocus();
        QTest::keyClick(aviso->list(1), Qt::Key_Return);
        settle();
        QCOMPARE(app().defaults().list(1), std::string("20"));
        QCOMPARE(app().defaults().list(3), std::string("CA-50"));
        QVERIFY(!app().startDialog());
        QVERIFY(!app().backdrop()->isVisible());
        QVERIFY(!app().tipWindow()->isVisible());
    }

    void splashGivesWayToTheMenuAndClosingTheMenuEnds() {
        user.reset();
        AppOptions o = quickOptions();
        o.splash = true;
        o.splashMs = 1;
        auto app = std::make_unique<MorveApp>(o);
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
        QVERIFY(user->open("Form7"));
        QVERIFY(!app().menu()->isVisible());
        QVERIFY(app().backdrop()->isVisible());
        QVERIFY(form7()->isVisible());
        QCOMPARE(form7()->windowTitle(), QString(" MORVE"));
        QCOMPARE(form7()->findChild<QLabel*>("heading")->text(),
                 QString(" DIMENSIONAMENTO À FLEXÃO SIMPLES DE SEÇÕES RETANGULARES "));
        QVERIFY(!user->printEnabled("Form7"));
        QVERIFY(!user->enabled("Form7", "Command3"));
        // The class of aggressiveness starts unchosen.
        QVERIFY(qobject_cast<QListWidget*>(user->control("Form7", "List6"))->selectedItems().isEmpty());

        // No class chosen: the warning, and the focus on the list.
        user->type("Form7", "Text6", "50");
        user->click("Form7", "Command1");
        QCOMPARE(told(), std::size_t(1));
        QCOMPARE(message(0).kind, MessageKind::Warning);
        QCOMPARE(message(0).title, std::string("MORVE"));
        QCOMPARE(user->focus("Form7"), user->control("Form7", "List6"));
        QVERIFY(!user->printEnabled("Form7"));

        // A narrow beam asks; "No" goes on to the blank d'.
        user->pick("Form7", "List6", "1");
        user->type("Form7", "Text3", "10");
        user->answer({"no"});
        user->click("Form7", "Command1");
        QCOMPARE(told(), std::size_t(2));
        QCOMPARE(message(0).kind, MessageKind::YesNo);
        QVERIFY(message(0).text.find("VOCÊ QUER CORRIGIR A LARGURA?") != std::string::npos);
        QCOMPARE(message(1).text, std::string("Forneça um valor positivo para d'."));
        QCOMPARE(user->focus("Form7"), user->control("Form7", "Text10"));

        // "Yes" stops at once, with the focus on the width.
        user->answer({"yes"});
        user->click("Form7", "Command1");
        QCOMPARE(told(), std::size_t(1));
        QCOMPARE(user->focus("Form7"), user->control("Form7", "Text3"));
        QVERIFY(!user->printEnabled("Form7"));

        // The worked example of the help page: As = 5.13 cm2.
        user->type("Form7", "Text3", "20");
        user->type("Form7", "Text10", "4");
        user->answer({});
        user->click("Form7", "Command1");
        QCOMPARE(told(), std::size_t(0));
        QCOMPARE(user->text("Form7", "Text7"), QString("5.13"));
        QVERIFY(user->printEnabled("Form7"));
        QVERIFY(user->enabled("Form7", "Command3"));

        // "Detalhamento" goes on to the detailing screen; closing it brings Form7 back.
        user->click("Form7", "Command3");
        QVERIFY(user->shown("Form8"));
        QVERIFY(!app().moduleHelp()->isVisible());
        user->screen("Form8")->close();
        settle();
        QVERIFY(form7()->isVisible());

        // A later failure blanks the results, already blank on the screen when its
        // box comes up, but leaves "Imprimir" enabled.
        user->type("Form7", "Text6", "0");
        QString atTheBox = "<nenhuma caixa>";
        user->prompter().onBox = [&] { atTheBox = user->text("Form7", "Text7"); };
        user->click("Form7", "Command1");
        QCOMPARE(atTheBox, QString(" "));
        QCOMPARE(told(), std::size_t(1));
        QCOMPARE(user->focus("Form7"), user->control("Form7", "Text6"));
        QCOMPARE(user->text("Form7", "Text7"), QString(" "));
        QVERIFY(user->printEnabled("Form7"));
    }

    void toolbarNovoAndCloseGoBackToTheMenu() {
        QVERIFY(user->open("Form7"));
        toolbar("Ajuda");
        QVERIFY(app().moduleHelp()->isVisible());
        toolbar("Novo");
        QVERIFY(!app().module());
        QVERIFY(app().menu()->isVisible());
        QVERIFY(!app().backdrop()->isVisible());
        QVERIFY(!app().moduleHelp()->isVisible());
        // The window's own close does the same, without a word.
        QVERIFY(user->open("Form7"));
        user->type("Form7", "Text6", "77");
        form7()->close();
        settle();
        QVERIFY(!app().module());
        QVERIFY(app().menu()->isVisible());
        QCOMPARE(told(), std::size_t(0));
        // A new visit starts from the defaults.
        QVERIFY(user->open("Form7"));
        QCOMPARE(user->text("Form7", "Text6"), QString(""));
    }

    void inicioBringsNewDefaults() {
        QVERIFY(user->open("Form7"));
        toolbar("Início");
        QVERIFY(!app().module());
        StartDialog* aviso = app().startDialog();
        QVERIFY(aviso && aviso->isVisible());
        QVERIFY(app().menu()->isVisible());
        // The dialog opens with the first selections again.
        QCOMPARE(aviso->list(1)->currentItem()->text(), QString("20"));
        aviso->list(1)->setCurrentRow(2);  // 30
        aviso->list(3)->setCurrentRow(1);  // CA-60
        aviso->list(5)->setCurrentRow(0);  // NBR-6118
        QTest::mouseClick(aviso->findChild<QPushButton*>("Command1"), Qt::LeftButton);
        settle();
        QVERIFY(user->open("Form7"));
        QCOMPARE(user->text("Form7", "Text1"), QString("30"));
        QCOMPARE(user->text("Form7", "Text2"), QString("600"));
        QCOMPARE(user->text("Form7", "Text9"), QString("210"));
    }

    void sairAsksAndNoLeavesTheModule() {
        const char* before = "C.utf8";
        user.reset();
        std::setlocale(LC_NUMERIC, before);
        user = std::make_unique<ModuleUser>();
        // The point for the whole run, whatever the user's setting.
        QCOMPARE(std::string(std::setlocale(LC_NUMERIC, nullptr)), std::string("C"));
        QCOMPARE(QLocale().decimalPoint(), QString("."));
        QVERIFY(user->open("Form7"));
        user->type("Form7", "Text6", "50");
        user->answer({"no"});
        toolbar("Sair");
        QCOMPARE(told(), std::size_t(1));
        QCOMPARE(message(0).text, std::string("Deseja sair do programa?"));
        QCOMPARE(message(0).kind, MessageKind::YesNo);
        QVERIFY(form7()->isVisible());
        QCOMPARE(user->text("Form7", "Text6"), QString("50"));
        QVERIFY(!app().exiting());

        user->answer({"yes"});
        toolbar("Sair");
        QVERIFY(app().exiting());
        QCOMPARE(std::string(std::setlocale(LC_NUMERIC, nullptr)), std::string(before));
        QTest::qWait(5);
        settle();
        QVERIFY(!app().module());
        QVERIFY(!app().menu()->isVisible());
        std::setlocale(LC_NUMERIC, "C");
    }
};

QTEST_MAIN(ModuleRunTest)
#include "module_run_test.moc"
