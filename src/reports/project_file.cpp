#include "reports/project_file.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

#include "app/module.h"
#include "app/outcome.h"
#include "reports/atomic_file.h"

namespace morve {

namespace {

const std::string kWrongModule =
    "O arquivo selecionado não corresponde ao módulo atual. Escolha outro arquivo.";
const std::string kKept = " Os dados do módulo não foram alterados.";
constexpr const char* kTrueField = "#TRUE#";
constexpr const char* kFalseField = "#FALSE#";
constexpr const char* kEndOfLine = "\r\n";
// Far above the largest case a module holds (thousands of rows of a dozen cells);
// anything bigger is not a project file and is not read into memory.
constexpr std::streamsize kLargestFile = 16 << 20;

// ---- the fields of the file ----

struct Field {
    std::string text;
    bool quoted = false;
};

struct Record {
    std::vector<Field> fields;
    int line = 0;  // where the record starts, for the messages
};

struct Parsed {
    std::vector<Record> records;
    int badLine = 0;        // a quote closed with something other than a comma after it
    bool unfinished = false;  // the file ends inside a quoted text
    int lastLine = 1;
};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Splits the text into records (lines) of fields; a quoted text may hold commas,
// doubled quotes and line breaks. Blank lines are no records.
Parsed parseFields(const std::string& text) {
    Parsed out;
    const std::size_t n = text.size();
    std::size_t i = 0;
    int line = 1;
    while (i < n) {
        Record rec;
        rec.line = line;
        for (;;) {
            while (i < n && (text[i] == ' ' || text[i] == '\t')) ++i;
            Field f;
            if (i < n && text[i] == '"') {
                f.quoted = true;
                ++i;
                for (;;) {
                    if (i >= n) {
                        // Kept as read, so that the fields before it are still
                        // counted; the file is refused as incomplete all the same.
                        rec.fields.push_back(std::move(f));
                        out.records.push_back(std::move(rec));
                        out.unfinished = true;
                        out.lastLine = line;
                        return out;
                    }
                    if (text[i] == '"') {
                        if (i + 1 < n && text[i + 1] == '"') {
                            f.text += '"';
                            i += 2;
                            continue;
                        }
                        ++i;
                        break;
                    }
                    if (text[i] == '\n') ++line;
                    f.text += text[i++];
                }
                while (i < n && isBlank(text[i])) ++i;
            } else {
                while (i < n && text[i] != ',' && text[i] != '\n') f.text += text[i++];
                while (!f.text.empty() && isBlank(f.text.back())) f.text.pop_back();
            }
            rec.fields.push_back(std::move(f));
            if (i < n && text[i] == ',') {
                ++i;
                continue;
            }
            if (i < n && text[i] != '\n') {
                out.badLine = line;
                return out;
            }
            if (i < n) ++i;
            ++line;
            break;
        }
        const bool blank = rec.fields.size() == 1 && !rec.fields[0].quoted && rec.fields[0].text.empty();
        if (!blank) out.records.push_back(std::move(rec));
    }
    out.lastLine = std::max(1, line - 1);
    return out;
}

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '"') out += '"';
        out += c;
    }
    return out + "\"";
}

// An integer as the file writes it: a sign and at most nine digits.
bool readInteger(const Field& f, long& value) {
    if (f.quoted || f.text.empty()) return false;
    std::size_t start = f.text[0] == '-' ? 1 : 0;
    if (start == f.text.size() || f.text.size() - start > 9) return false;
    for (std::size_t k = start; k < f.text.size(); ++k)
        if (f.text[k] < '0' || f.text[k] > '9') return false;
    value = std::stol(f.text);
    return true;
}

bool sameLetters(const std::string& a, const char* b) {
    return a.size() == std::strlen(b) &&
           std::equal(a.begin(), a.end(), b, [](char x, char y) { return std::toupper(static_cast<unsigned char>(x)) == y; });
}

