#pragma once
// From a report key to its generator: the title comes from the table of keys, the
// lines from the module that owns the key, read from that module's boxes.
#include <string>

#include "app/form_state.h"
#include "reports/report_writer.h"

namespace morve {

class Module;

// False, with nothing written, for a key that no generator of this module serves.
bool generateReport(const std::string& key, const Module& module, const FormState& state,
                    ReportWriter& out);

}  // namespace morve
