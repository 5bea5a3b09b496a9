#include "continuous/form34.h"

#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/messages.h"
#include "continuous/form34_texts.h"
#include "numeric/elementary.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

RegisterModule<Form34> registerForm34;

const std::string kBars = "Form34b.Grade1", kSupports = "Form34b.Grade2", kMoments = "Form34f.Grade1";
const std::string kNodal = "Form34c.Grade1", kBarLoads = "Form34c.Grade2", kSegments = "Form34c.Grade3";
constexpr std::size_t kNumberWidth = 9, kIndexWidth = 2;

GridDecl table(std::vector<std::string> header, int maxRows, KeyFilter filter, bool numbered) {
    GridDecl g;
    g.header = std::move(header);
    g.maxRows = maxRows;
    g.filter = filter;
    g.firstColumnLocked = numbered;
    return g;
}

// The first columns number things (a node, a support type) and take digits only.
GridDecl countColumns(GridDecl g, std::size_t columns) {
    g.columnFilters.assign(columns, KeyFilter::Digit);
    return g;
}

GridDecl results(std::vector<std::string> header) { return table(std::move(header), 0, KeyFilter::None, true); }

// On leaving a table each cell is cut to its field: two characters for a node,
// type or span, nine for a number.
void cutCells(FormState& s, const std::string& grid, int indexColumns) {
    GridRows& g = s.grid(grid);
    for (std::size_t r = 1; r < g.size(); ++r)
        for (std::size_t c = 0; c < g[r].size(); ++c) {
            const std::size_t width = static_cast<int>(c) < indexColumns ? kIndexWidth : kNumberWidth;
            if (g[r][c].size() > width) g[r][c].resize(width);
        }
}

bool blank(const std::string& cell) { return cell.find_first_not_of(' ') == std::string::npos; }

bool filledRow(const std::vector<std::string>& row) {
    for (std::size_t c = 1; c < row.size(); ++c)
        if (!blank(row[c])) return true;
    return false;
}

Outcome beamData(FormState& s, Prompter& prompter) {
    const double fck = s.number("Text1"), ecs = s.number("Text2"), phi = s.number("Text8");
    const double eref = 18275 * portable::cbrt((fck + 8) / 10);
    const int n = countIn(s, "Text3"), supports = countIn(s, "Text4");
    CheckSequence checks(prompter);
    checkConcreteRange(checks, fck, "Text1");
    checks.warnIf(ecs <= 0, msg::kPositiveEcs, "Text2")
        .askIf(ecs < 0.7 * eref || ecs > 1.3 * eref, msg::kEcsRange, "Text2")
        .askIf(phi > 5, txt34::kCreep, "Text8");
    checkSpanCount(checks, n);
    checkSupportCount(checks, supports, n);
    if (checks.stopped()) return checks.outcome();
    sizeTable(s, kBars, n, true);
    sizeTable(s, kSupports, supports, false);
    // The initial moments are per span too, so their table follows the spans.
    sizeTable(s, kMoments, n, true);
    return switchTo("Form34", "Form34b");
}

Outcome loadData(FormState& s, Prompter& prompter) {
    const int n = countIn(s, "Text3");
    const int nodal = countIn(s, "Text5"), bar = countIn(s, "Text6"), segments = countIn(s, "Text7");
    CheckSequence checks(prompter);
    checkLoadCounts(checks, nodal, bar, segments, n);
    if (checks.stopped()) return checks.outcome();
    sizeTable(s, kNodal, std::max(0, nodal), false);
    sizeTable(s, kBarLoads, std::max(0, bar), false);
    sizeTable(s, kSegments, std::max(0, segments), false);
    return switchTo("Form34", "Form34c");
}

Outcome initialMoments(FormState& s, Prompter& prompter) {
    const int n = countIn(s, "Text3");
    CheckSequence checks(prompter);
    checkSpanCount(checks, n);
    if (checks.stopped()) return checks.outcome();
    sizeTable(s, kMoments, n, true);
    return switchTo("Form34", "Form34f");
}

// What the picture screens check of the spans and supports, with the words of the
// screen that asks.
struct OutlineTexts {
    const std::string& lengths;
    const std::string& nodes;
    const std::string& types;
};

