#include "web/report_json.h"

#include "web/drawing_json.h"

namespace morve::web {

using nlohmann::json;

json reportPagesJson(const std::vector<ReportPage>& pages) {
    json out = json::array();
    for (const ReportPage& page : pages) {
        json lines = json::array();
        for (const PageLine& line : page.lines) {
            if (line.picture)
                lines.push_back({{"picture", drawingJson(*line.picture)}, {"lines", line.pictureLines}});
            else
                lines.push_back({{"text", line.text}, {"bold", line.bold}});
        }
        out.push_back({{"number", page.number}, {"lines", lines}});
    }
    return out;
}

}  // namespace morve::web
