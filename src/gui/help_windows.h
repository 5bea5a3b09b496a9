#pragma once
// The help of the program: a page shown beside a module or chosen at the menu
// (FormAjuda, Form0Metodo), the list of module pages (Form0Help), the tip of the
// start (FormTip) and the about box (FormAbout).
#include <QWidget>

#include <functional>
#include <string>

class QLabel;
class QListWidget;
class QTextBrowser;

namespace morve {

class HelpPageWindow : public QWidget {
public:
    explicit HelpPageWindow(const char* objectName, QWidget* parent = nullptr);
    // Loads data/ajuda/<baseName>.html; a missing page shows a notice instead.
    // An empty name shows nothing.
    void showPage(const std::string& baseName);
    QTextBrowser* browser() const { return browser_; }
    const std::string& page() const { return page_; }

private:
    QTextBrowser* browser_;
    std::string page_;
};

// Form0Help: "&Exibir" shows the selected row's page in FormAjuda; "&Cancelar"
// and the window's close give the menu back.
class HelpListWindow : public QWidget {
public:
    HelpListWindow();
    QListWidget* list() const { return list_; }
    std::function<void(const std::string& page)> onShow;
    std::function<void()> onCancel;
    void showSelected();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QListWidget* list_;
    bool done_ = false;
};

// FormTip: one of the eleven tips, drawn at random each time it opens.
class TipWindow : public QWidget {
public:
    TipWindow();
    QString tip() const;
    // Draws a tip from the tips file.
    void drawTip();

private:
    QLabel* label_;
};

class AboutWindow : public QWidget {
public:
    AboutWindow();
};

}  // namespace morve
