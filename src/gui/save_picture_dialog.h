#pragma once
// "FormSalvarPic": the picture shown in a picture box written to a file (GIF as
// the program always did, PNG and SVG beside it) through a file dialog with the
// program's captions; and the same picture printed on one page.
#include <QSize>
#include <QString>
#include <QStringList>

#include "draw/drawing.h"

class QFileDialog;
class QPrinter;
class QWidget;

namespace morve {

// The kinds offered, GIF first, as the dialog's name filters.
QStringList pictureNameFilters();
// The path written for the dialog's answer: a name typed by the user has every
// point turned into "_" and gets the extension of the chosen kind; a file picked
// from the list (it exists, with that extension) stays as it is.
QString picturePath(const QString& chosen, const QString& nameFilter);
// The dialog itself, ready to show: caption " Salvar desenho", no question before
// replacing a file.
QFileDialog* pictureDialog(QWidget* parent);
// Shows the dialog and writes the drawing at `size`; "" when written or cancelled,
// otherwise what went wrong.
std::string savePicture(QWidget* parent, const Drawing& drawing, QSize size);
// The drawing on the default printer, fitted to one A4 page in portrait.
void printPicture(QWidget* parent, const Drawing& drawing);
// The page itself, on a printer already set up (paper or PDF).
void printDrawing(QPrinter& printer, const Drawing& drawing);

}  // namespace morve
