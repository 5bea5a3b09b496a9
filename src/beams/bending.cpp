#include "beams/bending.h"

#include <cmath>

#include "app/numbers.h"
#include "basis/messages.h"

namespace morve {

ReducedSteel doubleReinforcement(double mu, double mulim, double omegaLimit, double xlim,
                                 double delta, const StressBlockValues& block, double es,
                                 double fyd, TraceRecorder rec) {
    ReducedSteel r;
    rec.note("μ > μlim: armadura dupla.");
    const double domain3 = block.ecu / (block.ecu + 10);
    rec.check("Início do domínio 3", "xlim/d ≥ εcu / (εcu + 10)", "{} / ({} + 10)", {{block.ecu, "‰"}, {block.ecu, "‰"}},
              domain3, "", !(xlim < domain3), "NBR-6118:2014, 17.2.2");
    if (xlim < domain3) {
        r.stop = BendingStop::Domain2;
        return r;
    }
    if (xlim < delta) {
        r.stop = BendingStop::SectionTooSmall;
        return r;
    }

    double strain = (xlim - delta) * block.ecu / xlim / 1000;
    double stress = BilinearStress(es, strain, fyd);
    r.omegaPrime = (mu - mulim) * fyd / ((1 - delta) * stress);
    r.omega = omegaLimit + (mu - mulim) / (1 - delta);
    rec.step("Deformação da armadura comprimida", "ε's = (xlim/d − δ) · εcu / (xlim/d) / 1000",
             "({} − {}) · {} / {} / 1000", {{xlim, ""}, {delta, ""}, {block.ecu, "‰"}, {xlim, ""}}, strain, "", -1,
             "NBR-6118:2014, 17.2.2");
    rec.step("Tensão na armadura comprimida", "σ's = min(Es · ε's, fyd)", "min({} · {}, {})",
             {{es, "kN/cm²"}, {strain, ""}, {fyd, "kN/cm²"}}, stress, "kN/cm²", -1, "NBR-6118:2014, 8.3.6");
    rec.step("Armadura comprimida reduzida", "ω' = (μ − μlim) · fyd / ((1 − δ) · σ's)", "({} − {}) · {} / ((1 − {}) · {})",
             {{mu, ""}, {mulim, ""}, {fyd, "kN/cm²"}, {delta, ""}, {stress, "kN/cm²"}}, r.omegaPrime, "");
    rec.step("Armadura tracionada reduzida", "ω = ωlim + (μ − μlim) / (1 − δ)", "{} + ({} − {}) / (1 − {})",
             {{omegaLimit, ""}, {mu, ""}, {mulim, ""}, {delta, ""}}, r.omega, "");
    return r;
}

ReducedSteel designRectangle(double mu, double xlim, double delta, const StressBlockValues& block,
                             double es, double fyd, TraceRecorder rec) {
    double mulim = rectangularLimitMoment(xlim, block);
    rec.step("Momento reduzido limite", "μlim = λ · xlim/d · (1 − 0.5 · λ · xlim/d)", "{} · {} · (1 − 0.5 · {} · {})",
             {{block.lambda, ""}, {xlim, ""}, {block.lambda, ""}, {xlim, ""}}, mulim, "");
    if (mu <= mulim) {
        ReducedSteel r;
        double xi = (1 - std::sqrt(1 - 2 * mu)) / block.lambda;
        r.omega = xi * block.lambda;
        rec.note("μ ≤ μlim: armadura simples.");
        rec.step("Profundidade relativa da linha neutra", "x/d = (1 − √(1 − 2 · μ)) / λ", "(1 − √(1 − 2 · {})) / {}",
                 {{mu, ""}, {block.lambda, ""}}, xi, "", -1, "NBR-6118:2014, 17.2.2");
        rec.step("Armadura tracionada reduzida", "ω = λ · x/d", "{} · {}", {{block.lambda, ""}, {xi, ""}}, r.omega, "");
        return r;
    }
    rec.step("Armadura tracionada reduzida no limite", "ωlim = λ · xlim/d", "{} · {}", {{block.lambda, ""}, {xlim, ""}},
             xlim * block.lambda, "");
    return doubleReinforcement(mu, mulim, xlim * block.lambda, xlim, delta, block, es, fyd, rec);
}

TeeSteel designTee(double mu, double xlim, double eta, double r, double delta,
                   const StressBlockValues& block, double es, double fyd, TraceRecorder rec) {
    TeeSteel t;
    const double y = xlim * block.lambda;  // depth of the block at the limit, over d
    rec.step("Profundidade do bloco no limite", "ylim/d = λ · xlim/d", "{} · {}", {{block.lambda, ""}, {xlim, ""}}, y, "");
    if (!(eta < y)) {
        // The test is strict: a flange exactly as deep as the block is a rectangle.
        rec.note("hf/d ≥ ylim/d: o bloco fica na mesa; seção retangular de largura bf.");
        t.branch = TeeBranch::Rectangle;
        t.steel = designRectangle(mu, xlim, delta, block, es, fyd, rec);
        return t;
    }
    const double omegaLimit = (y - eta) * r + eta;
    const double mulim = (y - eta) * r * (1 - (y + eta) / 2) + (1 - eta / 2) * eta;
    rec.step("Momento reduzido limite", "μlim = (ylim/d − η) · r · (1 − (ylim/d + η) / 2) + (1 − η / 2) · η",
             "({} − {}) · {} · (1 − ({} + {}) / 2) + (1 − {} / 2) · {}",
             {{y, ""}, {eta, ""}, {r, ""}, {y, ""}, {eta, ""}, {eta, ""}, {eta, ""}}, mulim, "");
    if (mu > mulim) {
        rec.step("Armadura tracionada reduzida no limite", "ωlim = (ylim/d − η) · r + η", "({} − {}) · {} + {}",
                 {{y, ""}, {eta, ""}, {r, ""}, {eta, ""}}, omegaLimit, "");
        t.steel = doubleReinforcement(mu, mulim, omegaLimit, xlim, delta, block, es, fyd, rec);
        return t;
    }
    const double muf = (1 - eta / 2) * eta;  // the whole flange at sigmacd
    rec.step("Momento reduzido da mesa inteira", "μf = (1 − η / 2) · η", "(1 − {} / 2) · {}", {{eta, ""}, {eta, ""}}, muf, "");
    if (muf < mu) {
        const double m = (mu - muf) / r + muf;  // what the web takes, over bw d^2 sigmacd
        t.steel.omega = (1 - r) * eta + (1 - std::sqrt(1 - 2 * m)) * r;
        rec.note("μ > μf: o bloco entra na nervura.");
        rec.step("Momento reduzido da nervura", "μw = (μ − μf) / r + μf", "({} − {}) / {} + {}",
                 {{mu, ""}, {muf, ""}, {r, ""}, {muf, ""}}, m, "");
        rec.step("Armadura tracionada reduzida", "ω = (1 − r) · η + (1 − √(1 − 2 · μw)) · r",
                 "(1 − {}) · {} + (1 − √(1 − 2 · {})) · {}", {{r, ""}, {eta, ""}, {m, ""}, {r, ""}}, t.steel.omega, "");
    } else {
        t.steel.omega = 1 - std::sqrt(1 - 2 * mu);
        rec.note("μ ≤ μf: o bloco fica na mesa.");
        rec.step("Armadura tracionada reduzida", "ω = 1 − √(1 − 2 · μ)", "1 − √(1 − 2 · {})", {{mu, ""}}, t.steel.omega, "");
    }
    return t;
}

const std::string& bendingStopMessage(BendingStop stop) {
    static const std::string none;
    if (stop == BendingStop::Domain2) return msg::kDomain2;
    if (stop == BendingStop::SectionTooSmall) return msg::kEnlargeSection;
    return none;
}

bool applyMinimumAndRate(CheckSequence& checks, double& as, double asPrime, double ac, double fck,
                         double fyd) {
    const double rhoMin = MinimumSteelRatio(fck, fyd * 10);
    double asMin = rhoMin * ac;
    TraceRecorder rec(checks.prompter().trace());
    if (fck <= 50)
        rec.step("Taxa mínima de armadura", "ρmin = max(0.078 · fck^(2/3) / fyd, 0.0015)", "max(0.078 · ({})^(2/3) / {}, 0.0015)",
                 {{fck, "MPa"}, {fyd * 10, "MPa"}}, rhoMin, "", -1, "NBR-6118:2014, 17.3.5.2.1");
    else
        rec.step("Taxa mínima de armadura", "ρmin = max(0.5512 · ln(1 + 0.11 · fck) / fyd, 0.0015)",
                 "max(0.5512 · ln(1 + 0.11 · {}) / {}, 0.0015)", {{fck, "MPa"}, {fyd * 10, "MPa"}}, rhoMin, "", -1,
                 "NBR-6118:2014, 17.3.5.2.1");
    rec.step("Armadura mínima", "As,min = ρmin · Ac", "{} · {}", {{rhoMin, ""}, {ac, "cm²"}}, asMin, "cm²", 2);
    rec.step("Armadura tracionada adotada", "As = max(As, As,min)", "max({}, {})", {{as, "cm²"}, {asMin, "cm²"}},
             as < asMin ? asMin : as, "cm²", 2);
    if (as < asMin) as = asMin;
    rec.check("Taxa total de armadura", "ρ = (As + A's) / Ac ≤ 0.04", "({} + {}) / {}", {{as, "cm²"}, {asPrime, "cm²"}, {ac, "cm²"}},
              (as + asPrime) / ac, "", !((as + asPrime) / ac > 0.04), "NBR-6118:2014, 17.3.5.2.4");
    checks.warnIf((as + asPrime) / ac > 0.04, msg::kSteelRateAbove4);
    return !checks.stopped();
}

Outcome finishDesign(CheckSequence& checks, FormState& s, const ReducedSteel& steel, double unit,
                     double ac, double fck, double fyd, const DesignOutput& out) {
    checks.warnIf(steel.stop != BendingStop::None, bendingStopMessage(steel.stop), out.stopFocus);
    if (checks.stopped()) return checks.outcome();
    double as = steel.omega * unit;
    const double asPrime = steel.omegaPrime * unit;
    TraceRecorder rec(checks.prompter().trace());
    rec.stage("Armaduras");
    rec.step("Armadura tracionada calculada", "As = ω · U", "{} · {}", {{steel.omega, ""}, {unit, "cm²"}}, as, "cm²", 2);
    rec.step("Armadura comprimida", "A's = ω' · U", "{} · {}", {{steel.omegaPrime, ""}, {unit, "cm²"}}, asPrime, "cm²", 2);
    if (!applyMinimumAndRate(checks, as, asPrime, ac, fck, fyd)) return checks.outcome();
    s.setText(out.as, formatResult(as));
    s.setText(out.asPrime, formatResult(asPrime));
    return Outcome::done()
        .then(EffectKind::EnableControl, out.detailButton)
        .then(EffectKind::EnableControl, printButton(out.module));
}

Outcome openDetailing(FormState& s, const DesignOutput& out) {
    s.setText(out.detailScreen + ".Text1", s.text(out.as));
    s.setText(out.detailScreen + ".Text2", s.text(out.asPrime));
    return Outcome::done()
        .then(EffectKind::HideScreen, "FormAjuda")
        .then(EffectKind::ShowScreen, "Form0b")
        .then(EffectKind::HideScreen, out.module)
        .then(EffectKind::ShowScreen, out.detailScreen);
}

}  // namespace morve
