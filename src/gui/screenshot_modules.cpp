#include <QApplication>
#include <QPrinter>

#include "gui/gui_prompter.h"
#include "gui/module_host.h"
#include "gui/save_picture_dialog.h"
#include "gui/morve_app.h"
#include "gui/screen_window.h"
#include "gui/screenshot_steps.h"

namespace morve {

// The torsion results and the detailing of a T, from the worked examples.
bool beamShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form6")) {
        fill(*host, {{"Text1", "25"}, {"Text3", "210"}, {"Text7", "25"}, {"Text8", "50"}, {"Text9", "4"},
                     {"Text10", "100"}, {"Text11", "80"}, {"Text12", "15"}, {"List1", "8.0"}});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form6b", folder, "form6b.png");
    }
    if (ModuleHost* host = open(app, "Form10")) {
        fill(*host, {{"Text5", "10"}, {"Text6", "20"}, {"Text9", "4"}, {"Text10", "100"}, {"List6", "1"}});
        press(*host, "Command3");
        press(*host, "Command4");
        fill(*host, {{"Form10b.List1", "16"}, {"Form10b.List2", "10"}, {"Form10b.List3", "6.3"},
                     {"Form10b.List4", "3"}, {"Form10b.List5", "19"}, {"Form10b.List6", "5"}});
        press(*host, "Form10b.Command2");
        press(*host, "Form10b.Command3");
        ok &= saveScreen(*host, "Form10c", folder, "form10c.png");
    }
    if (ModuleHost* host = open(app, "Form39")) {  // the example of its help page, with a point load added
        fill(*host, {{"Text6", "6"}, {"Text7", "1"}, {"Text8", "1"}, {"Text9", "20"}, {"Text10", "50"},
                     {"Text11", "5"}, {"Text12", "4"}, {"Text13", "6"}, {"Text14", "0"}, {"List1", "12.5"}});
        ok &= saveScreen(*host, "Form39", folder, "form39.png");
        press(*host, "Command8");
        host->session().state().grid("Form39b.Grade2")[1] = {"1", "0", "6", "20"};
        host->session().state().grid("Form39b.Grade1")[1] = {"1", "2", "15", "0"};
        fill(*host, {{"Form39b.Text1", "-20"}});
        ok &= saveScreen(*host, "Form39b", folder, "form39b.png");
        press(*host, "Form39b.Command1");
        ok &= saveScreen(*host, "Form39b2", folder, "form39b2.png");
        press(*host, "Form39b2.Command1");
        press(*host, "Form39b.Command2");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form39c", folder, "form39c.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

// The three-span beam of the examples: its results, diagrams and deformed shape.
bool continuousShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form34")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28000"}, {"Text3", "3"}, {"Text4", "4"}, {"Text6", "1"}, {"Text7", "3"}});
        ok &= saveScreen(*host, "Form34", folder, "form34.png");
        press(*host, "Command8");
        fillRows(*host, "Form34b.Grade1", {{"1", "4", "208333"}, {"2", "5", "208333"}, {"3", "4", "208333"}});
        fillRows(*host, "Form34b.Grade2", {{"1", "2", "0"}, {"2", "1", "0"}, {"3", "1", "0"}, {"4", "1", "0"}});
        ok &= saveScreen(*host, "Form34b", folder, "form34b.png");
        // A span of 4.5 m typed key by key, with the comma of a Brazilian keyboard.
        typeCell(*host, "Form34b.Grade1", 0, 1, "4,5");
        ok &= saveScreen(*host, "Form34b", folder, "form34b-4,5.png");
        press(*host, "Form34b.Command2");
        press(*host, "Command4");
        fillRows(*host, "Form34c.Grade2", {{"2", "2.5", "30", "0"}});
        fillRows(*host, "Form34c.Grade3", {{"1", "0", "4", "15"}, {"2", "0", "5", "15"}, {"3", "0", "4", "15"}});
        press(*host, "Form34c.Command1");
        ok &= saveScreen(*host, "Form34c2", folder, "form34c2.png");
        press(*host, "Form34c2.Command1");
        press(*host, "Form34c.Command2");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form34d", folder, "form34d.png");
        press(*host, "Form34d.Command2");
        press(*host, "Command10");
        ok &= saveScreen(*host, "Form34e", folder, "form34e.png");
        press(*host, "Form34e.Command1");
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form34g", folder, "form34g.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

