#pragma once
// What pressing a command did: whether the calculation ran to its end, which
// control takes the focus, and the changes to the screens, in the order they happen.
#include <string>
#include <vector>

namespace morve {

enum class EffectKind {
    ShowScreen,     // target "Form8"
    HideScreen,
    UnloadScreen,
    EnableScreen,
    DisableScreen,
    EnableControl,  // target "Form7.Command3", "Form7.Toolbar1.Imprimir"
    DisableControl,
    ShowControl,    // a control or a frame
    HideControl,
    StartReport,    // target: the report key; the report panel opens for it
    SavePicture,    // target "Form40d.Picture1": its drawing goes to a picture file
    PrintPicture,   // the same drawing on one printed page
};

struct ScreenEffect {
    EffectKind kind;
    std::string target;
    bool operator==(const ScreenEffect&) const = default;
};

struct Outcome {
    bool completed = false;
    std::string focus;  // qualified control name, empty when the focus stays
    std::vector<ScreenEffect> effects;
    // Why a press did not run at all: "disabled" or "hidden", as a button that the
    // desktop would not let the user reach; empty when the command ran.
    std::string refused;

    static Outcome done() { return Outcome{true, {}, {}, {}}; }
    static Outcome stop(std::string focus = {}) { return Outcome{false, std::move(focus), {}, {}}; }
    Outcome& then(EffectKind kind, std::string target) {
        effects.push_back({kind, std::move(target)});
        return *this;
    }
};

// The toolbar's "Imprimir" of a module window, as a control name.
inline std::string printButton(const std::string& screen) { return screen + ".Toolbar1.Imprimir"; }

// A companion screen takes the place of another, the focus where it is asked.
inline Outcome switchTo(const std::string& from, const std::string& to, std::string focus = {}) {
    Outcome o = Outcome::done().then(EffectKind::HideScreen, from).then(EffectKind::ShowScreen, to);
    o.focus = std::move(focus);
    return o;
}

const char* effectKindName(EffectKind kind);

}  // namespace morve
