#pragma once
// The windows of the start and of the end of a run: the splash (Form0entra), the
// backdrop behind the modules (Form0b), the start-up defaults (FormAviso) and the
// closing notice (FormSAIDA).
#include <QDialog>
#include <QWidget>

#include <array>
#include <functional>

#include "app/start_defaults.h"

class QListWidget;

namespace morve {

class SplashWindow : public QWidget {
public:
    SplashWindow();
};

class Backdrop : public QWidget {
public:
    Backdrop();

protected:
    void paintEvent(QPaintEvent*) override;
};

// FormAviso: the five lists of the run's defaults, " Próxima dica " and "&OK".
// Modal: nothing else of the program answers until "&OK", since every module
// reads the defaults chosen here. Windows made its children (the tip) stay live.
class StartDialog : public QDialog {
public:
    StartDialog();
    QListWidget* list(int n) const { return lists_[static_cast<std::size_t>(n - 1)]; }
    // "&OK": the selections, with Ecs worked out from them.
    StartDefaults chosen() const;
    void confirm();

    std::function<void(const StartDefaults&)> onConfirm;
    std::function<void()> onNextTip;

    // Esc does not skip the choice of the defaults.
    void reject() override {}

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::array<QListWidget*, 5> lists_{};
    bool confirmed_ = false;
};

class ExitWindow : public QWidget {
public:
    ExitWindow();
};

}  // namespace morve
