#include "frames/form33.h"

#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "basis/checks.h"
#include "frames/frame_texts.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form33> registerForm33;

const FrameScreens kScreens{"Form33b", "Form33c", true};
const std::string kForces = "Form33d.Grade1", kVertical = "Form33d.Grade2", kPanels = "Form33i.Grade1";
const std::vector<std::string> kMortar = {"1,5 a 3,4", "3,5 a 7,0", "acima de 7,0"};
// The lists that pick a bar for its diagrams: the beams of the results, their
// copy on the beam diagrams, and the same for the columns.
const std::string kBeamList = "Form33e.List1", kColumnList = "Form33e.List2";
const std::string kBeamPick = "Form33g.List1", kColumnPick = "Form33h.List1";

GridDecl resultTable(std::vector<std::string> header) {
    GridDecl g = frameTable(std::move(header), 0, KeyFilter::None);
    return g;
}

bool masonryOn(const FormState& s) { return s.option("Form33i.Option2"); }
bool selectedPanels(const FormState& s) { return s.option("Form33i.Option3"); }
int panelCount(const FormState& s) { return (countIn(s, "Text3") - 1) * countIn(s, "Text4"); }

// The buttons that open a table, and the drawing, check the counts first.
Outcome openTables(FormState& s, Prompter& prompter, const std::string& screen) {
    CheckSequence checks(prompter);
    checkFrameCounts(checks, s, txtframe::kHighFck8953);
    if (checks.stopped()) return checks.outcome();
    const int v = countIn(s, "Text4");
    if (screen == "Form33b") sizeColumnTables(s, kScreens);
    if (screen == "Form33c") sizeBeamTables(s, kScreens);
    if (screen == "Form33d") {
        sizeTable(s, kForces, v, true);
        sizeTable(s, kVertical, v, true);
    }
    if (screen == "Form33i") sizeTable(s, kPanels, panelCount(s), true);
    return switchTo("Form33", screen);
}

// The masonry frames follow the options of Form33i.
Outcome masonryFrames(const FormState& s) {
    const bool on = masonryOn(s), some = on && selectedPanels(s);
    Outcome o = Outcome::done();
    for (const char* frame : {"Form33i.Frame2", "Form33i.Frame4"})
        o.then(on ? EffectKind::ShowControl : EffectKind::HideControl, frame);
    o.then(some ? EffectKind::ShowControl : EffectKind::HideControl, "Form33i.Frame3");
    return o;
}

std::string rounded(double v) { return formatResult(v, 2); }

