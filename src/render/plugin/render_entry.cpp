// morve-render.so: the painter's entry points for programs without windows.
#include "render/render_entry.h"

#include <QSize>
#include <QString>

#include "render/drawing_export.h"
#include "render/offscreen.h"
#include "render/page_painter.h"

namespace {

std::string reportPdf(const std::vector<morve::ReportPage>& pages, const std::string& path) {
    morve::ensurePaintingApplication();
    return morve::writeReportPdf(pages, QString::fromStdString(path));
}

std::string picture(const morve::Drawing& drawing, const std::string& path, int width, int height) {
    morve::ensurePaintingApplication();
    return morve::exportDrawing(drawing, QString::fromStdString(path), QSize(width, height));
}

}  // namespace

extern "C" __attribute__((visibility("default"))) const morve::RenderEntryPoints* morve_render_entry_points() {
    static const morve::RenderEntryPoints entries{morve::kRenderInterface, morve::kRenderLayout, reportPdf, picture};
    return &entries;
}
