// The benchmarks as Google Benchmark runs them, followed by the band solver's time
// over each LAPACK's on the same problem (CPU time: the machine may be shared).
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (!run.error_occurred && run.run_type == Run::RT_Iteration)
                cpu_[run.benchmark_name()] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }
    void printRatios() const {
        const auto ours = cpu_.find("BandCholeskySolve");
        if (ours == cpu_.end()) return;
        for (const auto& [name, label] : {std::pair{"ReferenceLapackDpbtrfDpbtrs", "reference LAPACK"},
                                          std::pair{"OpenblasDpbtrfDpbtrs", "OpenBLAS (1 thread)"}}) {
            const auto other = cpu_.find(name);
            if (other != cpu_.end() && other->second > 0)
                std::printf("Band solver time / %s: %.2f\n", label, ours->second / other->second);
        }
    }

private:
    std::map<std::string, double> cpu_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    benchmark::Shutdown();
    return 0;
}
