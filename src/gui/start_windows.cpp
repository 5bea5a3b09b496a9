#include "gui/start_windows.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/about.h"
#include "app/shell_texts.h"
#include "gui/window_places.h"

namespace morve {

namespace {

QLabel* bigLabel(const QString& text, double scale, bool bold, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont f = label->font();
    f.setPointSizeF(f.pointSizeF() * scale);
    f.setBold(bold);
    label->setFont(f);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

// The frameless notices of the start and of the end share their look.
QVBoxLayout* noticeLayout(QWidget* window, const char* name, double titleScale) {
    window->setObjectName(QString::fromUtf8(name));
    window->setWindowTitle(QString::fromUtf8(kWindowTitle));
    window->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    window->setStyleSheet(QStringLiteral("background: #1f3b63; color: white;"));
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(40, 28, 40, 28);
    layout->addWidget(bigLabel(QStringLiteral("MORVE"), titleScale, true, window));
    return layout;
}

}  // namespace

SplashWindow::SplashWindow() {
    QVBoxLayout* layout = noticeLayout(this, "Form0entra", 3.0);
    layout->addWidget(bigLabel(QString::fromUtf8(kVersionCaption), 1.2, false, this));
    layout->addSpacing(20);
    layout->addWidget(bigLabel(QString::fromUtf8(kLoading), 1.1, false, this));
    adjustSize();
    centreOnScreen(this);
}

Backdrop::Backdrop() {
    setObjectName(QStringLiteral("Form0b"));
    setWindowTitle(QString::fromUtf8(kWindowTitle));
    setWindowFlag(Qt::WindowStaysOnBottomHint);
    setGeometry(screenArea(this));
}

void Backdrop::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0, QColor(0x2c, 0x4f, 0x7c));
    ground.setColorAt(1, QColor(0x9d, 0xb4, 0xcf));
    painter.fillRect(rect(), ground);
}

StartDialog::StartDialog() {
    setObjectName(QStringLiteral("FormAviso"));
    setWindowTitle(QString::fromUtf8(kWindowTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    auto* grid = new QGridLayout(this);
    const std::array<const std::vector<std::string>*, 5> items{
        &StartDefaults::fckItems(), &StartDefaults::steelItems(), &StartDefaults::steelItems(),
        &StartDefaults::codeItems(), &StartDefaults::codeItems()};
    // The initial selections are those of a new run, whatever was chosen before.
    const StartDefaults initial;
    const std::array<int, 5> selected{initial.fck, initial.stirrupSteel, initial.barSteel, initial.ecsCode,
                                      initial.esCode};
    for (int n = 0; n < 5; ++n) {
        auto* caption = new QLabel(QString::fromStdString(StartDefaults::captions()[static_cast<std::size_t>(n)]), this);
        auto* list = new QListWidget(this);
        list->setObjectName(QStringLiteral("List%1").arg(n + 1));
        for (const auto& item : *items[static_cast<std::size_t>(n)]) list->addItem(QString::fromStdString(item));
        const int rows = std::min(list->count(), 4);
        // Whole rows only: a list taller than its rows shows a slice of the next one.
        const int rowHeight = list->sizeHintForRow(0) > 0 ? list->sizeHintForRow(0) : 18;
        list->setFixedHeight(rows * rowHeight + 2 * list->frameWidth());
        list->setFixedWidth(120);
        list->setCurrentRow(selected[static_cast<std::size_t>(n)]);
        lists_[static_cast<std::size_t>(n)] = list;
        grid->addWidget(caption, n, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(list, n, 1);
    }
    auto* next = new QPushButton(QString::fromUtf8(kNextTipCaption), this);
    next->setObjectName(QStringLiteral("Command2"));
    // Enter is "&OK" wherever the focus is; the tip is asked for by a click or Alt+P.
    next->setAutoDefault(false);
    auto* ok = new QPushButton(QString::fromUtf8(kStartOkCaption), this);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    grid->addWidget(next, 5, 0);
    grid->addWidget(ok, 5, 1);
    connect(next, &QPushButton::clicked, this, [this] {
        if (onNextTip) onNextTip();
    });
    connect(ok, &QPushButton::clicked, this, [this] { confirm(); });
    adjustSize();
    centreOnScreen(this);
}

StartDefaults StartDialog::chosen() const {
    StartDefaults d;
    int* fields[] = {&d.fck, &d.stirrupSteel, &d.barSteel, &d.ecsCode, &d.esCode};
    for (int n = 0; n < 5; ++n) {
        const int row = lists_[static_cast<std::size_t>(n)]->currentRow();
        if (row >= 0) *fields[n] = row;
    }
    d.confirm();
    return d;
}

void StartDialog::confirm() {
    if (confirmed_) return;
    confirmed_ = true;
    const StartDefaults d = chosen();
    if (onConfirm) onConfirm(d);
    close();
}

void StartDialog::closeEvent(QCloseEvent* event) {
    // Closed by its frame, the dialog keeps what is selected, as "&OK" does: the
    // program cannot go on without the defaults of the run.
    event->accept();
    if (!confirmed_) confirm();
}

ExitWindow::ExitWindow() {
    noticeLayout(this, "FormSAIDA", 2.0);
    adjustSize();
    centreOnScreen(this);
}

}  // namespace morve
