// Saving and exporting the largest cases: every table of the module filled to the
// size its largest case reaches (a 40-level frame of 12 columns: 480 columns and
// 440 beams in the result tables; the finest polygonal mesh; a 20-span beam), a
// number in every cell. The project file, the recovery file (the same text, in the
// state folder), the workbook of every table, and a DXF of a 40 x 12 frame drawing.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "app/module.h"
#include "export/dxf_drawing.h"
#include "export/workbook.h"
#include "reports/project_file.h"
#include "reports/recovery_file.h"

using namespace morve;

namespace {

const std::string kOut = (std::filesystem::temp_directory_path() / "morve-files-bench").string();

ModuleSession filled(const char* key, std::size_t rows) {
    ModuleSession session(*ModuleRegistry::find(key), StartDefaults{});
    FormState& s = session.state();
    int n = 0;
    for (const ScreenDecl& screen : s.screens())
        for (const ControlDecl& c : screen.controls) {
            const std::string name = screen.name + "." + c.name;
            if (c.kind == ControlKind::TextBox || c.kind == ControlKind::ResultBox) s.setText(name, std::to_string(++n) + ".25");
            if (c.kind != ControlKind::Grid) continue;
            s.resizeGrid(name, c.grid.maxRows > 0 ? std::min<std::size_t>(rows, c.grid.maxRows) : rows);
            for (auto& row : s.grid(name))
                for (std::size_t k = 1; k < row.size() && &row != &s.grid(name).front(); ++k) row[k] = std::to_string(++n % 997) + ".125";
        }
    return session;
}

void prepareFolder() {
    std::filesystem::create_directories(kOut);
    setenv("XDG_STATE_HOME", kOut.c_str(), 1);
}

const std::pair<const char*, std::size_t> kCases[] = {{"Form33", 480}, {"Form24f", 900}, {"Form34", 40}};

void SaveProject(benchmark::State& state) {
    prepareFolder();
    ModuleSession s = filled(kCases[state.range(0)].first, kCases[state.range(0)].second);
    for (auto _ : state)
        if (!saveProjectFile(s.module(), s.state(), kOut + "/caso.mor").ok()) state.SkipWithError("not saved");
    state.SetLabel(kCases[state.range(0)].first);
}
BENCHMARK(SaveProject)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

// What the desktop's thread does for the recovery file: the text of the inputs.
void RecoveryText(benchmark::State& state) {
    ModuleSession s = filled(kCases[state.range(0)].first, kCases[state.range(0)].second);
    for (auto _ : state) benchmark::DoNotOptimize(writeProjectText(s.module(), s.state()));
    state.SetLabel(kCases[state.range(0)].first);
}
BENCHMARK(RecoveryText)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

// What its writing thread does: the synced write and the rename.
void WriteRecovery(benchmark::State& state) {
    prepareFolder();
    ModuleSession s = filled(kCases[state.range(0)].first, kCases[state.range(0)].second);
    const std::string text = writeProjectText(s.module(), s.state());
    for (auto _ : state)
        if (!writeRecoveryFile(text).ok()) state.SkipWithError("not written");
    state.SetLabel(kCases[state.range(0)].first);
}
BENCHMARK(WriteRecovery)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void ExportWorkbook(benchmark::State& state) {
    prepareFolder();
    ModuleSession s = filled(kCases[state.range(0)].first, kCases[state.range(0)].second);
    for (auto _ : state)
        if (!writeWorkbook(resultSheets(s.state()), kOut + "/caso.xlsx").empty()) state.SkipWithError("not written");
    state.SetLabel(kCases[state.range(0)].first);
}
BENCHMARK(ExportWorkbook)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void ExportFrameDxf(benchmark::State& state) {
    prepareFolder();
    Drawing d;
    d.unit = DrawingUnit::Metre;
    d.right = 60;
    d.bottom = 120;
    for (int i = 0; i < 40; ++i) {
        for (int j = 0; j < 12; ++j) {
            d.line({5.0 * j, -3.0 * i}, {5.0 * j, -3.0 * (i + 1)}, colours::black, 2);
            if (j < 11) d.line({5.0 * j, -3.0 * (i + 1)}, {5.0 * (j + 1), -3.0 * (i + 1)}, colours::black, 2);
        }
        d.as(ShapeKind::Loads).line({-4, -3.0 * (i + 1)}, {0, -3.0 * (i + 1)}, colours::red, 1.5);
        d.text({-4.5, -3.0 * (i + 1)}, "12.50", 9, TextAlign::Right, colours::red);
        d.as(ShapeKind::Outline);
    }
    for (auto _ : state)
        if (!writeDxf(d, kOut + "/portico.dxf").empty()) state.SkipWithError("not written");
}
BENCHMARK(ExportFrameDxf)->Unit(benchmark::kMillisecond);

}  // namespace
