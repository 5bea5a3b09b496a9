// {"op":"texts"}: the words of the program's own windows that the page shows
// around the modules, from the same header the desktop reads them from.
#include "app/about.h"
#include "app/prompter.h"
#include "app/shell_texts.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

json shellTexts(const json&) {
    json toolbar = json::object();
    for (const ToolbarButton& b : toolbarButtons()) toolbar[b.key] = b.toolTip;
    return {
        {"windowTitle", kWindowTitle},
        {"boxTitle", kBoxTitle},
        {"version", kVersionCaption},
        {"purpose", kAboutPurpose},
        {"loading", kLoading},
        {"nextTip", kNextTipCaption},
        {"ok", kStartOkCaption},
        {"tipsMissing", kTipsMissing},
        {"tipCount", kTipCount},
        {"helpListLabel", kHelpListLabel},
        {"helpListShow", kHelpListShow},
        {"helpListCancel", kHelpListCancel},
        {"exitQuestion", kExitQuestion},
        {"toolbar", toolbar},
        {"stepsCaption", stepsCaption(false)},
        {"stepsCaptionP", stepsCaption(true)},
        {"stepsToolTip", kStepsToolTip},
        // The page puts the table's limit where "%1" stands.
        {"pasteTooManyRows", pasteTooManyRows("%1")},
        {"pasteTooWide", kPasteTooWide},
        {"recoveryQuestion", kRecoveryQuestion},
        {"recoveryDamaged", recoveryDamaged("")},
    };
}

const RegisterOp registered("texts", shellTexts);

}  // namespace

}  // namespace morve::web
