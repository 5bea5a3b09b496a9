#include "gui/screen_window.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTableWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <set>

#include "gui/grid_editing.h"
#include "gui/grid_export.h"
#include "gui/key_filter_guard.h"
#include "gui/keyboard.h"
#include "gui/picture_views.h"

namespace morve {

namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

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

int boxWidth(const QWidget* w, int characters) {
    return w->fontMetrics().horizontalAdvance(QLatin1Char('0')) * (characters > 0 ? characters : 9) + 12;
}

constexpr int kGridMinimumHeight = 160;
constexpr int kWidestButton = 420;  // a button does not run across a maximised window
constexpr int kGridRowsShown = 10;  // more rows than this scroll

// Wide enough for its longest item, and for a few words while a list the module
// fills is still empty.
void fitListWidth(QListWidget* list) {
    int widest = list->count() == 0 ? 120 : 0;
    for (int i = 0; i < list->count(); ++i)
        widest = std::max(widest, list->fontMetrics().horizontalAdvance(list->item(i)->text()));
    list->setMinimumWidth(std::min(widest + 36, 360));
    // A wider window gives a list no more to show.
    list->setMaximumWidth(std::max(list->minimumWidth(), 280));
}

// The items the module gives a list now; the widget is rebuilt only when they changed.
void showItems(QListWidget* list, const std::vector<std::string>& items) {
    bool same = list->count() == static_cast<int>(items.size());
    for (int i = 0; same && i < list->count(); ++i) same = list->item(i)->text() == q(items[static_cast<std::size_t>(i)]);
    if (same) return;
    list->clear();
    for (const auto& item : items) list->addItem(q(item));
    fitListWidth(list);
}

// A short table shows all its rows without a scroll bar; a long one scrolls.
void fitGridHeight(QTableWidget* table) {
    const int rows = std::min(table->rowCount(), kGridRowsShown);
    const int rowHeight = table->verticalHeader()->defaultSectionSize();
    const int needed = table->horizontalHeader()->sizeHint().height() + rows * rowHeight + 2 * table->frameWidth() + 2;
    table->setMinimumHeight(std::max(kGridMinimumHeight, needed));
}

}  // namespace

const std::vector<ToolbarButton>& toolbarButtons() {
    static const std::vector<ToolbarButton> buttons{
        {"Novo", "Iniciar novo módulo"},       {"Início", "Reiniciar o programa"},
        {"Abrir", "Ler dados de arquivo"},     {"Salvar", "Salvar dados em arquivo"},
        {"Imprimir", "Imprimir relatório"},    {"Ajuda", "Exibe a ajuda para esta janela"},
        {"Sair", "Sair do programa"},
    };
    return buttons;
}

