# What ./run and ./check share. Sourced with $racine set to the checkout; nothing here needs a terminal.

# What builds and runs the program; ./check adds what tests need.
paquets_programme=(g++ cmake ninja-build qt6-base-dev qt6-translations-l10n libsqlite3-dev libicu-dev
                    pkg-config libglib2.0-dev mdbtools-dev libxml2-dev libarchive-dev xdg-utils shared-mime-info)
paquets_essais=(libgtest-dev libgmock-dev clang-format clang-tidy mold)

dit() { printf '%s\n' "$*"; }

echoue() {
  printf '%s\n' "$*" >&2
  exit 1
}

# How long a step took, said once it is over.
depuis() { dit "  done in $((SECONDS - $1)) s"; }

# suit FORMAT MOTIF: of what comes, shows the two numbers (or the one) that MOTIF finds, on one line that moves; only a
# terminal is shown it, and all of it goes when the work is over.
suit() {
  local ligne
  while IFS= read -r ligne; do
    # shellcheck disable=SC2059
    if [ -t 1 ] && [[ $ligne =~ $2 ]]; then printf "\r\033[K  $1" "${BASH_REMATCH[@]:1}"; fi
  done
  if [ -t 1 ]; then printf '\r\033[K'; fi
}

# absents PACKAGE...: those that are not installed, one a line.
absents() {
  local etats paquet
  etats=$(dpkg-query -W -f='/${Package} ${db:Status-Status}/' "$@" 2>/dev/null || true)
  for paquet; do
    [[ $etats == *"/$paquet installed/"* ]] || printf '%s\n' "$paquet"
  done
}

# installe PACKAGE...: installs what is missing and only that; the package lists are read again only when they must be.
installe() {
  if ! command -v dpkg-query apt-get >/dev/null; then
    command -v cmake ninja g++ >/dev/null ||
      echoue "This is no Debian system: install a C++20 compiler, CMake 3.25, Ninja, Qt 6.4, SQLite 3.40, ICU 72, GLib 2.74 and libmdb 1.0 yourself, then start again."
    return 0
  fi
  local manque=() admin=() journal debut=$SECONDS
  mapfile -t manque < <(absents "$@")
  ((${#manque[@]})) || return 0
  if ((EUID != 0)); then
    command -v sudo >/dev/null && { sudo -n true 2>/dev/null || [ -t 0 ]; } ||
      echoue "These packages are missing and only root can install them: ${manque[*]}. Run as root: apt-get install --no-install-recommends ${manque[*]}"
    admin=(sudo)
  fi
  admin+=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=2)
  mkdir -p "$racine/build"
  journal=$racine/build/installation.log
  dit "Installing what is missing (a minute or two at first): ${manque[*]}"
  # In percent, of what is fetched and then of what is set up.
  installeTout() {
    "${admin[@]}" -o APT::Status-Fd=1 install --no-install-recommends "${manque[@]}" </dev/null 2>&1 | tee -a "$journal" |
      suit "packages: %d %%" '^[dp][lm]status:[^:]*:([0-9]+)'
  }
  : >"$journal"
  if ! installeTout; then
    dit "  reading the package lists first"
    "${admin[@]}" update </dev/null >"$journal" 2>&1 || true
    if ! installeTout; then
      grep -h '^[EW]:' "$journal" | sort -u | head -n 4 >&2 || true
      echoue "The packages could not be installed: is the network there? The whole story is in build/installation.log."
    fi
  fi
  depuis "$debut"
}

# configure PRESET: makes its build folder, unless it is there.
configure() {
  local dossier=$racine/build/$1 journal=$racine/build/$1.log lanceur=()
  command -v ccache >/dev/null && lanceur=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  # Two score programs of tests take the usual linker a minute of a processor.
  case $1 in asan | ci) ! command -v mold >/dev/null || lanceur+=(-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold) ;; esac
  mkdir -p "$racine/build"
  if [ -f "$dossier/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$racine" "$dossier/CMakeCache.txt"; then
    dit "The checkout has moved: $1 is built anew"
    rm -rf "$dossier"
  fi
  [ -f "$dossier/build.ninja" ] || (cd "$racine" && cmake --preset "$1" "${lanceur[@]}") </dev/null >"$journal" 2>&1 ||
    raconte "$journal" "The build could not be prepared"
}

# construit PRESET: configures where that was not done yet, and builds; says little unless it fails.
construit() {
  local preset=$1 dossier=$racine/build/$1 journal=$racine/build/$1.log debut=$SECONDS
  if [ -f "$dossier/build.ninja" ]; then
    dit "Bringing the build up to date ($preset)"
  else
    dit "Building Ambrelis ($preset); the first time takes some minutes"
  fi
  configure "$preset"
  if ! NINJA_STATUS='[%f/%t] ' ninja -C "$dossier" -j "$(nproc)" </dev/null 2>&1 | tee "$journal" |
    suit "%d of %d files" '^\[([0-9]+)/([0-9]+)\]'; then
    raconte "$journal" "The build failed"
  fi
  ((SECONDS - debut < 3)) || depuis "$debut"
}

# raconte LOG SENTENCE: the end of a log, then the sentence, then the end of everything.
raconte() {
  grep -nE -A6 '(error|Error|FAILED)' "$1" | tail -n 40 >&2 || tail -n 40 "$1" >&2
  echoue "$2; the whole story is in ${1#"$racine"/}."
}
