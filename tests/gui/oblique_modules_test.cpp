// The polygonal sections under oblique bending driven through their windows: the
// counts typed, the coordinate tables typed cell by cell, "&CALCULAR", the section
// with its bars and neutral axis, and the moment contour of the arbitrary section.
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QTest>

#include "gui/picture_views.h"
#include "module_user.h"

using namespace morve;

class ObliqueModulesTest : public QObject {
    Q_OBJECT
    std::unique_ptr<ModuleUser> user;

    // "Entrar com as coordenadas", both tables typed, "&OK".
    void enterTables(const std::string& module, const std::vector<std::vector<const char*>>& vertices,
                     const std::vector<std::vector<const char*>>& bars) {
        const std::string tables = module + "b";
        user->click(module, "Command3");
        QVERIFY(user->shown(tables));
        for (auto [grid, rows] : {std::pair{"Grade1", &vertices}, {"Grade2", &bars}})
            for (int r = 0; r < static_cast<int>(rows->size()); ++r)
                for (int c = 0; c < static_cast<int>((*rows)[r].size()); ++c)
                    user->typeCell(tables, grid, r, (*rows)[r][c], c + 1);
        user->click(tables, "Command2");
        QVERIFY(user->shown(module));
    }
    int bars(const char* screen) {
        auto* view = dynamic_cast<DrawingView*>(user->control(screen, "Picture1"));
        int n = 0;
        for (const Shape& s : view ? view->drawing().shapes : std::vector<Shape>{})
            if (const auto* c = std::get_if<Circle>(&s.geometry); c && c->filled) ++n;
        return n;
    }

private slots:
    void init() { user = std::make_unique<ModuleUser>(); }
    void cleanup() { user.reset(); }

    // The centred load of the core tests: 4.42 cm2 on 20 x 50.
    void symmetricSectionDesignsThroughItsTables() {
        QVERIFY(user->open("Form16"));
        for (auto [box, text] : {std::pair{"Text3", "210"}, {"Text4", "4"}, {"Text5", "4"}, {"Text6", "1000"},
                                 {"Text7", "0"}, {"Text8", "0"}})
            user->type("Form16", box, text);
        enterTables("Form16", {{"-10", "-25"}, {"10", "-25"}, {"10", "25"}, {"-10", "25"}},
                    {{"-6", "-21"}, {"6", "-21"}, {"6", "21"}, {"-6", "21"}});
        user->click("Form16", "Command4");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form16", "Text9"), QString("4.42"));
        QVERIFY(user->printEnabled("Form16"));
        user->click("Form16", "Command5");
        QVERIFY(user->shown("Form12c"));
        QCOMPARE(bars("Form12c"), 4);
        user->click("Form12c", "Command1");
        QVERIFY(user->shown("Form16"));
    }

    // The L of the example: both answers, the section and the contour with the case.
    void arbitrarySectionVerifiesDesignsAndDrawsItsContour() {
        QVERIFY(user->open("Form17"));
        QVERIFY(!user->enabled("Form17", "Command6"));
        for (auto [box, text] : {std::pair{"Text1", "25"}, {"Text3", "210"}, {"Text4", "6"}, {"Text5", "3"},
                                 {"Text7", "900"}, {"Text8", "60"}, {"Text9", "-40"}})
            user->type("Form17", box, text);
        enterTables("Form17", {{"0", "0"}, {"60", "0"}, {"60", "20"}, {"20", "20"}, {"20", "60"}, {"0", "60"}},
                    {{"4", "4", "3"}, {"56", "4", "3"}, {"4", "56", "3"}});
        user->click("Form17", "Command4");
        QVERIFY(user->told().messages().empty());
        QCOMPARE(user->text("Form17", "Text6"), QString("9"));
        user->click("Form17", "Command5");
        QCOMPARE(bars("Form12c"), 3);
        user->click("Form12c", "Command1");
        user->click("Form17", "Command6");
        auto* box = dynamic_cast<ChartBox*>(user->control("Form17c", "MSChart1"));
        QVERIFY(user->shown("Form17c") && box && box->view()->chart()->series().size() == 2);
        auto* contour = qobject_cast<QXYSeries*>(box->view()->chart()->series()[0]);
        QVERIFY(contour && contour->count() == 73);
        user->click("Form17c", "Command1");
        QVERIFY(user->shown("Form17"));
    }
};

QTEST_MAIN(ObliqueModulesTest)
#include "oblique_modules_test.moc"
