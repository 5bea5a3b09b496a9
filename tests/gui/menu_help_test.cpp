// The main menu against the module catalogue, and the help windows: the module
// help beside its window, the list of help pages, the tips and the about box.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <functional>
#include <set>

#include "app/catalogue.h"
#include "app/module.h"
#include "gui/help_windows.h"
#include "gui/main_window.h"
#include "gui/morve_app.h"
#include "gui/window_places.h"
#include "gui_test_support.h"

using namespace morve;

namespace {

// A caption as it reads, without its access-key mark.
QString shown(const QAction* a) { return QString(a->text()).remove(QLatin1Char('&')); }

QMenu* submenu(QWidget* parent, const QString& caption) {
    const QList<QAction*> actions =
        qobject_cast<QMenuBar*>(parent) ? parent->actions() : qobject_cast<QMenu*>(parent)->actions();
    for (QAction* a : actions)
        if (a->menu() && shown(a) == caption) return a->menu();
    return nullptr;
}

QStringList captions(const QList<QAction*>& actions) {
    QStringList out;
    for (QAction* a : actions) out << shown(a);
    return out;
}

}  // namespace

class MenuHelpTest : public QObject {
    Q_OBJECT


private slots:
    void menuTreeFollowsTheCatalogue() {
        MainWindow menu;
        QMenuBar* bar = menu.menuBar();
        QCOMPARE(captions(bar->actions()), QStringList({"    Lajes maciças", "Vigas", "Pilares", "Tirantes",
                                                        "Escadas", "Arquivos recentes", "Ajuda"}));
        // Each leaf under its path, in the catalogue's order within its menu.
        std::map<QMenu*, QStringList> leaves;
        for (const CatalogueRow& row : ModuleCatalogue::rows()) {
            QWidget* at = bar;
            for (const std::string& name : row.path) {
                QMenu* next = submenu(at, QString::fromStdString(ModuleCatalogue::menuCaption(name)));
                QVERIFY2(next, name.c_str());
                at = next;
            }
            auto* menuAt = qobject_cast<QMenu*>(at);
            leaves[menuAt] << QString::fromStdString(row.caption);
            QAction* leaf = nullptr;
            for (QAction* a : menuAt->actions())
                if (!a->menu() && shown(a) == QString::fromStdString(row.caption)) leaf = a;
            QVERIFY2(leaf, row.caption.c_str());
            QCOMPARE(leaf->data().toString().toStdString(), row.module);
            // Live exactly when its module is registered.
            QCOMPARE(leaf->isEnabled(), ModuleRegistry::find(row.module) != nullptr);
        }
        for (const auto& [m, expected] : leaves) {
            QStringList got;
            for (QAction* a : m->actions())
                if (!a->menu()) got << shown(a);
            QCOMPARE(got, expected);
        }
        QVERIFY(menu.moduleAction("Form7")->isEnabled());
        // The leading blanks stay, and submenus come in their place among leaves.
        QMenu* lajes = submenu(bar, "    Lajes maciças");
        QCOMPARE(captions(lajes->actions()),
                 QStringList({"    Flexão simples", "    Cisalhamento", "    Lajes retangulares",
                              "    Lajes circulares", "    Lajes poligonais", "    Lajes lisas"}));
        QMenu* help = submenu(bar, "Ajuda");
        QCOMPARE(captions(help->actions()),
                 QStringList({"Apresentação", "Ajuda do MORVE", "Metodologia de projeto", "Unidades",
                              "Contato", "Alerta", "Sobre o MORVE"}));

        // Every item has an access key of its own among its siblings; the program's
        // own mark stays where it is.
        std::function<void(const QList<QAction*>&)> distinctKeys = [&](const QList<QAction*>& actions) {
            std::set<QChar> keys;
            for (QAction* a : actions) {
                const qsizetype amp = a->text().indexOf('&');
                QVERIFY2(amp >= 0 && amp + 1 < a->text().size(), qPrintable(a->text()));
                QVERIFY2(keys.insert(a->text().at(amp + 1).toLower()).second, qPrintable(a->text()));
                if (a->menu()) distinctKeys(a->menu()->actions());
            }
        };
        distinctKeys(bar->actions());
        QCOMPARE(help->actions().at(1)->text(), QString("Aj&uda do MORVE"));
        QCOMPARE(bar->actions().at(0)->text(), QString("    &Lajes maciças"));

        // F10 opens the first menu.
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTest::keyClick(&menu, Qt::Key_F10);
        QCOMPARE(bar->activeAction(), bar->actions().at(0));
    }

