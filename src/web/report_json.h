#pragma once
// A report paged as on paper (53 lines, the header on page 1, the page number on
// top), line by line, with its pictures as drawings.
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "reports/report_writer.h"

namespace morve::web {

nlohmann::json reportPagesJson(const std::vector<ReportPage>& pages);

}  // namespace morve::web
