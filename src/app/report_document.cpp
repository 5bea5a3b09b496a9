#include "app/report_document.h"

#include "app/numbers.h"

namespace morve {

ReportItem lit(std::string text) { return {ReportItem::Kind::Text, std::move(text), 0}; }
ReportItem num(double value) { return {ReportItem::Kind::Text, formatPlain(value), 0}; }
ReportItem blanks(int count) { return {ReportItem::Kind::Blanks, {}, count}; }
ReportItem tab(int column) { return {ReportItem::Kind::Tab, {}, column}; }

namespace {

// Columns count characters, not bytes: the reports are full of accented words.
std::size_t columns(const std::string& s) {
    std::size_t n = 0;
    for (unsigned char c : s)
        if ((c & 0xC0) != 0x80) ++n;
    return n;
}

}  // namespace

std::string ReportLine::text() const {
    std::string out;
    for (const auto& item : items) {
        switch (item.kind) {
            case ReportItem::Kind::Text: out += item.text; break;
            case ReportItem::Kind::Blanks: out.append(static_cast<std::size_t>(item.count), ' '); break;
            case ReportItem::Kind::Tab: {
                std::size_t want = item.count > 1 ? static_cast<std::size_t>(item.count - 1) : 0;
                std::size_t have = columns(out);
                out.append(have < want ? want - have : 1, ' ');
                break;
            }
        }
    }
    return out;
}

void ReportWriter::begin(std::string title) {
    doc_ = ReportDocument{};
    doc_.title = std::move(title);
}

void ReportWriter::line(std::vector<ReportItem> items) {
    doc_.blocks.emplace_back(ReportLine{std::move(items), false});
}

void ReportWriter::blank() { line({lit(" ")}); }

void ReportWriter::picture(Drawing drawing, int lines) {
    doc_.blocks.emplace_back(ReportPicture{std::make_shared<const Drawing>(std::move(drawing)), lines});
}

void ReportWriter::pageBreak() { doc_.blocks.emplace_back(PageBreak{}); }

int ReportWriter::bodyLines() const {
    int n = 0;
    for (const auto& b : doc_.blocks) {
        if (std::holds_alternative<ReportLine>(b)) ++n;
        if (const auto* p = std::get_if<ReportPicture>(&b)) n += p->lines;
    }
    return n;
}

}  // namespace morve
