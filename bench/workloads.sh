#!/usr/bin/env bash
# Instructions and ns per call of the water exports over the workloads of
# bench/workloads/kvt_workloads.cpp (about 1000 varied states each).
#
#   bench/workloads.sh [--flags "-O2"] [--reps N] [--filter TEXT] [--no-callgrind]
#
# Builds the library of this checkout with the given flags (default -O2, the
# level the figures of docs/speed.md are stated at) into build/workloads,
# counts instructions under valgrind --tool=callgrind (deterministic) and
# times each workload (median of N runs; noisy on a shared machine).
# Needs cmake, g++ and, for the counts, valgrind.
set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
FLAGS=-O2
REPS=15
FILTER=()
CALLGRIND=1
while [ $# -gt 0 ]; do
  case "$1" in
    --flags) FLAGS=$2; shift 2 ;;
    --reps) REPS=$2; shift 2 ;;
    --filter) FILTER=(--filter "$2"); shift 2 ;;
    --no-callgrind) CALLGRIND=0; shift ;;
    -h|--help) sed -n 2,12p "$0"; exit 0 ;;
    *) echo "unknown option $1" >&2; exit 2 ;;
  esac
done

BUILD=$ROOT/build/workloads
echo "== building kvtcore (flags: $FLAGS) in $BUILD" >&2
cmake -S "$ROOT" -B "$BUILD" -DCMAKE_BUILD_TYPE=Release -DKVT_BUILD_TESTS=OFF \
  -DKVT_BUILD_BENCH=OFF "-DCMAKE_CXX_FLAGS_RELEASE=$FLAGS -DNDEBUG" > "$BUILD.configure.log" 2>&1 \
  || { cat "$BUILD.configure.log" >&2; exit 1; }
cmake --build "$BUILD" -j2 --target kvtcore > "$BUILD.build.log" 2>&1 \
  || { tail -40 "$BUILD.build.log" >&2; exit 1; }
# shellcheck disable=SC2086
g++ -std=c++17 $FLAGS -I"$ROOT/include" "$ROOT/bench/workloads/kvt_workloads.cpp" \
  -L"$BUILD" -lkvtcore -Wl,-rpath,"$BUILD" -o "$BUILD/kvt_workloads"

WORK=$(mktemp -d "${TMPDIR:-/tmp}/kvt_workloads.XXXXXX")
trap 'rm -rf "$WORK"' EXIT
IR_ARGS=()
if [ "$CALLGRIND" = 1 ] && command -v valgrind > /dev/null; then
  echo "== counting instructions (callgrind)" >&2
  if LD_BIND_NOW=1 valgrind --tool=callgrind --callgrind-out-file="$WORK/cg.out" \
       "$BUILD/kvt_workloads" --count "${FILTER[@]}" > "$WORK/count.log" 2>&1; then
    # One dump per workload, named after it; its "summary" is the Ir count.
    for f in "$WORK"/cg.out.*; do
      awk '/^desc: Trigger: Client Request: /{name=$5}
           /^summary:/{total=$2}
           END{if (name != "") print name, total}' "$f"
    done > "$WORK/ir.txt"
    IR_ARGS=(--ir "$WORK/ir.txt")
  else
    echo "callgrind failed; timing only" >&2
    tail -5 "$WORK/count.log" >&2
  fi
fi
echo "== timing (median of $REPS runs)" >&2
echo "flags: $FLAGS; host: $(uname -m), $(nproc) cores; compiler: $(g++ --version | head -1)"
LD_BIND_NOW=1 "$BUILD/kvt_workloads" --time --reps "$REPS" "${IR_ARGS[@]}" "${FILTER[@]}"
