# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# The checks of ./test that run no program of ours. Sourced by bash, after common.sh.

check_format() {
  find src tests benchmarks docs \( -name '*.h' -o -name '*.cpp' \) -print0 |
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
    find src tests benchmarks docs packaging cmake CMakeLists.txt scripts/*.sh \
      -name '*.h' -o -name '*.cpp' -o -name '*.cmake' -o -name CMakeLists.txt -o -name '*.sh'
  } | xargs grep -LE '^(//|#) SPDX-License-Identifier: GPL-3.0-or-later$' || true)
  [ -z "$without" ] || fail "These files name no licence in an SPDX line:"$'\n'"$without"
}

check_scripts() {
  local scripts
  mapfile -t scripts < <(runnable_files | xargs grep -lE -m1 '^#!.*sh$')
  shellcheck -x -P SCRIPTDIR "${scripts[@]}" || fail "shellcheck has found what is above."
}

# The guide: both languages have the same chapters and pictures, each link leads to a chapter, and
# each picture is used.
check_guide() {
  local language made link
  made=$(mktemp -d)
  docs/guide/make-guide "$made"
  ! grep -rn 'raw HTML omitted' "$made" || fail "The guide has \"<\" where HTML would begin."
  for language in en it; do
    while IFS= read -r link; do
      [ -e "$made/$language/$link" ] || fail "docs/guide/$language: $link is not there."
    done < <(grep -hoE '(href|src)="[^"#]+"' "$made/$language"/*.html | cut -d'"' -f2 | sort -u)
    diff <(cd docs/guide/pictures/$language && ls) \
      <(grep -hoE "pictures/$language/[a-z-]+\.png" "docs/guide/$language"/*.md | cut -d/ -f3 | sort -u) ||
      fail "docs/guide/$language: other pictures are there (<) than are shown (>)."
  done
  diff <(cd docs/guide/en && ls) <(cd docs/guide/it && ls) || fail "A chapter lacks a language."
  rm -r "$made"
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
    */tests/* | */benchmarks/* | */docs/*)
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

# What desktops, man and package managers read of the package.
check_packaging() {
  local made page
  made=$(mktemp -d)
  desktop-file-validate packaging/*.desktop || fail "The menu entry is wrong."
  sed -e 's/@PROJECT_VERSION@/0.0.1/; s/@VELRA_DATE@/2026-01-01/' \
    -e 's/@PROJECT_HOMEPAGE_URL@/https:\/\/velra.example.org/' \
    packaging/org.velra.velra.metainfo.xml.in >"$made/org.velra.velra.metainfo.xml"
  appstreamcli validate --pedantic --no-net "$made"/*.xml || fail "The AppStream data are wrong."
  mkdir -p "$made/mime/packages"
  cp packaging/*.mime.xml "$made/mime/packages"
  # It says what is wrong and ends well all the same.
  [ -z "$(XDG_DATA_DIRS=$made update-mime-database "$made/mime" 2>&1 | tee /dev/stderr)" ] ||
    fail "The MIME type is wrong."
  for page in packaging/man/*.1 packaging/man/it/*.1; do
    [ -z "$(man --warnings -l -Tutf8 -Z "$page" 2>&1 >/dev/null | tee /dev/stderr)" ] ||
      fail "The man page $page is wrong."
  done
  rm -r "$made"
}
