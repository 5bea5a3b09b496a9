#include "cli/project_case.h"

#include <filesystem>

#include "cli/case_runner.h"
#include "reports/project_file.h"

namespace morve {

void resolveCaseProject(nlohmann::json& caseFile, const std::string& casePath) {
    if (!caseFile.is_object() || !caseFile.contains("open") || !caseFile.at("open").is_string()) return;
    const std::filesystem::path file = caseFile.at("open").get<std::string>();
    if (file.is_relative()) caseFile["open"] = (std::filesystem::path(casePath).parent_path() / file).string();
}

void openCaseProject(ModuleSession& session, const nlohmann::json& file) {
    if (!file.is_string()) throw CaseError("\"open\" deve ser o caminho de um arquivo .mor");
    const ProjectResult r = openProjectFile(session.module(), file.get<std::string>(), session.state());
    if (!r.ok()) throw CaseError(r.message);
}

void saveCaseProject(const ModuleSession& session, const std::string& path) {
    const ProjectResult r = saveProjectFile(session.module(), session.state(), path);
    if (!r.ok()) throw CaseError(r.message);
}

}  // namespace morve
