#pragma once
// The words of the checks that many modules share. Modules that word a check
// differently keep their own text next to their checks.
#include <string>

namespace morve::msg {

// The note under the tables that the user types into, for one table and for several.
inline const std::string kGridArrows = "Utilize as setas do teclado para se deslocar dentro da grade";
inline const std::string kGridsArrows = "Utilize as setas do teclado para se deslocar dentro das grades";

inline const std::string kLowFck =
    "A menor resistência admitida na NBR-6118 é igual a 20 MPa. Aumente o valor de fck.";
inline const std::string kHighFck =
    "A maior resistência admitida na NBR-6118 é igual a 90 MPa. Os modelos de cálculo não se "
    "aplicam ao concreto considerado.";
inline const std::string kChooseClass = "Escolha a classe de agressividade ambiental.";
inline const std::string kClassFck =
    "A resistência à compressão escolhida é menor do que a mínima exigida para essa classe de "
    "agressividade ambiental. Aumente o valor de fck.";
inline const std::string kPositiveFyk = "Forneça um valor positivo para fyk.";
inline const std::string kPositiveFykNoStop = "Forneça um valor positivo para fyk";
inline const std::string kPositiveEs = "Forneça um valor positivo para o módulo de elasticidade do aço.";
inline const std::string kPositiveEcs = "Forneça um valor positivo para Ecs.";
inline const std::string kPositiveFck = "Forneça um valor positivo para fck.";
inline const std::string kSteelClass =
    "O valor de fyk não corresponde aos aços CA-50 ou CA-60. VOCÊ QUER ALTERAR O VALOR DE fyk?";
inline const std::string kCodeEs =
    "O valor de Es não é indicado pela NBR-6118 ou pelo CEB. VOCÊ QUER ALTERAR O VALOR DE Es?";
inline const std::string kBeamWidth =
    "Segundo a NBR-6118, a largura mínima das vigas é igual a 12cm.   VOCÊ QUER CORRIGIR A LARGURA?";
inline const std::string kBeamWidthOkCancel =
    "Segundo a NBR-6118, a largura mínima das vigas é igual a 12cm. Clique em OK para corrigir a "
    "largura. Clique em CANCELAR para continuar.";
inline const std::string kPartialCoefficient = "O coeficiente parcial de segurança não pode ser menor que 1.";
inline const std::string kBalancedBeta =
    "Na condição Balanceada não há redistribuição de momentos. Neste caso, deve-se adotar Beta=1.";
inline const std::string kDomain2 =
    "Resultou armadura dupla no domínio 2. Aumente as dimensões da seção transversal";
inline const std::string kEnlargeSection = "Aumente as dimensões da seção transversal";
inline const std::string kSteelRateAbove4 =
    "A taxa de armadura total é superior a 4%...Aumente as dimensões da seção transversal.";
inline const std::string kPositiveD = "Forneça um valor positivo para d.";
inline const std::string kPositiveH = "Forneça um valor positivo para h.";
inline const std::string kPositiveDPrime = "Forneça um valor positivo para d'.";
inline const std::string kDBelowH = "A altura útil tem que ser menor que a altura h.";
inline const std::string kDPrimeBelowD = "A distância d' deve ser menor que a altura útil d.";
inline const std::string kEcsRange =
    "O módulo secante do concreto está fora dos limites razoáveis. VOCÊ QUER CORRIGIR O MÓDULO?";
inline const std::string kHighCreep =
    "O coeficiente de fluência é muito alto e pode ter havido um erro em sua avaliação. VOCÊ QUER "
    "ALTERAR O COEFICIENTE DE FLUÊNCIA?";
inline const std::string kUpdateLoad = "Atualize o carregamento.";
// The solvers of beams, frames and slabs: a structure that cannot stand, and
// data that carry the arithmetic beyond what a number holds.
inline const std::string kSingular = "A matriz de rigidez é singular. Revise os dados.";
inline const std::string kOutOfRange =
    "Os valores fornecidos levam a resultados fora dos limites numéricos. Revise os dados.";

// "Forneça um valor positivo para " and the name, with the full stop.
std::string positiveValue(const std::string& name);

}  // namespace morve::msg
