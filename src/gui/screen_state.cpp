#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTableWidget>

#include "gui/control_widgets.h"
#include "gui/screen_window.h"

namespace morve {

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
                if (c.kind == ControlKind::ResultBox) fitResultWidth(edit);
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
                fitGridWidth(table);
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

}  // namespace morve