void writeResults(FormState& s, const FrameModel& m, const FrameResults& r) {
    GridRows& beamMoments = s.grid("Form33e.Grade1");
    GridRows& beamShears = s.grid("Form33e.Grade2");
    GridRows& columnMoments = s.grid("Form33e.Grade3");
    GridRows& columnForces = s.grid("Form33e.Grade4");
    GridRows& sway = s.grid("Form33e.Grade5");
    for (GridRows* g : {&beamMoments, &beamShears, &columnMoments, &columnForces, &sway}) g->resize(1);
    std::vector<std::string> beams, columns;
    for (std::size_t b = 0; b < static_cast<std::size_t>(m.frameBars()); ++b) {
        const FrameBar& bar = r.bars[b];
        const BarEnds& f = r.ends[b];
        const std::string level = std::to_string(bar.level), line = std::to_string(bar.line);
        // Moments tension the bottom face of a beam, the right face of a column, when
        // positive; shears go up at a beam's left end and, in a column, the way of a
        // positive horizontal force; normal forces compress when positive.
        if (bar.kind == BarKind::Beam) {
            beamMoments.push_back({level, line, rounded(-f[2]), rounded(f[5])});
            beamShears.push_back({level, line, rounded(f[1])});
            beams.push_back("Nível " + level + " - Vão " + line);
        } else {
            columnMoments.push_back({level, line, rounded(-f[2]), rounded(f[5])});
            columnForces.push_back({level, line, rounded(f[0]), rounded(f[1])});
            columns.push_back("Andar " + level + " - Pilar " + line);
        }
    }
    for (std::size_t i = 0; i < r.sway.size(); ++i) sway.push_back({std::to_string(i + 1), rounded(r.sway[i] * 100)});
    s.setText("Form33e.Text1", formatResult(r.meanSway, 3));
    s.setText("Form33e.Text2", r.gamaZ ? rounded(*r.gamaZ) : " ");
    s.setText("Form33e.Text3", rounded(r.qMax));
    // A bar picked before keeps its place when the frame keeps its shape.
    for (const auto& [list, bars] : {std::pair{kBeamList, &beams}, std::pair{kColumnList, &columns}}) {
        s.setItems(list, *bars);
        if (s.selectedIndex(list) < 0 && !bars->empty()) s.setText(list, bars->front());
    }
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    const std::optional<Form33Case> c = readForm33(s, checks);
    if (!c) return checks.outcome();
    const FrameResults r = analyseFrame(c->model, c->loading, c->infill);
    checks.warnIf(r.status == FrameStatus::SlenderPanel, txtframe::kSlenderWall, "Form33.Command1")
        .warnIf(r.status == FrameStatus::NoClearPanel, txtframe::kNoClearPanel, "Form33.Command1")
        .warnIf(r.status == FrameStatus::Singular, msg::kSingular)
        .warnIf(r.status == FrameStatus::NotFinite, msg::kOutOfRange)
        .warnIf(r.status == FrameStatus::NoProgress, txtframe::kNoProgress, "Form33.Command1");
    if (checks.stopped()) return checks.outcome();
    // Neither stops the run: the results of the last iteration, or of the bare
    // frame, stand.
    if (r.pDeltaStopped) prompter.warn(txtframe::kPDelta);
    if (r.infillLost) prompter.warn(txtframe::kInfillLost);
    writeResults(s, c->model, r);
    return Outcome::done()
        .then(EffectKind::EnableControl, printButton("Form33"))
        .then(EffectKind::HideScreen, "Form33")
        .then(EffectKind::ShowScreen, "Form33e");
}

// The diagrams are drawn for the bar picked in a list; the pictures follow the
// pick by themselves, so a redraw only asks that there is one.
Outcome checkPicked(const FormState& s, Prompter& prompter, const std::string& list) {
    CheckSequence checks(prompter);
    checks.warnIf(s.selectedIndex(list) < 0, txtframe::kPickBar, list);
    return checks.stopped() ? checks.outcome() : Outcome::done();
}

Outcome showDiagrams(FormState& s, Prompter& prompter, const std::string& list, const std::string& pick) {
    Outcome o = checkPicked(s, prompter, list);
    if (!o.completed) return o;
    s.setItems(pick, s.items(list));
    s.setText(pick, s.text(list));
    return switchTo("Form33e", pick.substr(0, pick.find('.')));
}

}  // namespace

std::optional<Form33Case> readForm33(const FormState& s, CheckSequence& checks) {
    const int v = countIn(s, "Text4");
    checkFrameLimits(checks, s);
    checkFrameTables(checks, s, kScreens);
    checks.warnIf(dataRows(s, kForces) != v || dataRows(s, kVertical) != v, msg::kUpdateLoad, "Command10");
    if (!checks.stopped())
        checks.warnIf(masonryOn(s) && selectedPanels(s) && dataRows(s, kPanels) != panelCount(s),
                      txtframe::kUpdateMasonry, "Command1");
    if (checks.stopped()) return std::nullopt;
    std::optional<FrameModel> m = readFrame(s, checks, kScreens);
    if (!m) return std::nullopt;
    Form33Case c{*m, {}, std::nullopt};
    double wind = 0;
    for (int i = 1; i <= v; ++i) {
        c.loading.forces.push_back(s.cellNumber(kForces, i, 1));
        c.loading.vertical.push_back(s.cellNumber(kVertical, i, 1));
        wind += std::abs(c.loading.forces.back());
    }
    c.loading.pDelta = s.option("Form33d.Option1");
    // Without a horizontal force neither the P-delta test nor GamaZ has a meaning.
    checks.warnIf(!(wind > 0), txtframe::kNoWind, "Command10");
    if (masonryOn(s)) {
        Infill in;
        in.ea = s.number("Form33i.Text1") * 1000;
        in.fk = s.number("Form33i.Text2") * 1000;
        in.t = s.number("Form33i.Text4") / 100;
        checks.warnIf(!(in.ea > 0), txtframe::kMasonryModulus, "Form33i.Text1")
            .warnIf(!(in.fk > 0), txtframe::kMasonryStrength, "Form33i.Text2")
            .warnIf(!(in.t > 0), txtframe::kMasonryThickness, "Form33i.Text4");
        const std::string mortar = s.text("Form33i.List1");
        in.mortar = mortar == kMortar[2] ? Mortar::Strong : mortar == kMortar[1] ? Mortar::Medium : Mortar::Weak;
        const int panels = panelCount(s);
        for (int k = 1; k <= panels; ++k)
            in.filled.push_back(!selectedPanels(s) || s.cellNumber(kPanels, k, 1) == 1);
        c.infill = in;
    }
    if (checks.stopped()) return std::nullopt;
    return c;
}

