// Runs the rows with Google Benchmark and prints or appends the fastest repetition of each.
#include "harness/bench.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

#include "harness/volk.h"
#include "vlqs.h"

namespace vlqbench {
namespace {

std::vector<Row>& rows() {
    static std::vector<Row> all;
    return all;
}

// Fastest repetition in ns, by benchmark name: on a shared machine the rest is noise.
class Fastest : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const double ns = run.GetAdjustedRealTime();
            const auto [entry, isNew] = time.emplace(run.run_name.function_name, ns);
            if (!isNew) entry->second = std::min(entry->second, ns);
        }
    }
    std::map<std::string, double> time;
};

std::string label(std::size_t row, const char* side) {
    const Row& r = rows()[row];
    return r.work + " " + std::to_string(r.size) + " #" + std::to_string(row) + " " + side;
}

void registerSide(const std::string& name, const std::function<void()>& call) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&call](benchmark::State& state) {
                                     for (auto _ : state) {
                                         call();
                                         benchmark::ClobberMemory();
                                     }
                                 })
        ->Unit(benchmark::kNanosecond)
        ->Repetitions(25)
        ->MinTime(0.001);
}

}  // namespace

void add(Row row) {
    if (rows().empty()) limitVolkToBuild();
    rows().push_back(std::move(row));
}

const char* buildTag() { return vlqsGetLibVersion()->targetTag; }

int run(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    arguments.push_back(interleave);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    for (std::size_t i = 0; i < rows().size(); ++i) {
        registerSide(label(i, "ours"), rows()[i].ours);
        if (rows()[i].theirs) registerSide(label(i, "peer"), rows()[i].theirs);
    }
    Fastest fastest;
    benchmark::RunSpecifiedBenchmarks(&fastest);

    const char* path = std::getenv("VLQS_BENCH_OUT");
    std::FILE* file = path ? std::fopen(path, "a") : nullptr;
    std::printf("%-4s %-44s %9s %12s %12s %7s %6s  %s\n", "", "work", "size", "ours ns", "peer ns",
                "ratio", "bar", "peer");
    for (std::size_t i = 0; i < rows().size(); ++i) {
        const Row& r = rows()[i];
        const auto ours = fastest.time.find(label(i, "ours"));
        const auto peer = fastest.time.find(label(i, "peer"));
        if (ours == fastest.time.end()) continue;
        const double oursNs = ours->second / r.perCall;
        const double peerNs = peer == fastest.time.end() ? 0 : peer->second / r.perCall;
        const double ratio = peerNs > 0 ? oursNs / peerNs : 0;
        std::printf("%-4s %-44s %9ld %12.4f %12.4f %7.3f %6.2f  %s\n", buildTag(), r.work.c_str(),
                    r.size, oursNs, peerNs, ratio, r.bar, r.peer.c_str());
        if (file) {
            std::fprintf(file, "%s\t%s\t%ld\t%.6g\t%s\t%.6g\t%.4g\t%.4g\n", buildTag(),
                         r.work.c_str(), r.size, oursNs, r.peer.c_str(), peerNs, ratio, r.bar);
        }
    }
    if (file) std::fclose(file);
    return 0;
}

}  // namespace vlqbench
