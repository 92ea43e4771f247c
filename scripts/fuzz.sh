#!/usr/bin/env bash
# Builds the fuzz targets of fuzz/ with clang's libFuzzer and the address and
# undefined-behaviour sanitizers, and runs each for SECONDS:
#
#   scripts/fuzz.sh SECONDS [TARGET...]     # profile cp1252 numbers legends paths journal
#
# Each target starts from its seed corpus fuzz/corpus/<target>/ and keeps what
# it finds in $BRIMO_FUZZ_DIR/corpus/<target>/ (default build-fuzz); a crash
# is written to $BRIMO_FUZZ_DIR/crashes/ and ends the script with a failure.
# The number target runs twice, under a point and under a comma locale.
# Without clang and libFuzzer the script says so and exits with 77 (skipped).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
seconds=${1:?usage: scripts/fuzz.sh SECONDS [TARGET...]}
shift
targets=("${@:-profile cp1252 numbers legends paths journal}")
targets=(${targets[*]})
out=${BRIMO_FUZZ_DIR:-$root/build-fuzz}

command -v clang++ >/dev/null || { echo "SKIP: clang++ is not installed"; exit 77; }
probe=$(mktemp -d)
trap 'rm -rf "$probe"' EXIT
echo 'extern "C" int LLVMFuzzerTestOneInput(const char*, unsigned long) { return 0; }' > "$probe/p.cpp"
clang++ -fsanitize=fuzzer,address,undefined "$probe/p.cpp" -o "$probe/p" 2>/dev/null ||
  { echo "SKIP: clang++ has no libFuzzer"; exit 77; }

cmake -S "$root/fuzz" -B "$out" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug >/dev/null
cmake --build "$out" -j2 >/dev/null

run() { # run TARGET LOCALE
  local target=$1 corpus=$out/corpus/$1 log=$out/logs/$1-$2.log
  mkdir -p "$corpus" "$out/crashes" "$out/logs"
  echo "fuzz_$target ($2, ${seconds}s)"
  if ! LC_ALL=$2 "$out/fuzz_$target" "$corpus" "$root/fuzz/corpus/$target" -max_total_time="$seconds" \
       -timeout=10 -rss_limit_mb=2048 -artifact_prefix="$out/crashes/$target-" -print_final_stats=1 > "$log" 2>&1; then
    tail -n 40 "$log"
    echo "FAIL: fuzz_$target found a fault; the input is in $out/crashes/"
    return 1
  fi
  grep -E '^stat::number_of_executed_units|^Done' "$log" | sed 's/^/  /'
}

status=0
for target in "${targets[@]}"; do
  if [ "$target" = numbers ]; then
    run numbers en_US.UTF-8 || status=1
    run numbers de_DE.UTF-8 || status=1
  else
    run "$target" C.UTF-8 || status=1
  fi
done
exit $status
