#pragma once
// A module declared for the tests of project files, with every kind of input a
// project file keeps: boxes, a list, an option group, a check, a numbered grid of
// up to 30 rows and a free grid.
#include "app/module.h"

class FileModule : public morve::Module {
public:
    morve::ModuleInfo info() const override {
        morve::ModuleInfo i;
        i.key = "Form90";
        return i;
    }
    std::vector<morve::ScreenDecl> screens() const override {
        morve::ScreenBuilder main("Form90", "Viga de teste");
        main.frame("Frame1", "Dados", 0, 0)
            .box("Text1", "Título")
            .box("Text2", "Vãos", "2", "", morve::KeyFilter::Digit)
            .result("Text3", "Reação")
            .list("List1", "Concreto", {"C20", "C25", "C30"}, "C25")
            .option("Option1", "Engaste", "apoio", true)
            .option("Option2", "Apoio simples", "apoio")
            .check("Check1", "Considerar peso próprio")
            .command("Command1", "&CALCULAR");
        morve::ScreenBuilder loads("Form90b", "Cargas", false);
        loads.grid("Grade1", morve::GridDecl{{"Vão", "L (m)", "q (kN/m)"}, 2, 30, morve::KeyFilter::PositiveNumber, true, false, {}})
            .grid("Grade2", morve::GridDecl{{"Nó", "Restrição"}, 1, 0, morve::KeyFilter::SignedNumber, false, false, {}});
        return {main.build(), loads.build()};
    }
    morve::Outcome press(const std::string&, morve::FormState&, morve::Prompter&) const override {
        return morve::Outcome::stop();
    }
};

