#pragma once
// "Exportar para planilha..." in the context menu of every grid: the table as the
// screen shows it, to an .xlsx workbook of one sheet.
#include <QString>

#include <string>

class QTableWidget;

namespace morve {

void offerSpreadsheetExport(QTableWidget* table, const QString& sheetName);
// The same without the dialog; "" when written, else the message.
std::string exportTable(const QTableWidget* table, const QString& sheetName, const QString& path);

}  // namespace morve
