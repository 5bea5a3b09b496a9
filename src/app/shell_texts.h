#pragma once
// The texts of the program's own windows, around the modules: the splash, the
// start dialog's buttons, the list of help pages, the toolbar of module windows,
// the question of "Sair", the notes of a paste into a table, the "Passo a passo"
// button and the offer of the data a session left behind. The desktop and the
// web page show these same words.
#include <string>
#include <vector>

namespace morve {

inline constexpr const char* kWindowTitle = " MORVE";
inline constexpr const char* kLoading = "Carregando...Aguarde!";

// The start dialog's buttons.
inline constexpr const char* kNextTipCaption = " &Próxima dica ";
inline constexpr const char* kStartOkCaption = "&OK";
// The tip window when the tips file is not there.
inline constexpr const char* kTipsMissing = "Arquivo não encontrado.";
// The tips file holds this many tips, one a line.
inline constexpr int kTipCount = 11;

// The list of help pages of the "Ajuda" menu.
inline constexpr const char* kHelpListLabel = "Selecione um módulo e clique em \"Exibir\"";
inline constexpr const char* kHelpListShow = "&Exibir";
inline constexpr const char* kHelpListCancel = "&Cancelar";

inline constexpr const char* kExitQuestion = "Deseja sair do programa?";

// At start, when the last session ended without closing its module: the offer of
// what was typed in it, and the warning when that copy cannot be read. The
// desktop names its recovery file; the page keeps its copy in the browser, where
// the user has no path to look at, and passes "".
inline constexpr const char* kRecoveryQuestion = "Recuperar os dados digitados na última sessão?";
inline std::string recoveryDamaged(const std::string& path) {
    return "Não foi possível recuperar os dados da última sessão: o arquivo de recuperação " +
           (path.empty() ? std::string() : path + " ") + "está danificado.";
}

// The seven buttons of a module window's toolbar, in order, with their tool tips.
struct ToolbarButton {
    const char* key;
    const char* toolTip;
};

inline const std::vector<ToolbarButton>& toolbarButtons() {
    static const std::vector<ToolbarButton> buttons{
        {"Novo", "Iniciar novo módulo"},       {"Início", "Reiniciar o programa"},
        {"Abrir", "Ler dados de arquivo"},     {"Salvar", "Salvar dados em arquivo"},
        {"Imprimir", "Imprimir relatório"},    {"Ajuda", "Exibe a ajuda para esta janela"},
        {"Sair", "Sair do programa"},
    };
    return buttons;
}

// "Passo a passo" at the end of the toolbar: Alt+P, or Alt+A where a button of the
// window already answers to P ("Im&primir").
inline const char* stepsCaption(bool pTaken) { return pTaken ? "Passo &a passo" : "&Passo a passo"; }
inline constexpr const char* kStepsToolTip = "Mostra cada passo do último cálculo: fórmula, valores e item da norma";

// A block pasted into a table that does not hold it all.
inline std::string pasteTooManyRows(const std::string& limit) {
    return "A tabela tem no máximo " + limit + " linhas: as linhas coladas além dessas ficaram de fora.";
}
inline constexpr const char* kPasteTooWide = "Os valores colados além da última coluna da tabela ficaram de fora.";

}  // namespace morve
