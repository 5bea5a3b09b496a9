#include "reports/report_writer.h"

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

int linesPerPage(PageRule rule) { return rule == PageRule::Screen ? 38 : 53; }

std::vector<ReportPage> paginate(const ReportDocument& doc, const std::string& denomination,
                                 PageRule rule) {
    const int perPage = linesPerPage(rule);
    std::vector<ReportPage> pages{ReportPage{1, {}}};
    int count = 0;  // lines counted so far, the header included

    // A line goes to the page its count falls in: with 38 to a page the 38th line
    // is the last of page 1 and the 39th opens page 2.
    auto textLine = [](std::string text, bool bold) {
        PageLine line;
        line.text = std::move(text);
        line.bold = bold;
        return line;
    };
    auto place = [&](PageLine line, int height) {
        count += 1;
        while ((count + perPage - 1) / perPage > static_cast<int>(pages.size()))
            pages.push_back(ReportPage{static_cast<int>(pages.size()) + 1, {}});
        pages.back().lines.push_back(std::move(line));
        count += height - 1;
    };

    if (rule == PageRule::Screen) {
        place(textLine(" ", true), 1);
        place(textLine(" ", true), 1);
    }
    place(textLine("RELATÓRIO DE CÁLCULO - MORVE", true), 1);
    place(textLine("Módulo: " + doc.title, true), 1);
    place(textLine("Denominação: " + denomination, true), 1);
    place(textLine(" ", rule == PageRule::Screen), 1);
    place(textLine(" ", rule == PageRule::Screen), 1);

    for (const auto& block : doc.blocks) {
        if (const auto* l = std::get_if<ReportLine>(&block)) {
            place(textLine(l->text(), l->bold), 1);
        } else if (const auto* p = std::get_if<ReportPicture>(&block)) {
            PageLine line;
            line.picture = p->drawing;
            line.pictureLines = p->lines;
            place(std::move(line), p->lines > 0 ? p->lines : 1);
        } else {
            // The next line opens a new page.
            count = static_cast<int>(pages.size()) * perPage;
        }
    }
    // A break at the very end opens no empty page.
    while (pages.size() > 1 && pages.back().lines.empty()) pages.pop_back();
    return pages;
}

std::string renderText(const std::vector<ReportPage>& pages, PageRule rule) {
    std::string out;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) out += '\f';
        if (rule == PageRule::Paper) out += std::string(40, ' ') + std::to_string(pages[i].number) + "\n";
        for (const auto& line : pages[i].lines) {
            if (line.picture)
                out += "[figura]\n" + std::string(static_cast<std::size_t>(
                                                      line.pictureLines > 1 ? line.pictureLines - 1 : 0),
                                                  '\n');
            else
                out += line.text + "\n";
        }
    }
    return out;
}

}  // namespace morve
