#include "columns/column_section.h"

#include <algorithm>
#include <cmath>

#include "basis/messages.h"

namespace morve {

namespace {

const std::string kDPrimeBelowH = "O parâmetro d' deve ser menor que a altura h.";
const std::string kMinimumLayers = "O número mínimo de camadas é igual a 2.";
const std::string kMaximumLayers = "Este programa está limitado a 300 camadas de armadura.";
const std::string kStaleLayers = "Atualize os dados das camadas.";
const std::string kBarsPerLayer = "O número mínimo de barras em cada camada é igual a 2. Revise os dados.";
const std::string kMinimumBars = "O número mínimo de barras é igual a 6.";
const std::string kEvenBars = "O número de barras dever ser par.";
const std::string kMaximumBars = "Este programa está limitado a 300 barras de armadura.";

void checkLayers(CheckSequence& checks, const ColumnForm& form, const FormState& state,
                 const ColumnSection& s, SectionCheck mode) {
    if (mode == SectionCheck::Calculate)
        checkLayerCount(checks, form, s.count);
    else
        checks.warnIf(s.count <= 0, msg::positiveValue("n"), form.count)
            .warnIf(s.count > 300, kMaximumLayers, form.count);
    if (checks.stopped()) return;
    const auto& rows = state.grid(form.grid());
    checks.warnIf(static_cast<double>(rows.size()) != s.count + 1, kStaleLayers, form.layersCommand);
    const bool few = std::any_of(s.barsPerLayer.begin(), s.barsPerLayer.end(), [](int b) { return b < 2; });
    checks.warnIf(few, kBarsPerLayer, form.layersCommand);
}

void checkRing(CheckSequence& checks, const ColumnForm& form, const ColumnSection& s) {
    // The parity box of one module has a title of its own.
    const bool odd = s.count != 2 * std::floor(s.count / 2);
    checks.warnIf(s.count < 6, kMinimumBars, form.count)
        .warnIf(odd, kEvenBars, form.count, form.parityTitle)
        .warnIf(s.count > 300, kMaximumBars, form.count);
}

}  // namespace

bool sectionDrawable(const ColumnForm& form, const FormState& state, const ColumnSection& section) {
    ScriptedPrompter silent;
    CheckSequence checks(silent);
    checkSection(checks, form, state, section, SectionCheck::Calculate);
    return !checks.stopped();
}

void checkLayerCount(CheckSequence& checks, const ColumnForm& form, double n) {
    checks.warnIf(n < 2, kMinimumLayers, form.count).warnIf(n > 300, kMaximumLayers, form.count);
}

ColumnSection readSection(const ColumnForm& form, const FormState& state) {
    ColumnSection s;
    s.shape = form.shape;
    auto value = [&](const std::string& box) { return box.empty() ? 0.0 : state.number(box); };
    s.b = value(form.b);
    s.h = value(form.h);
    s.bw = value(form.bw);
    s.hf = value(form.hf);
    s.ho = value(form.ho);
    s.dPrime = value(form.dPrime);
    s.count = value(form.count);
    if (isLayered(form.shape)) {
        const auto& rows = state.grid(form.grid());
        for (std::size_t r = 1; r < rows.size(); ++r)
            s.barsPerLayer.push_back(static_cast<int>(std::clamp(state.cellNumber(form.grid(), r, 1), -1.0, 1e6)));
    }
    return s;
}

double ColumnSection::area() const {
    switch (shape) {
        case ColumnShape::Rectangle: return b * h;
        case ColumnShape::Box: return b * h - (b - 2 * bw) * (h - 2 * hf);
        case ColumnShape::Circle: return kCirclePi * h * h / 4;
        case ColumnShape::Ring: return kCirclePi * (h * h - ho * ho) / 4;
    }
    return 0;
}

double ColumnSection::smallest() const { return isCircular(shape) ? h : std::min(b, h); }

ConcreteOutline ColumnSection::outline() const {
    switch (shape) {
        case ColumnShape::Rectangle: return ConcreteOutline::rectangle();
        case ColumnShape::Box: return ConcreteOutline::box(b, bw, h, hf);
        case ColumnShape::Circle: return ConcreteOutline::circle(h);
        case ColumnShape::Ring: return ConcreteOutline::circle(h, ho);
    }
    return {};
}

LayeredSection ColumnSection::steel() const {
    if (isCircular(shape)) return ringLayers(static_cast<int>(count), dPrime / h);
    return rectangularLayers(barsPerLayer, dPrime / h);
}

void checkSection(CheckSequence& checks, const ColumnForm& form, const FormState& state,
                  const ColumnSection& s, SectionCheck mode) {
    switch (form.shape) {
        case ColumnShape::Rectangle:
            checks.warnIf(s.b <= 0, msg::positiveValue("b"), form.b)
                .warnIf(s.h <= 0, msg::kPositiveH, form.h)
                .warnIf(s.dPrime <= 0, msg::kPositiveDPrime, form.dPrime)
                .warnIf(s.dPrime >= s.h, kDPrimeBelowH, form.dPrime);
            checkLayers(checks, form, state, s, mode);
            break;
        case ColumnShape::Box:
            checks.warnIf(s.b <= 0, msg::positiveValue("b"), form.b)
                .warnIf(s.h <= 0, msg::kPositiveH, form.h)
                .warnIf(s.bw <= 0, msg::positiveValue("bw"), form.bw)
                .warnIf(s.bw > s.b / 2, "A largura da nervura, bw, não pode ser maior que b/2.", form.bw)
                .warnIf(s.hf <= 0, msg::positiveValue("hf"), form.hf)
                .warnIf(s.hf > s.h / 2, "A espessura da mesa,hf, não pode ser maior que h/2.", form.hf)
                .warnIf(s.dPrime <= 0, msg::kPositiveDPrime, form.dPrime)
                .warnIf(s.dPrime > s.hf / 2, "O parâmetro d' não deve ser maior que hf/2.", form.dPrime)
                .warnIf(s.dPrime > s.bw / 2, "O parâmetro d' não deve ser maior que bw/2.", form.dPrime);
            checkLayers(checks, form, state, s, mode);
            break;
        case ColumnShape::Circle:
            // d' against the diameter only once the number of bars has passed.
            checks.warnIf(s.h <= 0, "Forneça um valor positivo para o diâmetro h.", form.h)
                .warnIf(s.dPrime <= 0, msg::kPositiveDPrime, form.dPrime);
            checkRing(checks, form, s);
            checks.warnIf(s.dPrime >= s.h, "O parâmetro d' deve ser menor que o diâmetro h.", form.dPrime);
            break;
        case ColumnShape::Ring:
            checks.warnIf(s.h <= 0, "Forneça um valor positivo para o diâmetro externo h.", form.h)
                .warnIf(s.ho < 0, "O diâmetro interno ho não pode ser negativo.", form.ho)
                .warnIf(s.ho >= s.h, "O diâmetro interno ho deve ser menor que o diâmetro externo h.", form.ho)
                .warnIf(s.dPrime <= 0, msg::kPositiveDPrime, form.dPrime)
                .warnIf(s.dPrime > (s.h - s.ho) / 4,
                        "O parâmetro d' não pode ser maior que a semi-espessura da parede: (h-ho)/4.",
                        form.dPrime);
            checkRing(checks, form, s);
            break;
    }
}

}  // namespace morve
