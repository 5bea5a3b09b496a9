#include "gui/screen_window.h"

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

#include <set>

#include "gui/control_widgets.h"
#include "gui/keyboard.h"
#include "gui/picture_views.h"
#include "gui/window_places.h"

namespace morve {

namespace {

// The page of a window asks for all the room it would fill; the window decides,
// from the screen it stands on, how much of it shows at once.
class PageScroll : public QScrollArea {
public:
    using QScrollArea::QScrollArea;
    QSize sizeHint() const override {
        const int f = 2 * frameWidth();
        return (widget() ? widget()->sizeHint() : QSize(200, 100)) + QSize(f, f);
    }
};

QIcon toolbarIcon(const std::string& key, QStyle* style) {
    if (key == "Novo") return style->standardIcon(QStyle::SP_FileIcon);
    if (key == "Início") return style->standardIcon(QStyle::SP_BrowserReload);
    if (key == "Abrir") return style->standardIcon(QStyle::SP_DialogOpenButton);
    if (key == "Salvar") return style->standardIcon(QStyle::SP_DialogSaveButton);
    if (key == "Imprimir")
        return QIcon::fromTheme(QStringLiteral("document-print"),
                                style->standardIcon(QStyle::SP_FileDialogDetailedView));
    if (key == "Ajuda") return style->standardIcon(QStyle::SP_DialogHelpButton);
    return style->standardIcon(QStyle::SP_DialogCloseButton);
}

// The columns of a frame: caption, box, unit, and the spare room on the right.
// Controls that take the whole width span up to and including the spare column.
constexpr int kSpareColumn = 3;
constexpr int kWholeWidth = kSpareColumn + 1;

}  // namespace

ScreenWindow::ScreenWindow(const ScreenDecl& screen, QWidget* parent) : QWidget(parent), decl_(screen) {
    setWindowFlag(Qt::Window);
    setWindowTitle(q(decl_.title));
    setObjectName(q(decl_.name));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);

