#include "gui/help_windows.h"

#include <QCloseEvent>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTextBrowser>
#include <QTextStream>
#include <QUrl>
#include <QVBoxLayout>

#include "app/about.h"
#include "app/catalogue.h"
#include "app/shell_texts.h"
#include "gui/data_paths.h"
#include "gui/keyboard.h"

namespace morve {

HelpPageWindow::HelpPageWindow(const char* objectName, QWidget* parent) : QWidget(parent) {
    setWindowFlag(Qt::Window);
    setObjectName(QString::fromUtf8(objectName));
    setWindowTitle(QString::fromUtf8(kWindowTitle));
    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("RichTextBox1"));
    browser_->setOpenExternalLinks(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(browser_);
    resize(560, 640);
    onEscape(this, [this] { close(); });
}

void HelpPageWindow::showPage(const std::string& baseName) {
    page_ = baseName;
    if (baseName.empty()) {
        browser_->clear();
        return;
    }
    const QString path = helpPagePath(QString::fromStdString(baseName));
    if (!QFileInfo::exists(path)) {
        browser_->setHtml(QStringLiteral("<h3>Página de ajuda não encontrada</h3>"
                                         "<p>O arquivo <b>%1</b> não está na pasta de ajuda do MORVE:</p>"
                                         "<p><tt>%2</tt></p>")
                              .arg(QFileInfo(path).fileName().toHtmlEscaped(),
                                   QFileInfo(path).absolutePath().toHtmlEscaped()));
        return;
    }
    browser_->setSearchPaths({QFileInfo(path).absolutePath()});
    browser_->setSource(QUrl::fromLocalFile(path));
}

HelpListWindow::HelpListWindow() {
    setObjectName(QStringLiteral("Form0Help"));
    setWindowTitle(QString::fromUtf8(kWindowTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* label = new QLabel(QString::fromUtf8(kHelpListLabel), this);
    label->setObjectName(QStringLiteral("Label1"));
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("List1"));
    for (const HelpListRow& row : ModuleCatalogue::helpList()) list_->addItem(QString::fromStdString(row.text));
    list_->setMinimumSize(460, 360);
    auto* show = new QPushButton(QString::fromUtf8(kHelpListShow), this);
    show->setObjectName(QStringLiteral("Command2"));
    auto* cancel = new QPushButton(QString::fromUtf8(kHelpListCancel), this);
    cancel->setObjectName(QStringLiteral("Command3"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list_);
    auto* buttons = new QHBoxLayout();
    buttons->addStretch(1);
    buttons->addWidget(show);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    connect(show, &QPushButton::clicked, this, [this] { showSelected(); });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] { showSelected(); });
    connect(cancel, &QPushButton::clicked, this, [this] { close(); });
    onEscape(this, [this] { close(); });
}

void HelpListWindow::showSelected() {
    std::string page;
    const auto selected = list_->selectedItems();
    if (!selected.isEmpty()) {
        const std::string text = selected.front()->text().toStdString();
        for (const HelpListRow& row : ModuleCatalogue::helpList())
            if (row.text == text) {
                page = row.page;
                break;
            }
    }
    if (onShow) onShow(page);
}

void HelpListWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (!done_ && onCancel) {
        done_ = true;
        onCancel();
    }
}

TipWindow::TipWindow() {
    setWindowFlag(Qt::Window);
    setObjectName(QStringLiteral("FormTip"));
    setWindowTitle(QString::fromUtf8(kWindowTitle));
    label_ = new QLabel(this);
    label_->setObjectName(QStringLiteral("Label1"));
    label_->setWordWrap(true);
    label_->setMinimumSize(380, 90);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("Command1"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label_);
    auto* row = new QHBoxLayout();
    row->addStretch(1);
    row->addWidget(ok);
    layout->addLayout(row);
    connect(ok, &QPushButton::clicked, this, [this] { close(); });
    onEscape(this, [this] { close(); });
}

QString TipWindow::tip() const { return label_->text(); }

void TipWindow::drawTip() {
    QFile file(tipsFilePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        label_->setText(QString::fromUtf8(kTipsMissing));
        return;
    }
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    QStringList tips;
    while (!in.atEnd() && tips.size() < kTipCount) tips << in.readLine();
    if (tips.isEmpty()) {
        label_->setText(QString());
        return;
    }
    label_->setText(tips.at(static_cast<int>(QRandomGenerator::global()->bounded(tips.size()))));
}

AboutWindow::AboutWindow() {
    setWindowFlag(Qt::Window);
    setObjectName(QStringLiteral("FormAbout"));
    setWindowTitle(QStringLiteral(" MORVE"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* title = new QLabel(QString::fromUtf8(kAboutHeading), this);
    QFont f = title->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.6);
    title->setFont(f);
    auto* version = new QLabel(QString::fromUtf8(kVersionCaption), this);
    auto* purpose = new QLabel(QString::fromUtf8(kAboutPurpose), this);
    purpose->setWordWrap(true);
    purpose->setMinimumWidth(360);
    // The terms the program is distributed on, below what it is for.
    auto* licence = new QLabel(QString::fromUtf8(kLicenceLine) + QLatin1Char('\n') + QString::fromUtf8(kNoWarrantyLine),
                               this);
    licence->setWordWrap(true);
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto* layout = new QVBoxLayout(this);
    for (QWidget* w : std::initializer_list<QWidget*>{title, version, purpose, licence}) layout->addWidget(w);
    auto* row = new QHBoxLayout();
    row->addStretch(1);
    row->addWidget(ok);
    layout->addLayout(row);
    connect(ok, &QPushButton::clicked, this, [this] { close(); });
    onEscape(this, [this] { close(); });
}

}  // namespace morve
