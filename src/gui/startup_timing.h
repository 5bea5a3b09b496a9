#pragma once
// `morve --timing`: how long the first windows take to appear. Each of the splash
// (Form0entra) and the start dialog (FormAviso) prints, when first painted, the time since the process
// began (the kernel's start time of the process, so that loading Qt's libraries
// counts too; its clock ticks are of 10 ms). The program ends after the start
// dialog is painted, so that a script can time it again and again.
class QApplication;

namespace morve {

void reportStartupTiming(QApplication& app);

}  // namespace morve
