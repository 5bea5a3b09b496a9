#include "stairs/stair_module.h"

#include "reports/report_writer.h"
#include "basis/concrete_service.h"
#include "stairs/stair_screens.h"

namespace morve {

ModuleInfo StairModule::info() const {
    ModuleInfo i;
    i.key = layout_.key;
    i.unloads = {"FormAjuda", "FormAbrir", "FormSalvar", layout_.key + "b"};
    i.printKey = layout_.key;
    return i;
}

std::vector<ScreenDecl> StairModule::screens() const {
    ScreenBuilder picture(layout_.key + "b", layout_.pictureTitle, false);
    picture.frame("Frame1", "", 0, 0).picture("Picture1", 640, 520);
    picture.frame("Frame2", "", 1, 0)
        .command("Command2", "Im&primir", "Imprimir o desenho")
        .command("Command3", "&Salvar", "Salvar a imagem em arquivo")
        .command("Command1", "&Voltar");
    return {mainScreen(), picture.build()};
}

void StairModule::load(FormState& state, const StartDefaults& defaults) const {
    loadConcreteDefaults(state, defaults);
    clearResults(state);
}

void StairModule::clearResults(FormState& state) const {
    clearStairResults(state, layout_.sections, layout_.deflectionBox);
}

std::vector<std::string> StairModule::projectFields() const {
    std::vector<std::string> f;
    for (int k = 1; k <= layout_.boxes; ++k) f.push_back(layout_.key + ".Text" + std::to_string(k));
    for (int k = 1; k <= 4; ++k) f.push_back(layout_.key + ".Option" + std::to_string(k));
    return f;
}

Outcome StairModule::calculated() const {
    return Outcome::done()
        .then(EffectKind::EnableControl, printButton(layout_.key))
        .then(EffectKind::EnableControl, layout_.key + ".Command2");
}

Outcome StairModule::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command), main = layout_.key, shown = main + "b";
    if (c == main + ".Command1") return calculate(s, prompter);
    if (c == main + ".Command2") return switchTo(main, shown);
    if (c == shown + ".Command1") return switchTo(shown, main);
    if (c == shown + ".Command2") return Outcome::done().then(EffectKind::PrintPicture, shown + ".Picture1");
    if (c == shown + ".Command3") return Outcome::done().then(EffectKind::SavePicture, shown + ".Picture1");
    return Outcome::stop();
}

Drawing StairModule::drawing(const std::string& name, const FormState& s) const {
    return s.qualify(name) == layout_.key + "b.Picture1" ? picture(s) : Drawing{};
}

void StairModule::report(const std::string& key, const FormState& s, ReportWriter& out) const {
    if (key != layout_.key) return;
    reportStairConcrete(out, s);
    reportData(s, out);
    reportStairResults(out, s, layout_.reportTitles, layout_.deflectionBox);
    if (s.text(layout_.deflectionBox).empty()) return;
    Drawing d = picture(s);
    if (!d.empty()) out.picture(std::move(d), 20);
}

}  // namespace morve