// ---- which controls the file keeps, and how ----

bool isScalarInput(ControlKind kind) {
    return kind == ControlKind::TextBox || kind == ControlKind::ResultBox || kind == ControlKind::List ||
           kind == ControlKind::Option || kind == ControlKind::Check;
}

const ControlDecl& fieldDeclaration(const FormState& state, const std::string& name) {
    const ControlDecl* decl = state.declaration(name);
    if (!decl || (!isScalarInput(decl->kind) && decl->kind != ControlKind::Grid))
        throw std::logic_error("project field is not an input control: " + name);
    return *decl;
}

// Column 0 of a grid that numbers its rows is written by the program, not typed.
std::size_t firstDataColumn(const ControlDecl& decl) { return decl.grid.firstColumnLocked ? 1 : 0; }

std::size_t columnCount(const FormState& state, const std::string& name, const ControlDecl& decl) {
    const GridRows& rows = state.grid(name);
    return rows.empty() ? decl.grid.header.size() : rows.front().size();
}

std::string scalarField(const FormState& state, const std::string& name, const ControlDecl& decl) {
    const std::string& text = state.text(name);
    switch (decl.kind) {
        case ControlKind::List: return std::to_string(state.selectedIndex(name));
        case ControlKind::Option:
        case ControlKind::Check: return state.option(name) ? kTrueField : kFalseField;
        default: return quoted(text);
    }
}

// ---- reading, field by field, into a copy of the state ----

class ProjectReader {
public:
    ProjectReader(const std::vector<Record>& records, int lastLine) : records_(records), lastLine_(lastLine) {}

    // "" when the field was read into the state; otherwise why the file is refused.
    std::string read(FormState& state, const std::string& name, const ControlDecl& decl) {
        std::string fault = decl.kind == ControlKind::Grid ? readGrid(state, name, decl) : readScalar(state, name, decl);
        previousGrid_ = decl.kind == ControlKind::Grid ? gridLine_ : 0;
        return fault;
    }

    std::string rest() const {
        if (next_ >= records_.size()) return "";
        return "O arquivo selecionado tem dados a mais a partir da linha " + std::to_string(records_[next_].line) +
               ": a contagem de linhas de alguma tabela não confere com as suas linhas.";
    }

    std::string incomplete() const {
        return "O arquivo selecionado está incompleto: termina na linha " + std::to_string(lastLine_) +
               ", antes do fim dos dados do módulo.";
    }

private:
    const Record* take() { return next_ < records_.size() ? &records_[next_++] : nullptr; }

    std::string rowsDoNotMatch(int line, long count) const {
        return "A tabela da linha " + std::to_string(line) + " do arquivo selecionado indica " +
               std::to_string(count) + " linhas, mas as linhas que se seguem não conferem com essa contagem.";
    }
    // A field of the wrong shape right after a table is most likely one of its rows
    // counted wrong; elsewhere the value itself is at fault.
    std::string badField(const Record& rec, const std::string& why) const {
        if (previousGrid_) return rowsDoNotMatch(previousGrid_, gridCount_);
        return "O valor da linha " + std::to_string(rec.line) + " do arquivo selecionado não serve para este módulo: " +
               why + ".";
    }

    std::string readScalar(FormState& state, const std::string& name, const ControlDecl& decl) {
        const Record* rec = take();
        if (!rec) return incomplete();
        if (rec->fields.size() != 1) return badField(*rec, "esperava-se um único valor");
        const Field& f = rec->fields[0];
        switch (decl.kind) {
            case ControlKind::List: {
                long index = 0;
                const std::vector<std::string>& items = state.items(name);
                if (!readInteger(f, index) || index < -1 || index >= static_cast<long>(items.size()))
                    return badField(*rec, "a lista não tem o item " + f.text);
                state.setText(name, index < 0 ? "" : items[static_cast<std::size_t>(index)]);
                return "";
            }
            case ControlKind::Option:
            case ControlKind::Check: {
                const bool on = !f.quoted && sameLetters(f.text, kTrueField);
                if (f.quoted || (!on && !sameLetters(f.text, kFalseField)))
                    return badField(*rec, "esperava-se #TRUE# ou #FALSE#");
                if (on)
                    state.setOption(name, true);
                else
                    state.setText(name, "");
                return "";
            }
            default:
                if (!f.quoted) return badField(*rec, "esperava-se um texto entre aspas");
                state.setText(name, f.text);
                return "";
        }
    }

