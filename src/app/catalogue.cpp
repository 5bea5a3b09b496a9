#include "app/catalogue.h"

namespace morve {

const std::vector<CatalogueRow>& ModuleCatalogue::rows() {
    static const std::vector<CatalogueRow> table{
    {{"Laje"}, "    Flexão simples", "Command1", "Form20", {"Form20"}, "Dimensionamento de Lajes Maciças", "Ajuda20"},
    {{"Laje"}, "    Cisalhamento", "Command2", "Form21", {"Form21"}, "Verificação da Necessidade de Estribos nas Lajes Maciças", "Ajuda21"},
    {{"Laje", "laje2", "Laje3"}, "Carga uniforme", "Command3", "Form22", {"Form22b", "Form22c", "Form22d"}, "Lajes Retangulares Apoiadas nos Quatro Lados - Carga Uniforme", "Ajuda22"},
    {{"Laje", "laje2", "Laje3"}, "Cargas diversas", "Command4", "Form23", {"Form23b"}, "Lajes Retangulares Simplesmente Apoiadas nos Quatro Lados", "Ajuda23"},
    {{"Laje", "laje2"}, "Com um bordo livre", "Command5", "Form24", {"Form24b", "Form24c"}, "Lajes Retangulares com um Bordo Livre - Carga Uniforme", "Ajuda24"},
    {{"Laje"}, "    Lajes circulares", "Command8", "Form24d", {"Form24e"}, "Lajes Circulares - Carga Uniforme", "Ajuda24d"},
    {{"Laje"}, "    Lajes poligonais", "Command6", "Form24f", {"Form24f"}, "Lajes Poligonais com Carga Uniforme", "Ajuda24f"},
    {{"Laje", "Lisa"}, "Com vigas de borda", "Command40", "Form40", {"Form40"}, "Cálculo de lajes lisas apoiadas em vigas de borda rígidas", "Ajuda40"},
    {{"viga", "viga2", "viga3"}, "Dimensionamento: Seção retangular", "Command10", "Form7", {"Form7", "Form8b"}, "Dimensionamento à Flexão Simples de Seções Retangulares", "Ajuda7"},
    {{"viga", "viga2", "viga3"}, "Dimensionamento: Seção T", "Command11", "Form10", {"Form10", "Form10c"}, "Dimensionamento à Flexão Simples de Seções T", "Ajuda10"},
    {{"viga", "viga2", "viga3"}, "Verificação: Seção retangular", "Command12", "Form9", {"Form9"}, "Verificação de Seções Retangulares sob Flexão Simples Normal", "Ajuda9"},
    {{"viga", "viga2", "viga3"}, "Verificação: Seção T", "Command13", "Form11", {"Form11"}, "Verificação de Seções T sob Flexão Simples Normal", "Ajuda11"},
    {{"viga", "viga2"}, "Esforço cortante", "Command14", "Form5", {"Form5"}, "Dimensionamento ao Esforço Cortante", "Ajuda5"},
    {{"viga", "viga2"}, "Torção", "Command15", "Form6", {"Form6b"}, "Dimensionamento à Torção com Flexão de Seções Retangulares", "Ajuda6"},
    {{"viga", "viga2", "viga4"}, "No vão", "Command81", "Form36", {"Form36"}, "Ancoragem ao Longo do Vão de uma Viga", "Ajuda36"},
    {{"viga", "viga2", "viga4"}, "No apoio", "Command82", "Form37", {"Form37"}, "Ancoragem em Apoios de Extremidade", "Ajuda37"},
    {{"viga", "viga2"}, "Emendas", "Command83", "Form38", {"Form38"}, "Emendas das Barras das Armaduras", "Ajuda38"},
    {{"viga"}, "Estados limites de utilização", "Command16", "Form39", {"Form39"}, "Estados Limites de Utilização em Vigas de Concreto Armado", "Ajuda39"},
    {{"viga"}, "Esforços", "Command19", "Form34", {"Form34"}, "Esforços em Vigas Contínuas", "Ajuda34"},
    {{"pilar"}, "Situações de cálculo", "Command20", "Form35", {"Form35"}, "Situações de Cálculo dos Pilares", "Ajuda35"},
    {{"pilar", "pilar2", "pilar3"}, "Dimensionamento: Seção retangular maciça", "Command21", "Form12", {"Form12"}, "Flexo-Compressão Normal: Seção retangular maciça", "Ajuda12"},
    {{"pilar", "pilar2", "pilar3"}, "Dimensionamento: Seção retangular vazada", "Command22", "Form12d", {"Form12d"}, "Flexo-Compressão Normal: Seção retangular vazada", "Ajuda12d"},
    {{"pilar", "pilar2", "pilar3"}, "Dimensionamento: Seção circular maciça", "Command23", "Form14", {"Form14"}, "Flexo-Compressão Normal: Seção circular maciça", "Ajuda14"},
    {{"pilar", "pilar2", "pilar3"}, "Dimensionamento: Seção circular vazada", "Command24", "Form14c", {"Form14c"}, "Flexo-Compressão Normal: Seção circular vazada", "Ajuda14c"},
    {{"pilar", "pilar2", "pilar3"}, "Verificação: Seção retangular maciça", "Command25", "Form13", {"Form13"}, "Flexo-Compressão Normal: Verificação de Seção retangular maciça", "Ajuda13"},
    {{"pilar", "pilar2", "pilar3"}, "Verificação: Seção retangular vazada", "Command26", "Form13e", {"Form13e"}, "Flexo-Compressão Normal: Verificação de Seção retangular vazada", "Ajuda13e"},
    {{"pilar", "pilar2", "pilar3"}, "Verificação: Seção circular maciça", "Command27", "Form15", {"Form15"}, "Flexo-Compressão Normal: Verificação de Seção circular maciça", "Ajuda15"},
    {{"pilar", "pilar2", "pilar3"}, "Verificação: Seção circular vazada", "Command28", "Form25", {"Form25"}, "Flexo-Compressão Normal: Verificação de Seção circular vazada", "Ajuda25"},
    {{"pilar", "pilar2", "pilar4"}, "Seções simétricas", "Command29", "Form16", {"Form16"}, "Flexo-Compressão Oblíqua: Seção com dupla simetria", "Ajuda16"},
    {{"pilar", "pilar2", "pilar4"}, "Seções arbitrárias", "Command30", "Form17", {"Form17"}, "Flexo-Compressão Oblíqua: Seção poligonal arbitrária", "Ajuda17"},
    {{"pilar"}, "Rigidez equivalente de pórticos", "Command31", "Form30", {"Form30"}, "Determinação da Rigidez Equivalente de Pórticos Planos", "Ajuda30"},
    {{"pilar"}, "Pilar equivalente", "Command32", "Form31", {"Form31"}, "Rigidez Equivalente de Pilares de Seção Variável", "Ajuda31"},
    {{"pilar"}, "Força no contraventamento", "Command33", "Form32", {"Form32"}, "Ação do vento nos painéis de contraventamento", "Ajuda32"},
    {{"pilar"}, "Esforços devidos ao vento", "Command34", "Form33", {"Form33"}, "Esforços em Pórticos Planos Devidos ao Vento", "Ajuda33"},
    {{"tirante"}, "Armaduras assimétricas", "Command50", "Form18", {"Form18"}, "Dimensionamento à Flexo-Tração com Armadura Assimétrica", "Ajuda18"},
    {{"tirante"}, "Armaduras simétricas", "Command51", "Form19", {"Form19"}, "Dimensionamento à Flexo-Tração com Armadura Simétrica", "Ajuda19"},
    {{"Escadas"}, "Helicoidais", "Command52", "Form41", {"Form41"}, "Cálculo de esforços em vigas, rampas e escadas helicoidais", "Ajuda41"},
    {{"Escadas"}, "Autoportantes", "Command53", "Form42", {"Form42"}, "Cálculo de esforços em escadas autoportantes de dois lances", "Ajuda42"},
    };
    return table;
}

const std::vector<MenuNode>& ModuleCatalogue::menus() {
    static const std::vector<MenuNode> nodes{
        {"Laje", "    Lajes maciças"},  {"laje2", "    Lajes retangulares"},
        {"Laje3", "Apoiadas no contorno"}, {"Lisa", "    Lajes lisas"},
        {"viga", "Vigas"},                {"viga2", "Estado limite último"},
        {"viga3", "Flexão simples"},      {"viga4", "Ancoragem"},
        {"pilar", "Pilares"},             {"pilar2", "Flexo-compressão"},
        {"pilar3", "Normal"},             {"pilar4", "Oblíqua"},
        {"tirante", "Tirantes"},          {"Escadas", "Escadas"},
        {"ajuda", "Ajuda"},
    };
    return nodes;
}

std::string ModuleCatalogue::menuCaption(const std::string& name) {
    for (const auto& n : menus())
        if (n.name == name) return n.caption;
    return name;
}

const CatalogueRow* ModuleCatalogue::byModule(const std::string& module) {
    for (const auto& r : rows())
        if (r.module == module) return &r;
    return nullptr;
}

const std::vector<HelpMenuEntry>& ModuleCatalogue::helpMenu() {
    static const std::vector<HelpMenuEntry> entries{
        {"Apresentação", "Command73", HelpAction::GeneralPage, "Apresentação"},
        {"Aj&uda do MORVE", "Command70", HelpAction::HelpList, ""},
        {"Metodologia de projeto", "Command71", HelpAction::GeneralPage, "Metodo"},
        {"Unidades", "Command75", HelpAction::GeneralPage, "Unidades"},
        {"Contato", "Command72", HelpAction::GeneralPage, "Contato"},
        {"Alerta", "Command74", HelpAction::GeneralPage, "Alerta"},
        {"Sobre o MORVE", "Command76", HelpAction::About, ""},
    };
    return entries;
}

const std::vector<HelpListRow>& ModuleCatalogue::helpList() {
    static const std::vector<HelpListRow> list{
    {"Laje maciça - Flexão simples", "Ajuda20"},
    {"Laje maciça - Cisalhamento", "Ajuda21"},
    {"Laje maciça - Esforços - laje retangular, carga uniforme", "Ajuda22"},
    {"Laje maciça - Esforços - laje retangular, cargas diversas", "Ajuda23"},
    {"Laje maciça - Esforços - laje retangular, bordo livre", "Ajuda24"},
    {"Laje maciça - Esforços - laje circular", "Ajuda24d"},
    {"Laje maciça - Esforços - laje poligonal", "Ajuda24f"},
    {"Laje maciça - Lajes lisas - com vigas de borda", "Ajuda40"},
    {"Vigas - Flexão simples - Dimensionamento, seção retangular", "Ajuda7"},
    {"Vigas - Flexão simples - Dimensionamento, seção T", "Ajuda10"},
    {"Vigas - Flexão simples - Verificação, seção retangular", "Ajuda9"},
    {"Vigas - Flexão simples - Verificação, seção T", "Ajuda11"},
    {"Vigas - Esforço cortante", "Ajuda5"},
    {"Vigas - Torção", "Ajuda6"},
    {"Vigas - Ancoragem - No vão", "Ajuda36"},
    {"Vigas - Ancoragem - No apoio", "Ajuda37"},
    {"Vigas - Emendas", "Ajuda38"},
    {"Vigas - Estados limites de utilização", "Ajuda39"},
    {"Vigas - Esforços", "Ajuda34"},
    {"Pilares - Situações de cálculo", "Ajuda35"},
    {"Pilares - F. C. Normal - Dimensionamento, seção retangular maciça", "Ajuda12"},
    {"Pilares - F. C. Normal - Dimensionamento, seção retangular vazada", "Ajuda12d"},
    {"Pilares - F. C. Normal - Dimensionamento, seção circular maciça", "Ajuda14"},
    {"Pilares - F. C. Normal - Dimensionamento, seção circular vazada", "Ajuda14c"},
    {"Pilares - F. C. Normal - Verificação, seção retangular maciça", "Ajuda13"},
    {"Pilares - F. C. Normal - Verificação, seção retangular vazada", "Ajuda13e"},
    {"Pilares - F. C. Normal - Verificação, seção circular maciça", "Ajuda15"},
    {"Pilares - F. C. Normal - Verificação, seção circular vazada", "Ajuda25"},
    {"Pilares - F. C. Oblíqua - Seções simétricas", "Ajuda16"},
    {"Pilares - F. C. Oblíqua - Seções arbitrárias", "Ajuda17"},
    {"Pilares - Rigidez equivalente de pórticos", "Ajuda30"},
    {"Pilares - Pilar equivalente", "Ajuda31"},
    {"Pilares - Força no contraventamento", "Ajuda32"},
    {"Pilares - Esforços devidos ao vento", "Ajuda33"},
    {"Tirantes - Armaduras assimétricas", "Ajuda18"},
    {"Tirantes - Armaduras simétricas", "Ajuda19"},
    {"Escadas - Helicoidais", "Ajuda41"},
    {"Escadas - Autoportantes", "Ajuda42"},
    };
    return list;
}

const std::vector<ReportKey>& ModuleCatalogue::reportKeys() {
    // The order in which the report panel compares the key.
    static const std::vector<ReportKey> keys = [] {
        const char* order[] = {"Form10", "Form10c", "Form20",  "Form21",  "Form22b", "Form22c",
                               "Form22d", "Form23b", "Form24b", "Form24c", "Form24e", "Form24f",
                               "Form7",  "Form8b",  "Form9",   "Form11",  "Form5",   "Form6b",
                               "Form36", "Form37",  "Form38",  "Form39",  "Form34",  "Form35",
                               "Form12", "Form12d", "Form14",  "Form14c", "Form13",  "Form13e",
                               "Form15", "Form25",  "Form16",  "Form17",  "Form30",  "Form31",
                               "Form32", "Form33",  "Form18",  "Form19",  "Form40",  "Form41",
                               "Form42"};
        std::vector<ReportKey> out;
        for (const char* key : order)
            for (const auto& r : rows())
                for (const auto& k : r.reportKeys)
                    if (k == key) out.push_back({key, r.reportTitle, r.module});
        return out;
    }();
    return keys;
}

const ReportKey* ModuleCatalogue::reportKey(const std::string& key) {
    for (const auto& k : reportKeys())
        if (k.key == key) return &k;
    return nullptr;
}

}  // namespace morve
