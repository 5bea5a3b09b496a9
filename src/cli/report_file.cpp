#include "cli/report_file.h"

#include <fstream>

#include "app/catalogue.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

#ifdef MORVE_HAS_RENDER
#include <QString>

#include "render/offscreen.h"
#include "render/page_painter.h"
#endif

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
#ifdef MORVE_HAS_RENDER
        ensurePaintingApplication();
        return writeReportPdf(paginate(writer.document(), denomination, PageRule::Paper),
                              QString::fromStdString(path));
#else
        return "esta versão do morve-calc foi construída sem Qt e não grava PDF";
#endif
    }
    return "a extensão do relatório deve ser .txt ou .pdf: " + path;
}

}  // namespace morve
