# The form of the sources, for ./check: .clang-format over all of them, .clang-tidy over those of src/. Sourced after
# commun.sh.

# estLeBon PROGRAM: Debian 12's; another version has other tastes.
estLeBon() {
  "$1" --version 2>/dev/null | grep -q 'version 14\.' && return 0
  dit "  $1 14 is not there: passed over"
  return 1
}

verifieFormat() {
  local journal=$racine/build/format.log
  estLeBon clang-format || return 0
  dit "Checking the format of the sources"
  mkdir -p "$racine/build"
  (cd "$racine" && find src tests bench samples \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format --dry-run -Werror) >"$journal" 2>&1 ||
    raconte "$journal" "Some sources are not formatted (clang-format -i puts them right)"
}

# examineLot LOT: what clang-tidy says of a lot is not told, since two of its sources may only not go together; it then
# looks at them one by one.
examineLot() {
  local sources
  clang-tidy -p "${1%/*}" --quiet "$1" >/dev/null 2>&1 && return 0
  printf '%s: its sources one by one\n' "$1"
  mapfile -t sources < <(sed -n 's/^#include "\(.*\)"$/\1/p' "$1")
  clang-tidy -p build/tidy --quiet "${sources[@]}"
}

# Tests are left out: what gmock's macros unfold to takes clang-tidy three times as long as all of src/. Sources are read
# by the lot, the largest first: most of its time would go to the headers that they share.
verifieTidy() {
  local journal=$racine/build/tidy.log temoin=$racine/build/tidy/sans_faute lots=$racine/build/tidy/lots debut=$SECONDS
  estLeBon clang-tidy || return 0
  configure tidy
  if [ -f "$temoin" ] && [ -z "$(cd "$racine" && find src cmake CMakePresets.json .clang-tidy .ci -newer "$temoin" -print -quit)" ]; then
    return 0 # nothing has changed since it found nothing
  fi
  dit "Looking for faults with clang-tidy"
  touch "$temoin.depart"
  (cd "$racine" && cmake build/tidy && rm -rf "$lots" && mkdir "$lots" &&
    awk -v RACINE="$racine" -v SORTIE="$lots" -f .ci/lots.awk build/tidy/compile_commands.json) </dev/null >"$journal" 2>&1 ||
    raconte "$journal" "clang-tidy could not be prepared"
  export -f examineLot
  (cd "$racine" && find "$lots" -name '*.cpp' -printf '%s %p\0' | sort -z -n -r | cut -z -d ' ' -f 2- |
    xargs -0 -n 1 -P "$(nproc)" bash -c 'examineLot "$1"' -) >>"$journal" 2>&1 ||
    raconte "$journal" "clang-tidy has found faults"
  mv "$temoin.depart" "$temoin"
  depuis "$debut"
}
