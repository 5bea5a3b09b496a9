#include "gui/grid_export.h"

#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

#include "export/workbook.h"
#include "gui/gui_prompter.h"

namespace morve {

namespace {

QString& exportFolder() {
    static QString folder;
    return folder;
}

}  // namespace

std::string exportTable(const QTableWidget* table, const QString& sheetName, const QString& path) {
    Sheet sheet{sheetName.toStdString(), {}};
    std::vector<std::string> header;
    for (int c = 0; c < table->columnCount(); ++c) {
        const QTableWidgetItem* h = table->horizontalHeaderItem(c);
        header.push_back(h ? h->text().toStdString() : std::string());
    }
    sheet.rows.push_back(std::move(header));
    for (int r = 0; r < table->rowCount(); ++r) {
        std::vector<std::string> row;
        for (int c = 0; c < table->columnCount(); ++c) {
            const QTableWidgetItem* item = table->item(r, c);
            row.push_back(item ? item->text().toStdString() : std::string());
        }
        sheet.rows.push_back(std::move(row));
    }
    return writeWorkbook({sheet}, QFile::encodeName(path).toStdString());
}

QString askWorkbookPath(QWidget* parent) {
    QFileDialog dialog(parent, QStringLiteral(" Exportar para planilha"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(QStringLiteral("Planilha (*.xlsx)"));
    dialog.setDefaultSuffix(QStringLiteral("xlsx"));
    if (!exportFolder().isEmpty()) dialog.setDirectory(exportFolder());
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Salvar"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QString path = dialog.selectedFiles().front();
    exportFolder() = QFileInfo(path).absolutePath();
    return path;
}

void offerSpreadsheetExport(QTableWidget* table, const QString& sheetName) {
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(table, &QWidget::customContextMenuRequested, table, [table, sheetName](const QPoint& at) {
        QMenu menu(table);
        QAction* save = menu.addAction(QStringLiteral("Exportar para planilha..."));
        if (menu.exec(table->viewport()->mapToGlobal(at)) != save) return;
        const QString path = askWorkbookPath(table->window());
        if (path.isEmpty()) return;
        if (const std::string failed = exportTable(table, sheetName, path); !failed.empty()) guiPrompter().warn(failed);
    });
}

QPushButton* resultsWorkbookButton(QWidget* parent, const FormState& state) {
    auto* b = new QPushButton(QStringLiteral("Pla&nilha"), parent);
    b->setObjectName(QStringLiteral("CommandPlanilha"));
    b->setToolTip(QStringLiteral("Salvar os resultados em planilha (.xlsx)"));
    QObject::connect(b, &QPushButton::clicked, parent, [parent, &state] {
        const QString path = askWorkbookPath(parent);
        if (path.isEmpty()) return;
        const std::string failed = writeWorkbook(resultSheets(state), QFile::encodeName(path).toStdString());
        if (!failed.empty()) guiPrompter().warn(failed);
    });
    return b;
}

}  // namespace morve
