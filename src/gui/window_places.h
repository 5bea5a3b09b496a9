#pragma once
// Where the program's windows stand on the screen.
class QWidget;
class QRect;

namespace morve {

QRect screenArea(const QWidget* window);
// Left = (screen width - window width) / 2, Top = (screen height - window height) / 2.
void centreOnScreen(QWidget* window);
// The help beside a module: Left = screen width - 1.01 x window width,
// Top = 0.01 x screen height.
void placeTopRight(QWidget* window);

}  // namespace morve
