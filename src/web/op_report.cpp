// "report" and "steps": the report of a key paged as on paper, and the "Passo a
// passo" of the latest calculation as its own HTML page.
#include "app/catalogue.h"
#include "app/trace.h"
#include "reports/report_dispatch.h"
#include "web/report_json.h"
#include "web/sessions.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

// The key asked for, else the toolbar's "Imprimir" key, else the module's first.
std::string reportKeyOf(const ModuleSession& session, const json& request) {
    if (request.contains("key") && request.at("key").is_string() && !request.at("key").get<std::string>().empty())
        return request.at("key").get<std::string>();
    if (!session.info().printKey.empty()) return session.info().printKey;
    const CatalogueRow* row = ModuleCatalogue::byModule(session.info().key);
    return row && !row->reportKeys.empty() ? row->reportKeys.front() : "";
}

json report(const json& request) {
    ModuleSession& session = sessionOf(request);
    applyInputs(session, request);
    const std::string key = reportKeyOf(session, request);
    const std::string title =
        request.contains("title") && request.at("title").is_string() ? request.at("title").get<std::string>() : "";
    ReportWriter writer;
    if (!generateReport(key, session.module(), session.state(), writer))
        throw RequestError("o módulo " + session.info().key + " não tem relatório de chave " + key);
    return {{"title", writer.document().title},
            {"pages", reportPagesJson(paginate(writer.document(), title, PageRule::Paper))}};
}

json steps(const json& request) { return {{"html", traceHtml(sessionOf(request).steps())}}; }

const RegisterOp registeredReport("report", report);
const RegisterOp registeredSteps("steps", steps);

}  // namespace

}  // namespace morve::web