    std::string readGrid(FormState& state, const std::string& name, const ControlDecl& decl) {
        const Record* rec = take();
        if (!rec) return incomplete();
        long count = 0;
        if (rec->fields.size() != 1 || !readInteger(rec->fields[0], count) || count < 0)
            return badField(*rec, "esperava-se o número de linhas de uma tabela");
        if (decl.grid.maxRows > 0 && count > decl.grid.maxRows)
            return "A tabela da linha " + std::to_string(rec->line) + " do arquivo selecionado tem " +
                   std::to_string(count) + " linhas, mais do que as " + std::to_string(decl.grid.maxRows) +
                   " que o módulo admite.";
        gridLine_ = rec->line;
        gridCount_ = count;
        const std::size_t columns = columnCount(state, name, decl);
        const std::size_t first = std::min(firstDataColumn(decl), columns);
        GridRows rows{state.grid(name).empty() ? decl.grid.header : state.grid(name).front()};
        for (long r = 1; r <= count; ++r) {
            std::vector<std::string> row(columns);
            if (first == 1) row[0] = std::to_string(r);
            if (columns > first) {
                const Record* cells = take();
                if (!cells) return incomplete();
                if (cells->fields.size() != columns - first) return rowsDoNotMatch(gridLine_, count);
                for (std::size_t k = first; k < columns; ++k) {
                    const Field& f = cells->fields[k - first];
                    if (!f.quoted) return rowsDoNotMatch(gridLine_, count);
                    row[k] = f.text;
                }
            }
            rows.push_back(std::move(row));
        }
        state.grid(name) = std::move(rows);
        return "";
    }

    const std::vector<Record>& records_;
    std::size_t next_ = 1;  // the tag is record 0
    int lastLine_;
    int previousGrid_ = 0;  // the line of the grid read just before, 0 when none
    int gridLine_ = 0;
    long gridCount_ = 0;
};

// ---- the file system ----

bool readWholeFile(const std::string& path, std::string& text) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    text.assign(static_cast<std::size_t>(kLargestFile) + 1, '\0');
    in.read(text.data(), kLargestFile + 1);
    text.resize(static_cast<std::size_t>(in.gcount()));
    return !in.bad();
}

// The results on screen belong to the case before the file: a report printed now
// would set them beside the new inputs. Result boxes and tables the file does not
// keep are emptied (a table keeps its row names), and "Imprimir" waits for the
// next "CALCULAR".
void blankResults(const Module& module, FormState& state) {
    const std::vector<std::string> kept = module.projectFields();
    for (const ScreenDecl& screen : state.screens()) {
        for (const ControlDecl& c : screen.controls) {
            const std::string name = screen.name + "." + c.name;
            if (std::find(kept.begin(), kept.end(), name) != kept.end()) continue;
            if (c.kind == ControlKind::ResultBox) state.setText(name, "");
            if (c.kind != ControlKind::Grid) continue;
            GridRows& rows = state.grid(name);
            for (std::size_t r = 1; r < rows.size(); ++r)
                for (std::size_t k = 1; k < rows[r].size(); ++k) rows[r][k].clear();
        }
    }
    state.setEnabled(printButton(module.info().key), false);
}

}  // namespace