std::optional<BeamModel> readOutline(const FormState& s, CheckSequence& checks, const OutlineTexts& t) {
    BeamModel m;
    const int n = dataRows(s, kBars);
    for (int i = 1; i <= n; ++i) {
        m.length.push_back(s.cellNumber(kBars, i, 1));
        m.inertia.push_back(s.cellNumber(kBars, i, 2) / 1e8);
        m.initialMa.push_back(0);
        m.initialMb.push_back(0);
    }
    bool lengths = n > 0;
    for (double l : m.length) lengths = lengths && l > 0 && std::isfinite(l);
    checks.warnIf(!lengths, t.lengths);
    const int rows = dataRows(s, kSupports);
    bool nodes = true, types = true;
    for (int r = 1; r <= rows; ++r) {
        const double node = s.cellNumber(kSupports, r, 0), type = s.cellNumber(kSupports, r, 1);
        nodes = nodes && node >= 1 && node < n + 2;
        types = types && (type == 1 || type == 2);
        m.supports.push_back({nodes ? static_cast<int>(node) : 1, type == 2 ? SupportType::Fixed : SupportType::Simple,
                              s.cellNumber(kSupports, r, 2) / 1e6});
    }
    checks.warnIf(!nodes, t.nodes).warnIf(!types, t.types);
    if (!checks.stopped())
        checks.warnIf(rows == 1 && m.supports[0].type == SupportType::Simple, txt34::kHypostatic);
    if (checks.stopped()) return std::nullopt;
    return m;
}

Outcome showOutline(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    if (!readOutline(s, checks, {txt34::kAllLengths, txt34::kBadSupportNode, txt34::kBadSupportType}))
        return checks.outcome();
    return switchTo("Form34b", "Form34b2");
}

std::optional<BeamModel> readLoadedOutline(const FormState& s, CheckSequence& checks) {
    std::optional<BeamModel> m =
        readOutline(s, checks, {txt34::kBackLengths, txt34::kBackSupportNodes, txt34::kBackSupportTypes});
    if (!m) return m;
    readNodalLoads(s, *m, checks, "");
    readSegments(s, *m, checks, "");
    readBarLoads(s, *m, checks, txt34::kBarLoadZeroTable, "");
    if (checks.stopped()) return std::nullopt;
    return m;
}

Outcome showLoads(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    if (!readLoadedOutline(s, checks)) return checks.outcome();
    return switchTo("Form34c", "Form34c2");
}

Outcome clearLastRow(FormState& s) {
    GridRows& g = s.grid(kBars);
    for (std::size_t r = g.size(); r-- > 1;)
        if (filledRow(g[r])) {
            for (std::size_t c = 1; c < g[r].size(); ++c) g[r][c].assign(1, ' ');
            break;
        }
    return Outcome::done();
}

Outcome repeatLastRow(FormState& s) {
    GridRows& g = s.grid(kBars);
    for (std::size_t r = g.size(); r-- > 1;)
        if (filledRow(g[r])) {
            if (r + 1 < g.size())
                for (std::size_t c = 1; c < g[r].size(); ++c) g[r + 1][c] = g[r][c];
            break;
        }
    return Outcome::done();
}

std::string rounded(double v) { return formatResult(v, 2); }

void writeResults(FormState& s, const BeamModel& m, const BeamResults& r) {
    const int n = m.spans();
    GridRows& reactions = s.grid("Form34d.Grade1");
    reactions.resize(1);
    for (const ReactionRow& row : r.reactions)
        reactions.push_back({std::to_string(row.node), rounded(row.force), rounded(row.moment)});
    GridRows& shears = s.grid("Form34d.Grade2");
    GridRows& moments = s.grid("Form34d.Grade3");
    GridRows& zeros = s.grid("Form34e.Grade1");
    GridRows& peaks = s.grid("Form34e.Grade2");
    for (GridRows* g : {&shears, &moments, &zeros, &peaks}) g->resize(1);
    for (int i = 1; i <= n; ++i) {
        const SpanResult& sp = r.spans[i - 1];
        const std::string span = std::to_string(i);
        shears.push_back({span, rounded(sp.va), rounded(sp.vb)});
        const bool positive = sp.maxMoment > 0;
        moments.push_back({span, rounded(sp.ma), rounded(sp.mb), positive ? rounded(sp.maxMoment) : "Não há"});
        peaks.push_back({span, positive ? rounded(sp.maxMomentX) : " "});
        std::vector<std::string> z{span, " ", " "};
        for (std::size_t k = 0; k < sp.zeroMoments.size(); ++k) z[k + 1] = rounded(sp.zeroMoments[k]);
        zeros.push_back(z);
    }
    GridRows& design = s.grid("Form34d.Grade4");
    design.resize(1);
    for (std::size_t k = 0; k < r.design.size(); ++k) {
        const DesignRow& d = r.design[k];
        auto text = [](const std::optional<double>& v) { return v ? rounded(*v) : std::string(" "); };
        design.push_back({d.maxShear ? std::to_string(k + 1) : " ", text(d.maxShear), text(d.positiveMoment),
                          d.support ? std::to_string(*d.support) : " ", text(d.supportMoment)});
    }
}

