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

# Tests are left out: what gmock's macros unfold to takes clang-tidy three times as long as all of src/.
verifieTidy() {
  local journal=$racine/build/tidy.log temoin=$racine/build/tidy/sans_faute debut=$SECONDS
  estLeBon clang-tidy || return 0
  configure tidy
  if [ -f "$temoin" ] && [ -z "$(cd "$racine" && find src cmake CMakePresets.json .clang-tidy -newer "$temoin" -print -quit)" ]; then
    return 0 # nothing has changed since it found nothing
  fi
  dit "Looking for faults with clang-tidy"
  touch "$temoin.depart"
  (cd "$racine" && cmake build/tidy && find src -name '*.cpp' -print0 |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/tidy --quiet) </dev/null >"$journal" 2>&1 ||
    raconte "$journal" "clang-tidy has found faults"
  mv "$temoin.depart" "$temoin"
  depuis "$debut"
}