std::string writeProjectText(const Module& module, const FormState& state) {
    std::string out = quoted(module.info().key) + kEndOfLine;
    for (const std::string& name : module.projectFields()) {
        const ControlDecl& decl = fieldDeclaration(state, name);
        if (decl.kind != ControlKind::Grid) {
            out += scalarField(state, name, decl) + kEndOfLine;
            continue;
        }
        const GridRows& rows = state.grid(name);
        const std::size_t columns = columnCount(state, name, decl);
        const std::size_t first = firstDataColumn(decl);
        out += std::to_string(rows.empty() ? 0 : rows.size() - 1) + kEndOfLine;
        if (columns <= first) continue;
        for (std::size_t r = 1; r < rows.size(); ++r) {
            for (std::size_t k = first; k < columns; ++k) {
                if (k > first) out += ',';
                out += quoted(k < rows[r].size() ? rows[r][k] : std::string());
            }
            out += kEndOfLine;
        }
    }
    return out;
}

ProjectResult readProjectText(const Module& module, const std::string& text, FormState& state) {
    const Parsed parsed = parseFields(text);
    const std::string& key = module.info().key;
    // The tag is checked before anything else: a file of another kind, however
    // malformed, gets the message of a file of another module.
    const bool tagged = !parsed.records.empty() && parsed.records[0].fields.size() == 1 &&
                        parsed.records[0].fields[0].quoted && parsed.records[0].fields[0].text == key;
    if (!tagged) return {kWrongModule};
    if (parsed.badLine)
        return {"O arquivo selecionado não pôde ser lido: a linha " + std::to_string(parsed.badLine) +
                " tem um texto entre aspas seguido de outros caracteres." + kKept};

    FormState copy = state;
    ProjectReader reader(parsed.records, parsed.lastLine);
    for (const std::string& name : module.projectFields()) {
        const ControlDecl& decl = fieldDeclaration(copy, name);
        if (std::string fault = reader.read(copy, name, decl); !fault.empty()) return {fault + kKept};
    }
    if (parsed.unfinished) return {reader.incomplete() + kKept};
    if (std::string rest = reader.rest(); !rest.empty()) return {rest + kKept};
    blankResults(module, copy);
    state = std::move(copy);
    return {};
}

ProjectResult saveProjectFile(const Module& module, const FormState& state, const std::string& path) {
    return saveProjectText(writeProjectText(module, state), path);
}

ProjectResult saveProjectText(const std::string& text, const std::string& path) {
    const std::string failed = replaceFileWithText(path, text);
    if (failed.empty()) return {};
    return {"Não foi possível salvar o arquivo " + path + ": " + failed + "."};
}

ProjectResult openProjectFile(const Module& module, const std::string& path, FormState& state) {
    std::string text;
    if (!readWholeFile(path, text)) return {"Não foi possível abrir o arquivo " + path + "."};
    if (text.size() > static_cast<std::size_t>(kLargestFile)) return {kWrongModule};
    return readProjectText(module, text, state);
}

std::string projectFileTag(const std::string& path) {
    // The tag is on the first line, and a module key is short: the rest of the file
    // need not be read to know its module.
    std::ifstream in(path, std::ios::binary);
    std::string first(256, '\0');
    in.read(first.data(), static_cast<std::streamsize>(first.size()));
    first.resize(static_cast<std::size_t>(in.gcount()));
    return projectTextTag(first);
}

std::string projectTextTag(const std::string& text) {
    const Parsed parsed = parseFields(text.substr(0, text.find('\n')));
    if (parsed.records.empty() || parsed.records[0].fields.size() != 1 || !parsed.records[0].fields[0].quoted)
        return "";
    return parsed.records[0].fields[0].text;
}

std::string filterProjectName(const std::string& typed) {
    std::string out = typed;
    for (char& c : out) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 32 || code == 127 || std::strchr("\"*+,./\\`|", c)) c = '_';
    }
    return out;
}

std::string projectFileName(const std::string& typed) { return filterProjectName(typed) + ".mor"; }

}  // namespace morve
