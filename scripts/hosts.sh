# Hosts that nobody here wrote: made from the distribution's packages and sources, kept in build/hosts, and driven as a
# person would. Sourced by ./test; each host is one function that builds and one that runs.

hosts=$build/hosts
all_hosts=(ole lazarus wx ruby)
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

# --- Made from the distribution's sources, cross-compiled to 64 bit and kept.

cross=x86_64-w64-mingw32

# source_of PACKAGE FOLDER: unpacked there, by a list of sources of our own.
source_of() {
  local apt=$hosts/apt
  need dpkg-dev
  [ ! -d "$hosts/$2" ] || return 0
  say "Fetching the source of $1 ..."
  mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial" "$apt/source"
  echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] http://deb.debian.org/debian bookworm main" >"$apt/sources.list"
  local options=(-o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null -o "Dir::State::Lists=$apt/lists"
    -o "Dir::Cache=$apt/cache" -o APT::Sandbox::User=root)
  quietly hosts-source-list.log apt-get "${options[@]}" update
  (cd "$apt/source" && quietly hosts-source.log apt-get "${options[@]}" --download-only source "$1")
  rm -rf "$hosts/$2.part"
  quietly hosts-unpack.log dpkg-source --no-check -x "$(ls -t "$apt/source/$1"_*.dsc | head -n 1)" "$hosts/$2.part"
  mv "$hosts/$2.part" "$hosts/$2"
}

# configured NAME OPTION...: in a folder of its own beside the source; one that failed leaves nothing.
configured() {
  local name=$1; shift
  [ ! -e "$hosts/$name/Makefile" ] || return 0
  say "Configuring $name (some minutes) ..."
  mkdir -p "$hosts/$name"
  (cd "$hosts/$name" && quietly "hosts-$name-configure.log" "$hosts/$name-source/configure" --host=$cross \
    --build="$(dpkg-architecture -qDEB_BUILD_GNU_TYPE)" "$@") || { rm -rf "$hosts/${name:?}"; return 1; }
}

# --- wxWidgets: base and core with what a form needs.

wx_features=(exceptions ole dataobj clipboard variant any datetime timer stopwatch threads dynlib dynamicloader stdpaths file ffile
  textfile textbuf streams geometry log longlong intl fontmap fontenum sysoptions regkey cmdline baseevtloop accel menus menubar
  button textctrl stattext msgdlg commondlg image wxdib uxtheme autoidman palette tooltips caret display detect_sm pch)

build_host_wx() {
  need_windows
  compile win64 velaocx keepalive
  source_of wxwidgets3.2 wx-source
  configured wx CC=$cross-gcc-posix CXX=$cross-g++-posix --disable-shared --with-msw --disable-optimise --disable-debug_info \
    --without-{regex,libpng,libjpeg,libtiff,zlib,expat,nanosvg,opengl} --disable-all-features "${wx_features[@]/#/--enable-}"
  local folder=$hosts/wx options
  say "Compiling wxWidgets (some minutes at the first time) ..."
  quietly hosts-wx-make.log make -C "$folder" -j2 "$folder/lib/libwx_baseu-3.2-$cross.a" "$folder/lib/libwx_mswu_core-3.2-$cross.a"
  read -ra options < <("$folder/wx-config" --inplace --static --cxxflags --libs base,core | tr '\n' ' ') || true
  quietly hosts-wx-host.log $cross-g++-posix -std=c++20 -static -o "$folder/host.exe" "$top/tests/hosts/wx/host.cpp" \
    "${options[@]}" -Wl,--subsystem,console
}

run_host_wx() {
  with_control 64
  drive wx "$top/scripts/wine-command" 64 "$hosts/wx/host.exe"
}

# --- Ruby: the interpreter without its library, win32ole built into it.

build_host_ruby() {
  need_windows
  need ruby
  compile win64 velaocx keepalive
  source_of ruby3.1 ruby-source
  local folder=$hosts/ruby source=$hosts/ruby-source file object objects=
  local options=(optflags=-O0 debugflags= warnflags=-w)
  touch "$source/configure" # else it is made anew
  configured ruby CC=$cross-gcc "${options[@]}" --with-baseruby="$(command -v ruby)" --disable-shared --with-static-linked-ext \
    --with-ext=win32ole --disable-install-doc --disable-jit-support --disable-rubygems --without-gmp
  say "Compiling Ruby (some minutes at the first time) ..."
  mkdir -p "$folder/ole"
  for file in "$source"/ext/win32ole/*.c "$top/tests/hosts/ruby/init.c"; do
    object=$folder/ole/$(basename "$file" .c).o
    [ "$object" -nt "$file" ] || quietly hosts-ruby-ole.log $cross-gcc -O0 -w -DRUBY_EXPORT -D_WIN32_WINNT=0x0600 \
      -D__MINGW_USE_VC2005_COMPAT "-I$folder" "-I$folder/.ext/include/x64-mingw32" "-I$source/include" "-I$source" -c "$file" -o "$object"
    objects+=" ole/${object##*/}"
  done
  quietly hosts-ruby-make.log make -C "$folder" -j2 "${options[@]}" MAINLIBS="-lole32 -loleaut32 -luuid" \
    MINIOBJS="miniinit.o dmydln.o$objects" miniruby.exe
}

run_host_ruby() {
  with_control 64
  drive ruby "$top/scripts/wine-command" 64 "$hosts/ruby/miniruby.exe" -EUTF-8 "$top/tests/hosts/ruby/host.rb"
}
