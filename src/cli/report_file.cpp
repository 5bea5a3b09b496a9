#include "cli/report_file.h"

#include <fstream>

#include "app/catalogue.h"
#include "cli/renderer.h"
#include "export/dxf_drawing.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

namespace morve {

namespace {

bool endsWith(const std::string& s, const std::string& tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

}  // namespace

std::string writeReportFile(const ModuleSession& session, const std::string& path, std::string key,
                            const std::string& denomination) {
    if (key.empty()) key = session.info().printKey;
    if (key.empty()) {
        if (const CatalogueRow* row = ModuleCatalogue::byModule(session.info().key); row && !row->reportKeys.empty())
            key = row->reportKeys.front();
    }
    ReportWriter writer;
    if (!generateReport(key, session.module(), session.state(), writer))
        return "o módulo " + session.info().key + " não tem relatório de chave " + key;
    if (endsWith(path, ".txt")) {
        std::ofstream out(path, std::ios::binary);
        if (!out) return "não foi possível gravar " + path;
        out << renderText(paginate(writer.document(), denomination, PageRule::Paper), PageRule::Paper);
        return out ? "" : "não foi possível gravar " + path;
    }
    if (endsWith(path, ".pdf")) {
        std::string why;
        const RenderEntryPoints* renderer = loadRenderer(why);
        if (!renderer) return why;
        return renderer->reportPdf(paginate(writer.document(), denomination, PageRule::Paper), path);
    }
    return "a extensão do relatório deve ser .txt ou .pdf: " + path;
}

std::string writeStepsFile(const ModuleSession& session, const std::string& path) {
    const std::string html = traceHtml(session.steps());
    if (endsWith(path, ".html") || endsWith(path, ".htm")) {
        std::ofstream out(path, std::ios::binary);
        if (!out) return "não foi possível gravar " + path;
        out << html;
        return out ? "" : "não foi possível gravar " + path;
    }
    if (endsWith(path, ".pdf")) {
        std::string why;
        const RenderEntryPoints* renderer = loadRenderer(why);
        if (!renderer) return why;
        return renderer->htmlPdf(html, path);
    }
    return "a extensão do passo a passo deve ser .html ou .pdf: " + path;
}

std::string writePictureFile(const ModuleSession& session, const std::string& picture, const std::string& path) {
    const FormState& state = session.state();
    const std::string name = state.qualify(picture);
    const ControlDecl* control = state.has(name) ? state.declaration(name) : nullptr;
    if (!control || control->kind != ControlKind::Picture)
        return "o módulo " + session.info().key + " não tem o desenho " + picture;
    const Drawing drawing = session.module().drawing(name, state);
    if (drawing.empty()) return "o desenho " + name + " está vazio: calcule antes de gravá-lo";
    // DXF goes without the painter: a CAD file is vectors with layers, not a picture.
    if (path.size() > 4 && path.compare(path.size() - 4, 4, ".dxf") == 0) return writeDxf(drawing, path);
    std::string why;
    const RenderEntryPoints* renderer = loadRenderer(why);
    if (!renderer) return why;
    // The size the picture box is declared with, as the desktop first shows it.
    return renderer->picture(drawing, path, control->width > 0 ? control->width : 640,
                             control->height > 0 ? control->height : 480);
}

}  // namespace morve
