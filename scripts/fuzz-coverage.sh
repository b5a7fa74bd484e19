#!/usr/bin/env bash
# Line coverage of the calculator reached by the fuzzers' corpora: the seeds in fuzz/corpus/ and
# whatever runs kept in fuzz/out/corpus/ and fuzz/out/*/corpus/. Builds build-fuzz-cov/ with clang's source-based
# coverage, replays every corpus once, and writes the per-file report to fuzz/out/coverage.txt.
set -euo pipefail
cd "$(dirname "$0")/.."
cxx=${FUZZ_CXX:-clang++-14}
suffix=${cxx#clang++}
build=build-fuzz-cov
cmake -S . -B "$build" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DBRINTO_TESTS=OFF -DBRINTO_FUZZ_COVERAGE=ON >/dev/null
cmake --build "$build" -j "${JOBS:-2}" --target fuzz_targets

rm -rf "$build/profiles"
mkdir -p "$build/profiles" fuzz/out
objects=()
for source in fuzz/*_fuzzer.cpp; do
  t=$(basename "$source" .cpp)
  corpora=("fuzz/corpus/$t")
  for d in fuzz/out/corpus/"$t" fuzz/out/*/corpus/"$t"; do
    [ -d "$d" ] && corpora+=("$d")
  done
  echo "coverage: replaying ${corpora[*]}"
  LLVM_PROFILE_FILE="$build/profiles/$t.profraw" "$build/fuzz/$t" -runs=0 "${corpora[@]}" >/dev/null 2>&1 || true
  objects+=(-object "$build/fuzz/$t")
done
"llvm-profdata$suffix" merge -sparse "$build"/profiles/*.profraw -o "$build/profiles/all.profdata"
report=fuzz/out/coverage.txt
"llvm-cov$suffix" report "${objects[@]:1}" -instr-profile="$build/profiles/all.profdata" \
  src/engine src/ops src/finance src/display src/session src/store src/cli >"$report"
echo "coverage: per-file report in $report"
# The engine's own folders, summed.
awk '$1 ~ /^[a-z]+\/[^ ]+$/ && NF >= 10 { split($1, p, "/"); folder = p[1]; lines[folder] += $8; missed[folder] += $9 }
     END { for (f in lines) printf "coverage: src/%-8s %6d lines, %6d missed, %5.1f%% covered\n",
           f, lines[f], missed[f], lines[f] ? 100 * (lines[f] - missed[f]) / lines[f] : 0 }' "$report" | sort
tail -1 "$report"
