// The slab modules driven through their windows, one run each: boxes typed, the
// case chosen by its option, the button clicked, one result read on the screen
// that shows it, and "&Voltar" back to the module.
#include <QRadioButton>
#include <QTest>

#include "module_user.h"

using namespace morve;

class SlabModulesTest : public QObject {
    Q_OBJECT

    struct Run {
        const char* module;
        std::vector<std::pair<const char*, const char*>> boxes;
        const char* option;  // "" for the default
        const char* list;    // a list and its item, "" for none
        const char* item;
        const char* command;
        const char* results;  // the screen of the results
        const char* box;
        const char* value;  // worked out in the help page of the module
    };

private slots:
    void eachModuleRunsFromItsWindow() {
        const Run runs[] = {
            {"Form20", {{"Text4", "10"}, {"Text5", "7"}, {"Text6", "10"}}, "", "List1", "8.0", "Command1", "Form20", "Text7", "4.44"},
            {"Form21", {{"Text2", "30"}, {"Text3", "7"}, {"Text5", "3"}}, "", "List1", "maior ou igual a 50%", "Command1", "Form21", "Text6", "0.58"},
            {"Form22", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "5"}, {"Text8", "10"}}, "Option4", "", "", "Command1", "Form22c", "Text5", "6.93"},
            {"Form23", {{"Text4", "4"}, {"Text5", "4"}, {"Text6", "10"}, {"Text7", "10"}, {"Text8", "2"}, {"Text9", "2"}}, "", "", "", "Command1", "Form23b", "Text1", "2.91"},
            {"Form24", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "3.2"}, {"Text8", "12"}}, "Option3", "", "", "Command1", "Form24b", "Text18", "-10.34"},
            {"Form24d", {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "3"}, {"Text8", "12"}}, "Option2", "", "", "Command1", "Form24e", "Text6", "-7.88"},
        };
        for (const Run& r : runs) {
            ModuleUser user;
            QVERIFY2(user.open(r.module), r.module);
            for (auto [box, text] : r.boxes) user.type(r.module, box, text);
            if (*r.option) user.click(r.module, r.option);
            if (*r.list) user.pick(r.module, r.list, r.item);
            if (std::string(r.module) == "Form20") user.pick(r.module, "List6", "1");
            user.click(r.module, r.command);
            QVERIFY2(user.told().messages().empty(), r.module);
            QVERIFY2(user.shown(r.results), r.results);
            QCOMPARE(user.text(r.results, r.box), QString(r.value));
            if (std::string(r.results) == r.module) continue;
            user.click(r.results, "Command1");
            QVERIFY2(user.shown(r.module) && !user.shown(r.results), r.module);
        }
    }
};

QTEST_MAIN(SlabModulesTest)
#include "slab_modules_test.moc"