Outcome calculate(FormState& s, Prompter& prompter) {
    CheckSequence checks(prompter);
    std::optional<BeamModel> model = readBeam(s, checks);
    if (!model) return checks.outcome();
    const std::string tooLarge = bandLimitMessage(
        {model->equations(), kBeamBandwidth, static_cast<int>(beamRestraints(*model).size()), kBeamElementOrder});
    checks.warnIf(!tooLarge.empty(), tooLarge, "Command8");
    if (checks.stopped()) return checks.outcome();
    const BeamResults r = analyseBeam(*model);
    checks.warnIf(r.status == BeamStatus::Singular, msg::kSingular)
        .warnIf(r.status == BeamStatus::TooManyReactions, txt34::kTooManyReactions, "Command8")
        .warnIf(r.status == BeamStatus::NotFinite, msg::kOutOfRange, "Command8");
    if (checks.stopped()) return checks.outcome();
    writeResults(s, *model, r);
    keepAnalysedInputs(s);
    return Outcome::done()
        .then(EffectKind::EnableControl, "Form34.Command10")
        .then(EffectKind::EnableControl, "Form34.Command1")
        .then(EffectKind::EnableControl, printButton("Form34"))
        .then(EffectKind::HideScreen, "Form34")
        .then(EffectKind::ShowScreen, "Form34d");
}

}  // namespace

std::vector<std::string> form34Inputs() {
    return {"Form34.Text1", "Form34.Text2", "Form34.Text8", "Form34.Text3", "Form34.Text4",
            "Form34.Text5", "Form34.Text6", "Form34.Text7", kBars, kSupports, kNodal, kBarLoads,
            kSegments, kMoments};
}

std::vector<std::string> Form34::projectFields() const { return form34Inputs(); }

ModuleInfo Form34::info() const {
    ModuleInfo i;
    i.key = "Form34";
    i.unloads = {"FormAjuda", "FormAbrir", "FormSalvar", "Form34b2", "Form34b", "Form34c2", "Form34c",
                 "Form34f", "Form34d", "Form34e", "Form34g"};
    i.printKey = "Form34";
    i.calculate = "Command3";
    return i;
}

