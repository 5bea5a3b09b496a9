#pragma once
// The defaults of a run, chosen once in the start dialog and read by every module
// when it opens: five selections and the secant modulus Ecs worked out from them.
#include <string>
#include <string_view>
#include <vector>

namespace morve {

// Ecs in MPa for a concrete of fck MPa by the code named ("CEB/90" or "NBR-6118").
double computeEcs(double fck, std::string_view code);

struct StartDefaults {
    static const std::vector<std::string>& fckItems();    // List1
    static const std::vector<std::string>& steelItems();  // List2, List3
    static const std::vector<std::string>& codeItems();   // List4, List5

    // Captions of the start dialog, one per list.
    static const std::vector<std::string>& captions();

    // Selected indices of List1 ... List5, as the start dialog first shows them.
    int fck = 0;           // "20"
    int stirrupSteel = 1;  // "CA-60": stirrups and slab bars
    int barSteel = 0;      // "CA-50": other bars
    int ecsCode = 1;       // "CEB/90": which code gives Ecs
    int esCode = 1;        // "CEB/90": which code gives Es
    double ecs = computeEcs(20, "CEB/90");

    // The text of Form0.List1 ... List5 (n from 1 to 5), "" for a bad index.
    std::string list(int n) const;
    // Ecs as the modules' boxes show it: whole MPa, the fraction dropped, so fck 20
    // by CEB/90 gives the windows' own default 25757.
    std::string ecsText() const;
    // "&OK" of the start dialog: Ecs from the selections.
    void confirm();
    // Select by item text (the case file's words); false when no item has it.
    bool select(int n, const std::string& itemText);
};

}  // namespace morve
