#include "export/workbook.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <xlsxwriter.h>

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

std::string failure(const std::string& path, const std::string& why) {
    return "Não foi possível salvar a planilha " + path + ": " + why + ".";
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
    const std::filesystem::path target(path);
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    std::string temporary = (folder / ("." + target.filename().string() + ".XXXXXX")).string();
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0) return failure(path, errno == ENOENT ? "a pasta não existe" : std::strerror(errno));
    ::close(fd);
    lxw_workbook* book = workbook_new(temporary.c_str());
    if (!book) {
        ::unlink(temporary.c_str());
        return failure(path, "o arquivo não pôde ser criado");
    }
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
    const lxw_error closed = workbook_close(book);
    if (closed != LXW_NO_ERROR) {
        ::unlink(temporary.c_str());
        return failure(path, closed == LXW_ERROR_CREATING_XLSX_FILE ? "sem permissão de escrita ou disco cheio"
                                                                    : lxw_strerror(closed));
    }
    // The new file keeps the permissions a new file of the user gets.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::chmod(temporary.c_str(), 0666 & ~mask);
    if (std::rename(temporary.c_str(), path.c_str()) != 0) {
        const int error = errno;
        ::unlink(temporary.c_str());
        return failure(path, std::strerror(error));
    }
    return "";
}

}  // namespace morve
