#pragma once
// A module's window, built from its screen declaration alone: the toolbar, the
// heading, the frames in their grid of cells, and in each frame its controls in
// the order declared. The window keeps no case data: before a command it hands
// every text to the FormState, and after it takes every text, enabling and
// visibility back.
#include <QWidget>

#include <functional>
#include <map>
#include <string>

#include "app/form_state.h"
#include "app/screen.h"
#include "app/shell_texts.h"
#include "draw/chart.h"
#include "draw/drawing.h"

class QAction;
class QButtonGroup;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QToolBar;

namespace morve {

class DrawingView;
class ChartBox;


class ScreenWindow : public QWidget {
public:
    explicit ScreenWindow(const ScreenDecl& screen, QWidget* parent = nullptr);

    const ScreenDecl& declaration() const { return decl_; }
    const std::string& name() const { return decl_.name; }

    // A control by its name on this screen ("Text3"), or a frame ("Frame2").
    QWidget* control(const std::string& name) const;
    QAction* toolbarAction(const std::string& key) const;

    // As large as its page asks, up to the room the screen has; the rest scrolls.
    void fitToScreen();

    void storeTo(FormState& state) const;
    void loadFrom(const FormState& state);

    // Picture and chart controls, to be drawn by the module.
    std::vector<std::string> pictures() const;
    std::vector<std::string> charts() const;
    void setDrawing(const std::string& picture, Drawing drawing);
    void setChart(const std::string& chart, const Chart& data);

    std::function<void(const std::string& command)> onCommand;
    std::function<void(const std::string& key)> onToolbar;
    // The window's own close; the window closes in any case.
    std::function<void()> onClose;
    // Set before the program itself closes the window, so onClose is not called.
    void closeQuietly();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // A control's widget with its caption and unit labels, made but not yet placed.
    struct ControlParts {
        QLabel* caption = nullptr;
        QWidget* widget = nullptr;
        QLabel* unit = nullptr;
    };
    ControlParts makeControl(const ControlDecl& c, const std::string& frameCaption);
    // On a row of its own in the frame's grid; true when the control can use more
    // room than it asks for (a picture, a chart or a grid).
    bool addControl(QGridLayout* grid, const ControlDecl& c, const std::string& frameCaption);
    // Beside the controls of the row before it.
    void placeInRow(QHBoxLayout* row, const ControlParts& parts);
    QString qualified(const std::string& control) const;

    ScreenDecl decl_;
    std::map<std::string, QWidget*> controls_;  // the control itself (box, list, grid, ...)
    std::map<std::string, std::vector<QWidget*>> companions_;  // its caption and unit labels
    std::map<std::string, QWidget*> frames_;
    std::map<std::string, QButtonGroup*> groups_;
    std::map<std::string, QAction*> toolbar_;
    bool quiet_ = false;
    bool shownBefore_ = false;
};

}  // namespace morve
