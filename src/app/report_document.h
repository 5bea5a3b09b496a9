#pragma once
// A calculation report as a document: lines of items, blank lines, pictures and
// fixed page breaks. Modules write their reports into it and say only what the
// lines hold; paging and rendering are the business of src/reports.
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "draw/drawing.h"

namespace morve {

struct ReportItem {
    enum class Kind { Text, Blanks, Tab };
    Kind kind = Kind::Text;
    std::string text;
    int count = 0;  // blanks, or the 1-based column a tab moves to
};

// Items of a line: text as it stands (a literal or a box's text), a number as the
// arithmetic gives it, so many blanks, a move to a column.
ReportItem lit(std::string text);
ReportItem num(double value);
ReportItem blanks(int count);
ReportItem tab(int column);

struct ReportLine {
    std::vector<ReportItem> items;
    bool bold = false;
    // The line as plain text: tabs become blanks up to their column (one blank at
    // least when the text has already passed it).
    std::string text() const;
};

struct ReportPicture {
    std::shared_ptr<const Drawing> drawing;
    int lines = 0;  // the height it takes on the page, in lines
};

struct PageBreak {};

using ReportBlock = std::variant<ReportLine, ReportPicture, PageBreak>;

struct ReportDocument {
    std::string title;  // printed after "Módulo:"
    std::vector<ReportBlock> blocks;
};

class ReportWriter {
public:
    void begin(std::string title);
    void line(std::vector<ReportItem> items);
    template <class... Items>
    void write(Items&&... items) {
        line(std::vector<ReportItem>{toItem(std::forward<Items>(items))...});
    }
    void blank();
    void picture(Drawing drawing, int lines);
    // A fixed page break: reports of fixed layout close a page with "... Continua".
    void pageBreak();

    const ReportDocument& document() const { return doc_; }
    // How many lines the body holds (pictures by their height), for tests and paging.
    int bodyLines() const;

private:
    static ReportItem toItem(ReportItem item) { return item; }
    static ReportItem toItem(std::string text) { return lit(std::move(text)); }
    static ReportItem toItem(const char* text) { return lit(text); }
    ReportDocument doc_;
};

}  // namespace morve
