# What ./run, ./test and ./bench share: the packages, the build and the way steps are reported.
# Sourced by them, never run. Needs bash and, where a package is missing, apt-get.

set -euo pipefail
QV_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export NINJA_STATUS='[%f/%t %es] '

# Every package the project needs, one a line: the group that needs it, its name, the reason.
# Groups: build (any build of the core), all (the complete build), run (to see it), test, bench.
qv_packages() {
  cat <<'LIST'
build g++                  the compiler (C++20)
build cmake                configures the build
build ninja-build          runs the build
all   pkg-config           finds the C libraries below
all   libsqlite3-dev       the embedded database
all   libicu-dev           pinyin and stroke order, the Chinese code pages
all   libsodium-dev        password hashing of the login
all   nlohmann-json3-dev   JSON texts and files of the script front end
all   libxlsxwriter-dev    export of lists to Excel
all   zlib1g-dev           what libxlsxwriter is linked with
all   unixodbc-dev         database servers
all   qt6-base-dev         the window, printing and PDF
all   qt6-tools-dev        the plug-in for Qt Designer, and the form loader that tests it
all   libqt6opengl6-dev    what the form loader's build files ask for
run   fonts-noto-cjk       Chinese letters on a machine that has none
run   qt6-translations-l10n  the toolkit's own dialogs (files, printers) in Chinese
test  libgtest-dev         the test framework
test  libbenchmark-dev     every benchmark also runs once as a test
test  fonts-noto-cjk       the window's tests measure Chinese text
test  qt6-translations-l10n  a test asks whether those dialogs speak Chinese
test  xvfb                 an X server without a screen, for the test by real keys
test  poppler-utils        reads PDF files back
test  unzip                looks into workbooks
test  xdotool              presses those keys
test  python3              tools/mutate, and the test of what it changes
test  postgresql-15        a private server for the tests of the server dialect
test  odbc-postgresql      the driver through which it is reached
test  openssl              certificates for connections to it that are encrypted
bench libbenchmark-dev     the benchmark framework
bench postgresql-15        a private server for what the statements cost on one
bench odbc-postgresql      the driver through which it is reached
bench libgtest-dev         the release preset builds the tests with the benchmarks
LIST
}

# qv_say TEXT: one line about what happens now.
qv_say() { printf '==> %s\n' "$*"; }

# qv_fail WHAT ADVICE: says what failed and what to do about it, and ends the program.
qv_fail() {
  printf '\n==> FAILED: %s\n    %s\n' "$1" "$2" >&2
  exit 1
}

# qv_step WHAT ADVICE COMMAND...: says what is done, does it, and on failure says what to do.
qv_step() {
  local what=$1 advice=$2
  shift 2
  qv_say "$what"
  "$@" || qv_fail "$what" "$advice"
}

# qv_as_root COMMAND...: runs it as root, through sudo when the user is not root.
qv_as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    qv_fail "'$1' needs root, and there is no sudo" "run as root once: $*"
  fi
}

# qv_missing GROUP...: names of the packages of those groups that are not installed.
qv_missing() {
  local group wanted=" $* " name seen=' '
  while read -r group name _; do
    [[ $wanted == *" $group "* && $seen != *" $name "* ]] || continue
    seen+="$name "
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || echo "$name"
  done < <(qv_packages)
}

# qv_install GROUP...: installs what those groups need and the machine lacks.
qv_install() {
  local missing
  command -v dpkg-query >/dev/null && command -v apt-get >/dev/null || {
    qv_say "no apt-get here: the packages are not looked for (tools/setup.sh lists them)"
    return 0
  }
  mapfile -t missing < <(qv_missing "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  qv_say "Installing ${#missing[@]} packages: ${missing[*]}"
  # A list of packages from long ago names files that are gone, so it is fetched anew.
  qv_as_root apt-get update -q ||
    qv_fail "the package lists could not be fetched" "check the network and the apt sources, then run this again"
  qv_as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}" ||
    qv_fail "packages could not be installed" "install them by hand, then run this again: ${missing[*]}"
}

# Compilers at work at once: one a processor, but no more than one for each GiB of free memory,
# so that a small machine does not swap.
qv_jobs() {
  local processors memory
  processors=$(nproc)
  memory=$(awk '/^MemAvailable:/ {print int($2 / 1048576)}' /proc/meminfo 2>/dev/null || echo 1)
  [ "${memory:-0}" -ge 1 ] || memory=1
  echo $((processors < memory ? processors : memory))
}

# qv_build PRESET [TARGET...]: configures build/PRESET when needed and builds the targets (all).
qv_build() {
  local preset=$1
  shift
  cd "$QV_ROOT"
  if [ ! -f "build/$preset/build.ninja" ]; then
    qv_step "Configuring build/$preset" \
      "read the message above; after mending its cause remove build/$preset and run this again" \
      cmake --preset "$preset"
  fi
  qv_step "Building build/$preset" \
    "the compiler's message is above; after an upgrade of the system remove build/$preset and run this again" \
    ninja -C "build/$preset" -j "$(qv_jobs)" "$@"
}
