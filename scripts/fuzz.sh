#!/usr/bin/env bash
# Runs the fuzz targets built in build-fuzz/ for a while each and sums up what they did.
#
#   scripts/fuzz.sh SECONDS WORKDIR [TARGET...]
#
# Each target starts from its seeds in fuzz/corpus/<target>/ plus what earlier runs kept in
# WORKDIR/corpus/<target>/, where new inputs go (the seeds in the repository are never written).
# Logs go to WORKDIR/<target>.log, crashing inputs to WORKDIR/artifacts/. FUZZ_JOBS targets run at
# once (default 2). fuzz/<target>.dict, where there is one, gives libFuzzer the surface's words.
# The exit status is nonzero when any target found a fault.
set -uo pipefail
cd "$(dirname "$0")/.."
seconds=${1:?seconds per target}
work=${2:?work folder}
shift 2
bin=${FUZZ_BUILD:-build-fuzz}/fuzz
if [ $# -gt 0 ]; then
  targets=("$@")
else
  targets=()
  for f in fuzz/*_fuzzer.cpp; do targets+=("$(basename "$f" .cpp)"); done
fi
jobs=${FUZZ_JOBS:-2}
mkdir -p "$work/artifacts"

run_one() {
  local t=$1
  local dict=()
  [ -f "fuzz/$t.dict" ] && dict=(-dict="fuzz/$t.dict")
  mkdir -p "$work/corpus/$t"
  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 ASAN_OPTIONS=detect_leaks=1 \
    "$bin/$t" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -max_len=4096 \
    -print_final_stats=1 -artifact_prefix="$work/artifacts/$t-" "${dict[@]}" \
    "$work/corpus/$t" "fuzz/corpus/$t" >"$work/$t.log" 2>&1
}

pids=()
names=()
for t in "${targets[@]}"; do
  if [ ! -x "$bin/$t" ]; then
    echo "fuzz: $bin/$t is not built" >&2
    exit 2
  fi
  while [ "$(jobs -rp | wc -l)" -ge "$jobs" ]; do wait -n; done
  echo "fuzz: $t for ${seconds}s"
  run_one "$t" &
  pids+=($!)
  names+=("$t")
done

failed=0
for i in "${!pids[@]}"; do
  t=${names[$i]}
  if wait "${pids[$i]}"; then status=ok; else status=FAULT; failed=1; fi
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$work/$t.log" | tail -1)
  cov=$(grep -o 'cov: [0-9]*' "$work/$t.log" | tail -1)
  printf 'fuzz: %-22s %-5s %12s runs  %s\n' "$t" "$status" "${runs:-?}" "$cov"
  if [ "$status" = FAULT ]; then
    grep -m1 -A12 -E 'ERROR: (AddressSanitizer|libFuzzer|LeakSanitizer)|runtime error|fuzz check failed' "$work/$t.log" | sed 's/^/    /'
    ls "$work/artifacts/$t-"* 2>/dev/null | sed 's/^/    input: /'
  fi
done
exit $failed
