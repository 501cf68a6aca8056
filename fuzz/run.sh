#!/usr/bin/env bash
# Runs the fuzz targets of build/fuzz for a time each, from the committed
# seeds plus what earlier runs found (kept under build/fuzz/corpus, not in
# git), and fails if any target reports a fault.
#
#   fuzz/run.sh SECONDS [TARGET...]     default: every target, 60 s each
#
# A failing input is left as build/fuzz/<target>-crash-* (or -timeout-*,
# -leak-*); replay it with: build/fuzz/fuzz/<target> FILE
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-60}"
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(fuzz_exports fuzz_gas_text fuzz_batch)
status=0
for target in "${targets[@]}"; do
  seeds="fuzz/corpus/${target#fuzz_}"
  work="build/fuzz/corpus/${target#fuzz_}"
  mkdir -p "$work"
  dict=()
  [ -f "fuzz/${target#fuzz_}.dict" ] && dict=(-dict="fuzz/${target#fuzz_}.dict")
  echo "== $target for $seconds s"
  # Leaks are checked per input; an input that runs past 30 s is a fault.
  if ! UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
      ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1 \
      "build/fuzz/fuzz/$target" "$work" "$seeds" "${dict[@]}" -max_total_time="$seconds" \
      -timeout=30 -rss_limit_mb=3072 -max_len=4096 -print_final_stats=1 \
      -artifact_prefix="build/fuzz/$target-" 2>"build/fuzz/$target.log"; then
    tail -n 60 "build/fuzz/$target.log"
    status=1
  else
    grep -E "^(#[0-9]+.*DONE|stat::number_of_executed_units|stat::peak_rss_mb)" \
      "build/fuzz/$target.log" || true
  fi
done
exit $status