std::vector<ScreenDecl> Form34::screens() const {
    ScreenBuilder main("Form34", "ESFORÇOS EM VIGAS CONTÍNUAS");
    main.frame("Frame1", "Concreto", 0, 0)
        .box("Text1", "fck(MPa)=", "20")
        .box("Text2", "Ecs(MPa)=", "25757")
        .box("Text8", "φ=", "2.5")
        .tip("Coeficiente de fluência");
    main.frame("Frame2", "Viga", 0, 1)
        .box("Text3", "Número de vãos =", "", "", KeyFilter::Digit)
        .box("Text4", "Número de apoios =", "", "", KeyFilter::Digit)
        .command("Command8", "Dados da viga");
    main.frame("Frame3", "Cargas concentradas", 1, 0)
        .box("Text5", "Diretamente nos nós =", "", "", KeyFilter::Digit)
        .box("Text6", "Aplicadas nas barras =", "", "", KeyFilter::Digit);
    main.frame("Frame4", "Cargas uniformemente distribuídas", 1, 1)
        .box("Text7", "Número de segmentos =", "", "", KeyFilter::Digit)
        .command("Command4", "Cargas")
        .command("Command12", "Momentos iniciais");
    main.frame("Frame5", "", 2, 0, 1, 2)
        .command("Command3", "&CALCULAR")
        .command("Command10", "Diagramas de esforços").disabled()
        .command("Command1", "Deformada").disabled();

    ScreenBuilder bars("Form34b", "Dados da viga", false);
    bars.frame("Frame1", "Dados das barras", 0, 0)
        // Lengths and inertias are quantities: "4.5" stays 4.5.
        .grid("Grade1", table({"Vão", "L (m)", "I (cm4)"}, kBeamMaxSpans, KeyFilter::PositiveNumber, true))
        .command("Command4", "Limpar a última linha")
        .command("Command5", "Repetir a última linha");
    bars.frame("Frame2", "Apoios", 0, 1)
        .grid("Grade2", countColumns(table({"Nó", "Tipo", "Ig (cm3)"}, kBeamMaxSupports, KeyFilter::PositiveNumber, false), 2))
        .label("Label1", "Tipo 1: Apoio simples;  Tipo 2: Engaste");
    bars.frame("Frame3", "", 1, 0, 1, 2)
        .label("Label2", "Ig = 6(Isup/Lsup+Iinf/Linf)")
        .label("Label3", "Ig = inércia equivalente dos pilares")
        .label("Label4", "Isup , Lsup = inércia e altura do pilar superior")
        .label("Label5", "Inf , Linf = inércia e altura do pilar inferior")
        .label("Label6", msg::kGridsArrows)
        .command("Command1", "Ver desenho")
        .command("Command2", "OK");

    ScreenBuilder loads("Form34c", "Cargas", false);
    loads.frame("Frame1", "Cargas nodais", 0, 0)
        .grid("Grade1", table({"Nó", "Força (kN)", "Momento (kNm)"}, kBeamMaxSpans + 1, KeyFilter::SignedNumber, false));
    loads.frame("Frame2", "Cargas nas barras", 0, 1)
        .grid("Grade2", table({"Vão", "a (m)", "P (kN)", "M (kNm)"}, kBeamMaxBarLoads, KeyFilter::SignedNumber, false));
    loads.frame("Frame3", "Cargas uniformes", 1, 0)
        .grid("Grade3", table({"Vão", "s (m)", "c (m)", "q (kN/m)"}, kBeamMaxSegments, KeyFilter::SignedNumber, false));
    loads.frame("Frame4", "Convenção", 1, 1)
        .label("Label1", "Forças positivas: dirigidas para baixo")
        .label("Label2", "Momentos positivos: sentido horário")
        .label("Label3", "Nó i  ———  Nó i+1")
        .label("Label4", msg::kGridsArrows)
        .command("Command1", "Ver carregamento")
        .command("Command2", "OK");

    ScreenBuilder initial("Form34f", "Momentos iniciais", false);
    initial.frame("Frame1", "Momentos iniciais", 0, 0)
        .grid("Grade1", table({"Vão", "Ma (kNm)", "Mb (kNm)"}, kBeamMaxSpans, KeyFilter::SignedNumber, true))
        .label("Label1", "Ma e Mb são os momentos fletores nas extremidades das barras devidos a outros "
                         "tipos de cargas como, por exemplo, o vento.")
        .label("Label2", "Entre com o sinal algébrico")
        .command("Command2", "OK");

    ScreenBuilder outline("Form34b2", "Dados da viga", false);
    outline.frame("Frame1", "", 0, 0).picture("Picture1", 760, 260).command("Command1", "&Voltar");
    ScreenBuilder loaded("Form34c2", "Carregamento", false);
    loaded.frame("Frame1", "", 0, 0).picture("Picture1", 760, 300);
    loaded.frame("Frame2", "", 1, 0)
        .label("Label1", "Vãos : m  ;  Carga distribuída: kN/m ;  Carga concentrada: kN ;  Momento: kNm")
        .command("Command1", "&Voltar");

    ScreenBuilder tables("Form34d", "Resultados", false);
    tables.frame("Frame1", "Reações de apoio", 0, 0)
        .grid("Grade1", results({"Nó", "Força", "Momento"}))
        .label("Label1", "Convenção: força positiva é dirigida para cima;  momento positivo gira no "
                         "sentido anti-horário");
    tables.frame("Frame2", "Esforços cortantes", 0, 1)
        .grid("Grade2", results({"Vão", "Va", "Vb"}))
        .label("Label2", "Va : positivo para cima")
        .label("Label3", "Vb: positivo para baixo");
    tables.frame("Frame3", "Momentos fletores", 1, 0)
        .grid("Grade3", results({"Vão", "Ma", "Mb", "M máx"}))
        .label("Label4", "(O momento é positivo quando traciona a face inferior)");
    tables.frame("Frame4", "Esforços para dimensionamento", 1, 1)
        .grid("Grade4", results({"Vão", "V", "M vão", "Apoio", "M apoio"}));
    tables.frame("Frame5", "", 2, 0, 1, 2).command("Command2", "OK");

    ScreenBuilder diagrams("Form34e", "Diagramas de esforços", false);
    diagrams.frame("Frame1", "Diagrama de momentos fletores (kNm)", 0, 0, 1, 2).picture("Picture1", 760, 230);
    diagrams.frame("Frame2", "Diagrama de esforços cortantes (kN)", 1, 0, 1, 2).picture("Picture2", 760, 230);
    diagrams.frame("Frame3", "Pontos de momento nulo", 2, 0)
        .grid("Grade1", results({"Vão", "x1", "x2"}))
        .label("Label1", "x1 e x2 = distâncias dos pontos de momento nulo até o início de cada vão");
    diagrams.frame("Frame4", "Pontos de momento máximo", 2, 1)
        .grid("Grade2", results({"Vão", "x"}))
        .label("Label2", "x = distância do ponto de momento máximo até o início de cada vão")
        .command("Command1", "&Voltar");

    ScreenBuilder deformed("Form34g", "Deformada", false);
    deformed.frame("Frame1", "", 0, 0)
        .label("Label1", "Deformada da viga. Flechas em mm")
        .picture("Picture1", 760, 200)
        .command("Command1", "&Voltar");

    return {main.build(),    bars.build(),   loads.build(),   initial.build(), outline.build(),
            loaded.build(),  tables.build(), diagrams.build(), deformed.build()};
}

