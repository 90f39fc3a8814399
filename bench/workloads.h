// workloads.h - the benchmark workloads, shared by the Google Benchmark
// driver (timings) and the counting driver (allocations and instructions).
//
// Each operation is one call of one side on one workload:
//   lib    the library's exported function;
//   floor  cJSON alone on the same text or values (parse + delete; building
//          the same tree with cJSON's cheapest calls + print + delete);
//   peer   what an embedded developer writes by hand with cJSON
//          (cJSON_GetObjectItem per field, cJSON_Add*ToObject per field).
#ifndef APP_S2J_BENCH_WORKLOADS_H
#define APP_S2J_BENCH_WORKLOADS_H

#include <cstddef>

namespace bench {

struct Op {
    const char *workload;  // DeviceTime, WatermarkOSD, VideoEncode64, CrontabUpdate4of64, NetworkLAN64File,
                           // VideoEncode1024
    const char *call;      // s2j, s2j_formatted, j2s, c2s, update, save, load
    const char *side;      // lib, floor, peer
    void (*run)();
    // Throughput workloads (VideoEncode1024): the bytes of text written or
    // read per call, for MB/s; their calls are timed, not counted.  Else null.
    const size_t *text_bytes;
};

// Generates the values and texts of every workload (deterministic) and
// checks that the three sides agree on them; false (with a message on
// stderr) if they do not.
bool prepare();
void release();

const Op *ops(size_t *count);

}  // namespace bench

#endif
