#include <QButtonGroup>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTableWidget>

#include "gui/control_widgets.h"
#include "gui/grid_editing.h"
#include "gui/grid_export.h"
#include "gui/key_filter_guard.h"
#include "gui/picture_views.h"
#include "gui/screen_window.h"

namespace morve {

namespace {

constexpr int kBoxMargins = 12;  // the frame and inner margins of a box, both sides

int boxWidth(const QWidget* w, int characters) {
    return w->fontMetrics().horizontalAdvance(QLatin1Char('0')) * (characters > 0 ? characters : 9) + kBoxMargins;
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

}  // namespace

void showItems(QListWidget* list, const std::vector<std::string>& items) {
    bool same = list->count() == static_cast<int>(items.size());
    for (int i = 0; same && i < list->count(); ++i) same = list->item(i)->text() == q(items[static_cast<std::size_t>(i)]);
    if (same) return;
    list->clear();
    for (const auto& item : items) list->addItem(q(item));
    fitListWidth(list);
}

void fitGridHeight(QTableWidget* table) {
    const int rows = std::min(table->rowCount(), kGridRowsShown);
    const int rowHeight = table->verticalHeader()->defaultSectionSize();
    const int needed = table->horizontalHeader()->sizeHint().height() + rows * rowHeight + 2 * table->frameWidth() + 2;
    table->setMinimumHeight(std::max(kGridMinimumHeight, needed));
}

void fitGridWidth(QTableWidget* table) {
    QHeaderView* header = table->horizontalHeader();
    int widest = 0;
    for (int col = 0; col < table->columnCount(); ++col) widest = std::max(widest, header->sectionSizeHint(col));
    const int bar = table->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    table->setMinimumWidth(widest * table->columnCount() + 2 * table->frameWidth() + bar + 2);
}

void fitResultWidth(QLineEdit* box) {
    const int needed = box->fontMetrics().horizontalAdvance(box->text()) + kBoxMargins;
    if (needed <= box->minimumWidth()) return;
    box->setMinimumWidth(needed);
    box->setMaximumWidth(std::max(box->maximumWidth(), needed));
}

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
            // Enter presses the button that has the focus, as Space does; outside a
            // dialog Qt leaves that to Space alone unless told.
            button->setAutoDefault(true);
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

}  // namespace morve
