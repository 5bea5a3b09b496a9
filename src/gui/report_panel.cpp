#include "gui/report_panel.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPageLayout>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "gui/grid_export.h"
#include "gui/gui_prompter.h"
#include "gui/key_filter_guard.h"
#include "gui/keyboard.h"
#include "gui/window_places.h"
#include "render/page_painter.h"
#include "app/catalogue.h"
#include "reports/report_dispatch.h"

namespace morve {

PagePreview::PagePreview(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Picture1"));
    // Room for a page of 38 lines in the size 8 font.
    const PageGeometry g = screenGeometry(*this, 600);
    setMinimumSize(620, static_cast<int>(g.top + 38 * g.lineHeight + 8));
}

void PagePreview::setPage(const ReportPage* page, const std::vector<ReportPage>* report) {
    page_ = page;
    report_ = report;
    update();
}

void PagePreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!page_) return;
    PageGeometry g = screenGeometry(*this, width());
    fitWidestLine(g, *this, report_ ? *report_ : std::vector<ReportPage>{*page_});
    paintReportPage(painter, *page_, g);
}

ReportPanel::ReportPanel(std::string key, const Module& module, const FormState& state, QWidget* caller)
    : key_(std::move(key)), module_(module), state_(state), caller_(caller) {
    setWindowFlag(Qt::Window);
    setObjectName(QStringLiteral("FormImprimir"));
    setWindowTitle(QStringLiteral(" MORVE"));
    setAttribute(Qt::WA_DeleteOnClose);

    label3_ = new QLabel(QStringLiteral("Título do exemplo"), this);
    label3_->setObjectName(QStringLiteral("Label3"));
    text2_ = new QLineEdit(this);
    text2_->setObjectName(QStringLiteral("Text2"));
    text2_->setMinimumWidth(320);
    label2_ = new QLabel(QStringLiteral("Número de cópias"), this);
    label2_->setObjectName(QStringLiteral("Label2"));
    text1_ = new QLineEdit(QStringLiteral("1"), this);
    text1_->setObjectName(QStringLiteral("Text1"));
    text1_->setMaximumWidth(60);
    KeyFilterGuard::install(text1_, KeyFilter::Digit);

    auto button = [this](const char* name, const char* caption, const char* tip) {
        auto* b = new QPushButton(QString::fromUtf8(caption), this);
        b->setObjectName(QString::fromUtf8(name));
        if (tip) b->setToolTip(QString::fromUtf8(tip));
        b->setAutoDefault(true);  // Enter presses the button that has the focus, as Space does
        return b;
    };
    command1_ = button("Command1", "Visualizar", "Visualizar o relatório antes da impressão");
    command2_ = button("Command2", "Im&primir", nullptr);
    command3_ = button("Command3", "&Cancelar", nullptr);
    command7_ = button("Command7", "&Salvar", "Salvar o relatório em arquivo PDF");
    command6_ = button("Command6", "Imprimir", nullptr);

    command4_ = new QToolButton(this);
    command4_->setObjectName(QStringLiteral("Command4"));
    command4_->setToolTip(QStringLiteral("Voltar"));
    command4_->setIcon(style()->standardIcon(QStyle::SP_ArrowLeft));
    command5_ = new QToolButton(this);
    command5_->setObjectName(QStringLiteral("Command5"));
    command5_->setToolTip(QStringLiteral("Avançar"));
    command5_->setIcon(style()->standardIcon(QStyle::SP_ArrowRight));
    text11_ = new QLineEdit(QStringLiteral("1"), this);
    text11_->setObjectName(QStringLiteral("Text11"));
    text22_ = new QLineEdit(this);
    text22_->setObjectName(QStringLiteral("Text22"));
    for (QLineEdit* t : {text11_, text22_}) {
        t->setReadOnly(true);
        t->setMaximumWidth(48);
        t->setAlignment(Qt::AlignCenter);
    }
    picture1_ = new PagePreview(this);
    savedNote_ = new QLabel(this);
    savedNote_->setObjectName(QStringLiteral("LabelSalvo"));
    savedNote_->setWordWrap(true);
    savedNote_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    savedNote_->hide();

    auto* layout = new QGridLayout(this);
    layout->addWidget(label3_, 0, 0);
    layout->addWidget(text2_, 0, 1, 1, 3);
    layout->addWidget(label2_, 1, 0);
    layout->addWidget(text1_, 1, 1);
    auto* buttons = new QHBoxLayout();
    for (QPushButton* b : {command1_, command2_, command7_, resultsWorkbookButton(this, state_), command3_})
        buttons->addWidget(b);
    layout->addLayout(buttons, 2, 0, 1, 4);
    layout->addWidget(savedNote_, 4, 0, 1, 4);

    auto* side = new QVBoxLayout();
    auto* turn = new QHBoxLayout();
    turn->addWidget(command4_);
    turn->addWidget(text11_);
    slash_ = new QLabel(QStringLiteral("/"), this);
    turn->addWidget(slash_);
    turn->addWidget(text22_);
    turn->addWidget(command5_);
    side->addLayout(turn);
    side->addWidget(command6_);
    side->addStretch(1);
    layout->addLayout(side, 3, 0);
    layout->addWidget(picture1_, 3, 1, 1, 3);
    layout->setRowStretch(3, 1);
    layout->setColumnStretch(3, 1);

    connect(command1_, &QPushButton::clicked, this, [this] { preview(); });
    connect(command2_, &QPushButton::clicked, this, [this] { print(); });
    connect(command3_, &QPushButton::clicked, this, [this] { cancel(); });
    connect(command7_, &QPushButton::clicked, this, [this] { save(); });
    connect(command6_, &QPushButton::clicked, this, [this] { backToPanel(); });
    connect(command4_, &QToolButton::clicked, this, [this] { previousPage(); });
    connect(command5_, &QToolButton::clicked, this, [this] { nextPage(); });
    // Esc leaves the preview for the panel, and the panel as "&Cancelar" does.
    onEscape(this, [this] { previewing_ ? backToPanel() : cancel(); });

    // The panel as it opens: the preview's controls hidden and off.
    for (QWidget* w : std::initializer_list<QWidget*>{command4_, command5_, command6_}) {
        w->hide();
        w->setEnabled(false);
    }
    text11_->hide();
    text22_->hide();
    picture1_->hide();
    slash_->hide();
    if (caller_) caller_->setEnabled(false);
    adjustSize();
    centreOnScreen(this);
}