// The flat slab of the examples: its columns, the floor with the loads, the four surfaces.
bool flatSlabShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form40")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28517"}, {"Text4", "20"}, {"Text5", "7.5"}, {"Text6", "9"},
                     {"Text7", "4"}, {"Text8", "6.5"}, {"Text9", "3"}});
        ok &= saveScreen(*host, "Form40", folder, "form40.png");
        press(*host, "Command1");
        fillRows(*host, "Form40b.Grade1", {{"1", "2.5", "3"}, {"2", "5", "3"}, {"3", "2.5", "6"}, {"4", "5", "6"}});
        fillRows(*host, "Form40b.Grade2", {{"1", "30", "40"}, {"2", "30", "40"}, {"3", "30", "40"}, {"4", "30", "40"}});
        ok &= saveScreen(*host, "Form40b", folder, "form40b.png");
        press(*host, "Form40b.Command1");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form40c", folder, "form40c.png");
        press(*host, "Form40c.Command1");
        press(*host, "Command2");
        const char* surfaces[][2] = {{"Form40d.Command3", "form40d-mx.png"}, {"Form40d.Command4", "form40d-my.png"},
                                     {"Form40d.Command5", "form40d-mxy.png"}, {"Form40d.Command6", "form40d-flechas.png"}};
        for (const auto& [command, name] : surfaces) {
            press(*host, command);
            ok &= saveScreen(*host, "Form40d", folder, name);
        }
        // The deflections as "Imprimir" puts them on an A4 page, here into a PDF.
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setOutputFileName(folder + "/form40d-impresso.pdf");
        printDrawing(printer, host->session().module().drawing("Form40d.Picture1", host->session().state()));
    }
    setGuiPrompter(nullptr);
    return ok;
}

// A design and a verification of a rectangular column, with the section, the
// interaction diagram, and the design situations of a corner column.
bool columnShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    const std::vector<Entry> column{{"Text1", "25"}, {"Text2", "500"}, {"Text3", "210"}, {"Text4", "20"},
                                    {"Text5", "50"},  {"Text6", "4"},   {"Text7", "2"}};
    if (ModuleHost* host = open(app, "Form12")) {
        fill(*host, column);
        fill(*host, {{"Text8", "1000"}, {"Text9", "120"}}, {{"Form12b.Grade1", 1, "3"}, {"Form12b.Grade1", 2, "3"}});
        press(*host, "Command4");
        ok &= saveScreen(*host, "Form12", folder, "form12.png");
        press(*host, "Command5");
        ok &= saveScreen(*host, "Form12c", folder, "form12c.png");
    }
    if (ModuleHost* host = open(app, "Form13")) {
        fill(*host, column);
        fill(*host, {{"Text8", "1400"}, {"Form13b.Text1", "17.51"}},
             {{"Form13b.Grade1", 1, "3"}, {"Form13b.Grade1", 2, "3"}});
        press(*host, "Command4");
        press(*host, "Command6");
        ok &= saveScreen(*host, "Form13c", folder, "form13c.png");
    }
    if (ModuleHost* host = open(app, "Form35")) {
        fill(*host, {{"Text5", "25"}, {"Text6", "25"}, {"Text8", "4"}, {"Text9", "4"}, {"Text14", "1000"},
                     {"Text10", "30"}, {"Text11", "-10"}, {"Text12", "20"}, {"Text13", "0"}});
        ok &= saveScreen(*host, "Form35", folder, "form35.png");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form35c", folder, "form35c.png");
        press(*host, "Form35c.Command1");
        ok &= saveScreen(*host, "Form35d", folder, "form35d.png");
    }
    setGuiPrompter(nullptr);
    app.returnToMenu();
    settle();
    return ok;
}

