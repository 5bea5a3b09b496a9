#pragma once
// "Exportar para planilha..." in the context menu of every grid: the table as the
// screen shows it, to an .xlsx workbook of one sheet; and the whole result of a
// module from the report panel.
#include <QString>

#include <string>

#include "app/form_state.h"

class QPushButton;
class QTableWidget;
class QWidget;

namespace morve {

void offerSpreadsheetExport(QTableWidget* table, const QString& sheetName);
// The same without the dialog; "" when written, else the message.
std::string exportTable(const QTableWidget* table, const QString& sheetName, const QString& path);
// The file dialog of workbooks; "" when cancelled.
QString askWorkbookPath(QWidget* parent);
// "Pla&nilha" of the report panel, beside the PDF's "&Salvar": the whole result of
// the module (its boxes and tables) to a workbook. The state must outlive the button.
QPushButton* resultsWorkbookButton(QWidget* parent, const morve::FormState& state);

}  // namespace morve
