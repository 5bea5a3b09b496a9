#include "beams/shear_trace.h"

#include <algorithm>

#include "basis/materials.h"
#include "beams/shear_common.h"

namespace morve {

namespace {
const char* kShearClause = "NBR-6118:2014, 17.4.2.2";
}

void traceShearStrut(TraceRecorder rec, double fyk, double gamas, double fywd, double vd, double bw, double d,
                     double fck, double fcd, double tauwd, double tauwd2) {
    if (!rec.on()) return;
    rec.step("Resistência de cálculo dos estribos", "fywd = min(fyk / γs, 435 MPa)", "min({} / {}, 435 MPa)",
             {{fyk, "MPa"}, {gamas, ""}}, fywd, "MPa", -1, "NBR-6118:2014, 17.4.2.2");
    rec.step("Tensão de cisalhamento de cálculo", "τwd = 10 · Vd / (bw · d)", "10 · {} / ({} · {})",
             {{vd, "kN"}, {bw, "cm"}, {d, "cm"}}, tauwd, "MPa");
    const double alphav = strutReduction(fck);
    rec.step("Redução da resistência da biela", "αv2 = 1 − fck / 250", "1 − {} / 250", {{fck, "MPa"}}, alphav, "",
             -1, kShearClause);
    rec.step("Limite da biela comprimida", "τwd2 = 0.27 · αv2 · fcd", "0.27 · {} · {}", {{alphav, ""}, {fcd, "MPa"}},
             tauwd2, "MPa", -1, kShearClause);
    rec.check("Biela comprimida", "τwd ≤ τwd2", "{}", {{tauwd, "MPa"}}, tauwd, "MPa", !(tauwd2 < tauwd), kShearClause);
}

void traceShearStirrups(TraceRecorder rec, double fck, double gamac, double bw, double tauwd, double fywd,
                        double asw) {
    if (!rec.on()) return;
    const double tauc = concreteShearStress(fck, gamac);
    if (fck <= 50)
        rec.step("Parcela do concreto", "τc = 0.126 · fck^(2/3) / γc", "0.126 · ({})^(2/3) / {}", {{fck, "MPa"}, {gamac, ""}},
                 tauc, "MPa", -1, kShearClause);
    else
        rec.step("Parcela do concreto", "τc = 0.8904 · ln(1 + 0.11 · fck) / γc", "0.8904 · ln(1 + 0.11 · {}) / {}",
                 {{fck, "MPa"}, {gamac, ""}}, tauc, "MPa", -1, kShearClause);
    rec.step("Estribos para a força cortante", "Asw = 100 · bw · max(1.11 · (τwd − τc), 0) / fywd",
             "100 · {} · max(1.11 · ({} − {}), 0) / {}", {{bw, "cm"}, {tauwd, "MPa"}, {tauc, "MPa"}, {fywd, "MPa"}}, asw,
             "cm²/m", -1, kShearClause);
}

void traceMinimumStirrups(TraceRecorder rec, double fck, double fyk, double bw, double aswMin) {
    if (!rec.on()) return;
    const double fctm = meanTensileStrength(fck);
    if (fck <= 50)
        rec.step("Resistência média à tração", "fctm = 0.3 · fck^(2/3)", "0.3 · ({})^(2/3)", {{fck, "MPa"}}, fctm, "MPa", -1,
                 "NBR-6118:2014, 8.2.5");
    else
        rec.step("Resistência média à tração", "fctm = 2.12 · ln(1 + 0.11 · fck)", "2.12 · ln(1 + 0.11 · {})",
                 {{fck, "MPa"}}, fctm, "MPa", -1, "NBR-6118:2014, 8.2.5");
    const double rho = minimumStirrupRatio(fck, fyk);
    rec.step("Taxa mínima de estribos", "ρw,min = 0.2 · fctm / min(fyk, 500 MPa)", "0.2 · {} / min({}, 500 MPa)",
             {{fctm, "MPa"}, {fyk, "MPa"}}, rho, "", -1, "NBR-6118:2014, 17.4.1.1.1");
    rec.step("Estribos mínimos", "Asw,min = 100 · ρw,min · bw", "100 · {} · {}", {{rho, ""}, {bw, "cm"}}, aswMin,
             "cm²/m", 2, "NBR-6118:2014, 17.4.1.1.1");
}

void traceStirrupProposal(TraceRecorder rec, bool strutHighlyStressed, double d, double smax, double asw,
                          double diameterMm, long long legs, long long spacing) {
    if (!rec.on()) return;
    rec.step("Espaçamento máximo", strutHighlyStressed ? "smax = min(0.3 · d, 20 cm)" : "smax = min(0.6 · d, 30 cm)",
             strutHighlyStressed ? "min(0.3 · {}, 20 cm)" : "min(0.6 · {}, 30 cm)", {{d, "cm"}}, smax, "cm", -1,
             "NBR-6118:2014, 18.3.3.2");
    const double phi = diameterMm / 10;
    const double area = legs * 3.1415926535 * phi * phi / 4;
    rec.step("Espaçamento dos estribos", "s = min(100 · n · π · φ² / 4 / Asw, smax)", "min(100 · {} · 3.1416 · ({})² / 4 / {}, {})",
             {{static_cast<double>(legs), ""}, {phi, "cm"}, {asw, "cm²/m"}, {smax, "cm"}},
             std::min(100 * area / asw, smax), "cm");
    rec.note("Proposta: estribos de " + traceNumber(diameterMm) + " mm com " + std::to_string(legs) +
             " ramos a cada " + std::to_string(spacing) + " cm (espaçamento arredondado para baixo; ramos de dois em "
             "dois até que o espaçamento chegue a 7 cm ou mais).");
}

}  // namespace morve
