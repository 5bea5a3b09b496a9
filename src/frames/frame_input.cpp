#include "frames/frame_input.h"

#include <cmath>

#include "app/grid_tables.h"
#include "app/numbers.h"
#include "basis/messages.h"
#include "frames/frame_texts.h"
#include "numeric/elementary.h"

namespace morve {

namespace {

int columnCount(const FormState& s) { return countIn(s, "Text3"); }
int levelCount(const FormState& s) { return countIn(s, "Text4"); }

bool positive(double x) { return x > 0 && std::isfinite(x); }

}  // namespace

void concreteBoxes(ScreenBuilder& b) {
    b.frame("Frame1", "Concreto", 0, 0).box("Text1", "fck(MPa)=", "20").box("Text2", "Ecs(MPa)=", "25757");
}

void loadConcrete(FormState& s, const StartDefaults& defaults) {
    if (readNumber(defaults.list(1)) > 0) s.setText("Text1", defaults.list(1));
    // The modulus of the start dialog in whole MPa, as the window's own 25757 is for
    // fck 20.
    s.setText("Text2", formatPlain(std::trunc(defaults.ecs)));
}

void loadModelOptions(ScreenBuilder& b) {
    b.frame("Frame3", "Modelo de carga", 1, 0)
        .option("Option1", "Carga concentrada", "load", true)
        .option("Option2", "Carga uniforme", "load");
}

GridDecl frameTable(std::vector<std::string> header, int maxRows, KeyFilter filter) {
    GridDecl g;
    g.header = std::move(header);
    g.maxRows = maxRows;
    g.filter = filter;
    return g;
}

ScreenDecl columnScreen(const FrameScreens& f) {
    ScreenBuilder b(f.columns, "Pilares", false);
    b.frame("Frame1", "Altura dos andares", 0, 0)
        .grid("Grade1", frameTable({"Andar", "H (m)"}, kFrameMaxLevels))
        .label("Label1", "Andares numerados a partir da base");
    b.frame("Frame2", "Área e inércia da seção transversal", 0, 1)
        .grid("Grade2", frameTable({"Pilar", "A (cm2)", "I (cm4)"}, kFrameMaxColumns))
        .label("Label2", "Pilares numerados da esquerda para a direita");
    b.frame("Frame3", "", 1, 0, 1, 2).command("Command1", "OK");
    return b.build();
}

ScreenDecl beamScreen(const FrameScreens& f) {
    ScreenBuilder b(f.beams, "Vigas", false);
    b.frame("Frame1", "Distância entre pilares", 0, 0)
        .grid("Grade1", frameTable({"Vão", "L (m)"}, kFrameMaxColumns - 1));
    b.frame("Frame2", "Área e inércia das vigas", 0, 1)
        .grid("Grade2", frameTable({"Viga", "A (cm2)", "I (cm4)"}, kFrameMaxLevels))
        .label("Label1", "Vigas numeradas por nível, a partir do primeiro andar");
    if (f.release)
        b.frame("Frame3", "Percentual de redistribuição (entre 0 e 90)", 1, 0)
            .grid("Grade3", frameTable({"", "r (%)"}, 1))
            .label("Label2", "Redução da rigidez rotacional nas ligações das vigas com os pilares de extremidade");
    b.frame("Frame4", "", 2, 0, 1, 2).command("Command1", "OK");
    return b.build();
}

void checkFrameCounts(CheckSequence& checks, const FormState& s, const std::string& highFck) {
    const double fck = s.number("Text1"), ecs = s.number("Text2");
    const double eref = 18275 * portable::cbrt((fck + 8) / 10);
    const int p = columnCount(s), v = levelCount(s);
    checks.warnIf(fck < 20, msg::kLowFck)
        .warnIf(fck > 90, highFck, "Text1")
        .warnIf(ecs <= 0, msg::kPositiveEcs, "Text2")
        .askIf(ecs < 0.7 * eref || ecs > 1.3 * eref, msg::kEcsRange, "Text2")
        .warnIf(p < 2, txtframe::kMinColumns, "Text3")
        .warnIf(p > kFrameMaxColumns, txtframe::kMaxColumns, "Text3")
        .warnIf(v < 1, txtframe::kMinBeams, "Text4")
        .warnIf(v > kFrameMaxLevels, txtframe::kMaxBeams, "Text4");
}

void sizeColumnTables(FormState& s, const FrameScreens& f) {
    sizeTable(s, f.heights(), levelCount(s), true);
    sizeTable(s, f.columnSections(), columnCount(s), true);
}

void sizeBeamTables(FormState& s, const FrameScreens& f) {
    sizeTable(s, f.spans(), columnCount(s) - 1, true);
    sizeTable(s, f.beamSections(), levelCount(s), true);
    if (f.release) {
        sizeTable(s, f.releaseTable(), 1, false);
        GridRows& g = s.grid(f.releaseTable());
        if (g[1][1] == " ") g[1][1] = "0";
    }
}

void checkFrameLimits(CheckSequence& checks, const FormState& s) {
    const int p = columnCount(s), v = levelCount(s);
    checks.warnIf(v > kFrameMaxLevels, txtframe::kMaxBeams, "Text4")
        .warnIf(p > kFrameMaxColumns, txtframe::kMaxColumns, "Text3")
        // Fewer than two columns or no level cannot make a frame: the counts of the
        // table buttons hold here too, for cases that never pressed them.
        .warnIf(p < 2, txtframe::kMinColumns, "Text3")
        .warnIf(v < 1, txtframe::kMinBeams, "Text4");
}

void checkFrameTables(CheckSequence& checks, const FormState& s, const FrameScreens& f) {
    const int p = columnCount(s), v = levelCount(s);
    checks.warnIf(dataRows(s, f.heights()) != v || dataRows(s, f.columnSections()) != p, txtframe::kUpdateColumns,
                  f.columnsButton);
    checks.warnIf(dataRows(s, f.spans()) != p - 1 || dataRows(s, f.beamSections()) != v ||
                      (f.release && dataRows(s, f.releaseTable()) != 1),
                  txtframe::kUpdateBeams, f.beamsButton);
}

std::optional<FrameModel> readFrame(const FormState& s, CheckSequence& checks, const FrameScreens& f) {
    const int p = columnCount(s), v = levelCount(s);
    checks.warnIf((v + 1) * p > kFrameMaxNodes, txtframe::kTooManyNodes, "Text4")
        .warnIf(p * v + (p - 1) * v > kFrameMaxBars, txtframe::kTooManyBars, "Text4");
    if (checks.stopped()) return std::nullopt;
    FrameModel m;
    m.e = s.number("Text2") * 1000;
    bool heights = true, columnI = true, columnA = true, spans = true, beamI = true, beamA = true;
    for (int i = 1; i <= v; ++i) {
        m.heights.push_back(s.cellNumber(f.heights(), i, 1));
        heights = heights && positive(m.heights.back());
        m.beams.push_back({s.cellNumber(f.beamSections(), i, 1) / 1e4, s.cellNumber(f.beamSections(), i, 2) / 1e8});
        beamA = beamA && positive(m.beams.back().area);
        beamI = beamI && positive(m.beams.back().inertia);
    }
    for (int j = 1; j <= p; ++j) {
        m.columns.push_back(
            {s.cellNumber(f.columnSections(), j, 1) / 1e4, s.cellNumber(f.columnSections(), j, 2) / 1e8});
        columnA = columnA && positive(m.columns.back().area);
        columnI = columnI && positive(m.columns.back().inertia);
        if (j < p) {
            m.spans.push_back(s.cellNumber(f.spans(), j, 1));
            spans = spans && positive(m.spans.back());
        }
    }
    const double r = f.release ? s.cellNumber(f.releaseTable(), 1, 1) : 0;
    checks.warnIf(!heights, txtframe::kZeroHeight, f.columnsButton)
        .warnIf(!columnI, txtframe::kColumnInertia, f.columnsButton)
        .warnIf(!columnA, txtframe::kColumnArea, f.columnsButton)
        .warnIf(!spans, txtframe::kZeroSpan, f.beamsButton)
        .warnIf(!beamI, txtframe::kBeamInertia, f.beamsButton)
        .warnIf(!beamA, txtframe::kBeamArea, f.beamsButton)
        .warnIf(!(r >= 0 && r <= 90), txtframe::kRelease, f.beamsButton);
    if (checks.stopped()) return std::nullopt;
    m.release = r / 100;
    return m;
}

}  // namespace morve
