#include "beams/bending.h"

#include <cmath>

#include "app/numbers.h"
#include "basis/messages.h"

namespace morve {

ReducedSteel doubleReinforcement(double mu, double mulim, double omegaLimit, double xlim,
                                 double delta, const StressBlockValues& block, double es,
                                 double fyd) {
    ReducedSteel r;
    if (xlim < block.ecu / (block.ecu + 10)) {
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
    return r;
}

ReducedSteel designRectangle(double mu, double xlim, double delta, const StressBlockValues& block,
                             double es, double fyd) {
    double mulim = rectangularLimitMoment(xlim, block);
    if (mu <= mulim) {
        ReducedSteel r;
        double xi = (1 - std::sqrt(1 - 2 * mu)) / block.lambda;
        r.omega = xi * block.lambda;
        return r;
    }
    return doubleReinforcement(mu, mulim, xlim * block.lambda, xlim, delta, block, es, fyd);
}

TeeSteel designTee(double mu, double xlim, double eta, double r, double delta,
                   const StressBlockValues& block, double es, double fyd) {
    TeeSteel t;
    const double y = xlim * block.lambda;  // depth of the block at the limit, over d
    if (!(eta < y)) {
        // The test is strict: a flange exactly as deep as the block is a rectangle.
        t.branch = TeeBranch::Rectangle;
        t.steel = designRectangle(mu, xlim, delta, block, es, fyd);
        return t;
    }
    const double omegaLimit = (y - eta) * r + eta;
    const double mulim = (y - eta) * r * (1 - (y + eta) / 2) + (1 - eta / 2) * eta;
    if (mu > mulim) {
        t.steel = doubleReinforcement(mu, mulim, omegaLimit, xlim, delta, block, es, fyd);
        return t;
    }
    const double muf = (1 - eta / 2) * eta;  // the whole flange at sigmacd
    if (muf < mu) {
        const double m = (mu - muf) / r + muf;  // what the web takes, over bw d^2 sigmacd
        t.steel.omega = (1 - r) * eta + (1 - std::sqrt(1 - 2 * m)) * r;
    } else {
        t.steel.omega = 1 - std::sqrt(1 - 2 * mu);
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
    double asMin = MinimumSteelRatio(fck, fyd * 10) * ac;
    if (as < asMin) as = asMin;
    checks.warnIf((as + asPrime) / ac > 0.04, msg::kSteelRateAbove4);
    return !checks.stopped();
}

Outcome finishDesign(CheckSequence& checks, FormState& s, const ReducedSteel& steel, double unit,
                     double ac, double fck, double fyd, const DesignOutput& out) {
    checks.warnIf(steel.stop != BendingStop::None, bendingStopMessage(steel.stop), out.stopFocus);
    if (checks.stopped()) return checks.outcome();
    double as = steel.omega * unit;
    const double asPrime = steel.omegaPrime * unit;
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
