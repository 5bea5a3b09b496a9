#include "beams/detailing.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/materials.h"
#include "beams/bending.h"

namespace morve {

const DetailingSetup& form8Setup() {
    static const DetailingSetup setup = [] {
        DetailingSetup d;
        d.design = "Form7";
        d.screen = "Form8";
        d.results = "Form8b";
        d.fck = "Form7.Text1";
        d.fyk = "Form7.Text2";
        d.es = "Form7.Text9";
        d.width = "Form7.Text3";
        d.height = "Form7.Text4";
        d.moment = "Form7.Text6";
        return d;
    }();
    return setup;
}

const DetailingSetup& form10bSetup() {
    static const DetailingSetup setup = [] {
        DetailingSetup d;
        d.design = "Form10";
        d.screen = "Form10b";
        d.results = "Form10c";
        d.fck = "Form10.Text1";
        d.fyk = "Form10.Text2";
        d.es = "Form10.Text3";
        d.width = "Form10.Text6";  // bars, cover and vibrator all live in the web
        d.height = "Form10.Text7";
        d.moment = "Form10.Text10";
        d.flangeWidth = "Form10.Text4";
        d.flangeThickness = "Form10.Text5";
        d.signedMoment = false;
        d.aggregateWidthMessage =
            "Limite o diâmetro do agregado em 25% da largura da nervura. Escolha outro valor.";
        // The flange is wide: only the web is checked for two bars a layer.
        d.checkTopFace = false;
        d.bottomTwoBarsMessage =
            "Não é possível colocar 2 barras por camada na nervura. Revise o seu projeto.";
        d.vibratorMessage = "Não é possível introduzir o vibrador na nervura. Revise o seu projeto.";
        d.topSecondLayerMessage = "Aumente o diâmetro da armadura de compressão.";
        return d;
    }();
    return setup;
}

namespace {

const std::string kTopTwoBars =
    "Não é possível colocar 2 barras por camada na face superior. Revise o seu projeto.";
const std::string kBottomSecondLayer =
    "Não há espaço para o vibrador na segunda camada da face inferior. Revise o seu projeto.";
const std::string kBottomTooManyLayers =
    "Resultou mais de 10 camadas na face inferior. Revise o seu projeto.";
const std::string kTopTooManyLayers =
    "Resultou mais de 10 camadas na face superior. Revise o seu projeto.";
const std::string kCalculateFirst = "Altere os dados e clique em CALCULAR.";
const std::string kFirstLayerTooFar =
    "A distância do centróide da armadura tracionada até a primeira camada é superior a 0,1h. "
    "Segundo a NBR-6118, deve-se considerar a disposição correta das barras. Use o módulo "
    "VERIFICAÇÃO ou revise o seu projeto.";
const std::string kRedesign =
    "É necessário refazer o dimensionamento com os valores corretos da altura útil (d) e da "
    "distância (d').";

constexpr int kMaxLayers = 10;

std::string coverMessage(int cls) {
    static const char* const roman[] = {"", "I", "II", "III", "IV"};
    static const char* const cover[] = {"", "2.5", "3", "4", "5"};
    return std::string("O cobrimento mínimo para a classe de agressividade ") + roman[cls] +
           " é igual a " + cover[cls] + " cm. Aumente o cobrimento das armaduras.";
}

std::string q(const DetailingSetup& s, const char* control) { return s.screen + "." + control; }
std::string r(const DetailingSetup& s, const char* control) { return s.results + "." + control; }

bool blank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

// The face that takes the tension bars.
bool tensionOnTop(const DetailingSetup& s, const FormState& state) {
    return s.signedMoment && state.number(s.moment) <= 0;
}

// Clear spacing of bars of phi (cm), with aggregate in mm and a factor of 1.2
// across a layer, 0.5 between layers: at least 2 cm and one bar.
double spacing(double aggregateMm, double factor, double phi) {
    return std::max({aggregateMm * factor / 10, 2.0, phi});
}

std::string joinCounts(const std::vector<int>& counts) {
    std::string out;
    for (int n : counts) {
        if (!out.empty()) out += ' ';
        out += std::to_string(n);
    }
    return out;
}

std::vector<int> splitCounts(const std::string& text) {
    std::vector<int> out;
    std::istringstream in(text);
    for (int n; in >> n;) out.push_back(n);
    return out;
}

std::string layersVar(const DetailingSetup& s, bool top) {
    return s.results + (top ? ".layers.top" : ".layers.bottom");
}

// One face as placed: bar size, layers and every bar's centre, in cm from the top
// left corner of the section (the flange's corner for a T).
struct FaceBars {
    double phi = 0;
    std::vector<int> counts;
    std::vector<double> depths;
    std::vector<std::vector<double>> xs;
};

struct SectionBars {
    double b = 0, h = 0, bf = 0, hf = 0, webLeft = 0, cover = 0, stirrup = 0;
    FaceBars top, bottom;
};

// Centres across a layer. The first layer spreads its bars evenly between the two
// outer positions. A layer after it leaves the vibrator's gap in the middle: half
// the bars stand against each side at the clear spacing e. The layer of the rest
// may have an odd count: its extra bar goes to the left half, so a single bar
// stands against the left side and the gap stays free.
std::vector<double> layerCentres(int n, bool firstLayer, double left, double right, double pitch) {
    std::vector<double> xs;
    if (n <= 0) return xs;
    if (firstLayer) {
        if (n == 1) return {(left + right) / 2};
        for (int i = 0; i < n; ++i) xs.push_back(left + i * (right - left) / (n - 1));
        return xs;
    }
    const int onLeft = (n + 1) / 2;
    for (int i = 0; i < onLeft; ++i) xs.push_back(left + i * pitch);
    for (int i = 0; i < n - onLeft; ++i) xs.push_back(right - i * pitch);
    return xs;
}

FaceBars placeFace(const SectionBars& sec, double phiMm, const std::vector<int>& counts, bool top,
                   double aggregateMm) {
    FaceBars f;
    f.phi = phiMm / 10;
    f.counts = counts;
    const double t = (phiMm * 0.5 + sec.stirrup) / 10 + sec.cover;  // edge to bar centre
    const double ev = spacing(aggregateMm, 0.5, f.phi);
    const double e = spacing(aggregateMm, 1.2, f.phi);
    const double left = sec.webLeft + t, right = sec.webLeft + sec.b - t;
    for (std::size_t k = 0; k < counts.size(); ++k) {
        const double offset = t + static_cast<double>(k) * (f.phi + ev);
        f.depths.push_back(top ? offset : sec.h - offset);
        f.xs.push_back(layerCentres(counts[k], k == 0, left, right, f.phi + e));
    }
    return f;
}

SectionBars sectionBars(const DetailingSetup& s, const FormState& state) {
    SectionBars sec;
    sec.b = state.number(s.width);
    sec.h = state.number(s.height);
    if (!s.flangeWidth.empty()) {
        sec.bf = state.number(s.flangeWidth);
        sec.hf = state.number(s.flangeThickness);
        sec.webLeft = std::max(0.0, (sec.bf - sec.b) / 2);
    }
    sec.cover = state.number(q(s, "List4"));
    sec.stirrup = state.number(q(s, "List3"));
    const double aggregate = state.number(q(s, "List5"));
    sec.top = placeFace(sec, state.number(q(s, "Text8")), splitCounts(state.var(layersVar(s, true))),
                        true, aggregate);
    sec.bottom = placeFace(sec, state.number(q(s, "Text5")),
                           splitCounts(state.var(layersVar(s, false))), false, aggregate);
    return sec;
}

double meanDepth(const FaceBars& f) {
    double n = 0, sum = 0;
    for (std::size_t k = 0; k < f.counts.size(); ++k) {
        n += f.counts[k];
        sum += f.counts[k] * f.depths[k];
    }
    return n > 0 ? sum / n : 0;
}

Outcome preliminary(const DetailingSetup& s, FormState& state, Prompter& prompter) {
    for (const char* box : {"Text3", "Text5", "Text9", "Text6", "Text8", "Text10"})
        state.setText(q(s, box), "");
    const double phit = state.number(q(s, "List1")), phic = state.number(q(s, "List2"));
    const double phie = state.number(q(s, "List3")), c = state.number(q(s, "List4"));
    const double aggregate = state.number(q(s, "List5")), vibrator = state.number(q(s, "List6"));
    const double b = state.number(s.width);

    CheckSequence checks(prompter);
    checks.warnIf(state.text(q(s, "List1")).empty(), "Escolha o diâmetro da armadura tracionada.",
                  q(s, "List1"))
        .warnIf(state.text(q(s, "List2")).empty(), "Escolha o diâmetro da armadura comprimida.",
                q(s, "List2"))
        .warnIf(state.text(q(s, "List3")).empty(), "Escolha o diâmetro dos estribos.", q(s, "List3"));
    // Class I asks no more than the smallest cover of the list.
    if (auto cls = AggressivenessClass(state.var("AggressivenessClass")); cls && cls->cls > 1)
        checks.warnIf(c < cls->beamCover, coverMessage(cls->cls), q(s, "List4"));
    checks.warnIf(state.text(q(s, "List5")).empty(), "Escolha o diâmetro máximo do agregado.",
                  q(s, "List5"))
        .warnIf(state.text(q(s, "List6")).empty(), "Escolha o espaço para o vibrador.", q(s, "List6"))
        .warnIf(aggregate > b * 10 / 4, s.aggregateWidthMessage, q(s, "List5"))
        // The text says 20% of the cover; the rule is 1.2 times it, in mm.
        .warnIf(aggregate > 12 * c,
                "De acordo com a NBR-6118, o diâmetro máximo do agregado não pode superar 20% do "
                "cobrimento nominal. Escolha outro valor.",
                q(s, "List5"));
    if (checks.stopped()) return checks.outcome();

    const bool topTension = tensionOnTop(s, state);
    const double phiTop = topTension ? phit : phic, phiBottom = topTension ? phic : phit;
    const double wtop = b - 2 * c - 2 * (phie + phiTop) / 10;
    const double wbot = b - 2 * c - 2 * (phie + phiBottom) / 10;
    if (s.checkTopFace) checks.warnIf(spacing(aggregate, 1.2, phiTop / 10) > wtop, kTopTwoBars);
    checks.warnIf(spacing(aggregate, 1.2, phiBottom / 10) > wbot, s.bottomTwoBarsMessage)
        .warnIf(vibrator > wtop, s.vibratorMessage);
    if (checks.stopped()) return checks.outcome();

    const int nt = barCount(state.number(q(s, "Text1")), phit);
    const int nc = barCount(state.number(q(s, "Text2")), phic);
    const std::string ast = formatResult(nt * BarCatalogue::barArea(phit));
    const std::string asc = formatResult(nc * BarCatalogue::barArea(phic));
    const std::string& dt = state.text(q(s, "List1"));
    const std::string& dc = state.text(q(s, "List2"));
    auto face = [&](const char* count, const char* diameter, const char* area, int n,
                    const std::string& phi, const std::string& as) {
        state.setText(q(s, count), std::to_string(n));
        state.setText(q(s, diameter), phi);
        state.setText(q(s, area), as);
    };
    face("Text3", "Text5", "Text9", topTension ? nc : nt, topTension ? dc : dt, topTension ? asc : ast);
    face("Text6", "Text8", "Text10", topTension ? nt : nc, topTension ? dt : dc, topTension ? ast : asc);
    return Outcome::done().then(EffectKind::EnableControl, q(s, "Command3"));
}

Outcome viewSection(const DetailingSetup& s, FormState& state, Prompter& prompter) {
    if (blank(state.text(q(s, "Text5"))) || blank(state.text(q(s, "Text8")))) {
        prompter.warn(kCalculateFirst);
        return Outcome::stop(q(s, "Command2"));
    }
    Outcome shown = Outcome::done();
    shown.then(EffectKind::DisableScreen, s.screen).then(EffectKind::ShowScreen, s.results);
    for (const char* box : {"Text2", "Text4", "Text7", "Text9", "Text12", "Text14"})
        state.setText(r(s, box), "");
    state.setVar(layersVar(s, true), "");
    state.setVar(layersVar(s, false), "");

    const double phie = state.number(q(s, "List3")), c = state.number(q(s, "List4"));
    const double aggregate = state.number(q(s, "List5")), vibrator = state.number(q(s, "List6"));
    const double width = state.number(s.width) - 2 * (phie / 10 + c);  // inside the stirrup

    auto fail = [&](const std::string& message) {
        prompter.warn(message);
        Outcome o = Outcome::stop();
        o.effects = shown.effects;
        o.then(EffectKind::HideScreen, s.results).then(EffectKind::EnableScreen, s.screen);
        return o;
    };
    for (bool top : {false, true}) {
        const double phi = state.number(q(s, top ? "Text8" : "Text5")) / 10;
        const int n = static_cast<int>(state.number(q(s, top ? "Text6" : "Text3")));
        LayerFit fit = fitLayers(n, width, phi, spacing(aggregate, 1.2, phi), vibrator);
        if (fit.stop == LayerStop::NoSecondLayer)
            return fail(top ? s.topSecondLayerMessage : kBottomSecondLayer);
        if (fit.stop == LayerStop::TooManyLayers)
            return fail(top ? kTopTooManyLayers : kBottomTooManyLayers);
        state.setVar(layersVar(s, top), joinCounts(fit.counts));
    }

    const SectionBars sec = sectionBars(s, state);
    const bool topTension = tensionOnTop(s, state);
    double d, dPrime, distance;
    if (!topTension) {
        d = meanDepth(sec.bottom);
        dPrime = meanDepth(sec.top);
        distance = sec.bottom.depths.front() - d;
    } else {
        d = sec.h - meanDepth(sec.top);
        dPrime = sec.h - meanDepth(sec.bottom);
        distance = meanDepth(sec.top) - sec.top.depths.front();
    }
    state.setText(r(s, "Text2"), state.text(q(s, "Text6")));
    state.setText(r(s, "Text4"), state.text(q(s, "Text8")));
    state.setText(r(s, "Text7"), state.text(q(s, "Text3")));
    state.setText(r(s, "Text9"), state.text(q(s, "Text5")));
    state.setText(r(s, "Text12"), formatResult(d));
    state.setText(r(s, "Text14"), formatResult(dPrime));

    if (distance > 0.1 * sec.h) {
        prompter.warn(kFirstLayerTooFar);
        Outcome o = Outcome::stop();
        o.effects = shown.effects;
        return o;
    }

    const RedesignSection section{sec.b, sec.bf, sec.hf};
    const RequiredSteel req = redesignWithTrueDepths(section, std::fabs(state.number(s.moment)), d, dPrime,
                                                     state.number(s.fck), state.number(s.fyk),
                                                     state.number(s.es));
    const double bottomArea = state.number(q(s, "Text3")) * BarCatalogue::barArea(state.number(q(s, "Text5")));
    const double topArea = state.number(q(s, "Text6")) * BarCatalogue::barArea(state.number(q(s, "Text8")));
    const double asEf = topTension ? topArea : bottomArea;
    const double asPrimeEf = topTension ? bottomArea : topArea;
    if (!req.possible || asPrimeEf < req.asPrime || asEf < req.as) prompter.warn(kRedesign);
    return shown;
}

}  // namespace

int barCount(double area, double diameterMm) {
    const double ratio = area / BarCatalogue::barArea(diameterMm);
    if (!std::isfinite(ratio) || ratio <= 2) return 2;
    // A ratio that the box's two decimals leave a hair above a whole number is that number.
    const double whole = std::round(ratio);
    if (std::fabs(ratio - whole) < 1e-9) return static_cast<int>(whole);
    return static_cast<int>(std::ceil(ratio));
}

LayerFit fitLayers(int n, double width, double phi, double e, double vibrator) {
    LayerFit fit;
    const int n1 = static_cast<int>(std::floor((e + width) / (phi + e)));
    if (n <= n1) {
        fit.counts = {n};
        return fit;
    }
    int n2 = static_cast<int>(std::floor((2 * e + width - vibrator) / (phi + e)));
    if (n2 % 2 != 0) n2 -= 1;  // the gap stays in the middle
    if (n2 <= 0 || n1 <= 0) {
        fit.stop = LayerStop::NoSecondLayer;
        return fit;
    }
    const int layers = 1 + (n - n1 + n2 - 1) / n2;
    if (layers > kMaxLayers) {
        fit.stop = LayerStop::TooManyLayers;
        return fit;
    }
    fit.counts.push_back(n1);
    for (int rest = n - n1; rest > 0; rest -= n2) fit.counts.push_back(std::min(rest, n2));
    return fit;
}

RequiredSteel redesignWithTrueDepths(const RedesignSection& section, double mk, double d,
                                     double dPrime, double fck, double fyk, double es) {
    // Fixed on purpose: the check of the bars does not follow the design module's
    // coefficients, criterion or concrete class.
    const StressBlockValues block{0.8, 0.85, 3.5};
    const double fcd = fck / 10 / 1.4, fyd = fyk / 10 / 1.15, esKn = es * 100;
    const double sigmacd = 0.85 * fcd;
    const double xlim = 0.0035 / (fyd / esKn + 0.0035);
    const double md = 1.4 * mk * 100;
    const double reference = section.bf > 0 ? section.bf : section.b;
    const double mu = md / (reference * d * d * sigmacd);
    // A T keeps its flange: the bars are checked against the section the design counted on.
    const ReducedSteel steel =
        section.bf > 0
            ? designTee(mu, xlim, section.hf / d, section.b / section.bf, dPrime / d, block, esKn, fyd).steel
            : designRectangle(mu, xlim, dPrime / d, block, esKn, fyd);
    RequiredSteel req;
    if (steel.stop != BendingStop::None || !std::isfinite(steel.omega) ||
        !std::isfinite(steel.omegaPrime)) {
        req.possible = false;
        return req;
    }
    const double unit = reference * d * sigmacd / fyd;
    req.as = steel.omega * unit;
    req.asPrime = steel.omegaPrime * unit;
    return req;
}

ScreenDecl detailingScreen(const DetailingSetup& s) {
    ScreenBuilder b(s.screen, "DETALHAMENTO DAS ARMADURAS", false);
    b.frame("Frame1", "Áreas calculadas (cm2)", 0, 0)
        .result("Text1", "Armadura tracionada:")
        .result("Text2", "Armadura comprimida:");
    b.frame("Frame2", "Barras", 1, 0)
        .list("List1", "Diâmetro da armadura tracionada:", BarCatalogue::tensionBars())
        .tip(BarCatalogue::kBarListTip)
        .list("List2", "Diâmetro da armadura comprimida:", BarCatalogue::compressionBars())
        .tip(BarCatalogue::kBarListTip)
        .list("List3", "Diâmetro dos estribos:", BarCatalogue::stirrups())
        .tip(BarCatalogue::kBarListTip);
    b.frame("Frame3", "Restrições", 1, 1)
        .list("List4", "Cobrimento das armaduras (cm):", BarCatalogue::covers())
        .list("List5", "Diâmetro máximo do agregado (mm):", BarCatalogue::aggregates())
        .list("List6", "Espaço para o vibrador (cm):", BarCatalogue::vibratorSpaces());
    b.frame("Frame4", "", 2, 0, 1, 2)
        .result("Text3", "NA FACE INFERIOR:")
        .result("Text5", "barras de", "mm")
        .result("Text9", "", "cm2")
        .result("Text6", "NA FACE SUPERIOR:")
        .result("Text8", "barras de", "mm")
        .result("Text10", "", "cm2");
    b.frame("Frame5", "", 0, 1)
        .command("Command2", "&CALCULAR")
        .command("Command3", "Ver seção")
        .disabled()
        .command("Command1", "&Voltar", "Resolver outro exemplo ou alterar dados")
        .command("Command6", "Aj&uda");
    return b.build();
}

ScreenDecl detailingResultScreen(const DetailingSetup& s) {
    ScreenBuilder b(s.results, "SOLUÇÃO FINAL", false);
    b.frame("Frame1", "SOLUÇÃO FINAL", 0, 0)
        .result("Text2", "Armadura superior:")
        .result("Text4", "barras de", "mm")
        .result("Text7", "Armadura inferior:")
        .result("Text9", "barras de", "mm")
        .result("Text12", "Altura útil correta (cm) =")
        .result("Text14", "Distância d' correta (cm) =");
    b.frame("Frame2", "", 0, 1, 2, 1).picture("Picture1", 420, 280);
    b.frame("Frame3", "", 1, 0)
        .command("Command1", "&Voltar")
        .command("Command2", "Im&primir");
    return b.build();
}

bool isDetailingCommand(const DetailingSetup& s, const std::string& command) {
    return command.rfind(s.screen + ".", 0) == 0 || command.rfind(s.results + ".", 0) == 0;
}

Outcome pressDetailing(const DetailingSetup& s, const std::string& command, FormState& state,
                       Prompter& prompter) {
    if (command == q(s, "Command2")) return preliminary(s, state, prompter);
    if (command == q(s, "Command3")) return viewSection(s, state, prompter);
    if (command == q(s, "Command1"))
        return Outcome::done().then(EffectKind::HideScreen, s.screen).then(EffectKind::ShowScreen, s.design);
    if (command == q(s, "Command6")) return Outcome::done().then(EffectKind::ShowScreen, "FormAjuda");
    if (command == r(s, "Command1"))
        return Outcome::done()
            .then(EffectKind::HideScreen, s.results)
            .then(EffectKind::EnableScreen, s.screen);
    if (command == r(s, "Command2"))
        return Outcome::done()
            .then(EffectKind::StartReport, s.results)
            .then(EffectKind::DisableScreen, s.results);
    return Outcome::stop();
}

Drawing detailingDrawing(const DetailingSetup& s, const FormState& state) {
    const SectionBars sec = sectionBars(s, state);
    if (sec.top.counts.empty() || sec.bottom.counts.empty() || sec.b <= 0 || sec.h <= 0) return {};
    // The section fits a box of 4200 by 2300 units centred at (2600, 1377), scaled
    // on its width or its height, whichever is tighter. A T is scaled on its flange.
    const double overall = sec.bf > sec.b ? sec.bf : sec.b;
    const double scale = std::min(4200 / overall, 2300 / sec.h);
    const double x0 = 2600 - overall * scale / 2, y0 = 1377 - sec.h * scale / 2;
    auto at = [&](double x, double y) { return Point{x0 + x * scale, y0 + y * scale}; };

    Drawing g;
    g.left = 0;
    g.top = 0;
    g.right = 5600;
    g.bottom = 3000;
    g.fitContent = true;
    g.unit = DrawingUnit::Centimetre;
    g.perCoordinate = 1 / scale;
    const double right = overall, webL = sec.webLeft, webR = sec.webLeft + sec.b;
    if (sec.bf > sec.b) {
        // The whole T: flange on top, web centred under it. The bars of the top face
        // stay inside the web's stirrup, as the widths were checked on the web.
        g.polyline({at(0, 0), at(sec.bf, 0), at(sec.bf, sec.hf), at(webR, sec.hf), at(webR, sec.h),
                    at(webL, sec.h), at(webL, sec.hf), at(0, sec.hf)},
                   true, colours::black, 2);
    } else {
        g.rectangle(at(0, 0), at(sec.b, sec.h), colours::black, 2);
    }
    const double inset = sec.cover + sec.stirrup / 20;
    g.as(ShapeKind::Bars).rectangle(at(webL + inset, inset), at(webR - inset, sec.h - inset), colours::grey, 1);
    for (const FaceBars* face : {&sec.top, &sec.bottom}) {
        const Colour colour = face == &sec.top ? colours::blue : colours::red;
        for (std::size_t k = 0; k < face->counts.size(); ++k)
            for (double x : face->xs[k])
                g.circle(at(x, face->depths[k]), face->phi / 2 * scale, colour, true);
    }
    g.as(ShapeKind::Outline);
    // Dimension lines at 260 units from the section with their labels at 312: h
    // beside the right edge, the width of the bars' part under it, the flange over it.
    const double xr = x0 + right * scale, yb = y0 + sec.h * scale;
    g.dimension({xr + 260, y0}, {xr + 260, yb}, "", 0, 0);
    g.text({xr + 312, (y0 + yb) / 2}, "h = " + state.text(s.height) + " cm", 9, TextAlign::Left);
    const std::string webName = sec.bf > sec.b ? "bw = " : "b = ";
    g.dimension({x0 + webL * scale, yb + 260}, {x0 + webR * scale, yb + 260},
                webName + state.text(s.width) + " cm", 0, 140);
    if (sec.bf > sec.b)
        g.dimension({x0, y0 - 260}, {xr, y0 - 260}, "bf = " + state.text(s.flangeWidth) + " cm", 0, -140);
    return g;
}

}  // namespace morve
