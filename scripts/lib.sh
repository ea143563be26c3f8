# Shared by the root commands: installs missing packages, builds a preset, runs Windows programs of both bitnesses.
# Sourced with `set -euo pipefail` in force. Everything is quiet unless it fails; long steps tell what they do.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$top/build
logs=$build/logs
cache=${VELA_CACHE:-/var/cache/vela}
wine32_root=$cache/wine32-root
mkdir -p "$logs" "$cache"

export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
unset LC_ALL # until the locale is there: a shell complains of one that is missing

say() { printf '%s\n' "$*"; }

# quietly LOG COMMAND...: the output goes to build/logs/LOG; the end of it is shown when the command fails.
quietly() {
  local log=$logs/$1; shift
  if ! "$@" >"$log" 2>&1; then
    say "failed: $*"; tail -n 60 "$log"; say "(all of it: $log)"; return 1
  fi
}

need() {
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "Installing ${missing[*]} ..."
  quietly apt-update.log apt-get update
  quietly apt-install.log env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get install -y --no-install-recommends "${missing[@]}"
}

need_native() {
  need g++ cmake ninja-build python3 libgtest-dev libedit-dev locales
  need_locale
}

# Beside the archive, which a shell that has looked for it in vain does not look into again.
need_locale() {
  has_locale || quietly locale.log env LC_ALL=C localedef --no-archive -i pt_BR -f UTF-8 pt_BR.UTF-8
  export LC_ALL=pt_BR.UTF-8
}

has_locale() { locale -a 2>/dev/null | grep -i '^pt_BR\.utf-\?8$' >/dev/null; }
! has_locale || export LC_ALL=pt_BR.UTF-8

need_windows() {
  need_native
  need g++-mingw-w64-x86-64 g++-mingw-w64-i686 mingw-w64-tools googletest libc-bin
  need wine wine64 xvfb xdotool imagemagick x11-utils
}

# The 32-bit Wine stands in a root of its own: beside the 64-bit one its packages conflict.
need_wine32_root() {
  [ -x "$wine32_root/usr/bin/wine" ] && return 0
  need debootstrap
  say "Making the 32-bit Wine root (about a minute) ..."
  rm -rf "$wine32_root.part"
  quietly debootstrap.log env LC_ALL=C debootstrap --arch=i386 --variant=minbase --include=wine,wine32,libwine \
    bookworm "$wine32_root.part"
  mv "$wine32_root.part" "$wine32_root"
}

# compile PRESET [TARGET...]
compile() {
  local preset=$1; shift
  local from=$SECONDS
  [ "$build/$preset/build.ninja" -nt "$top/CMakePresets.json" ] || quietly "configure-$preset.log" env LC_ALL=C cmake -S "$top" --preset "$preset"
  ninja -C "$build/$preset" -t cleandead >/dev/null # a program that is no longer built would run on
  quietly "build-$preset.log" env LC_ALL=C cmake --build "$build/$preset" --target "${@:-all}"
  [ $((SECONDS - from)) -lt 5 ] || say "Built $preset in $((SECONDS - from)) s"
}

# A display of our own, unless VELA_DISPLAY names one to use.
start_display() {
  local chosen=$logs/display.$BASHPID tries=0
  : >"$chosen"
  Xvfb -displayfd 3 -screen 0 "${1:-1024x768x24}" -nolisten tcp 3>"$chosen" >"$logs/xvfb.log" 2>&1 &
  display_pid=$!
  until [ -s "$chosen" ]; do
    tries=$((tries + 1)); [ $tries -lt 300 ] || { say "No display could be started"; return 1; }
    sleep 0.1
  done
  export DISPLAY=:$(<"$chosen")
  rm -f "$chosen"
}

# Title bars and activation as a person's desktop has them; without one, each window that goes is waited for.
start_window_manager() {
  need openbox
  openbox --sm-disable >"$logs/openbox.log" 2>&1 &
  manager_pid=$!
  local tries=0
  until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
    tries=$((tries + 1)); [ $tries -lt 100 ] || { say "No window manager could be started"; return 1; }
    sleep 0.1
  done
}

# wine BITS COMMAND...: runs a Windows program in this bitness' own prefix. Paths of the project are the same inside.
wine_run() {
  local bits=$1; shift
  if [ "$bits" = 64 ]; then
    WINEPREFIX=$build/wine64 WINEARCH=win64 wine64_binary "$@"
  else
    unshare -m "$top/scripts/enter-wine32" "$wine32_root" "$top" "$build/wine32" "$PWD" "$@"
  fi
}

wine64_binary() { # the wrapper `wine` complains that wine32 is missing, which is meant so
  if [ -x /usr/lib/wine/wine64 ]; then /usr/lib/wine/wine64 "$@"; else wine "$@"; fi
}

# Makes the prefix once, and keeps one process of it alive: each start then takes 0.02 s instead of 2 s.
start_wine() {
  local bits=$1
  wine_started="${wine_started:-} $bits"
  if [ ! -f "$build/wine$bits/system.reg" ]; then
    say "Making the $bits-bit Wine prefix ..."
    mkdir -p "$build/wine$bits"
    quietly "wineboot$bits.log" wine_run "$bits" wineboot -i
  fi
  # Without a window manager each managed window that goes is waited for, two seconds long.
  local program
  for program in contract_tests activex_tests unloading_tests window_bench; do
    quietly "wine$bits-reg.log" wine_run "$bits" reg add \
      "HKCU\\Software\\Wine\\AppDefaults\\$program.exe\\X11 Driver" /v Managed /d N /f
  done
  # X input methods are not made for threads that open them at the same time: the process' heap breaks, even with bare EDITs.
  quietly "wine$bits-reg.log" wine_run "$bits" reg add \
    "HKCU\\Software\\Wine\\AppDefaults\\unloading_tests.exe\\X11 Driver" /v UseXIM /d N /f
  wine_run "$bits" "$build/win$bits/keepalive.exe" >/dev/null 2>&1 </dev/null &
}

# Those that this shell has started.
stop_wine() {
  local server=/usr/lib/wine/wineserver64 bits
  [ -x "$server" ] || server=$(command -v wineserver || true)
  for bits in ${wine_started:-}; do
    case $bits in
      64) WINEPREFIX=$build/wine64 timeout 20 "$server" -k >/dev/null 2>&1 || true ;;
      32) wine_run 32 --kill >/dev/null 2>&1 || true ;;
    esac
  done
}

clean_up() {
  stop_wine
  [ -z "${manager_pid:-}" ] || kill "$manager_pid" 2>/dev/null || true
  [ -z "${display_pid:-}" ] || kill "$display_pid" 2>/dev/null || true
}
