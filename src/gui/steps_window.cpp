#include "gui/steps_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

#include "app/shell_texts.h"
#include "render/trace_pdf.h"

namespace morve {

namespace {

QPushButton* button(QWidget* parent, QHBoxLayout* row, const char* text, const char* name) {
    auto* b = new QPushButton(QString::fromUtf8(text), parent);
    b->setObjectName(QString::fromUtf8(name));
    row->addWidget(b);
    return b;
}

}  // namespace

StepsWindow::StepsWindow(QWidget* parent) : QWidget(parent) {
    setWindowFlag(Qt::Window);
    setObjectName(QStringLiteral("FormPassoAPasso"));
    setWindowTitle(QStringLiteral("MORVE — Passo a passo"));
    auto* outer = new QVBoxLayout(this);
    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("Passos"));
    browser_->setOpenLinks(false);
    outer->addWidget(browser_, 1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    connect(button(this, row, "Im&primir", "Imprimir"), &QPushButton::clicked, this, [this] { print(); });
    connect(button(this, row, "Salvar P&DF", "SalvarPdf"), &QPushButton::clicked, this, [this] { saveWithDialog(true); });
    connect(button(this, row, "Salvar &HTML", "SalvarHtml"), &QPushButton::clicked, this, [this] { saveWithDialog(false); });
    connect(button(this, row, "&Fechar", "Fechar"), &QPushButton::clicked, this, [this] { close(); });
    outer->addLayout(row);
    resize(760, 640);
}

void StepsWindow::showTrace(const Trace& trace) {
    html_ = traceHtml(trace);
    browser_->setHtml(QString::fromStdString(html_));
}

void StepsWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    printHtml(html_, printer);
}

std::string StepsWindow::saveHtml(const QString& path) const {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return "não foi possível gravar " + path.toStdString();
    const QByteArray bytes = QByteArray::fromStdString(html_);
    return file.write(bytes) == bytes.size() ? "" : "não foi possível gravar " + path.toStdString();
}

std::string StepsWindow::savePdf(const QString& path) const { return writeHtmlPdf(html_, path); }

void StepsWindow::saveWithDialog(bool pdf) {
    QFileDialog dialog(this, pdf ? QStringLiteral("Salvar PDF") : QStringLiteral("Salvar HTML"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(pdf ? QStringLiteral("PDF (*.pdf)") : QStringLiteral("HTML (*.html)"));
    dialog.setDefaultSuffix(pdf ? QStringLiteral("pdf") : QStringLiteral("html"));
    dialog.selectFile(pdf ? QStringLiteral("passo-a-passo.pdf") : QStringLiteral("passo-a-passo.html"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    const QString path = dialog.selectedFiles().front();
    const std::string error = pdf ? savePdf(path) : saveHtml(path);
    if (!error.empty()) QMessageBox::warning(this, QStringLiteral("MORVE"), QString::fromStdString(error));
}

void addStepsButton(QToolBar* toolbar, QWidget* owner, std::function<const Trace&()> trace) {
    if (!toolbar) return;
    toolbar->addSeparator();
    // Alt+P, unless a button of the window already answers to it ("Im&primir").
    bool pTaken = false;
    for (const QAbstractButton* b : owner->findChildren<QAbstractButton*>())
        pTaken = pTaken || b->text().contains(QStringLiteral("&p"), Qt::CaseInsensitive);
    QAction* a = toolbar->addAction(QIcon::fromTheme(QStringLiteral("format-justify-left"),
                                                     owner->style()->standardIcon(QStyle::SP_FileDialogContentsView)),
                                    QString::fromUtf8(stepsCaption(pTaken)));
    a->setObjectName(QStringLiteral("PassoAPasso"));
    a->setToolTip(QString::fromUtf8(kStepsToolTip));
    a->setShortcut(QKeySequence(pTaken ? QStringLiteral("Alt+A") : QStringLiteral("Alt+P")));
    a->setShortcutContext(Qt::WindowShortcut);
    auto* window = new StepsWindow(owner);
    QObject::connect(a, &QAction::triggered, owner, [window, trace] {
        window->showTrace(trace());
        window->show();
        window->raise();
        window->activateWindow();
    });
}

}  // namespace morve
