#pragma once
// The "Passo a passo" on paper: its HTML laid out by Qt's rich text on A4 pages.
// The desktop's "Salvar PDF" and morve-calc's --steps go through this one call.
#include <QString>

#include <string>

class QPagedPaintDevice;

namespace morve {

// "" on success, otherwise what went wrong.
std::string writeHtmlPdf(const std::string& html, const QString& path);
// The same layout on any paged device (a printer, a PDF writer).
void printHtml(const std::string& html, QPagedPaintDevice& device);

}  // namespace morve
