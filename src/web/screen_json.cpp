#include "web/screen_json.h"

namespace morve::web {

using nlohmann::json;

namespace {

const char* kindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox: return "TextBox";
        case ControlKind::ResultBox: return "ResultBox";
        case ControlKind::Label: return "Label";
        case ControlKind::List: return "List";
        case ControlKind::Option: return "Option";
        case ControlKind::Check: return "Check";
        case ControlKind::Grid: return "Grid";
        case ControlKind::Picture: return "Picture";
        case ControlKind::Chart: return "Chart";
        case ControlKind::Command: return "Command";
    }
    return "Label";
}

const KeyFilter kFilters[] = {KeyFilter::None, KeyFilter::PositiveNumber, KeyFilter::SignedNumber,
                              KeyFilter::Digit};

json gridJson(const GridDecl& g) {
    json columns = json::array();
    for (KeyFilter f : g.columnFilters) columns.push_back(keyFilterName(f));
    return {{"header", g.header},
            {"rows", g.rows},
            {"maxRows", g.maxRows},
            {"filter", keyFilterName(g.filter)},
            {"firstColumnLocked", g.firstColumnLocked},
            {"results", g.results},
            {"columnFilters", columns}};
}

json controlJson(const ControlDecl& c) {
    json out = {{"name", c.name},
                {"kind", kindName(c.kind)},
                {"frame", c.frame},
                {"caption", c.caption},
                {"unit", c.unit},
                {"text", c.text},
                {"filter", keyFilterName(c.filter)},
                {"items", c.items},
                {"group", c.group},
                {"checked", c.checked},
                {"toolTip", c.toolTip},
                {"enabled", c.enabled},
                {"visible", c.visible},
                {"width", c.width},
                {"height", c.height},
                {"sameRow", c.sameRow}};
    if (c.kind == ControlKind::Grid) out["grid"] = gridJson(c.grid);
    return out;
}

}  // namespace

const char* keyFilterName(KeyFilter filter) {
    switch (filter) {
        case KeyFilter::None: return "None";
        case KeyFilter::PositiveNumber: return "PositiveNumber";
        case KeyFilter::SignedNumber: return "SignedNumber";
        case KeyFilter::Digit: return "Digit";
    }
    return "None";
}

bool keyFilterNamed(const std::string& name, KeyFilter& filter) {
    for (KeyFilter f : kFilters)
        if (name == keyFilterName(f)) {
            filter = f;
            return true;
        }
    return false;
}

json screenJson(const ScreenDecl& screen) {
    json frames = json::array();
    for (const FrameDecl& f : screen.frames)
        frames.push_back({{"name", f.name},
                          {"caption", f.caption},
                          {"row", f.row},
                          {"column", f.column},
                          {"rowSpan", f.rowSpan},
                          {"columnSpan", f.columnSpan}});
    json controls = json::array();
    for (const ControlDecl& c : screen.controls) controls.push_back(controlJson(c));
    return {{"name", screen.name},     {"title", screen.title},   {"heading", screen.heading},
            {"toolbar", screen.toolbar}, {"escape", screen.escape}, {"frames", frames},
            {"controls", controls}};
}

}  // namespace morve::web
