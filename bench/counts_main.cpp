// counts_main.cpp - deterministic counts of every workload operation: heap
// allocations (count and bytes, counted by this program's own malloc) and,
// when run under callgrind, the instructions executed (one dump per
// operation, named workload/call/side).  scripts/bench-counts.sh runs it and
// makes the table.
#include <malloc.h>
#include <valgrind/callgrind.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "libc_alloc.h"
#include "workloads.h"

namespace {
bool counting = false;
uint64_t allocations = 0, bytes = 0;
}  // namespace

// Every allocation of the process, the library's and cJSON's included, comes
// through here; frees are not counted.
extern "C" void *malloc(size_t n) {
    if (counting) ++allocations, bytes += n;
    return __libc_malloc(n);
}
extern "C" void *calloc(size_t k, size_t n) {
    if (counting) ++allocations, bytes += k * n;
    return __libc_calloc(k, n);
}
extern "C" void *realloc(void *p, size_t n) {
    if (counting) ++allocations, bytes += n;
    return __libc_realloc(p, n);
}
extern "C" void free(void *p) { __libc_free(p); }

int main(int argc, char **argv) {
    const int reps = argc > 1 ? std::atoi(argv[1]) : 10;
    if (!bench::prepare()) return 1;
    size_t n = 0;
    const bench::Op *ops = bench::ops(&n);
    std::printf("%-20s %-14s %-6s %10s %12s\n", "workload", "call", "side", "allocs", "bytes");
    for (size_t i = 0; i < n; ++i) {
        const bench::Op &op = ops[i];
        if (op.text_bytes != nullptr) continue;  // timed by s2j_bench, not counted
        op.run();  // warm: lazy binding, first use of the allocator
        char label[128];
        std::snprintf(label, sizeof label, "%s/%s/%s", op.workload, op.call, op.side);
        allocations = bytes = 0;
        CALLGRIND_ZERO_STATS;
        counting = true;
        for (int r = 0; r < reps; ++r) op.run();
        counting = false;
        CALLGRIND_DUMP_STATS_AT(label);
        std::printf("%-20s %-14s %-6s %10.1f %12.1f\n", op.workload, op.call, op.side,
                    static_cast<double>(allocations) / reps, static_cast<double>(bytes) / reps);
    }
    bench::release();
    return 0;
}
