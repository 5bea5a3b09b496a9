#pragma once
// The messages of the bracing panel screens.
#include <string>

#include "basis/messages.h"

namespace morve::txt32 {

inline const std::string kPanelCount = "Forneça o número de painéis.";
inline const std::string kMaxPanels = "Este programa é limitado ao máximo de 50 painéis de contraventamento.";
inline const std::string kBracingCount = "Forneça o número de painéis de contraventamento.";
inline const std::string kUpdatePanels = "Atualize os dados dos painéis.";
inline const std::string kFaceA = "Forneça a dimensão A da fachada.";
inline const std::string kFaceB = "Forneça a dimensão B da fachada.";
inline const std::string kHeight = "Forneça a altura do edifício.";
inline const std::string kZeroStiffness = "Você está fornecendo um painel com rigidez nula. Revise os dados.";
inline const std::string kAlpha = "O ângulo alfa deve ficar entre 0 e 90 graus. Revise os dados.";
inline const std::string kFloorZ = "Forneça a altura Z do piso em estudo.";
inline const std::string kStoreyBelow = "Forneça a altura do andar inferior.";
inline const std::string kStoreyAbove = "Forneça a altura do andar superior.";
inline const std::string kBelowOverZ =
    "A altura do andar inferior é incompatível com a cota Z do piso em estudo.";
inline const std::string kBasicSpeed = "Forneça a velocidade básica do vento.";
inline const std::string kAngle = "Forneça o ângulo de incidência do vento entre 0 e 360 graus.";
inline const std::string kS1 = "Forneça o fator topográfico S1.";
inline const std::string kS1Low =
    "De acordo com a NBR-6123, o valor mínimo de S1 é 0,9. VOCÊ QUER ALTERAR O VALOR DE S1?";
inline const std::string kS3 = "Forneça o fator estatístico S3.";
inline const std::string kS3Low =
    "De acordo com a NBR-6123, o valor mínimo de S3 é 0,83. VOCÊ QUER ALTERAR O VALOR DE S3?";
inline const std::string kCategory = "Escolha a categoria de rugosidade do terreno.";
inline const std::string kClass = "Escolha a classe da edificação.";
inline const std::string kFacesOutside =
    "Relação A/B das fachadas fora dos limites do gráfico da NBR-6123. Impossível calcular os coeficientes "
    "de arrasto.";
inline const std::string kHeightOutside =
    "Relação H/A ou H/B fora dos limites do gráfico da NBR-6123. Impossível calcular os coeficientes de "
    "arrasto.";
inline const std::string kTypedDrag =
    "Forneça os coeficientes de arrasto ou escolha uma opção para cálculo automático.";

}  // namespace morve::txt32
