#include "reports/report_writer.h"

namespace morve {

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
