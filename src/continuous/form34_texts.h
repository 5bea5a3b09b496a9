#pragma once
// The messages of the continuous beam screens, shared by the buttons that check the
// same things.
#include <string>

#include "basis/messages.h"

namespace morve::txt34 {

inline const std::string kCreep =
    "O coeficiente de fluência é muito alto. VOCÊ QUER CORRIGIR O COEFICIENTE DE FLUÊNCIA?";
inline const std::string kMinSpans = "O número mínimo de vãos é igual a 1.";
inline const std::string kMaxSpans = "Este programa está limitado a um máximo de 20 vãos.";
inline const std::string kMinSupports = "O número mínimo de apoios é igual a 1 engaste ou 2 apoios simples.";
inline const std::string kSupportsOverNodes = "O número de apoios não pode ser maior que o número de nós.";
inline const std::string kNoLoad = "Não há carga na viga. Forneça o carregamento.";
inline const std::string kNodalOverNodes = "O número de cargas nodais não pode ser maior que o número de nós.";
inline const std::string kMaxBarLoads =
    "Este programa é limitado ao máximo de 20 pontos de carga concentrada nas barras.";
inline const std::string kMaxSegments = "Este programa é limitado ao máximo de 40 segmentos de carga uniforme.";

inline const std::string kUpdateBeam = "Atualize os dados da viga.";
inline const std::string kUpdateLoading = "Atualize os dados do carregamento.";
inline const std::string kZeroInertia =
    "Você está fornecendo uma inércia nula para a seção da viga. Revise os dados.";
inline const std::string kZeroLength =
    "Você está fornecendo um comprimento nulo para um vão da viga. Revise os dados.";
inline const std::string kNodalNode =
    "Você está fornecendo carga nodal aplicada em um nó inexistente. Revise os dados.";
inline const std::string kNodalZero = "Nenhum valor de carga nodal foi fornecido. Revise os dados.";
inline const std::string kBarLoadSpan =
    "Você está fornecendo carga concentrada aplicada em um vão inexistente. Revise os dados.";
inline const std::string kBarLoadPlace =
    "Uma ou mais cargas concentradas nas barras estão aplicadas fora dos limites da barra ou são "
    "cargas nodais. Revise os dados.";
inline const std::string kBarLoadZero =
    "Nenhum valor de carga concentrada nas barras foi fornecido. Revise os dados.";
inline const std::string kBarLoadZeroTable =
    "Nenhum valor de carga aplicada nas barras foi fornecido. Revise os dados.";
inline const std::string kSegmentSpan =
    "Você está fornecendo carga distribuída aplicada em um vão inexistente. Revise os dados.";
inline const std::string kSegmentStart =
    "Uma ou mais cargas distribuídas estão aplicadas fora dos limites da barra. Revise os dados.";
inline const std::string kSegmentLength =
    "Uma ou mais cargas distribuídas apresentam comprimento fora dos limites. Revise os dados.";
inline const std::string kSegmentZero = "Nenhum valor de carga distribuída foi fornecido. Revise os dados.";
inline const std::string kSupportNode = "Você está colocando apoio em um nó inexistente. Revise os dados.";
inline const std::string kSupportType = "Você está fornecendo um tipo errado para os apoios. Revise os dados.";
inline const std::string kHypostatic = "A viga é hipostática.";
// Limits of this program's own, where the old one had none of its words.
inline const std::string kTooManyReactions =
    "Este programa está limitado a 10 deslocamentos impedidos nos apoios (um por apoio simples "
    "ou engaste elástico, dois por engaste). Revise os dados.";

// The drawing screens' own checks.
inline const std::string kAllLengths = "Forneça o comprimento de todos os vãos.";
inline const std::string kBadSupportNode = "Número de nó de apoio inválido.";
inline const std::string kBadSupportType = "Tipo de apoio inválido.";
inline const std::string kBackLengths = "Retorne e forneça o comprimento de todos os vãos.";
inline const std::string kBackSupportNodes = "Retorne e revise os números dos nós de apoio.";
inline const std::string kBackSupportTypes = "Retorne e revise os tipos de apoio.";

}  // namespace morve::txt34
