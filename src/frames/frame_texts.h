#pragma once
// The messages of the plane-frame screens, shared by the buttons and modules that
// check the same things.
#include <string>

#include "basis/messages.h"

namespace morve::txtframe {

inline const std::string kHighFck8953 =
    "A maior resistência admitida na NBR-8953 é igual a 90MPa. Os modelos de cálculo não se aplicam ao concreto "
    "considerado.";
inline const std::string kMinColumns = "O número mínimo de pilares é igual a 2.";
inline const std::string kMaxColumns = "Este programa está limitado a um máximo de 40 pilares.";
inline const std::string kMinBeams = "O número mínimo de vigas é igual a 1.";
inline const std::string kMaxBeams = "Este programa está limitado a um máximo de 100 vigas.";
inline const std::string kUpdateColumns = "Atualize os dados dos pilares.";
inline const std::string kUpdateBeams = "Atualize os dados das vigas.";
inline const std::string kUpdateMasonry = "Atualize os dados das alvenarias.";
inline const std::string kTooManyNodes =
    "O número de nós é maior que 500. O programa não está preparado para resolver este pórtico.";
inline const std::string kTooManyBars =
    "O número de barras é maior que 950. O programa não está preparado para resolver este pórtico.";
inline const std::string kZeroHeight = "Você está fornecendo uma altura de andar igual a zero. Revise os dados.";
inline const std::string kColumnInertia =
    "Você está fornecendo uma inércia nula para a seção dos pilares. Revise os dados.";
inline const std::string kColumnArea = "Você está fornecendo uma área nula para a seção dos pilares. Revise os dados.";
inline const std::string kZeroSpan =
    "Você está fornecendo um espaçamento entre pilares igual a zero. Revise os dados.";
inline const std::string kBeamInertia = "Você está fornecendo uma inércia nula para a seção das vigas. Revise os dados.";
inline const std::string kBeamArea = "Você está fornecendo uma área nula para a seção das vigas. Revise os dados.";
inline const std::string kRelease =
    "O percentual de redução da rigidez rotacional das vigas não deve ser maior que 90%.";
inline const std::string kMasonryModulus =
    "Você está fornecendo um valor nulo para o módulo de elasticidade da alvenaria. Corrija esse dado.";
inline const std::string kMasonryStrength =
    "Você está fornecendo um valor nulo para a resistência à comprssão da alvenaria. Corrija esse dado.";
inline const std::string kMasonryThickness =
    "Você está fornecendo um valor nulo para a espessura das paredes. Corrija esse dado.";
inline const std::string kSlenderWall =
    "Há paredes com índice de esbeltez h/t superior a 24, o que não é permitido como alvenaria estrutural. "
    "Desconsidere essas paredes e execute novamente.";
inline const std::string kPDelta =
    "Não convergiu em 50 iterações. Os resultados correspondem à última iteração realizada.";
inline const std::string kInfillLost =
    "A alvenaria não pode ser considerada em nenhum painel. O pórtico foi analisado como pórtico sem "
    "preenchimento. Alternativas para considerar a alvenaria: aumentar as resistências da alvenaria e da "
    "argamassa e/ou aumentar a rigidez dos pilares.";
// Checks of this program's own, where the old one went on to a fault.
inline const std::string kNoWind =
    "Não há forças horizontais no pórtico. Forneça ao menos uma força horizontal não nula.";
inline const std::string kNoClearPanel =
    "Há painéis de alvenaria sem vão livre: a altura das vigas ou a largura dos pilares ocupa todo o painel. "
    "Revise os dados.";
inline const std::string kNoProgress =
    "A redução da rigidez das alvenarias não progrediu. Revise os dados das alvenarias.";
inline const std::string kPickBar = "Selecione na lista a barra cujos diagramas deseja ver.";

}  // namespace morve::txtframe
