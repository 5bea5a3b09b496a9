#include "export/workbook.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <xlsxwriter.h>

#include "reports/atomic_file.h"

namespace morve {

namespace {

constexpr std::size_t kSheetNameLimit = 31;  // what spreadsheet programs accept

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Sheet names are unique, at most 31 characters and without []:*?/\ .
std::string sheetName(std::string name, const std::vector<std::string>& taken) {
    for (char& c : name)
        if (std::strchr("[]:*?/\\", c)) c = '_';
    if (name.size() > kSheetNameLimit) name.resize(kSheetNameLimit);
    std::string unique = name;
    for (int k = 2; std::find(taken.begin(), taken.end(), unique) != taken.end(); ++k) {
        const std::string suffix = " " + std::to_string(k);
        unique = name.substr(0, kSheetNameLimit - suffix.size()) + suffix;
    }
    return unique;
}

}  // namespace

bool cellNumber(const std::string& text, double& value) {
    const std::string t = trimmed(text);
    if (t.empty() || t.find_first_not_of("+-.0123456789eE") != std::string::npos) return false;
    char* end = nullptr;
    value = std::strtod(t.c_str(), &end);
    return end == t.c_str() + t.size() && std::isfinite(value);
}

Sheet tableSheet(const FormState& state, const std::string& grid) {
    return {state.qualify(grid), state.grid(grid)};
}

std::vector<Sheet> resultSheets(const FormState& state) {
    Sheet boxes{"Resultados", {{"Resultado", "Valor", "Unidade"}}};
    std::vector<Sheet> tables;
    for (const ScreenDecl& screen : state.screens()) {
        for (const ControlDecl& c : screen.controls) {
            const std::string name = screen.name + "." + c.name;
            if (c.kind == ControlKind::ResultBox && !trimmed(state.text(name)).empty())
                boxes.rows.push_back({trimmed(c.caption), state.text(name), c.unit});
            if (c.kind == ControlKind::Grid && state.grid(name).size() > 1) tables.push_back(tableSheet(state, name));
        }
    }
    tables.insert(tables.begin(), std::move(boxes));
    return tables;
}

std::string writeWorkbook(const std::vector<Sheet>& sheets, const std::string& path) {
    const std::string failed = replaceFileBy(path, [&](const std::string& temporary) {
        lxw_workbook* book = workbook_new(temporary.c_str());
        if (!book) return false;
        lxw_format* header = workbook_add_format(book);
        format_set_bold(header);
        std::vector<std::string> taken;
        for (const Sheet& sheet : sheets) {
            taken.push_back(sheetName(sheet.name, taken));
            lxw_worksheet* ws = workbook_add_worksheet(book, taken.back().c_str());
            for (std::size_t r = 0; r < sheet.rows.size(); ++r) {
                for (std::size_t k = 0; k < sheet.rows[r].size(); ++k) {
                    const auto row = static_cast<lxw_row_t>(r);
                    const auto col = static_cast<lxw_col_t>(k);
                    const std::string& text = sheet.rows[r][k];
                    double v = 0;
                    if (r > 0 && cellNumber(text, v))
                        worksheet_write_number(ws, row, col, v, nullptr);
                    else if (!text.empty())
                        worksheet_write_string(ws, row, col, text.c_str(), r == 0 ? header : nullptr);
                }
            }
        }
        return workbook_close(book) == LXW_NO_ERROR;
    });
    return failed.empty() ? "" : "Não foi possível salvar a planilha " + path + ": " + failed + ".";
}

}  // namespace morve
