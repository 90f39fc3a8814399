// bench_main.cpp - timings of every workload operation with Google Benchmark,
// named workload/call/side.  Timings on a shared machine are noisy; the
// deterministic counts come from scripts/bench-counts.sh.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "workloads.h"

namespace {

// Prepares the workloads and registers one benchmark per operation before
// the benchmark library's main runs them.
struct Registration {
    Registration() {
        if (!bench::prepare()) std::exit(1);
        std::atexit(bench::release);
        size_t n = 0;
        const bench::Op *ops = bench::ops(&n);
        for (size_t i = 0; i < n; ++i) {
            const bench::Op *op = &ops[i];
            std::string name = std::string(op->workload) + "/" + op->call + "/" + op->side;
            benchmark::RegisterBenchmark(name.c_str(), [op](benchmark::State &state) {
                for (auto _ : state) op->run();
                // MB/s of text for the throughput workloads.
                if (op->text_bytes != nullptr)
                    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(*op->text_bytes));
            });
        }
    }
} registration;

}  // namespace

BENCHMARK_MAIN();
