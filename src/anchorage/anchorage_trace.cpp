#include "anchorage/anchorage_trace.h"

#include <algorithm>
#include <cmath>

#include "anchorage/anchorage_modules.h"

namespace morve {

namespace {

const char* kBondClause = "NBR-6118:2014, 9.3.2.1";
const char* kBasicClause = "NBR-6118:2014, 9.4.2.4";

void traceBasicLength(TraceRecorder rec, const AnchorageTraceInput& in) {
    const double eta1 = surfaceCoefficient(in.surface), eta2 = bondZoneCoefficient(in.goodBond);
    const double fbd = bondStrength(in.fck, in.surface, in.goodBond);
    rec.stage("Comprimento de ancoragem básico");
    rec.note(std::string("η1 = ") + traceNumber(eta1) + " (barra " +
             (in.surface == BarSurface::Ribbed ? "nervurada" : in.surface == BarSurface::Indented ? "entalhada" : "lisa") +
             "), η2 = " + traceNumber(eta2) + (in.goodBond ? " (boa aderência)." : " (má aderência)."));
    if (in.fck <= 50)
        rec.step("Resistência de aderência", "fbd = η1 · η2 · 0.42 · (fck / 1.4)^(2/3)", "{} · {} · 0.42 · ({} / 1.4)^(2/3)",
                 {{eta1, ""}, {eta2, ""}, {in.fck, "MPa"}}, fbd, "MPa", -1, kBondClause);
    else
        rec.step("Resistência de aderência", "fbd = η1 · η2 · 2.4 · ln(1 + 0.15 · fck / 1.4)",
                 "{} · {} · 2.4 · ln(1 + 0.15 · {} / 1.4)", {{eta1, ""}, {eta2, ""}, {in.fck, "MPa"}}, fbd, "MPa", -1,
                 kBondClause);
    const double fyd = in.fyk / 1.15;
    rec.step("Resistência de cálculo do aço", "fyd = fyk / 1.15", "{} / 1.15", {{in.fyk, "MPa"}}, fyd, "MPa", -1,
             "NBR-6118:2014, 12.3.1");
    const double raw = bondLength(in.phi, in.fyk, fbd);
    rec.step("Comprimento pela aderência", "lb,calc = φ · fyd / (4 · fbd)", "{} · {} / (4 · {})",
             {{in.phi, "cm"}, {fyd, "MPa"}, {fbd, "MPa"}}, raw, "cm", -1, kBasicClause);
    rec.step("Comprimento de ancoragem básico", "lb = max(lb,calc, 25 · φ)", "max({}, 25 · {})",
             {{raw, "cm"}, {in.phi, "cm"}}, in.demand.lb, "cm", -1, kBasicClause);
}

void traceMinimums(TraceRecorder rec, const AnchorageTraceInput& in) {
    const AnchorageDemand& d = in.demand;
    const double lb = d.lb, phi = in.phi;
    switch (in.kind) {
        case AnchorageCase::Span:
        case AnchorageCase::Support:
            rec.step("Comprimento mínimo", "lb,min = max(0.3 · lb, 10 · φ, 10 cm)", "max(0.3 · {}, 10 · {}, 10 cm)",
                     {{lb, "cm"}, {phi, "cm"}}, d.straightMinimum, "cm", -1, "NBR-6118:2014, 9.4.2.5");
            if (in.kind == AnchorageCase::Support) {
                const double r = hookBendRadius(phi, in.fyk);
                rec.step("Raio de dobramento do gancho", "r = k · φ", "{} · {}", {{r / phi, ""}, {phi, "cm"}}, r, "cm", -1,
                         "NBR-6118:2014, 9.4.2.3");
                rec.step("Mínimo com gancho no apoio", "lb,min = max(r + 5.5 · φ, 6 cm)", "max({} + 5.5 · {}, 6 cm)",
                         {{r, "cm"}, {phi, "cm"}}, d.hookMinimum, "cm", -1, "NBR-6118:2014, 18.3.2.4.1");
            }
            break;
        case AnchorageCase::Splice:
            if (in.tension)
                rec.step("Comprimento mínimo de emenda", "lo,min = max(15 · φ, 20 cm, 0.3 · α0t · lb)",
                         "max(15 · {}, 20 cm, 0.3 · {} · {})", {{phi, "cm"}, {d.factor, ""}, {lb, "cm"}},
                         d.straightMinimum, "cm", -1, "NBR-6118:2014, 9.5.2.2.1");
            else
                rec.step("Comprimento mínimo de emenda", "lo,min = max(15 · φ, 20 cm, 0.6 · lb)",
                         "max(15 · {}, 20 cm, 0.6 · {})", {{phi, "cm"}, {lb, "cm"}}, d.straightMinimum, "cm", -1,
                         "NBR-6118:2014, 9.5.2.3");
            break;
    }
}

}  // namespace

void traceAnchorage(TraceRecorder rec, const AnchorageTraceInput& in) {
    if (!rec.on()) return;
    traceBasicLength(rec, in);
    const AnchorageDemand& d = in.demand;
    rec.stage(in.kind == AnchorageCase::Splice ? "Comprimento de emenda" : "Comprimento de ancoragem necessário");
    if (in.kind == AnchorageCase::Support)
        rec.step("Armadura que ancora Rsd = Vd", "As,cal = Vd / (0.1 · fyk / 1.15)", "{} / (0.1 · {} / 1.15)",
                 {{in.vd, "kN"}, {in.fyk, "MPa"}}, in.asCal, "cm²", -1,
                 "NBR-6118:2014, 18.3.2.4");
    traceMinimums(rec, in);
    const bool splice = in.kind == AnchorageCase::Splice;
    if (splice && in.tension)
        rec.note("α0t = " + traceNumber(d.factor) + " pela porcentagem de barras emendadas na mesma seção.");
    rec.step(splice ? "Emenda com extremidade reta" : "Ancoragem reta",
             splice ? "lo = max(α0t · lb · As,cal / Ase, lo,min)" : "lb,nec = max(1 · lb · As,cal / Ase, lb,min)",
             "max({} · {} · {}, {})",
             {{d.factor, ""}, {d.lb, "cm"}, {d.ratio, ""}, {d.straightMinimum, "cm"}}, in.lengths.straight, "cm", 0,
             splice ? "NBR-6118:2014, 9.5.2.2" : "NBR-6118:2014, 9.4.2.5");
    rec.step(splice ? "Emenda com extremidade em gancho" : "Ancoragem com gancho",
             splice ? "lo = max(0.7 · α0t · lb · As,cal / Ase, lo,min)" : "lb,nec = max(0.7 · 1 · lb · As,cal / Ase, lb,min)",
             "max(0.7 · {} · {} · {}, {})", {{d.factor, ""}, {d.lb, "cm"}, {d.ratio, ""}, {d.hookMinimum, "cm"}},
             in.lengths.hooked, "cm", 0, splice ? "NBR-6118:2014, 9.5.2.2" : "NBR-6118:2014, 9.4.2.5");
}

}  // namespace morve