ModuleInfo Form33::info() const {
    ModuleInfo i;
    i.key = "Form33";
    i.unloads = {"FormAjuda", "FormAbrir", "FormSalvar", "Form33f", "Form33g", "Form33h",
                 "Form33e", "Form33d",   "Form33c",    "Form33b"};
    i.printKey = "Form33";
    i.calculate = "Command3";
    // A tall frame with infill repeats the whole analysis until no panel is overstressed.
    i.busy = {{"Form33.Command3", "Form33.Command13"}};
    return i;
}

// The bar lists are filled by "CALCULAR" from the results; they are no input.
std::vector<std::string> Form33::projectFields() const {
    std::vector<std::string> fields = Module::projectFields();
    std::erase_if(fields, [](const std::string& f) {
        return f == kBeamList || f == kColumnList || f == kBeamPick || f == kColumnPick;
    });
    return fields;
}

std::vector<ScreenDecl> Form33::screens() const {
    ScreenBuilder main("Form33", "ESFORÇOS EM PÓRTICOS PLANOS DEVIDOS AO VENTO");
    concreteBoxes(main);
    main.frame("Frame2", "Pórtico", 0, 1)
        .box("Text3", "Número de pilares:  p=", "", "", KeyFilter::Digit)
        .box("Text4", "Número de vigas: v=", "", "", KeyFilter::Digit)
        .box("Text7", "Ptot,d (kN)=", "")
        .tip("Resultante das forças verticais de cálculo atribuídas a este pórtico");
    main.frame("Frame3", "Dados", 1, 0)
        .command("Command8", "Pilares")
        .command("Command4", "Vigas")
        .command("Command10", "Cargas")
        .command("Command1", "Alvenaria");
    main.frame("Frame4", "", 1, 1)
        .command("Command12", "Ver desenho")
        .command("Command3", "CALCULAR")
        .command("Command13", "Calculando... Aguarde.")
        .hidden();

    ScreenBuilder loads("Form33d", "Cargas", false);
    loads.frame("Frame1", "Forças horizontais nos níveis das vigas", 0, 0)
        .grid("Grade1", frameTable({"Nível", "F (kN)"}, kFrameMaxLevels, KeyFilter::SignedNumber));
    loads.frame("Frame2", "Carga vertical nos níveis das vigas", 0, 1)
        .grid("Grade2", frameTable({"Nível", "P (kN)"}, kFrameMaxLevels, KeyFilter::SignedNumber));
    loads.frame("Frame3", "Não linearidade geométrica (P-delta)", 1, 0)
        .option("Option1", "Sim", "pdelta")
        .option("Option2", "Não", "pdelta", true);
    loads.frame("Frame4", "", 1, 1)
        .label("Label1", "Todas as forças devem ser fornecidas com seus valores de cálculo")
        .label("Label2", "Forças horizontais positivas: da esquerda para a direita")
        .command("Command1", "OK");

    ScreenBuilder masonry("Form33i", "Alvenaria", false);
    masonry.frame("Frame1", "Considera alvenaria?", 0, 0)
        .option("Option1", "Não", "masonry", true)
        .option("Option2", "Sim", "masonry");
    masonry.frame("Frame2", "Painéis", 0, 1).option("Option3", "Selecionar", "panels").option("Option4", "Todos", "panels", true);
    masonry.frame("Frame4", "Propriedades da alvenaria", 1, 0)
        .box("Text1", "Módulo de elasticidade Ea (MPa) =", "")
        .box("Text2", "Resistência característica à compressão simples fk (MPa) =", "")
        .box("Text4", "Espessura das paredes (cm) =", "12")
        .list("List1", "Resistência média da argamassa (MPa) =", kMortar, kMortar[0]);
    masonry.frame("Frame3", "Selecionar os painéis", 1, 1)
        .grid("Grade1", frameTable({"Painel", "Valor"}, kFrameMaxLevels * (kFrameMaxColumns - 1), KeyFilter::Digit))
        .label("Label1", "Valor = 1 com painel")
        .label("Label2", "Valor = 0 sem painel")
        .label("Label3", "Painel com aberturas: Valor = 0")
        .label("Label4", "Painéis numerados por andar, a partir da base, da esquerda para a direita");
    masonry.frame("Frame5", "", 2, 0, 1, 2).command("Command1", "OK");

    ScreenBuilder tables("Form33e", "Resultados", false);
    tables.frame("Frame1", "Esforços nas vigas", 0, 0)
        .grid("Grade1", resultTable({"Nível", "Vão", "Ma (kNm)", "Mb (kNm)"}))
        .grid("Grade2", resultTable({"Nível", "Vão", "V (kN)"}))
        .label("Label1", "Ma = momento fletor na extremidade da esquerda")
        .label("Label2", "Mb = momento fletor na extremidade da direita")
        .label("Label3", "V = esforço cortante")
        .label("Label4", "Momento positivo traciona a face inferior; V positivo para cima na extremidade da esquerda")
        .list("List1", "Viga para visualizar diagramas", {})
        .rows(4)
        .command("Command1", "Ver diagramas de esforços solicitantes");
    tables.frame("Frame2", "Esforços nos pilares", 0, 1)
        .grid("Grade3", resultTable({"Andar", "Pilar", "M,base (kNm)", "M,topo (kNm)"}))
        .grid("Grade4", resultTable({"Andar", "Pilar", "N (kN)", "V (kN)"}))
        .label("Label5", "N = esforço normal")
        .label("Label6", "M,base = momento fletor na base do pilar")
        .label("Label7", "M,topo = momento fletor no topo do pilar")
        .label("Label8", "V = esforço cortante")
        .label("Label9", "N positivo de compressão; momento positivo traciona a face direita; V positivo no sentido "
                         "das forças horizontais positivas")
        .list("List2", "Pilar para visualizar diagramas", {})
        .rows(4)
        .command("Command3", "Ver diagramas de esforços solicitantes");
    tables.frame("Frame3", "Deslocamentos horizontais", 1, 0)
        .grid("Grade5", resultTable({"Nível", "U (cm)"}))
        .result("Text1", "Deslocamento médio (cm)=")
        .result("Text2", "Coeficiente Gamaz=")
        .result("Text3", "Índice de estabilidade do ACI: Q,max=");
    tables.frame("Frame4", "", 1, 1).command("Command2", "Ver pórtico").command("Command4", "OK").escape();

    ScreenBuilder picture("Form33f", "Pórtico", false);
    picture.frame("Frame1", "", 0, 0).picture("Picture1", 700, 500).command("Command1", "&Voltar");
    ScreenBuilder beam("Form33g", "Diagramas de esforços na viga", false);
    beam.frame("Frame1", "", 0, 0).picture("Picture1", 640, 220).picture("Picture2", 640, 220);
    beam.frame("Frame2", "", 1, 0)
        .list("List1", "Viga para visualizar diagramas", {})
        .rows(4)
        .command("Command1", "Ver diagramas de esforços solicitantes")
        .command("Command2", "&Voltar");
    ScreenBuilder column("Form33h", "Diagramas de esforços no pilar", false);
    column.frame("Frame1", "", 0, 0)
        .picture("Picture1", 640, 200)
        .picture("Picture2", 640, 200)
        .picture("Picture3", 640, 200);
    column.frame("Frame2", "", 1, 0)
        .list("List1", "Pilar para visualizar diagramas", {})
        .rows(4)
        .command("Command1", "Ver diagramas de esforços solicitantes")
        .command("Command2", "&Voltar");

    std::vector<ScreenDecl> all{main.build(), columnScreen(kScreens), beamScreen(kScreens), loads.build(),
                                masonry.build(), tables.build(), picture.build(), beam.build(), column.build()};
    return all;
}

