#pragma once
// "Passo a passo": the steps of the module's latest CALCULAR as formatted text,
// with printing and saving as PDF and as one HTML file. The text itself is made by
// the core (traceHtml), so the window, the PDF and morve-calc show the same.
#include <QWidget>

#include <functional>
#include <string>

#include "app/trace.h"

class QTextBrowser;
class QToolBar;

namespace morve {

class StepsWindow : public QWidget {
    Q_OBJECT

public:
    explicit StepsWindow(QWidget* parent = nullptr);
    // Shows a trace; the window keeps its own copy of the page.
    void showTrace(const Trace& trace);
    const std::string& html() const { return html_; }
    QTextBrowser* browser() const { return browser_; }

    void print();
    // "" on success, otherwise what went wrong.
    std::string saveHtml(const QString& path) const;
    std::string savePdf(const QString& path) const;

private:
    void saveWithDialog(bool pdf);
    QTextBrowser* browser_;
    std::string html_;
};

// Puts "&Passo a passo" at the end of a module window's toolbar; `trace` gives
// the session's latest trace when the button is pressed.
void addStepsButton(QToolBar* toolbar, QWidget* owner, std::function<const Trace&()> trace);

}  // namespace morve