QWidget* ReportPanel::control(const char* name) const {
    return findChild<QWidget*>(QString::fromUtf8(name));
}

ReportDocument ReportPanel::document() const {
    ReportWriter writer;
    generateReport(key_, module_, state_, writer);
    return writer.document();
}

std::vector<ReportPage> ReportPanel::pages(PageRule rule) const {
    return paginate(document(), text2_->text().toStdString(), rule);
}

void ReportPanel::preview() {
    command4_->setEnabled(false);
    command5_->setEnabled(false);
    for (QWidget* w : std::initializer_list<QWidget*>{label2_, label3_, text1_, text2_, command1_, command2_,
                                                      command3_, command7_})
        w->hide();
    text1_->setReadOnly(true);
    text2_->setReadOnly(true);
    savedNote_->hide();
    savedSize_ = size();
    previewing_ = true;
    for (QWidget* w : std::initializer_list<QWidget*>{command4_, command5_, command6_, text11_, text22_, picture1_})
        w->show();
    slash_->show();
    command6_->setEnabled(true);
    screenPages_ = pages(PageRule::Screen);
    text22_->setText(QString::number(pageCount()));
    if (pageCount() > 1) command5_->setEnabled(true);
    fillScreen(this);
    showPage(selected_);
}

void ReportPanel::showPage(int page) {
    selected_ = page;
    text11_->setText(QString::number(page));
    const bool inRange = page >= 1 && page <= pageCount();
    picture1_->setPage(inRange ? &screenPages_[static_cast<std::size_t>(page - 1)] : nullptr, &screenPages_);
}

