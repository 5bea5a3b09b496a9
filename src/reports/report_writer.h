#pragma once
// The paging rules of the screen and of paper, applied once for every report to
// the document a module wrote (app/report_document.h), and its text rendering.
#include <memory>
#include <string>
#include <vector>

#include "app/report_document.h"

namespace morve {

enum class PageRule {
    Screen,  // 38 lines a page, the 7-line header counted on page 1
    Paper,   // 53 lines a page, the 5-line header on page 1, the page number on top
};

int linesPerPage(PageRule rule);

struct PageLine {
    std::string text;
    bool bold = false;
    std::shared_ptr<const Drawing> picture;  // set for a picture
    int pictureLines = 0;
};

struct ReportPage {
    int number = 1;
    std::vector<PageLine> lines;
};

std::vector<ReportPage> paginate(const ReportDocument& doc, const std::string& denomination,
                                 PageRule rule);

// Plain text: pages apart by a form feed; on paper each page starts with its number.
std::string renderText(const std::vector<ReportPage>& pages, PageRule rule);

}  // namespace morve
