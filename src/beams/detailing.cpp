#include "beams/detailing.h"

#include <algorithm>
#include <cmath>

#include "app/numbers.h"
#include "basis/checks.h"
#include "basis/materials.h"
#include "beams/bending.h"
#include "beams/detailing_bars.h"

namespace morve {

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

bool blank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

Outcome preliminary(const DetailingSetup& s, FormState& state, Prompter& prompter) {
    for (const char* box : {"Text3", "Text5", "Text9", "Text6", "Text8", "Text10"})
        state.setText(detailingBox(s, box), "");
    const double phit = state.number(detailingBox(s, "List1")), phic = state.number(detailingBox(s, "List2"));
    const double phie = state.number(detailingBox(s, "List3")), c = state.number(detailingBox(s, "List4"));
    const double aggregate = state.number(detailingBox(s, "List5")), vibrator = state.number(detailingBox(s, "List6"));
    const double b = state.number(s.width);

    CheckSequence checks(prompter);
    checks.warnIf(state.text(detailingBox(s, "List1")).empty(), "Escolha o diâmetro da armadura tracionada.",
                  detailingBox(s, "List1"))
        .warnIf(state.text(detailingBox(s, "List2")).empty(), "Escolha o diâmetro da armadura comprimida.",
                detailingBox(s, "List2"))
        .warnIf(state.text(detailingBox(s, "List3")).empty(), "Escolha o diâmetro dos estribos.", detailingBox(s, "List3"));
    // Class I asks no more than the smallest cover of the list.
    if (auto cls = AggressivenessClass(state.var("AggressivenessClass")); cls && cls->cls > 1)
        checks.warnIf(c < cls->beamCover, coverMessage(cls->cls), detailingBox(s, "List4"));
    checks.warnIf(state.text(detailingBox(s, "List5")).empty(), "Escolha o diâmetro máximo do agregado.",
                  detailingBox(s, "List5"))
        .warnIf(state.text(detailingBox(s, "List6")).empty(), "Escolha o espaço para o vibrador.", detailingBox(s, "List6"))
        .warnIf(aggregate > b * 10 / 4, s.aggregateWidthMessage, detailingBox(s, "List5"))
        // The text says 20% of the cover; the rule is 1.2 times it, in mm.
        .warnIf(aggregate > 12 * c,
                "De acordo com a NBR-6118, o diâmetro máximo do agregado não pode superar 20% do "
                "cobrimento nominal. Escolha outro valor.",
                detailingBox(s, "List5"));
    if (checks.stopped()) return checks.outcome();

    const bool topTension = tensionOnTop(s, state);
    const double phiTop = topTension ? phit : phic, phiBottom = topTension ? phic : phit;
    const double wtop = b - 2 * c - 2 * (phie + phiTop) / 10;
    const double wbot = b - 2 * c - 2 * (phie + phiBottom) / 10;
    if (s.checkTopFace) checks.warnIf(clearSpacing(aggregate, 1.2, phiTop / 10) > wtop, kTopTwoBars);
    checks.warnIf(clearSpacing(aggregate, 1.2, phiBottom / 10) > wbot, s.bottomTwoBarsMessage)
        .warnIf(vibrator > wtop, s.vibratorMessage);
    if (checks.stopped()) return checks.outcome();

    const int nt = barCount(state.number(detailingBox(s, "Text1")), phit);
    const int nc = barCount(state.number(detailingBox(s, "Text2")), phic);
    const std::string ast = formatResult(nt * BarCatalogue::barArea(phit));
    const std::string asc = formatResult(nc * BarCatalogue::barArea(phic));
    const std::string& dt = state.text(detailingBox(s, "List1"));
    const std::string& dc = state.text(detailingBox(s, "List2"));
    auto face = [&](const char* count, const char* diameter, const char* area, int n,
                    const std::string& phi, const std::string& as) {
        state.setText(detailingBox(s, count), std::to_string(n));
        state.setText(detailingBox(s, diameter), phi);
        state.setText(detailingBox(s, area), as);
    };
    face("Text3", "Text5", "Text9", topTension ? nc : nt, topTension ? dc : dt, topTension ? asc : ast);
    face("Text6", "Text8", "Text10", topTension ? nt : nc, topTension ? dt : dc, topTension ? ast : asc);
    return Outcome::done().then(EffectKind::EnableControl, detailingBox(s, "Command3"));
}

Outcome viewSection(const DetailingSetup& s, FormState& state, Prompter& prompter) {
    if (blank(state.text(detailingBox(s, "Text5"))) || blank(state.text(detailingBox(s, "Text8")))) {
        prompter.warn(kCalculateFirst);
        return Outcome::stop(detailingBox(s, "Command2"));
    }
    Outcome shown = Outcome::done();
    shown.then(EffectKind::DisableScreen, s.screen).then(EffectKind::ShowScreen, s.results);
    for (const char* box : {"Text2", "Text4", "Text7", "Text9", "Text12", "Text14"})
        state.setText(resultBox(s, box), "");
    state.setVar(layersVar(s, true), "");
    state.setVar(layersVar(s, false), "");

    const double phie = state.number(detailingBox(s, "List3")), c = state.number(detailingBox(s, "List4"));
    const double aggregate = state.number(detailingBox(s, "List5")), vibrator = state.number(detailingBox(s, "List6"));
    const double width = state.number(s.width) - 2 * (phie / 10 + c);  // inside the stirrup

    auto fail = [&](const std::string& message) {
        prompter.warn(message);
        Outcome o = Outcome::stop();
        o.effects = shown.effects;
        o.then(EffectKind::HideScreen, s.results).then(EffectKind::EnableScreen, s.screen);
        return o;
    };
    for (bool top : {false, true}) {
        const double phi = state.number(detailingBox(s, top ? "Text8" : "Text5")) / 10;
        const int n = static_cast<int>(state.number(detailingBox(s, top ? "Text6" : "Text3")));
        LayerFit fit = fitLayers(n, width, phi, clearSpacing(aggregate, 1.2, phi), vibrator);
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
    state.setText(resultBox(s, "Text2"), state.text(detailingBox(s, "Text6")));
    state.setText(resultBox(s, "Text4"), state.text(detailingBox(s, "Text8")));
    state.setText(resultBox(s, "Text7"), state.text(detailingBox(s, "Text3")));
    state.setText(resultBox(s, "Text9"), state.text(detailingBox(s, "Text5")));
    state.setText(resultBox(s, "Text12"), formatResult(d));
    state.setText(resultBox(s, "Text14"), formatResult(dPrime));

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
    const double bottomArea = state.number(detailingBox(s, "Text3")) * BarCatalogue::barArea(state.number(detailingBox(s, "Text5")));
    const double topArea = state.number(detailingBox(s, "Text6")) * BarCatalogue::barArea(state.number(detailingBox(s, "Text8")));
    const double asEf = topTension ? topArea : bottomArea;
    const double asPrimeEf = topTension ? bottomArea : topArea;
    if (!req.possible || asPrimeEf < req.asPrime || asEf < req.as) prompter.warn(kRedesign);
    return shown;
}

}  // namespace

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

bool isDetailingCommand(const DetailingSetup& s, const std::string& command) {
    return command.rfind(s.screen + ".", 0) == 0 || command.rfind(s.results + ".", 0) == 0;
}

Outcome pressDetailing(const DetailingSetup& s, const std::string& command, FormState& state,
                       Prompter& prompter) {
    if (command == detailingBox(s, "Command2")) return preliminary(s, state, prompter);
    if (command == detailingBox(s, "Command3")) return viewSection(s, state, prompter);
    if (command == detailingBox(s, "Command1"))
        return Outcome::done().then(EffectKind::HideScreen, s.screen).then(EffectKind::ShowScreen, s.design);
    if (command == detailingBox(s, "Command6")) return Outcome::done().then(EffectKind::ShowScreen, "FormAjuda");
    if (command == resultBox(s, "Command1"))
        return Outcome::done()
            .then(EffectKind::HideScreen, s.results)
            .then(EffectKind::EnableScreen, s.screen);
    if (command == resultBox(s, "Command2"))
        return Outcome::done()
            .then(EffectKind::StartReport, s.results)
            .then(EffectKind::DisableScreen, s.results);
    return Outcome::stop();
}

}  // namespace morve
