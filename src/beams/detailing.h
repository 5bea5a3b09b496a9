#pragma once
// Detalhamento: the areas of a bending design turned into bars. A preliminary
// solution counts the bars of each face; "Ver seção" fits them in layers with the
// gap of the vibrator, draws the section, finds the true d and d' and designs the
// section again with them. Form8 (rectangle of Form7) and Form10b (T of Form10)
// are the same logic over other boxes and a few other words.
#include <string>
#include <vector>

#include "app/form_state.h"
#include "app/outcome.h"
#include "app/prompter.h"
#include "app/screen.h"
#include "draw/drawing.h"

namespace morve {

struct DetailingSetup {
    std::string design;   // "Form7": the module whose areas are detailed
    std::string screen;   // "Form8": bars, cover, aggregate, vibrator
    std::string results;  // "Form8b": final solution and drawing; also the report key
    // Boxes of the design module, qualified.
    std::string fck, fyk, es, width, height, moment;
    std::string flangeWidth, flangeThickness;  // "" for a rectangle
    // Form8 puts the tension bars on top for a negative Mk; Form10b always below.
    bool signedMoment = true;
    std::string aggregateWidthMessage =
        "Limite o diâmetro do agregado em 25% da largura da viga. Escolha outro valor.";
    bool checkTopFace = true;
    std::string bottomTwoBarsMessage =
        "Não é possível colocar 2 barras por camada na face inferior. Revise o seu projeto.";
    std::string vibratorMessage = "Não é possível introduzir o vibrador. Revise o seu projeto.";
    // The top face always has room for two bars beside the vibrator once the checks of
    // the widths have passed, so in Form8 this text only guards the arithmetic.
    std::string topSecondLayerMessage =
        "Não há espaço para o vibrador na segunda camada da face superior. Revise o seu projeto.";
};

const DetailingSetup& form8Setup();
const DetailingSetup& form10bSetup();

ScreenDecl detailingScreen(const DetailingSetup& setup);
ScreenDecl detailingResultScreen(const DetailingSetup& setup);

bool isDetailingCommand(const DetailingSetup& setup, const std::string& command);
Outcome pressDetailing(const DetailingSetup& setup, const std::string& command, FormState& state,
                       Prompter& prompter);

// The section with its bars and dimension lines, from the layers of the last "Ver
// seção" (empty before it).
Drawing detailingDrawing(const DetailingSetup& setup, const FormState& state);

// ---- The arithmetic, apart from the screens ----

// Bars of one area: the area over the bar's, rounded up, never fewer than two.
int barCount(double area, double diameterMm);

enum class LayerStop { None, NoSecondLayer, TooManyLayers };
struct LayerFit {
    LayerStop stop = LayerStop::None;
    std::vector<int> counts;  // bars of each layer, the first against the face
};
// n bars of phi (cm) in a clear width (cm) inside the stirrup: as many as fit in
// the first layer, the rest in layers that leave the vibrator's gap in the middle.
// e is the clear spacing between bars (cm).
LayerFit fitLayers(int n, double width, double phi, double e, double vibrator);

// The design done again with the true d and d' (hard-wired coefficients and the
// balanced limit, whatever the design module used). Areas in cm2.
struct RequiredSteel {
    bool possible = true;  // false when compression steel cannot work at all
    double as = 0, asPrime = 0;
};
struct RedesignSection {
    double b = 0;              // width of a rectangle, or bw
    double bf = 0, hf = 0;     // flange of a T; bf 0 for a rectangle
};
RequiredSteel redesignWithTrueDepths(const RedesignSection& section, double mk, double d,
                                     double dPrime, double fck, double fyk, double es);

}  // namespace morve