void Form34::load(FormState& state, const StartDefaults& defaults) const {
    if (readNumber(defaults.list(1)) <= 0) return;
    state.setText("Text1", defaults.list(1));
    state.setText("Text2", defaults.ecsText());
}

Outcome Form34::press(const std::string& command, FormState& s, Prompter& prompter) const {
    const std::string c = s.qualify(command);
    if (c == "Form34.Command8") return beamData(s, prompter);
    if (c == "Form34.Command4") return loadData(s, prompter);
    if (c == "Form34.Command12") return initialMoments(s, prompter);
    if (c == "Form34.Command3") return calculate(s, prompter);
    if (c == "Form34.Command10") return switchTo("Form34", "Form34e");
    if (c == "Form34.Command1") return switchTo("Form34", "Form34g");
    if (c == "Form34b.Command1") return showOutline(s, prompter);
    if (c == "Form34b.Command4") return clearLastRow(s);
    if (c == "Form34b.Command5") return repeatLastRow(s);
    if (c == "Form34b.Command2") {
        cutCells(s, kBars, 1);
        cutCells(s, kSupports, 2);
        return switchTo("Form34b", "Form34", "Form34.Command4");
    }
    if (c == "Form34c.Command1") return showLoads(s, prompter);
    if (c == "Form34c.Command2") {
        cutCells(s, kNodal, 1);
        cutCells(s, kBarLoads, 1);
        cutCells(s, kSegments, 1);
        return switchTo("Form34c", "Form34", "Form34.Command3");
    }
    if (c == "Form34f.Command2") {
        cutCells(s, kMoments, 1);
        return switchTo("Form34f", "Form34");
    }
    if (c == "Form34d.Command2") return switchTo("Form34d", "Form34");
    for (const char* screen : {"Form34b2", "Form34c2"})
        if (c == std::string(screen) + ".Command1")
            return switchTo(screen, std::string(screen).substr(0, 7));
    for (const char* screen : {"Form34e", "Form34g"})
        if (c == std::string(screen) + ".Command1") return switchTo(screen, "Form34");
    return Outcome::stop();
}

Drawing Form34::drawing(const std::string& picture, const FormState& s) const {
    const std::string p = s.qualify(picture);
    if (p == "Form34b2.Picture1" || p == "Form34c2.Picture1") {
        ScriptedPrompter quiet;
        CheckSequence checks(quiet);
        const bool loads = p == "Form34c2.Picture1";
        std::optional<BeamModel> m =
            loads ? readLoadedOutline(s, checks)
                  : readOutline(s, checks, {txt34::kAllLengths, txt34::kBadSupportNode, txt34::kBadSupportType});
        return m ? beamPicture(*m, loads) : Drawing{};
    }
    const std::optional<AnalysedBeam> beam = lastAnalysis(s);
    if (!beam) return {};
    if (p == "Form34e.Picture1") return momentDiagram(*beam);
    if (p == "Form34e.Picture2") return shearDiagram(*beam);
    if (p == "Form34g.Picture1") return deformedShape(*beam);
    return {};
}

void Form34::report(const std::string& key, const FormState& state, ReportWriter& out) const {
    if (key == "Form34") writeForm34Report(state, out);
}

}  // namespace morve