void Form33::load(FormState& state, const StartDefaults& defaults) const {
    loadConcrete(state, defaults);
    for (const char* frame : {"Form33i.Frame2", "Form33i.Frame3", "Form33i.Frame4"}) state.setVisible(frame, false);
}

Outcome Form33::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command);
    if (c == "Form33.Command8") return openTables(s, prompter, "Form33b");
    if (c == "Form33.Command4") return openTables(s, prompter, "Form33c");
    if (c == "Form33.Command10") return openTables(s, prompter, "Form33d");
    if (c == "Form33.Command1") {
        Outcome o = openTables(s, prompter, "Form33i");
        if (!o.completed) return o;
        for (const ScreenEffect& e : masonryFrames(s).effects) o.effects.push_back(e);
        return o;
    }
    if (c == "Form33.Command12") return openTables(s, prompter, "Form33f");
    if (c == "Form33.Command3") return calculate(s, prompter);
    for (const char* option : {"Form33i.Option1", "Form33i.Option2", "Form33i.Option3", "Form33i.Option4"})
        if (c == option) {
            s.setOption(c, true);
            return masonryFrames(s);
        }
    if (c == "Form33b.Command1") return switchTo("Form33b", "Form33", "Form33.Command4");
    if (c == "Form33c.Command1") return switchTo("Form33c", "Form33", "Form33.Command10");
    if (c == "Form33d.Command1") return switchTo("Form33d", "Form33", "Form33.Command3");
    if (c == "Form33i.Command1") return switchTo("Form33i", "Form33", "Form33.Command3");
    if (c == "Form33e.Command1") return showDiagrams(s, prompter, kBeamList, kBeamPick);
    if (c == "Form33e.Command3") return showDiagrams(s, prompter, kColumnList, kColumnPick);
    if (c == "Form33e.Command2") return switchTo("Form33e", "Form33f");
    if (c == "Form33e.Command4") return switchTo("Form33e", "Form33");
    if (c == "Form33g.Command1" || c == kBeamPick) return checkPicked(s, prompter, kBeamPick);
    if (c == "Form33h.Command1" || c == kColumnPick) return checkPicked(s, prompter, kColumnPick);
    if (c == "Form33g.Command2") return switchTo("Form33g", "Form33e");
    if (c == "Form33h.Command2") return switchTo("Form33h", "Form33e");
    if (c == "Form33f.Command1") return switchTo("Form33f", "Form33");
    return Outcome::stop();
}

Drawing Form33::drawing(const std::string& picture, const FormState& s) const {
    const std::string p = s.qualify(picture);
    if (p == "Form33f.Picture1") {
        const std::optional<FrameModel> m = frameOutline(s, kScreens);
        if (!m) return {};
        std::vector<double> forces;
        for (int i = 1; i <= m->levels(); ++i) forces.push_back(i <= dataRows(s, kForces) ? s.cellNumber(kForces, i, 1) : 0);
        return framePicture(*m, forces);
    }
    const int beam = s.selectedIndex(kBeamPick) + 1, column = s.selectedIndex(kColumnPick) + 1;
    if (p == "Form33g.Picture1") return beamDiagram(s, beam, false);
    if (p == "Form33g.Picture2") return beamDiagram(s, beam, true);
    if (p == "Form33h.Picture1") return columnDiagram(s, column, 0);
    if (p == "Form33h.Picture2") return columnDiagram(s, column, 1);
    if (p == "Form33h.Picture3") return columnDiagram(s, column, 2);
    return {};
}

void Form33::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == "Form33") writeForm33Report(state, out);
}

}  // namespace morve
