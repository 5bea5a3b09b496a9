#include "gui/grid_editing.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <algorithm>

#include "app/shell_texts.h"
#include "gui/gui_prompter.h"
#include "gui/key_filter_guard.h"

namespace morve {

namespace {

// A grid without a limit of its own still takes no more rows than this from one
// paste: a clipboard of a million lines is a slip of the mouse, not a case.
constexpr int kUnlimitedPasteRows = 5000;

bool isPaste(const QKeyEvent* key) { return key->matches(QKeySequence::Paste); }

bool isBlockText(const QString& text) { return text.contains(QLatin1Char('\t')) || text.contains(QLatin1Char('\n')); }

// The keys of a grid, whether a cell is being typed into or not.
class Spreadsheet : public QObject {
public:
    Spreadsheet(QTableWidget* table, const ControlDecl& decl)
        : QObject(table), table_(table), grid_(decl.grid) {
        // A move the user makes by other means ends a run of Tabs.
        connect(table, &QTableWidget::currentCellChanged, this, [this] {
            if (!moving_) tabStart_ = -1;
        });
    }

    // A navigation key of the table or of its open cell editor; true when handled.
    bool key(QKeyEvent* key) {
        const bool plain = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        if (plain && key->key() == Qt::Key_Tab)
            step(true);
        else if (key->key() == Qt::Key_Backtab)
            step(false);
        else if (plain && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter))
            down();
        else
            return false;
        return true;
    }

    void paste(const QString& clipboard);
    void copy() const;
    void clear();

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        auto* k = static_cast<QKeyEvent*>(event);
        if (isPaste(k))
            paste(QApplication::clipboard()->text());
        else if (k->matches(QKeySequence::Copy))
            copy();
        else if (k->key() == Qt::Key_Delete)
            clear();
        else
            return key(k);
        return true;
    }

private:
    bool editable(int row, int column) const {
        const QTableWidgetItem* item = table_->item(row, column);
        return item ? bool(item->flags() & Qt::ItemIsEditable) : !(column == 0 && grid_.firstColumnLocked);
    }
    void moveTo(int row, int column) {
        moving_ = true;
        table_->setCurrentCell(row, column);
        moving_ = false;
    }
    void step(bool forward);
    void down();
    void leave(bool forward);
    void growTo(int rows);

    QTableWidget* table_;
    GridDecl grid_;
    int tabStart_ = -1;  // the column where the current run of Tabs began
    bool moving_ = false;
};

void Spreadsheet::step(bool forward) {
    const int columns = table_->columnCount();
    if (columns == 0) return leave(forward);
    const int last = table_->rowCount() * columns - 1;
    int at = table_->currentRow() * columns + table_->currentColumn();
    if (table_->currentRow() < 0 || table_->currentColumn() < 0) at = forward ? -1 : last + 1;
    if (tabStart_ < 0) tabStart_ = table_->currentColumn();
    for (at += forward ? 1 : -1; at >= 0 && at <= last; at += forward ? 1 : -1) {
        if (editable(at / columns, at % columns)) return moveTo(at / columns, at % columns);
    }
    tabStart_ = -1;
    leave(forward);
}

void Spreadsheet::down() {
    const int column = tabStart_ >= 0 ? tabStart_ : std::max(0, table_->currentColumn());
    const int row = std::min(table_->currentRow() + 1, table_->rowCount() - 1);
    tabStart_ = -1;
    if (row >= 0) moveTo(row, column);
}

