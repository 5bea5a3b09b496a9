// The beam read from Form34 and its tables, with the checks of "CALCULAR" in their
// order, and the copy of the inputs that the pictures and the report go back to.
#include <cmath>

#include "app/prompter.h"
#include "basis/checks.h"
#include "continuous/form34.h"
#include "continuous/form34_texts.h"

namespace morve {

namespace {

// An index typed in a cell (node, span, type), truncated; far values stay far,
// without overflow.
int indexIn(double value) {
    if (!(std::abs(value) < 1e6)) return value < 0 ? -1000000 : 1000000;
    return static_cast<int>(std::trunc(value));
}

const char* const kSnapshotVar = "Form34.analysed";
constexpr char kFieldEnd = '\x1e', kRowEnd = '\x1d', kCellEnd = '\x1f';

}  // namespace

void checkSpanCount(CheckSequence& checks, int n) {
    checks.warnIf(n < 1, txt34::kMinSpans, "Text3").warnIf(n > kBeamMaxSpans, txt34::kMaxSpans, "Text3");
}

void checkSupportCount(CheckSequence& checks, int supports, int n) {
    checks.warnIf(supports < 1, txt34::kMinSupports, "Text4")
        .warnIf(supports > n + 1, txt34::kSupportsOverNodes, "Text4");
}

void checkLoadCounts(CheckSequence& checks, int nodal, int bar, int segments, int n) {
    checks.warnIf(nodal <= 0 && bar <= 0 && segments <= 0, txt34::kNoLoad, "Command4")
        .warnIf(nodal > n + 1, txt34::kNodalOverNodes, "Text5")
        .warnIf(bar > kBeamMaxBarLoads, txt34::kMaxBarLoads, "Text6")
        .warnIf(segments > kBeamMaxSegments, txt34::kMaxSegments, "Text7");
}

void readNodalLoads(const FormState& s, BeamModel& m, CheckSequence& checks, const std::string& focus) {
    const std::string grid = "Form34c.Grade1";
    const int n = m.spans(), rows = dataRows(s, grid);
    double sum = 0;
    for (int r = 1; r <= rows && !checks.stopped(); ++r) {
        NodalLoad p{indexIn(s.cellNumber(grid, r, 0)), s.cellNumber(grid, r, 1), s.cellNumber(grid, r, 2)};
        checks.warnIf(p.node < 1 || p.node > n + 1, txt34::kNodalNode, focus);
        sum += std::abs(p.force) + std::abs(p.moment);
        m.nodalLoads.push_back(p);
    }
    checks.warnIf(rows > 0 && sum == 0, txt34::kNodalZero, focus);
}

void readBarLoads(const FormState& s, BeamModel& m, CheckSequence& checks, const std::string& zeroMessage,
                  const std::string& focus) {
    const std::string grid = "Form34c.Grade2";
    const int n = m.spans(), rows = dataRows(s, grid);
    double sum = 0;
    for (int r = 1; r <= rows && !checks.stopped(); ++r) {
        BarLoad p{indexIn(s.cellNumber(grid, r, 0)), s.cellNumber(grid, r, 1), s.cellNumber(grid, r, 2),
                  s.cellNumber(grid, r, 3)};
        checks.warnIf(p.bar < 1 || p.bar > n, txt34::kBarLoadSpan, focus);
        if (checks.stopped()) break;
        checks.warnIf(!(p.a > 0 && p.a < m.length[p.bar - 1]), txt34::kBarLoadPlace, focus);
        sum += std::abs(p.force) + std::abs(p.moment);
        m.barLoads.push_back(p);
    }
    checks.warnIf(rows > 0 && sum == 0, zeroMessage, focus);
}

void readSegments(const FormState& s, BeamModel& m, CheckSequence& checks, const std::string& focus) {
    const std::string grid = "Form34c.Grade3";
    const int n = m.spans(), rows = dataRows(s, grid);
    double sum = 0;
    for (int r = 1; r <= rows && !checks.stopped(); ++r) {
        UniformSegment p{indexIn(s.cellNumber(grid, r, 0)), s.cellNumber(grid, r, 1), s.cellNumber(grid, r, 2),
                         s.cellNumber(grid, r, 3)};
        checks.warnIf(p.bar < 1 || p.bar > n, txt34::kSegmentSpan, focus);
        if (checks.stopped()) break;
        const double l = m.length[p.bar - 1];
        // Only the length is bounded: a segment may run past the end of its bar.
        checks.warnIf(p.start < 0 || p.start > l, txt34::kSegmentStart, focus)
            .warnIf(p.length < 0 || p.length > l, txt34::kSegmentLength, focus);
        sum += std::abs(p.q);
        m.segments.push_back(p);
    }
    checks.warnIf(rows > 0 && sum == 0, txt34::kSegmentZero, focus);
}

std::optional<BeamModel> readBeam(const FormState& s, CheckSequence& checks) {
    const int n = countIn(s, "Text3"), supports = countIn(s, "Text4");
    const int nodal = countIn(s, "Text5"), bar = countIn(s, "Text6"), segments = countIn(s, "Text7");
    const std::string bars = "Form34b.Grade1", supportGrid = "Form34b.Grade2", moments = "Form34f.Grade1";
    checks.warnIf(n != dataRows(s, bars), txt34::kUpdateBeam, "Command8")
        .warnIf(n != dataRows(s, moments), msg::kUpdateLoad, "Command4")
        .warnIf(supports != dataRows(s, supportGrid), txt34::kUpdateBeam, "Command8")
        .warnIf(nodal != dataRows(s, "Form34c.Grade1") || bar != dataRows(s, "Form34c.Grade2") ||
                    segments != dataRows(s, "Form34c.Grade3"),
                txt34::kUpdateLoading, "Command4");
    // Tables that agree with their counts may still come from elsewhere (a file):
    // the counts keep the limits of the screens before any table is read.
    checkSpanCount(checks, n);
    checkSupportCount(checks, supports, n);
    checks.warnIf(nodal > n + 1, txt34::kNodalOverNodes, "Text5")
        .warnIf(bar > kBeamMaxBarLoads, txt34::kMaxBarLoads, "Text6")
        .warnIf(segments > kBeamMaxSegments, txt34::kMaxSegments, "Text7");
    if (checks.stopped()) return std::nullopt;

    BeamModel m;
    for (int i = 1; i <= n; ++i) m.inertia.push_back(s.cellNumber(bars, i, 2) / 1e8);
    for (double inertia : m.inertia) checks.warnIf(!(inertia > 0), txt34::kZeroInertia, "Command8");
    for (int i = 1; i <= n && !checks.stopped(); ++i) {
        m.length.push_back(s.cellNumber(bars, i, 1));
        checks.warnIf(!(m.length.back() > 0), txt34::kZeroLength, "Command8");
    }
    if (checks.stopped()) return std::nullopt;

    readNodalLoads(s, m, checks, "Command4");
    readBarLoads(s, m, checks, txt34::kBarLoadZero, "Command4");
    readSegments(s, m, checks, "Command4");
    if (checks.stopped()) return std::nullopt;

    for (int r = 1; r <= supports && !checks.stopped(); ++r) {
        BeamSupport b;
        b.node = indexIn(s.cellNumber(supportGrid, r, 0));
        const double type = s.cellNumber(supportGrid, r, 1);
        b.ig = s.cellNumber(supportGrid, r, 2) / 1e6;
        checks.warnIf(b.node < 1 || b.node > n + 1, txt34::kSupportNode, "Command8")
            .warnIf(type != 1 && type != 2, txt34::kSupportType, "Command8");
        b.type = type == 2 ? SupportType::Fixed : SupportType::Simple;
        m.supports.push_back(b);
    }
    checks.warnIf(supports == 1 && !checks.stopped() && m.supports[0].type == SupportType::Simple,
                  txt34::kHypostatic, "Command8");
    if (checks.stopped()) return std::nullopt;

    for (int i = 1; i <= n; ++i) {
        m.initialMa.push_back(s.cellNumber(moments, i, 1));
        m.initialMb.push_back(s.cellNumber(moments, i, 2));
    }
    m.e = s.number("Text2") * 1000 / (1 + s.number("Text8"));
    return m;
}

// The inputs go into one text, fields, rows and cells apart by marks that no box
// can hold.
void keepAnalysedInputs(FormState& state) {
    std::string kept;
    for (const std::string& f : form34Inputs()) {
        const ControlDecl* c = state.declaration(f);
        if (c && c->kind == ControlKind::Grid) {
            for (const auto& row : state.grid(f)) {
                for (const auto& cell : row) kept += cell + kCellEnd;
                kept += kRowEnd;
            }
        } else {
            kept += state.text(f);
        }
        kept += kFieldEnd;
    }
    state.setVar(kSnapshotVar, kept);
}

namespace {

std::vector<std::string> split(const std::string& text, char mark) {
    std::vector<std::string> parts;
    std::size_t p = 0;
    for (std::size_t q; (q = text.find(mark, p)) != std::string::npos; p = q + 1)
        parts.push_back(text.substr(p, q - p));
    return parts;
}

}  // namespace

std::optional<AnalysedBeam> lastAnalysis(const FormState& state) {
    const std::vector<std::string> fields = form34Inputs();
    const std::vector<std::string> kept = split(state.var(kSnapshotVar), kFieldEnd);
    if (kept.size() != fields.size()) return std::nullopt;
    FormState s = state;
    for (std::size_t f = 0; f < fields.size(); ++f) {
        const ControlDecl* c = s.declaration(fields[f]);
        if (!(c && c->kind == ControlKind::Grid)) {
            s.setText(fields[f], kept[f]);
            continue;
        }
        GridRows& g = s.grid(fields[f]);
        g.clear();
        for (const std::string& row : split(kept[f], kRowEnd)) g.push_back(split(row, kCellEnd));
    }
    ScriptedPrompter quiet;
    CheckSequence checks(quiet);
    std::optional<BeamModel> model = readBeam(s, checks);
    if (!model) return std::nullopt;
    AnalysedBeam beam{*model, analyseBeam(*model)};
    if (beam.results.status != BeamStatus::Done) return std::nullopt;
    return beam;
}

}  // namespace morve
