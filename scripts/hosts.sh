# Hosts that nobody here wrote: made from the distribution's packages and sources, kept in build/hosts, and driven as a
# person would. Sourced by ./test; each host is one function that builds and one that runs.

hosts=$build/hosts
all_hosts=(ole)
mkdir -p "$hosts"

chosen_hosts() { if [ "$1" = hosts ]; then echo "${all_hosts[@]}"; else echo "${1#hosts:}"; fi; }

build_hosts() {
  local host
  for host in $(chosen_hosts "$1"); do
    declare -F "build_host_$host" >/dev/null || { say "no such host: $host (${all_hosts[*]})"; exit 2; }
    say "Building the host $host ..."
    "build_host_$host"
  done
}

hosts() {
  local host
  start_display 1024x768x24
  start_window_manager
  for host in $(chosen_hosts "$1"); do
    say "Host $host ..."
    "run_host_$host"
  done
}

# with_control BITS: the prefix of that bitness with Vela.ocx registered.
with_control() {
  case " ${wine_started:-} " in *" $1 "*) return 0 ;; esac
  start_wine "$1"
  timeout 120 "$top/scripts/wine-command" "$1" regsvr32 /s "$build/win$1/Vela.ocx"
}

# --- Containers that the system brings: the rich text box, the ATL container window.

build_host_ole() {
  need_windows; need_wine32_root
  compile win64 velaocx keepalive ole_hosts
  compile win32 velaocx keepalive ole_hosts
}

run_host_ole() {
  local bits
  for bits in 64 32; do
    with_control $bits
    count "hosts-ole$bits.log" timeout 300 "$top/scripts/wine-command" $bits "$build/win$bits/tests/ole_hosts.exe"
  done
}