    void helpListShowsTheModulePageAtTheTopRight() {
        MorveApp app(quickOptions());
        app.start();
        app.startDialog()->confirm();
        settle();
        app.menu()->helpAction("Command70")->trigger();
        settle();
        HelpListWindow* list = app.helpList();
        QVERIFY(list && list->isVisible());
        QVERIFY(!app.menu()->isEnabled());
        QCOMPARE(list->findChild<QLabel*>("Label1")->text(), QString("Selecione um módulo e clique em \"Exibir\""));
        QCOMPARE(list->list()->count(), 38);
        QCOMPARE(list->list()->item(8)->text(), QString("Vigas - Flexão simples - Dimensionamento, seção retangular"));

        // Nothing selected: the help window opens empty.
        QTest::mouseClick(list->findChild<QPushButton*>("Command2"), Qt::LeftButton);
        settle();
        QVERIFY(app.moduleHelp()->isVisible());
        QVERIFY(app.moduleHelp()->browser()->toPlainText().isEmpty());

        list->list()->item(8)->setSelected(true);
        QTest::mouseClick(list->findChild<QPushButton*>("Command2"), Qt::LeftButton);
        settle();
        HelpPageWindow* page = app.moduleHelp();
        QCOMPARE(page->page(), std::string("Ajuda7"));
        QVERIFY(page->browser()->toPlainText().contains("5.13"));
        // The place is that of the window with its frame, title bar included.
        const QRect screen = page->screen()->availableGeometry();
        const QRect frame = framedGeometry(page);
        QVERIFY(std::abs(frame.x() - (screen.left() + int(screen.width() - 1.01 * frame.width()))) <= 1);
        QVERIFY(std::abs(frame.y() - (screen.top() + int(0.01 * screen.height()))) <= 1);

        QTest::mouseClick(list->findChild<QPushButton*>("Command3"), Qt::LeftButton);
        settle();
        QVERIFY(!app.helpList());
        QVERIFY(!app.moduleHelp()->isVisible());
        QVERIFY(app.menu()->isEnabled());
    }

    void generalPagesAndAMissingPage() {
        MorveApp app(quickOptions());
        app.start();
        app.startDialog()->confirm();
        settle();
        const std::map<std::string, QString> expected{{"Command73", "O MORVE é uma ferramenta"},
                                                      {"Command71", "estados limites"},
                                                      {"Command75", "kNm"},
                                                      {"Command72", "didático"},
                                                      {"Command74", "engenheiro habilitado"}};
        for (const auto& [command, words] : expected) {
            app.menu()->helpAction(command)->trigger();
            settle();
            QVERIFY(app.generalHelp()->isVisible());
            QVERIFY2(app.generalHelp()->browser()->toPlainText().contains(words), command.c_str());
        }
        // Esc closes a help window.
        app.generalHelp()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(app.generalHelp()));
        QTest::keyClick(app.generalHelp(), Qt::Key_Escape);
        QVERIFY(!app.generalHelp()->isVisible());
        app.generalHelp()->showPage("AjudaQueNaoExiste");
        QVERIFY(app.generalHelp()->browser()->toPlainText().contains("Página de ajuda não encontrada"));
        QVERIFY(app.generalHelp()->browser()->toPlainText().contains("AjudaQueNaoExiste.html"));

        app.menu()->helpAction("Command76")->trigger();
        settle();
        QStringList texts;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "FormAbout" && w->isVisible())
                for (QLabel* l : w->findChildren<QLabel*>()) texts << l->text();
        QVERIFY(texts.contains("MORVE - 2014"));
        QVERIFY(texts.contains("Versão 3.0"));
        QVERIFY(texts.contains("Ferramenta destinada à elaboração de projeto de estruturas de concreto armado, "
                               "com cálculo passo a passo. Ideal para o ensino e para o projetista iniciante."));
    }

    void tipsComeFromTheFileOrSayItIsMissing() {
        QFile file(qEnvironmentVariable("MORVE_DATA_DIR") + "/ajuda/Tipofday.txt");
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList tips = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(tips.size(), 11);
        std::set<QString> drawn;
        TipWindow tip;
        for (int i = 0; i < 60; ++i) {
            tip.drawTip();
            QVERIFY(tips.contains(tip.tip()));
            drawn.insert(tip.tip());
        }
        QVERIFY(drawn.size() > 3);

        QTemporaryDir empty;
        QDir(empty.path()).mkdir("ajuda");
        const QByteArray saved = qgetenv("MORVE_DATA_DIR");
        qputenv("MORVE_DATA_DIR", empty.path().toUtf8());
        tip.drawTip();
        qputenv("MORVE_DATA_DIR", saved);
        QCOMPARE(tip.tip(), QString("Arquivo não encontrado."));
    }
};

QTEST_MAIN(MenuHelpTest)
#include "menu_help_test.moc"