// Past the last cell the focus goes on to the next control of the window, as a
// Tab out of a box would.
void Spreadsheet::leave(bool forward) {
    for (QWidget* w = forward ? table_->nextInFocusChain() : table_->previousInFocusChain(); w && w != table_;
         w = forward ? w->nextInFocusChain() : w->previousInFocusChain()) {
        if (w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) && !table_->isAncestorOf(w) &&
            w->window() == table_->window()) {
            w->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

void Spreadsheet::growTo(int rows) {
    const int old = table_->rowCount();
    table_->setRowCount(rows);
    for (int r = old; r < rows; ++r)
        for (int c = 0; c < table_->columnCount(); ++c) {
            auto* item = new QTableWidgetItem();
            if (c == 0 && grid_.firstColumnLocked) {
                item->setText(QString::number(r + 1));
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
                item->setBackground(table_->palette().window());
            }
            table_->setItem(r, c, item);
        }
}

void Spreadsheet::paste(const QString& clipboard) {
    if (clipboard.isEmpty() || table_->columnCount() == 0) return;
    QStringList lines = clipboard.split(QLatin1Char('\n'));
    if (lines.size() > 1 && lines.back().trimmed().isEmpty()) lines.removeLast();  // the closing line break
    int width = 1;
    for (const QString& line : lines) width = std::max(width, static_cast<int>(line.count(QLatin1Char('\t'))) + 1);
    int row = std::max(0, table_->currentRow());
    int column = std::max(0, table_->currentColumn());
    // A block without the numbering column, pasted on it, starts beside it.
    if (column == 0 && grid_.firstColumnLocked && width < table_->columnCount()) column = 1;

    const int limit = grid_.maxRows > 0 ? grid_.maxRows : std::max(table_->rowCount(), kUnlimitedPasteRows);
    const int wanted = row + static_cast<int>(lines.size());
    if (wanted > table_->rowCount()) growTo(std::min(wanted, limit));

    bool refused = false;
    for (int i = 0; i < static_cast<int>(lines.size()) && row + i < table_->rowCount(); ++i) {
        const QStringList cells = lines[i].split(QLatin1Char('\t'));
        for (int j = 0; j < static_cast<int>(cells.size()) && column + j < table_->columnCount(); ++j) {
            if (!editable(row + i, column + j)) continue;
            bool dropped = false;
            const QString text = filteredText(cells[j].trimmed(), grid_.filterOf(column + j), &dropped);
            refused = refused || dropped;
            if (QTableWidgetItem* item = table_->item(row + i, column + j))
                item->setText(text);
            else
                table_->setItem(row + i, column + j, new QTableWidgetItem(text));
        }
    }
    if (refused) beep();
    if (wanted > limit)
        guiPrompter().warn(pasteTooManyRows(std::to_string(limit)));
    else if (column + width > table_->columnCount())
        guiPrompter().warn(kPasteTooWide);
}

void Spreadsheet::copy() const {
    const auto ranges = table_->selectedRanges();
    if (ranges.isEmpty()) return;
    const QTableWidgetSelectionRange& r = ranges.front();
    QStringList lines;
    for (int row = r.topRow(); row <= r.bottomRow(); ++row) {
        QStringList cells;
        for (int c = r.leftColumn(); c <= r.rightColumn(); ++c)
            cells << (table_->item(row, c) ? table_->item(row, c)->text() : QString());
        lines << cells.join(QLatin1Char('\t'));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

void Spreadsheet::clear() {
    for (QTableWidgetItem* item : table_->selectedItems())
        if (item->flags() & Qt::ItemIsEditable) item->setText(QString());
}

// The editor of a cell runs the grid's key filter, and the keys that leave the
// cell are the spreadsheet's: the delegate sees them before anything else does.
class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(const GridDecl& grid, Spreadsheet* sheet, QTableWidget* table)
        : QStyledItemDelegate(table), grid_(grid), sheet_(sheet), table_(table) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (editor) KeyFilterGuard::install(editor, grid_.filterOf(index.column()));
        return editor;
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* editor = qobject_cast<QWidget*>(object);
        if (!editor || event->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(object, event);
        auto* key = static_cast<QKeyEvent*>(event);
        if (isPaste(key)) {
            const QString clipboard = QApplication::clipboard()->text();
            if (auto* line = qobject_cast<QLineEdit*>(editor); line && !isBlockText(clipboard)) {
                bool dropped = false;
                line->insert(filteredText(clipboard.trimmed(), grid_.filterOf(table_->currentColumn()), &dropped));
                if (dropped) beep();
                return true;
            }
            finish(editor);
            sheet_->paste(clipboard);
            return true;
        }
        const int k = key->key();
        if (k != Qt::Key_Tab && k != Qt::Key_Backtab && k != Qt::Key_Return && k != Qt::Key_Enter)
            return QStyledItemDelegate::eventFilter(object, event);
        finish(editor);
        sheet_->key(key);
        return true;
    }

private:
    // What was typed goes into the cell before the cursor moves on.
    void finish(QWidget* editor) {
        emit commitData(editor);
        emit closeEditor(editor, QAbstractItemDelegate::NoHint);
    }

    GridDecl grid_;
    Spreadsheet* sheet_;
    QTableWidget* table_;
};

}  // namespace

QString filteredText(const QString& text, KeyFilter filter, bool* refused) {
    if (filter == KeyFilter::None) return text;
    QString out;
    for (const QChar ch : text) {
        const FilteredKey k = applyKeyFilter(filter, ch.unicode());
        if (k.code)
            out += QChar(k.code);
        else if (refused)
            *refused = true;
    }
    return out;
}

void makeSpreadsheet(QTableWidget* table, const ControlDecl& grid) {
    auto* sheet = new Spreadsheet(table, grid);
    table->setItemDelegate(new CellDelegate(grid.grid, sheet, table));
    table->setTabKeyNavigation(true);
    // The first key of a cell opens its editor, and passes the filter of its column.
    KeyFilterGuard::install(table, [table, decl = grid.grid] { return decl.filterOf(table->currentColumn()); });
    // Installed after the key filter, so it sees Enter and Ctrl+V before the filter
    // refuses them as control characters.
    table->installEventFilter(sheet);
}

}  // namespace morve
