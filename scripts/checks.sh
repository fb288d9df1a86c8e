# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# The checks of ./test that run no program of ours. Sourced by bash, after common.sh.

check_format() {
  find src tests benchmarks \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 -P "$(nproc)" -n 16 clang-format --dry-run -Werror ||
    fail "The sources above differ from .clang-format; clang-format -i puts them right."
}

# The files that a program of the first line runs.
runnable_files() {
  grep -rlE --exclude-dir=build --exclude-dir=.git -m1 '^#!/' .
}

check_licences() {
  local without
  without=$({
    runnable_files
    find src tests benchmarks cmake CMakeLists.txt scripts/*.sh \
      -name '*.h' -o -name '*.cpp' -o -name '*.cmake' -o -name CMakeLists.txt -o -name '*.sh'
  } | xargs grep -LE '^(//|#) SPDX-License-Identifier: GPL-3.0-or-later$' || true)
  [ -z "$without" ] || fail "These files name no licence in an SPDX line:"$'\n'"$without"
}

check_scripts() {
  local scripts
  mapfile -t scripts < <(runnable_files | xargs grep -lE -m1 '^#!.*sh$')
  shellcheck -x -P SCRIPTDIR "${scripts[@]}" || fail "shellcheck has found what is above."
}

# The compile command of each group of sources, as "FILE<tab>COMMAND" without what it would write.
deep_commands() {
  sed -n '/"command": /{
            s/^ *"command": "\(.*\) -o [^ ]* -c \([^ ]*\)",$/\2\t\1/
            s/\\\(.\)/\1/g
            p
          }' "$root/build/clang/compile_commands.json" | grep -E '/Unity/|/benchmarks/'
}

# Runs clang-tidy, which reports clang's own warnings too, over one line of deep_commands. What it
# found good is not looked at again while neither the code nor the rules have changed.
check_deeply() {
  local file=${1%%$'\t'*} command=${1#*$'\t'} rules='' key good
  # What lives for one test is never copied, and need not say so.
  case $file in
    */tests/* | */benchmarks/*)
      rules=-cppcoreguidelines-special-member-functions,-performance-no-automatic-move
      ;;
  esac
  key=$({
    cat "$root/.clang-tidy"
    printf '%s\n' "$rules"
    bash -c "$command -E -C -P '$file'"
  } | sha256sum)
  good=${XDG_CACHE_HOME:-$HOME/.cache}/velra-checks/${key%% *}
  [ ! -e "$good" ] || return 0
  clang-tidy -p "$root/build/clang" --quiet --checks="$rules" "$file" 2>/dev/null || return 1
  mkdir -p "${good%/*}"
  : >"$good"
}

check_code() {
  build_preset clang velra_widgets_autogen
  export root
  export -f check_deeply
  deep_commands | tr '\n' '\0' |
    xargs -0 -P "$(nproc)" -I '{}' bash -c 'check_deeply "$1"' - '{}' ||
    fail "clang-tidy has found what is above."
}
