// "catalogue": what the page shows before any module opens: the menu with what
// each leaf opens, the help menu and list, the start dialog and the "Sobre" box.
#include "app/about.h"
#include "app/catalogue.h"
#include "app/module.h"
#include "app/start_defaults.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

const char* helpActionName(HelpAction a) {
    switch (a) {
        case HelpAction::GeneralPage: return "page";
        case HelpAction::HelpList: return "list";
        case HelpAction::About: return "about";
    }
    return "page";
}

json startupJson() {
    const StartDefaults d;
    return {{"captions", StartDefaults::captions()},
            {"lists", {StartDefaults::fckItems(), StartDefaults::steelItems(), StartDefaults::steelItems(),
                       StartDefaults::codeItems(), StartDefaults::codeItems()}},
            {"selected", {d.fck, d.stirrupSteel, d.barSteel, d.ecsCode, d.esCode}}};
}

json catalogue(const json&) {
    json menus = json::array();
    for (const MenuNode& m : ModuleCatalogue::menus()) menus.push_back({{"name", m.name}, {"caption", m.caption}});
    json rows = json::array();
    for (const CatalogueRow& r : ModuleCatalogue::rows())
        rows.push_back({{"path", r.path},
                        {"caption", r.caption},
                        {"command", r.command},
                        {"module", r.module},
                        {"reportKeys", r.reportKeys},
                        {"reportTitle", r.reportTitle},
                        {"help", r.help}});
    json helpMenu = json::array();
    for (const HelpMenuEntry& h : ModuleCatalogue::helpMenu())
        helpMenu.push_back(
            {{"caption", h.caption}, {"command", h.command}, {"action", helpActionName(h.action)}, {"page", h.page}});
    json helpList = json::array();
    for (const HelpListRow& h : ModuleCatalogue::helpList()) helpList.push_back({{"text", h.text}, {"page", h.page}});
    const std::string about = std::string(kAboutHeading) + "\n" + kVersionCaption + "\n" + kAboutPurpose + "\n" +
                              kLicenceLine + "\n" + kNoWarrantyLine;
    return {{"version", MORVE_VERSION},
            {"menus", menus},
            {"rows", rows},
            {"registered", ModuleRegistry::keys()},
            {"helpMenu", helpMenu},
            {"helpList", helpList},
            {"startup", startupJson()},
            {"about", about}};
}

const RegisterOp registered("catalogue", catalogue);

}  // namespace

}  // namespace morve::web