void ReportPanel::nextPage() {
    const int page = text11_->text().toInt(), count = text22_->text().toInt();
    if (page + 1 > count) return;
    showPage(page + 1);
    command4_->setEnabled(true);
}

void ReportPanel::previousPage() {
    const int page = text11_->text().toInt();
    if (page - 1 < 1) return;
    showPage(page - 1);
}

void ReportPanel::backToPanel() {
    for (QWidget* w : std::initializer_list<QWidget*>{label2_, label3_, text1_, text2_, command1_, command2_,
                                                      command3_, command7_})
        w->show();
    text1_->setReadOnly(false);
    text2_->setReadOnly(false);
    for (QWidget* w : std::initializer_list<QWidget*>{command4_, command5_, command6_, text11_, text22_, picture1_})
        w->hide();
    slash_->hide();
    command6_->setEnabled(false);
    previewing_ = false;
    selected_ = 1;
    text11_->setText(QStringLiteral("1"));
    if (savedSize_.isValid()) resize(savedSize_);
    adjustSize();
    centreOnScreen(this);
    command2_->setFocus();
}

void ReportPanel::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    printer.setCopyCount(std::max(1, text1_->text().toInt()));
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(QStringLiteral(" MORVE"));
    if (dialog.exec() != QDialog::Accepted) return;
    paintReportPages(printer, pages(PageRule::Paper));
}

QString suggestedPdfName(const std::string& exampleTitle, const std::string& reportTitle,
                         const std::string& moduleCaption) {
    QString name;
    for (const std::string* s : {&exampleTitle, &reportTitle, &moduleCaption}) {
        name = QString::fromStdString(*s).simplified();
        if (!name.isEmpty()) break;
    }
    // Separators of folders and the marks some file systems refuse become dashes.
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    QString safe;
    for (QChar c : name)
        safe += refused.contains(c) || c.category() == QChar::Other_Control ? QStringLiteral(" - ") : QString(c);
    name = safe.simplified();
    while (name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char('-')) || name.startsWith(QLatin1Char(' ')))
        name.remove(0, 1);
    if (name.isEmpty()) name = QStringLiteral("relatorio");
    return name.left(120) + QStringLiteral(".pdf");
}

QString ReportPanel::suggestedName() const {
    const CatalogueRow* row = ModuleCatalogue::byModule(module_.info().key);
    return suggestedPdfName(text2_->text().toStdString(), document().title, row ? row->caption : key_);
}

void ReportPanel::save() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Salvar o relatório em arquivo PDF"),
                                                      folder + "/" + suggestedName(),
                                                      QStringLiteral("PDF (*.pdf)"));
    if (path.isEmpty()) return;
    const std::string error = saveTo(path.endsWith(".pdf", Qt::CaseInsensitive) ? path : path + ".pdf");
    if (!error.empty()) guiPrompter().warn(error);
}

std::string ReportPanel::saveTo(const QString& path) {
    std::string error = writeReportPdf(pages(PageRule::Paper), path);
    savedNote_->setText(error.empty() ? QStringLiteral("Relatório gravado em %1").arg(QDir::toNativeSeparators(
                                                                                     QFileInfo(path).absoluteFilePath()))
                                      : QString());
    savedNote_->setVisible(error.empty());
    return error;
}

void ReportPanel::cancel() {
    if (caller_) caller_->setEnabled(true);
    close();
}

void ReportPanel::closeEvent(QCloseEvent* event) {
    // The window's own close gives the caller back as "&Cancelar" does.
    if (caller_) caller_->setEnabled(true);
    event->accept();
    if (onClosed) onClosed();
}

}  // namespace morve
