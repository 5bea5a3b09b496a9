// "case": a case file run as morve-calc runs it, its output the very text
// morve-calc prints. The project files the case opens by name are handed in with
// it and laid in the instance's memory file system beside the case.
#include <filesystem>
#include <fstream>

#include "app/texts.h"
#include "cli/case_runner.h"
#include "cli/project_case.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

const std::filesystem::path kCaseFolder = "/case";

void layOut(const json& files) {
    std::filesystem::remove_all(kCaseFolder);
    std::filesystem::create_directories(kCaseFolder);
    if (!files.is_object()) throw RequestError("\"files\" deve ser um objeto");
    for (const auto& [name, text] : files.items()) {
        const std::filesystem::path relative = std::filesystem::path(name).lexically_normal();
        if (relative.empty() || relative.is_absolute() || *relative.begin() == "..")
            throw RequestError("nome de arquivo inválido: " + name);
        if (!text.is_string()) throw RequestError("o arquivo " + name + " deve ser um texto");
        const std::filesystem::path path = kCaseFolder / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text.get<std::string>();
    }
}

json runCaseText(const json& request) {
    layOut(request.contains("files") ? request.at("files") : json::object());
    const std::string casePath = (kCaseFolder / "caso.json").string();
    try {
        json caseFile = parseCase(stringMember(request, "text"));
        resolveCaseProject(caseFile, casePath);
        return {{"status", 0}, {"stdout", outcomeText(runCase(caseFile).outcome)}};
    } catch (const CaseError& e) {
        return {{"status", 2}, {"stderr", "morve-calc: " + casePath + ": " + e.what() + "\n"}};
    } catch (const std::exception& e) {
        return {{"status", 2},
                {"stderr", "morve-calc: " + casePath + ": erro inesperado: " + quoteText(e.what(), 200) + "\n"}};
    }
}

const RegisterOp registered("case", runCaseText);

}  // namespace

}  // namespace morve::web