ScreenWindow::ScreenWindow(const ScreenDecl& screen, QWidget* parent) : QWidget(parent), decl_(screen) {
    setWindowFlag(Qt::Window);
    setWindowTitle(q(decl_.title));
    setObjectName(q(decl_.name));
    auto* outer = new QVBoxLayout(this);

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
    if (!decl_.heading.empty()) {
        auto* heading = new QLabel(q(decl_.heading), this);
        heading->setObjectName(QStringLiteral("heading"));
        QFont f = heading->font();
        f.setBold(true);
        f.setPointSizeF(f.pointSizeF() + 2);
        heading->setFont(f);
        heading->setAlignment(Qt::AlignCenter);
        heading->setStyleSheet(QStringLiteral("color: #00307a; padding: 4px;"));
        outer->addWidget(heading);
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
    outer->addLayout(frames, grows && !growing.count(loose) ? 1 : 0);
    outer->addLayout(loose, growing.count(loose) ? 1 : 0);
    if (!grows) outer->addStretch(1);

    // Esc on a companion is its "&Voltar", when that is there to press; a module's
    // own window has no such way back, and its close would lose the case.
    onEscape(this, [this] {
        for (const ControlDecl& c : decl_.controls) {
            if (c.kind != ControlKind::Command || c.caption != "&Voltar") continue;
            auto* button = static_cast<QPushButton*>(controls_.at(c.name));
            if (button->isVisible() && button->isEnabled()) button->click();
            return;
        }
    });
}

QString ScreenWindow::qualified(const std::string& control) const { return q(decl_.name + "." + control); }

ScreenWindow::ControlParts ScreenWindow::makeControl(const ControlDecl& c, const std::string& frameCaption) {
    ControlParts parts;
    // Buttons, options, checks and labels carry their caption themselves.
    const bool captioned = c.kind == ControlKind::TextBox || c.kind == ControlKind::ResultBox ||
                           c.kind == ControlKind::List || c.kind == ControlKind::Grid;
    if (captioned && !c.caption.empty() && c.caption != frameCaption)
        parts.caption = new QLabel(q(c.caption), this);
    if (!c.unit.empty() && (c.kind == ControlKind::TextBox || c.kind == ControlKind::ResultBox))
        parts.unit = new QLabel(q(c.unit), this);

    switch (c.kind) {
        case ControlKind::TextBox:
        case ControlKind::ResultBox: {
            auto* edit = new QLineEdit(q(c.text), this);
            edit->setMinimumWidth(boxWidth(edit, c.width));
            edit->setMaximumWidth(boxWidth(edit, c.width > 0 ? c.width + 4 : 14));
            if (c.kind == ControlKind::ResultBox) {
                edit->setReadOnly(true);
                edit->setFocusPolicy(Qt::ClickFocus);
                edit->setStyleSheet(QStringLiteral("QLineEdit { background: #f3f3e8; }"));
            } else {
                KeyFilterGuard::install(edit, c.filter);
            }
            parts.widget = edit;
            break;
        }
        case ControlKind::Label: {
            auto* label = new QLabel(q(c.caption), this);
            label->setWordWrap(!c.sameRow);
            parts.widget = label;
            break;
        }
        case ControlKind::List: {
            auto* list = new QListWidget(this);
            for (const auto& item : c.items) list->addItem(q(item));
            const int rows = c.height > 0 ? c.height : std::min<int>(static_cast<int>(c.items.size()), 4);
            const int rowHeight = list->sizeHintForRow(0) > 0 ? list->sizeHintForRow(0) : 18;
            list->setFixedHeight(std::max(1, rows) * rowHeight + 2 * list->frameWidth() + 2);
            fitListWidth(list);
            // A module may answer the pick at once (a bar whose diagrams are drawn
            // again), so the click reaches it as a command of the list's name.
            const std::string name = c.name;
            connect(list, &QListWidget::itemClicked, this, [this, name] {
                if (onCommand) onCommand(name);
            });
            parts.widget = list;
            break;
        }
        case ControlKind::Option: {
            auto* radio = new QRadioButton(q(c.caption), this);
            QButtonGroup*& group = groups_[c.group];
            if (!group) group = new QButtonGroup(this);
            group->addButton(radio);
            // A module may answer the choice at once (a section type swapping its
            // frames), so the click reaches it as a command of the option's name.
            const std::string name = c.name;
            connect(radio, &QRadioButton::clicked, this, [this, name] {
                if (onCommand) onCommand(name);
            });
            parts.widget = radio;
            break;
        }
        case ControlKind::Check: parts.widget = new QCheckBox(q(c.caption), this); break;
        case ControlKind::Grid: {
            auto* table = new QTableWidget(this);
            table->setColumnCount(static_cast<int>(c.grid.header.size()));
            table->verticalHeader()->setVisible(false);
            table->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                                   QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
            makeSpreadsheet(table, c);
            offerSpreadsheetExport(table, q(decl_.name + "." + c.name));
            table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
            table->setMinimumHeight(kGridMinimumHeight);
            parts.widget = table;
            break;
        }
        case ControlKind::Picture: parts.widget = new DrawingView(QSize(c.width, c.height), this); break;
        case ControlKind::Chart: parts.widget = new ChartBox(QSize(c.width, c.height), this); break;
        case ControlKind::Command: {
            auto* button = new QPushButton(q(c.caption), this);
            button->setMaximumWidth(kWidestButton);
            const std::string name = c.name;
            connect(button, &QPushButton::clicked, this, [this, name] {
                if (onCommand) onCommand(name);
            });
            parts.widget = button;
            break;
        }
    }
    parts.widget->setObjectName(q(c.name));
    if (!c.toolTip.empty()) parts.widget->setToolTip(q(c.toolTip));
    controls_[c.name] = parts.widget;
    auto& labels = companions_[c.name];
    for (QWidget* label : {static_cast<QWidget*>(parts.caption), static_cast<QWidget*>(parts.unit)})
        if (label) labels.push_back(label);
    return parts;
}

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
    if (parts.unit) grid->addWidget(parts.unit, row, 2);
    switch (c.kind) {
        case ControlKind::TextBox:
        case ControlKind::ResultBox: grid->addWidget(parts.widget, row, 1, Qt::AlignLeft); return false;
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

void ScreenWindow::storeTo(FormState& state) const {
    for (const ControlDecl& c : decl_.controls) {
        const std::string name = decl_.name + "." + c.name;
        QWidget* w = controls_.at(c.name);
        switch (c.kind) {
            case ControlKind::TextBox:
            case ControlKind::ResultBox:
                state.setText(name, static_cast<QLineEdit*>(w)->text().toStdString());
                break;
            case ControlKind::List: {
                auto selected = static_cast<QListWidget*>(w)->selectedItems();
                state.setText(name, selected.isEmpty() ? "" : selected.front()->text().toStdString());
                break;
            }
            case ControlKind::Option:
                state.setText(name, static_cast<QRadioButton*>(w)->isChecked() ? "True" : "");
                break;
            case ControlKind::Check:
                state.setText(name, static_cast<QCheckBox*>(w)->isChecked() ? "True" : "");
                break;
            case ControlKind::Grid: {
                auto* table = static_cast<QTableWidget*>(w);
                GridRows& rows = state.grid(name);
                if (rows.empty()) rows.push_back(c.grid.header);
                rows.resize(static_cast<std::size_t>(table->rowCount()) + 1);
                for (int r = 0; r < table->rowCount(); ++r) {
                    auto& cells = rows[static_cast<std::size_t>(r) + 1];
                    cells.resize(static_cast<std::size_t>(table->columnCount()));
                    for (int col = 0; col < table->columnCount(); ++col) {
                        QTableWidgetItem* item = table->item(r, col);
                        cells[static_cast<std::size_t>(col)] = item ? item->text().toStdString() : "";
                    }
                }
                break;
            }
            default: break;
        }
    }
}

void ScreenWindow::loadFrom(const FormState& state) {
    for (const ControlDecl& c : decl_.controls) {
        const std::string name = decl_.name + "." + c.name;
        QWidget* w = controls_.at(c.name);
        switch (c.kind) {
            case ControlKind::TextBox:
            case ControlKind::ResultBox: {
                auto* edit = static_cast<QLineEdit*>(w);
                const QString text = q(state.text(name));
                if (edit->text() != text) edit->setText(text);
                break;
            }
            case ControlKind::List: {
                auto* list = static_cast<QListWidget*>(w);
                showItems(list, state.items(name));
                const QString text = q(state.text(name));
                QListWidgetItem* match = nullptr;
                for (int i = 0; i < list->count(); ++i)
                    if (list->item(i)->text() == text) match = list->item(i);
                list->clearSelection();
                if (match) {
                    list->setCurrentItem(match);
                    match->setSelected(true);
                } else {
                    list->setCurrentRow(-1);
                }
                break;
            }
            case ControlKind::Option: {
                auto* radio = static_cast<QRadioButton*>(w);
                QButtonGroup* group = radio->group();
                const bool on = state.option(name);
                if (group && !on && radio->isChecked()) {
                    group->setExclusive(false);
                    radio->setChecked(false);
                    group->setExclusive(true);
                } else {
                    radio->setChecked(on);
                }
                break;
            }
            case ControlKind::Check: static_cast<QCheckBox*>(w)->setChecked(state.option(name)); break;
            case ControlKind::Grid: {
                auto* table = static_cast<QTableWidget*>(w);
                const GridRows& rows = state.grid(name);
                const std::vector<std::string>& header = rows.empty() ? c.grid.header : rows.front();
                table->setColumnCount(static_cast<int>(header.size()));
                QStringList labels;
                for (const auto& h : header) labels << q(h);
                table->setHorizontalHeaderLabels(labels);
                table->setRowCount(rows.empty() ? 0 : static_cast<int>(rows.size()) - 1);
                fitGridHeight(table);
                for (std::size_t r = 1; r < rows.size(); ++r) {
                    for (int col = 0; col < table->columnCount(); ++col) {
                        const std::string& text =
                            static_cast<std::size_t>(col) < rows[r].size() ? rows[r][static_cast<std::size_t>(col)] : std::string();
                        auto* item = new QTableWidgetItem(q(text));
                        if (col == 0 && c.grid.firstColumnLocked) {
                            item->setFlags(item->flags() & ~Qt::ItemIsEditable);
                            item->setBackground(palette().window());
                        }
                        table->setItem(static_cast<int>(r) - 1, col, item);
                    }
                }
                break;
            }
            default: break;
        }
        w->setEnabled(state.enabled(name));
        const bool visible = state.visible(name);
        w->setVisible(visible);
        for (QWidget* label : companions_[c.name]) label->setVisible(visible);
    }
    for (const auto& [frame, widget] : frames_) widget->setVisible(state.visible(decl_.name + "." + frame));
    for (const auto& [key, action] : toolbar_) action->setEnabled(state.enabled(decl_.name + ".Toolbar1." + key));
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

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (!quiet_ && onClose) onClose();
}

}  // namespace morve
