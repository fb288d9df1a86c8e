# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# How ./test and ./fuzz run a fuzzer. Sourced by bash, after common.sh.

fuzzer_names() {
  sed -n 's/^foreach(name \(.*\))/\1/p' "$root/tests/fuzz/CMakeLists.txt" | tr ' ' '\n'
}

# The folders of seeds that a fuzzer starts from. Its own one comes first and takes what is found.
fuzzer_seeds() {
  printf '%s\n' "$root/tests/fuzz/corpus/$1"
  case $1 in
    schema) printf '%s\n' "$root/data/schema" ;;
    movie) printf '%s\n' "$root/tests/data/movies" ;;
  esac
}

# run_fuzzer NAME FOLDER OPTION...: new inputs go to FOLDER; a finding is left in the current one.
run_fuzzer() {
  local name=$1 found=$2 seeds
  shift 2
  mapfile -t seeds < <(fuzzer_seeds "$name")
  "$root/build/clang/velra_fuzz_$name" "$found" "${seeds[@]}" -timeout=20 -rss_limit_mb=4096 \
    -max_len=60000 "$@"
}

# Runs each fuzzer over its seeds and for a few seconds on, so that a fault that was found once
# cannot come back.
run_fuzzers_shortly() {
  local folder name
  build_preset clang velra_fuzzers
  folder=$(mktemp -d)
  fuzzer_names | while read -r name; do
    printf 'fuzzer %s\n' "$name"
    (cd "$folder" && run_fuzzer "$name" "$folder" -max_total_time=5) >"$folder/log" 2>&1 ||
      { tail -n 60 "$folder/log"; fail "The fuzzer $name has found what is above."; }
    find "$folder" -type f -delete
  done
  rm -r "$folder"
}
