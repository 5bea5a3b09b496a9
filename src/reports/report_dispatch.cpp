#include "reports/report_dispatch.h"

#include "app/catalogue.h"
#include "app/module.h"

namespace morve {

bool generateReport(const std::string& key, const Module& module, const FormState& state,
                    ReportWriter& out) {
    const ReportKey* row = ModuleCatalogue::reportKey(key);
    if (!row || row->module != module.info().key) return false;
    out.begin(row->title);
    module.report(key, state, out);
    return true;
}

}  // namespace morve