    if (decl_.toolbar) {
        auto* bar = new QToolBar(this);
        bar->setObjectName(QStringLiteral("Toolbar1"));
        bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        bar->setIconSize(QSize(22, 22));
        for (const ToolbarButton& b : toolbarButtons()) {
            const std::string key = b.key;
            QAction* a = bar->addAction(toolbarIcon(key, style()), q(key));
            a->setToolTip(QString::fromUtf8(b.toolTip));
            a->setObjectName(q(key));
            connect(a, &QAction::triggered, this, [this, key] {
                if (onToolbar) onToolbar(key);
            });
            toolbar_[key] = a;
        }
        outer->addWidget(bar);
    }
    // Everything under the toolbar lies on one page, which scrolls where the
    // screen is shorter or narrower than the page: the same for every screen, so
    // a module never places its own windows for a small screen.
    auto* scroll = new PageScroll(this);
    scroll->setObjectName(QStringLiteral("page"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    outer->addWidget(scroll, 1);
    auto* page = new QWidget;
    auto* body = new QVBoxLayout(page);
    if (!decl_.heading.empty()) {
        auto* heading = new QLabel(q(decl_.heading), this);
        heading->setObjectName(QStringLiteral("heading"));
        QFont f = heading->font();
        f.setBold(true);
        f.setPointSizeF(f.pointSizeF() + 2);
        heading->setFont(f);
        heading->setAlignment(Qt::AlignCenter);
        heading->setStyleSheet(QStringLiteral("color: #00307a; padding: 4px;"));
        body->addWidget(heading);
    }

    auto* frames = new QGridLayout();
    frames->setSpacing(8);
    std::map<std::string, QGridLayout*> frameGrids;
    std::map<std::string, std::string> frameCaptions;
    for (const FrameDecl& f : decl_.frames) {
        QWidget* box = nullptr;
        if (f.caption.empty()) {
            auto* plain = new QFrame(this);
            box = plain;
        } else {
            box = new QGroupBox(q(f.caption), this);
        }
        box->setObjectName(q(f.name));
        // Caption, box and unit stand close together; what room is left goes to an
        // empty fourth column, so a unit never drifts away from its box.
        auto* grid = new QGridLayout(box);
        grid->setColumnStretch(kSpareColumn, 1);
        frames->addWidget(box, f.row, f.column, f.rowSpan, f.columnSpan);
        frames_[f.name] = box;
        frameGrids[f.name] = grid;
        frameCaptions[f.name] = f.caption;
    }
    // Controls outside any frame stand below the frames.
    auto* loose = new QGridLayout();
    std::set<QGridLayout*> growing;
    const auto& controls = decl_.controls;
    for (std::size_t i = 0; i < controls.size();) {
        // A control and those declared to share its row.
        std::size_t end = i + 1;
        while (end < controls.size() && controls[end].sameRow) ++end;
        const ControlDecl& c = controls[i];
        auto it = frameGrids.find(c.frame);
        QGridLayout* grid = it != frameGrids.end() ? it->second : loose;
        const std::string caption = it != frameGrids.end() ? frameCaptions[c.frame] : "";
        if (end == i + 1) {
            if (addControl(grid, c, caption)) growing.insert(grid);
        } else {
            auto* row = new QHBoxLayout();
            grid->addLayout(row, grid->rowCount(), 0, 1, kWholeWidth);
            for (std::size_t k = i; k < end; ++k) placeInRow(row, makeControl(controls[k], caption));
            row->addStretch(1);
        }
        i = end;
    }

    // Pictures, charts and grids take the room a larger window offers; frames of
    // plain boxes keep their controls together at the top.
    for (const FrameDecl& f : decl_.frames) {
        QGridLayout* grid = frameGrids[f.name];
        if (growing.count(grid)) {
            for (int r = f.row; r < f.row + f.rowSpan; ++r) frames->setRowStretch(r, 1);
            for (int col = f.column; col < f.column + f.columnSpan; ++col) frames->setColumnStretch(col, 1);
        } else {
            grid->setRowStretch(grid->rowCount(), 1);
        }
    }
    const bool grows = !growing.empty();
    body->addLayout(frames, grows && !growing.count(loose) ? 1 : 0);
    body->addLayout(loose, growing.count(loose) ? 1 : 0);
    if (!grows) body->addStretch(1);
    scroll->setWidget(page);

    // Esc on a companion is its way back ("&Voltar", or the command it names),
    // when that is there to press; a module's own window has no such way back,
    // and its close would lose the case.
    onEscape(this, [this] {
        for (const ControlDecl& c : decl_.controls) {
            const bool back = decl_.escape.empty() ? c.caption == "&Voltar" : c.name == decl_.escape;
            if (c.kind != ControlKind::Command || !back) continue;
            auto* button = static_cast<QPushButton*>(controls_.at(c.name));
            if (button->isVisible() && button->isEnabled()) button->click();
            return;
        }
    });
}

void ScreenWindow::fitToScreen() {
    // The sizes the texts just shown ask for (a table's columns, a long result)
    // reach the page's layout through posted requests: settled first.
    // Before the window is first shown its parts have not taken their style (the
    // fonts and margins that make their size) and its layouts are not live, so a
    // frame's size stays as first measured: the parts are styled and every frame
    // is measured anew.
    ensurePolished();
    for (QWidget* part : findChildren<QWidget*>()) {
        if (!part->layout()) continue;
        part->layout()->invalidate();
        part->updateGeometry();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    layout()->activate();
    // The page's own wish rather than the window layout's copy of it, which may
    // lag it by a pixel: a pixel short and both scroll bars come up.
    auto* scroll = findChild<QScrollArea*>(QStringLiteral("page"));
    QSize wanted = sizeHint().expandedTo(scroll->sizeHint());
    if (decl_.toolbar) wanted.setHeight(std::max(wanted.height(), scroll->sizeHint().height() + findChild<QToolBar*>()->sizeHint().height()));
    const QSize room = roomOnScreen(this);
    // Where the page scrolls one way, its scroll bar takes room the other way.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
    if (wanted.height() > room.height()) wanted.rwidth() += bar;
    if (wanted.width() > room.width()) wanted.rheight() += bar;
    resize(wanted.boundedTo(room));
}

QString ScreenWindow::qualified(const std::string& control) const { return q(decl_.name + "." + control); }

void ScreenWindow::placeInRow(QHBoxLayout* row, const ControlParts& parts) {
    // Boxes in a phrase keep their usual width; the phrase does not spread out.
    if (auto* edit = qobject_cast<QLineEdit*>(parts.widget)) edit->setMaximumWidth(edit->minimumWidth());
    for (QWidget* w : {static_cast<QWidget*>(parts.caption), parts.widget, static_cast<QWidget*>(parts.unit)})
        if (w) row->addWidget(w);
}

bool ScreenWindow::addControl(QGridLayout* grid, const ControlDecl& c, const std::string& frameCaption) {
    const ControlParts parts = makeControl(c, frameCaption);
    const int row = grid->rowCount();
    if (parts.caption) grid->addWidget(parts.caption, row, 0);
    switch (c.kind) {
        case ControlKind::TextBox:
        case ControlKind::ResultBox: {
            // The unit follows its own box, however wide a box on another row is.
            auto* pair = new QHBoxLayout();
            pair->setContentsMargins(0, 0, 0, 0);
            pair->addWidget(parts.widget);
            if (parts.unit) pair->addWidget(parts.unit);
            pair->addStretch(1);
            grid->addLayout(pair, row, 1, 1, 2);
            return false;
        }
        case ControlKind::Label:
            // A wrapped label keeps out of the spare column: a span that takes it in
            // gets the height of one line while the text wraps to two.
            grid->addWidget(parts.widget, row, 0, 1, kSpareColumn);
            return false;
        case ControlKind::List:
            grid->addWidget(parts.widget, row, parts.caption ? 1 : 0, 1, parts.caption ? kWholeWidth - 1 : kWholeWidth);
            return false;
        case ControlKind::Grid: {
            // The caption stands over the table.
            const int at = row + (parts.caption ? 1 : 0);
            grid->addWidget(parts.widget, at, 0, 1, kWholeWidth);
            grid->setRowStretch(at, 1);
            return true;
        }
        case ControlKind::Picture:
        case ControlKind::Chart:
            grid->addWidget(parts.widget, row, 0, 1, kWholeWidth);
            grid->setRowStretch(row, 1);
            return true;
        default: grid->addWidget(parts.widget, row, 0, 1, kWholeWidth); return false;
    }
}

QWidget* ScreenWindow::control(const std::string& name) const {
    if (auto it = controls_.find(name); it != controls_.end()) return it->second;
    if (auto it = frames_.find(name); it != frames_.end()) return it->second;
    return nullptr;
}

QAction* ScreenWindow::toolbarAction(const std::string& key) const {
    auto it = toolbar_.find(key);
    return it == toolbar_.end() ? nullptr : it->second;
}

std::vector<std::string> ScreenWindow::pictures() const {
    std::vector<std::string> out;
    for (const auto& c : decl_.controls)
        if (c.kind == ControlKind::Picture) out.push_back(c.name);
    return out;
}

std::vector<std::string> ScreenWindow::charts() const {
    std::vector<std::string> out;
    for (const auto& c : decl_.controls)
        if (c.kind == ControlKind::Chart) out.push_back(c.name);
    return out;
}

void ScreenWindow::setDrawing(const std::string& picture, Drawing drawing) {
    if (auto* view = dynamic_cast<DrawingView*>(control(picture))) view->setDrawing(std::move(drawing));
}

void ScreenWindow::setChart(const std::string& chart, const Chart& data) {
    if (auto* box = dynamic_cast<ChartBox*>(control(chart))) box->setChart(data);
}

void ScreenWindow::closeQuietly() {
    quiet_ = true;
    close();
}

void ScreenWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (shownBefore_) return;
    shownBefore_ = true;
    // Some parts know their size only once shown (a styled box, a heading in its
    // bold font): the window takes its measure again, still within the screen.
    const QSize before = size();
    fitToScreen();
    if (size() != before) centreOnScreen(this);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (!quiet_ && onClose) onClose();
}

}  // namespace morve
