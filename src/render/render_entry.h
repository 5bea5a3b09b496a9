#pragma once
// The renderer that programs without windows load only when a file needs painting.
//
// morve-calc prints a case's outcome without Qt, so that a plain calculation starts
// in a few milliseconds. PDF reports and raster or vector pictures need Qt's painter
// and fonts; they live in a library of their own (morve-render.so) that the program
// opens with dlopen the first time such a file is asked for (cli/renderer.h).
//
// The library exports one C function, morve_render_entry_points(), that returns the
// table below. Each entry point takes core values (no Qt type crosses), writes one
// file and returns "" on success or the message of what went wrong. They create the
// offscreen painting application themselves, so the caller prepares nothing.
//
//   reportPdf(pages, path)               report pages as paginated for paper
//                                        (paginate(..., PageRule::Paper)), A4 PDF
//   picture(drawing, path, width, height) a drawing fitted into width x height
//                                        pixels on white; by the extension of path:
//                                        .gif (giflib), .svg (vectors), or any
//                                        raster format Qt writes (.png, .jpg, .bmp)
//
// A new output that needs Qt adds an entry point at the end of the table and raises
// kRenderInterface; outputs that need no Qt (text, spreadsheets, DXF) stay in the
// program and never load this library.
//
// The library is built with the program from the same sources, so C++ values cross
// it; the interface number and the layout check refuse a library of another build.
#include <string>
#include <vector>

#include "draw/drawing.h"
#include "reports/report_writer.h"

namespace morve {

inline constexpr int kRenderInterface = 1;

// Changes whenever a type that crosses the boundary changes size.
inline constexpr std::size_t kRenderLayout =
    sizeof(Drawing) * 1000003 + sizeof(Shape) * 1009 + sizeof(ReportPage) * 31 + sizeof(PageLine);

struct RenderEntryPoints {
    int interface = kRenderInterface;
    std::size_t layout = kRenderLayout;
    std::string (*reportPdf)(const std::vector<ReportPage>& pages, const std::string& path) = nullptr;
    std::string (*picture)(const Drawing& drawing, const std::string& path, int width, int height) = nullptr;
};

}  // namespace morve

// The library's one exported symbol.
extern "C" const morve::RenderEntryPoints* morve_render_entry_points();
inline constexpr const char* kRenderEntrySymbol = "morve_render_entry_points";
