#pragma once
// Where the program's windows stand on the screen. Every placement ends with the
// whole window, frame and title bar included, on the screen's available area.
class QWidget;
class QRect;
class QSize;

namespace morve {

QRect screenArea(const QWidget* window);
// The largest size of the window whose frame still lies on the available area.
QSize roomOnScreen(const QWidget* window);
// Left = (screen width - window width) / 2, Top = (screen height - window height) / 2.
void centreOnScreen(QWidget* window);
// The help beside a module: Left = screen width - 1.01 x window width,
// Top = 0.01 x screen height.
void placeTopRight(QWidget* window);
// Beside another window, where it covers nothing of it: to its right, else to its
// left, below or above; where none has room, in the corner farthest from it.
void placeBeside(QWidget* window, const QWidget* other);
// The whole available area, frame included (the report preview).
void fillScreen(QWidget* window);
// Made smaller and moved as little as needed to lie wholly on the available area.
void keepOnScreen(QWidget* window);
// The window with its frame; before the window manager has framed it, a usual
// title bar and border are counted so that it still fits once framed.
QRect framedGeometry(const QWidget* window);

}  // namespace morve