// The four-sided slab with its six patterns and its result screen, and the
// free-edge slab's results.
bool slabShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form22")) {
        fill(*host, {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "5"}, {"Text8", "10"}});
        host->session().state().setOption("Form22.Option4", true);
        fill(*host, {});
        ok &= saveScreen(*host, "Form22", folder, "form22.png");
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form22c", folder, "form22c.png");
    }
    if (ModuleHost* host = open(app, "Form24")) {
        fill(*host, {{"Text4", "5"}, {"Text5", "2"}, {"Text6", "4"}, {"Text7", "3.2"}, {"Text8", "12"}});
        host->session().state().setOption("Form24.Option3", true);
        fill(*host, {});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form24b", folder, "form24b.png");
    }
    if (ModuleHost* host = open(app, "Form24f")) {
        fill(*host, {{"Text4", "5"}, {"Text5", "2"}, {"Text7", "12"}, {"Text8", "1"}, {"Text6", "6"}, {"List1", "Fina"}});
        press(*host, "Command4");
        fillRows(*host, "Form24g.Grade1", {{"1", "0", "0"}, {"2", "6", "0"}, {"3", "6", "3"}, {"4", "3", "3"}, {"5", "3", "5"}, {"6", "0", "5"}});
        fillRows(*host, "Form24g.Grade2", {{"1", "0"}, {"2", "0"}, {"3", "1"}, {"4", "1"}, {"5", "0"}, {"6", "2"}});
        ok &= saveScreen(*host, "Form24g", folder, "form24g.png");
        press(*host, "Form24g.Command2");
        press(*host, "Command7");
        ok &= saveScreen(*host, "Form24h", folder, "form24h.png");
        press(*host, "Form24h.Command1");
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form24f", folder, "form24f.png");
        press(*host, "Command10");
        ok &= saveScreen(*host, "Form24j", folder, "form24j.png");
    }
    setGuiPrompter(nullptr);
    app.returnToMenu();
    settle();
    return ok;
}

// The polygonal sections under oblique bending: a chamfered doubly symmetric
// column and an L, each with its section, neutral axis and, for the L, its moment
// contour.
bool obliqueShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form16")) {
        fill(*host, {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "8"}, {"Text5", "6"}, {"Text6", "800"},
                     {"Text7", "150"}, {"Text8", "50"}});
        fillDataRows(*host, "Form16b.Grade1", {{"-10", "-30"}, {"10", "-30"}, {"15", "-25"}, {"15", "25"}, {"10", "30"},
                                          {"-10", "30"}, {"-15", "25"}, {"-15", "-25"}});
        fillDataRows(*host, "Form16b.Grade2",
                 {{"-11", "-26"}, {"11", "-26"}, {"11", "0"}, {"11", "26"}, {"-11", "26"}, {"-11", "0"}});
        press(*host, "Command4");
        ok &= saveScreen(*host, "Form16", folder, "form16.png");
        press(*host, "Command5");
        ok &= saveScreen(*host, "Form12c", folder, "form16-secao.png");
    }
    if (ModuleHost* host = open(app, "Form17")) {
        fill(*host, {{"Text1", "25"}, {"Text3", "210"}, {"Text4", "6"}, {"Text5", "10"}, {"Text7", "2000"},
                     {"Text8", "300"}, {"Text9", "-200"}});
        fillDataRows(*host, "Form17b.Grade1",
                 {{"0", "0"}, {"60", "0"}, {"60", "20"}, {"20", "20"}, {"20", "60"}, {"0", "60"}});
        fillDataRows(*host, "Form17b.Grade2",
                 {{"4", "4", "2"}, {"30", "4", "2"}, {"56", "4", "2"}, {"56", "16", "2"}, {"30", "16", "2"},
                  {"16", "16", "2"}, {"16", "56", "2"}, {"4", "56", "2"}, {"4", "30", "2"}, {"16", "30", "2"}});
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form17b", folder, "form17b.png");
        press(*host, "Form17b.Command2");
        press(*host, "Command4");
        ok &= saveScreen(*host, "Form17", folder, "form17.png");
        press(*host, "Command5");
        ok &= saveScreen(*host, "Form12c", folder, "form17-secao.png");
        press(*host, "Form12c.Command1");
        press(*host, "Command6");
        ok &= saveScreen(*host, "Form17c", folder, "form17c.png");
    }
    setGuiPrompter(nullptr);
    app.returnToMenu();
    settle();
    return ok;
}

