#!/usr/bin/env bash
# Builds the libFuzzer targets (preset fuzz: clang-14, ASan + UBSan) and
#   scripts/fuzz.sh             runs their tests: seeds, kept regressions and
#                               a short run of each target (seconds)
#   scripts/fuzz.sh SECONDS     fuzzes each target for SECONDS, keeping what it
#                               finds in fuzz-corpus/<target> (untracked);
#                               fuzz_writers from its own seeds (records)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j2
if [ $# -eq 0 ]; then
  exec ctest --preset fuzz -j2
fi
ctest --preset fuzz -R fuzz_seed_corpus_from_examples >/dev/null
for target in fuzz_readers fuzz_properties fuzz_direct_reader fuzz_validate; do
  mkdir -p "fuzz-corpus/$target"
  "build-fuzz/fuzz/$target" -max_total_time="$1" -timeout=10 -rss_limit_mb=2048 -close_fd_mask=2 \
    -print_final_stats=1 -dict=fuzz/app_s2j.dict -artifact_prefix="fuzz-corpus/" \
    "fuzz-corpus/$target" build-fuzz/fuzz/seeds fuzz/regressions
done
ctest --preset fuzz -R fuzz_writer_seeds_from_examples >/dev/null
mkdir -p fuzz-corpus/fuzz_writers
build-fuzz/fuzz/fuzz_writers -max_total_time="$1" -timeout=10 -rss_limit_mb=2048 -close_fd_mask=2 \
  -print_final_stats=1 -artifact_prefix="fuzz-corpus/" fuzz-corpus/fuzz_writers build-fuzz/fuzz/writer-seeds
