#pragma once
// The module menu of the main window, complete and in order, with what each leaf
// opens, the keys and title of its reports, and its help page; the "Ajuda" menu;
// the list of help pages offered at the main menu; the report keys in the order
// the report panel tries them.
#include <string>
#include <vector>

namespace morve {

struct MenuNode {
    std::string name;     // "viga2"
    std::string caption;  // "Estado limite último"
};

struct CatalogueRow {
    std::vector<std::string> path;  // menu item names from the top, the leaf excluded
    std::string caption;            // caption of the leaf
    std::string command;            // "Command10"
    std::string module;             // "Form7"
    std::vector<std::string> reportKeys;
    std::string reportTitle;        // printed after "Módulo:"
    std::string help;               // base name of the help page, "" for none
};

enum class HelpAction { GeneralPage, HelpList, About };

struct HelpMenuEntry {
    std::string caption;
    std::string command;
    HelpAction action;
    std::string page;  // base name of the page for GeneralPage
};

struct HelpListRow {
    std::string text;
    std::string page;
};

struct ReportKey {
    std::string key;
    std::string title;
    std::string module;  // the module whose boxes the report reads
};

class ModuleCatalogue {
public:
    static const std::vector<CatalogueRow>& rows();
    static const std::vector<MenuNode>& menus();  // every menu name with its caption
    static std::string menuCaption(const std::string& name);
    static const CatalogueRow* byModule(const std::string& module);
    static const std::vector<HelpMenuEntry>& helpMenu();
    static const std::vector<HelpListRow>& helpList();
    // The dispatch order of the report panel.
    static const std::vector<ReportKey>& reportKeys();
    static const ReportKey* reportKey(const std::string& key);
};

}  // namespace morve