// The two stairs, each calculated and drawn in perspective with its deformed shape.
bool stairShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form41")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28517"}, {"Text4", "180"}, {"Text5", "2"}, {"Text6", "3"},
                     {"Text9", "15"}, {"Text10", "1.2"}, {"Text7", "1.5"}, {"Text8", "3"}});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form41", folder, "form41.png");
        press(*host, "Command2");
        ok &= saveScreen(*host, "Form41b", folder, "form41b.png");
    }
    if (ModuleHost* host = open(app, "Form42")) {
        fill(*host, {{"Text1", "25"}, {"Text2", "28517"}, {"Text4", "2.7"}, {"Text5", "1.2"}, {"Text6", "1.3"},
                     {"Text7", "2.6"}, {"Text8", "2.88"}, {"Text9", "15"}, {"Text10", "14"}, {"Text11", "2"},
                     {"Text12", "1"}, {"Text13", "3"}, {"Text14", "3"}});
        press(*host, "Command1");
        ok &= saveScreen(*host, "Form42", folder, "form42.png");
        press(*host, "Command2");
        ok &= saveScreen(*host, "Form42b", folder, "form42b.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

// The frame of the wind example: its tables of results and the frame drawn.
bool frameShots(MorveApp& app, const QString& folder) {
    ScriptedPrompter answers;
    setGuiPrompter(&answers);
    bool ok = true;
    if (ModuleHost* host = open(app, "Form33")) {
        FormState& state = host->session().state();
        fill(*host, {{"Text1", "25"}, {"Text2", "25000"}, {"Text3", "3"}, {"Text4", "3"}, {"Text7", "2700"}});
        press(*host, "Command8");
        fillRows(*host, "Form33b.Grade1", {{"1", "3.5"}, {"2", "3"}, {"3", "3"}});
        fillRows(*host, "Form33b.Grade2", {{"1", "1000", "208333"}, {"2", "1400", "400000"}, {"3", "1000", "208333"}});
        press(*host, "Form33b.Command1");
        press(*host, "Command4");
        fillRows(*host, "Form33c.Grade1", {{"1", "5"}, {"2", "6"}});
        fillRows(*host, "Form33c.Grade2", {{"1", "1200", "126000"}, {"2", "1200", "126000"}, {"3", "1000", "73000"}});
        fillRows(*host, "Form33c.Grade3", {{"1", "20"}});
        press(*host, "Form33c.Command1");
        press(*host, "Command10");
        state.setOption("Form33d.Option1", true);
        fillRows(*host, "Form33d.Grade1", {{"1", "12"}, {"2", "10"}, {"3", "6"}});
        fillRows(*host, "Form33d.Grade2", {{"1", "900"}, {"2", "900"}, {"3", "900"}});
        press(*host, "Form33d.Command1");
        press(*host, "Command3");
        ok &= saveScreen(*host, "Form33e", folder, "form33e.png");
    }
    setGuiPrompter(nullptr);
    return ok;
}

}  // namespace morve
