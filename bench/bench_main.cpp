// bench_main.cpp - timings of every workload operation with Google Benchmark,
// named workload/call/side.  Timings on a shared machine are noisy; the
// deterministic counts come from scripts/bench-counts.sh.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "workloads.h"

int main(int argc, char **argv) {
    if (!bench::prepare()) return 1;
    size_t n = 0;
    const bench::Op *ops = bench::ops(&n);
    for (size_t i = 0; i < n; ++i) {
        const bench::Op *op = &ops[i];
        std::string name = std::string(op->workload) + "/" + op->call + "/" + op->side;
        benchmark::RegisterBenchmark(name.c_str(), [op](benchmark::State &state) {
            for (auto _ : state) op->run();
        });
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    bench::release();
    return 0;
}
