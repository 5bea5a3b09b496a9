// morve-calc: runs a case file through a module and prints the outcome as JSON,
// writes the module's report, or checks case files against their expectations.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "app/about.h"
#include "app/catalogue.h"
#include "app/texts.h"
#include "cli/case_check.h"
#include "cli/case_runner.h"
#include "cli/project_case.h"
#include "cli/report_file.h"
#include "export/workbook.h"

namespace {

const char* kUsage =
    "uso: morve-calc CASO.json\n"
    "     morve-calc --report SAIDA.pdf|SAIDA.txt [--key CHAVE] [--title TITULO] CASO.json\n"
    "     morve-calc --save SAIDA.mor CASO.json\n"
    "     morve-calc --xlsx SAIDA.xlsx CASO.json\n"
    "     morve-calc --picture Form40d.Picture1 SAIDA.gif|SAIDA.png|SAIDA.svg|SAIDA.dxf CASO.json\n"
    "     morve-calc --pictures CASO.json\n"
    "     morve-calc --steps SAIDA.html|SAIDA.pdf CASO.json\n"
    "     morve-calc --check CASO.json...\n"
    "     morve-calc --list\n"
    "     morve-calc --version\n";

int listModules() {
    for (const auto& key : morve::ModuleRegistry::keys()) {
        const morve::CatalogueRow* row = morve::ModuleCatalogue::byModule(key);
        std::cout << key << "\t" << (row ? row->reportTitle : "") << "\t";
        if (row)
            for (std::size_t i = 0; i < row->reportKeys.size(); ++i)
                std::cout << (i ? " " : "") << row->reportKeys[i];
        std::cout << "\n";
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::string casePath, stepsPath, reportPath, savePath, xlsxPath, key, title, picture, picturePath;
    std::vector<std::string> casePaths;
    bool check = false, pictures = false;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        auto value = [&](const char* what) -> std::string {
            if (i + 1 >= argc) {
                std::cerr << "morve-calc: falta o valor de " << what << "\n" << kUsage;
                std::exit(2);
            }
            return argv[++i];
        };
        if (a == "--list") return listModules();
        if (a == "--help" || a == "-h") {
            std::cout << kUsage;
            return 0;
        }
        if (a == "--version") {
            std::cout << morve::versionText("morve-calc");
            return 0;
        }
        if (a == "--check") check = true;
        else if (a == "--pictures") pictures = true;
        else if (a == "--report") reportPath = value("--report");
        else if (a == "--steps") stepsPath = value("--steps");
        else if (a == "--save") savePath = value("--save");
        else if (a == "--xlsx") xlsxPath = value("--xlsx");
        else if (a == "--key") key = value("--key");
        else if (a == "--picture") {
            picture = value("--picture");
            picturePath = value("--picture");
        }
        else if (a == "--title") title = value("--title");
        else if (!a.empty() && a[0] == '-') {
            std::cerr << "morve-calc: opção desconhecida: " << a << "\n" << kUsage;
            return 2;
        } else {
            casePath = a;
            casePaths.push_back(a);
        }
    }
    if (check) {
        if (casePaths.empty()) {
            std::cerr << kUsage;
            return 2;
        }
        return morve::checkCaseFiles(casePaths);
    }
    if (casePath.empty()) {
        std::cerr << kUsage;
        return 2;
    }
    std::ifstream in(casePath, std::ios::binary);
    if (!in) {
        std::cerr << "morve-calc: não foi possível ler " << casePath << "\n";
        return 2;
    }
    std::stringstream text;
    text << in.rdbuf();
    try {
        nlohmann::json caseFile = morve::parseCase(text.str());
        morve::resolveCaseProject(caseFile, casePath);
        morve::CaseRun run = morve::runCase(caseFile, !stepsPath.empty());
        if (!savePath.empty()) morve::saveCaseProject(*run.session, savePath);
        if (!xlsxPath.empty()) {
            if (std::string error = morve::writeWorkbook(morve::resultSheets(run.session->state()), xlsxPath);
                !error.empty()) {
                std::cerr << "morve-calc: " << error << "\n";
                return 2;
            }
            return 0;
        }
        if (!stepsPath.empty()) {
            std::string error = morve::writeStepsFile(*run.session, stepsPath);
            if (!error.empty()) {
                std::cerr << "morve-calc: " << error << "\n";
                return 2;
            }
        } else if (pictures) {
            // The module's picture boxes, one a line, as --picture names them.
            for (const auto& screen : run.session->state().screens())
                for (const auto& control : screen.controls)
                    if (control.kind == morve::ControlKind::Picture) std::cout << screen.name << "." << control.name << "\n";
        } else if (!picture.empty()) {
            std::string error = morve::writePictureFile(*run.session, picture, picturePath);
            if (!error.empty()) {
                std::cerr << "morve-calc: " << error << "\n";
                return 2;
            }
        } else if (!reportPath.empty()) {
            std::string error = morve::writeReportFile(*run.session, reportPath, key, title);
            if (!error.empty()) {
                std::cerr << "morve-calc: " << error << "\n";
                return 2;
            }
        } else {
            std::cout << morve::outcomeText(run.outcome);
        }
    } catch (const morve::CaseError& e) {
        std::cerr << "morve-calc: " << casePath << ": " << e.what() << "\n";
        return 2;
    } catch (const std::exception& e) {
        // Whatever else goes wrong, the caller gets a message and a status, not an abort.
        std::cerr << "morve-calc: " << casePath << ": erro inesperado: " << morve::quoteText(e.what(), 200)
                  << "\n";
        return 2;
    } catch (...) {
        std::cerr << "morve-calc: " << casePath << ": erro inesperado\n";
        return 2;
    }
    return 0;
}
