# Hosts that nobody here wrote: made from the distribution's packages and sources, kept in build/hosts, and driven as a
# person would. Sourced by ./test; each host is one function that builds and one that runs.

hosts=$build/hosts
all_hosts=(ole lazarus)
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

# drive NAME COMMAND...: a host that is a person's form. It gets a folder as its last argument and writes lines:
#   type TEXT | key KEYS | click X Y | move X Y | picture FILE   done here; the n-th is answered by the file ack-n
#   ok WHAT | fail WHAT: FOUND                                   counted
#   host WHAT | note WHAT                                        what fails by the host's own fault; what was seen
#   end                                                          its last word
drive() {
  local name=$1 folder=$hosts/run-$1 line step=0 ended=no; shift
  rm -rf "$folder"; mkdir -p "$folder"
  while read -r -t 120 line; do
    line=${line%$'\r'}
    printf '%s\n' "$line" >>"$logs/hosts-$name.log"
    case $line in
      'ok '*) passed=$((passed + 1)) ;;
      'fail '*) failed=$((failed + 1)); say "  $line" ;;
      'host '* | 'note '*) say "  $line" ;;
      end) ended=yes; break ;;
      *) act "$folder" $line && { step=$((step + 1)); : >"$folder/ack-$step"; } || true ;;
    esac
  done < <(: >"$logs/hosts-$name.log"; timeout 600 "$@" "$folder" 2>"$logs/hosts-$name-errors.log" </dev/null)
  [ $ended = yes ] || { failed=$((failed + 1)); say "  $name ended early: $(tail -n 2 "$logs/hosts-$name.log" | tr '\n' '|')"; }
}

act() { # FOLDER WORD ARGUMENT...; false for what is no act
  local folder=$1 word=$2; shift 2
  case $word in
    type) xdotool type --clearmodifiers --delay 60 "$*" ;;
    key) xdotool key --clearmodifiers --delay 60 "$@" ;;
    click) xdotool mousemove "$1" "$2"; sleep 0.1; xdotool click 1 ;;
    move) xdotool mousemove "$1" "$2" ;;
    picture) sleep 0.3; import -window root "$folder/$1.png" ;;
    *) return 1 ;;
  esac
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

# --- Lazarus: run-time library, packages and LCL compiled for 64-bit Windows by the distribution's own compiler.

fpc_sources=/usr/share/fpcsrc/3.2.2
lazarus_sources=/usr/lib/lazarus/2.2.6

# pascal SOURCE OPTION...: its units are compiled as they are named; those of the library allow no language extensions.
pascal() {
  local rtl=$fpc_sources/rtl packages=$fpc_sources/packages lcl=$lazarus_sources/lcl folder options=(-n -Twin64 -Sg -O1 -v0e)
  for folder in $rtl/{inc,x86_64,win,win64,win/wininc,objpas,objpas/{sysutils,classes,dbcs},charmaps} \
    $packages/{winunits-base,winunits-jedi,hash,paszlib,pasjpeg,fcl-image,fcl-xml,fcl-json,fcl-res,fcl-registry,chm}/src \
    $packages/{fcl-base,fcl-process,fcl-extra}/src{,/win} $packages/rtl-objpas/src/{inc,win,x86_64,common} \
    $packages/rtl-unicode/src/inc $packages/rtl-extra/src/{inc,win} \
    $lcl $lcl/{include,forms,nonwin32,widgetset,interfaces/win32} $lazarus_sources/components/{lazutils,freetype,activex}; do
    options+=("-Fi$folder" "-Fu$folder")
  done
  quietly hosts-pascal.log ppcx64 "${options[@]}" "-FU$hosts/lazarus" "-FE$hosts/lazarus" "-Fu$hosts/lazarus" "$@"
}

build_host_lazarus() {
  need_windows
  need fpc fpc-source lazarus-src
  compile win64 velaocx keepalive
  mkdir -p "$hosts/lazarus"
  if [ ! -e "$hosts/lazarus/library" ]; then
    local unit
    pascal -Us "$fpc_sources/rtl/win64/system.pp"
    for unit in inc/uuchar inc/fpintres win64/sysinit objpas/objpas win64/buildrtl; do pascal "$fpc_sources/rtl/$unit.pp"; done
    pascal "$top/tests/hosts/lazarus/base.pas"
    : >"$hosts/lazarus/library"
  fi
  pascal "$top/tests/hosts/lazarus/importer.pas"
}

# The importer asks the system for the type library, so its unit is written and compiled here.
run_host_lazarus() {
  with_control 64
  local library
  library=$(printf '%s' "Z:$build/win64/Vela.ocx" | tr / '\\')
  once hosts-importer.log timeout 120 "$top/scripts/wine-command" 64 "$hosts/lazarus/importer.exe" "$library" "$hosts/lazarus"
  once hosts-imported.log pascal -MObjFPC -Scghi "$top/tests/hosts/lazarus/host.pas"
  python3 "$top/tests/manual/check_code.py" pascal "$hosts/lazarus/manual"
  local form
  for form in "$hosts"/lazarus/manual/*.pas; do once hosts-manual.log pascal -MObjFPC -Scghi "$form"; done
  drive lazarus "$top/scripts/wine-command" 64 "$hosts/lazarus/host.exe"
}
