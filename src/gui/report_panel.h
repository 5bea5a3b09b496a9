#pragma once
// FormImprimir: the report of one key, for any module. The panel takes the
// example's title and the number of copies; "Visualizar" shows the report a page
// at a time; "Im&primir" sends it to the printer, "&Salvar" to a PDF file;
// "&Cancelar" gives the calling window back.
#include <QPointer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

#include "app/module.h"
#include "reports/report_writer.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace morve {

class PagePreview : public QWidget {
public:
    explicit PagePreview(QWidget* parent = nullptr);
    // The page shown, and the whole report, whose widest line sets the font size.
    void setPage(const ReportPage* page, const std::vector<ReportPage>* report = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    const ReportPage* page_ = nullptr;
    const std::vector<ReportPage>* report_ = nullptr;
};

// The name a saved report is offered under: the example's title when there is
// one, else the report's title, else the module's caption; made safe for a file
// name, with ".pdf".
QString suggestedPdfName(const std::string& exampleTitle, const std::string& reportTitle,
                         const std::string& moduleCaption);

class ReportPanel : public QWidget {
public:
    // The module and its boxes must outlive the panel; the caller is disabled
    // while the panel is up and enabled again by "&Cancelar".
    ReportPanel(std::string key, const Module& module, const FormState& state, QWidget* caller);

    // Builds the report from the module's boxes as they are now.
    ReportDocument document() const;
    std::vector<ReportPage> pages(PageRule rule) const;

    void preview();             // "Visualizar"
    void nextPage();            // "Avançar"
    void previousPage();        // "Voltar"
    void backToPanel();         // "Imprimir" of the preview
    void print();               // "Im&primir": the print dialog, then the printer
    void save();                // "&Salvar": the file dialog, then saveTo
    std::string saveTo(const QString& path);  // "" on success; the panel says where it wrote
    QString suggestedName() const;
    void cancel();              // "&Cancelar"

    int selectedPage() const { return selected_; }
    int pageCount() const { return static_cast<int>(screenPages_.size()); }
    bool previewing() const { return previewing_; }
    QWidget* control(const char* name) const;
    const std::string& key() const { return key_; }
    QWidget* caller() const { return caller_; }

    std::function<void()> onClosed;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void showPage(int page);

    std::string key_;
    const Module& module_;
    const FormState& state_;
    QPointer<QWidget> caller_;
    int selected_ = 1;
    bool previewing_ = false;
    QSize savedSize_;
    std::vector<ReportPage> screenPages_;

    QLabel *label2_, *label3_, *slash_, *savedNote_;
    QLineEdit *text1_, *text2_, *text11_, *text22_;
    QPushButton *command1_, *command2_, *command3_, *command6_, *command7_;
    QToolButton *command4_, *command5_;
    PagePreview* picture1_;
};

}  // namespace morve
