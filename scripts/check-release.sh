# Checks the release under Wine, each bitness in a prefix of its own that knows nothing of Vela. Sourced by ./package.

check=$build/check
export WINEDLLOVERRIDES="$WINEDLLOVERRIDES;winemenubuilder.exe="
need_wine32_root
need osslsigncode openssl unzip
checks=0 failures=0

# expect WHAT COMMAND...: one check; its output is shown when it fails.
expect() {
  local what=$1; shift
  checks=$((checks + 1))
  if "$@" >"$check/output.txt" 2>&1; then
    say "  ok      $what"
  else
    failures=$((failures + 1)); say "  FAILED  $what"; tail -n 12 "$check/output.txt"
  fi
}

refuses() { ! "$@"; }

windows_path() { printf '%s' "Z:$1" | tr / '\\'; }

# In the prefix of this bitness.
wine_in() {
  local bits=$1 wine=/usr/lib/wine/wine64; shift
  [ -x $wine ] || wine=wine
  if [ "$bits" = 64 ]; then
    WINEPREFIX=$check/wine64 WINEARCH=win64 timeout 300 $wine "$@" </dev/null
  else
    timeout 300 unshare -m "$top/scripts/enter-wine32" "$wine32_root" "$top" "$check/wine32" "$PWD" "$@" </dev/null
  fi
}

# says TEXT COMMAND...: the command succeeds, and a line of its output has the text.
says() { local text=$1; shift; "$@" | tr -d '\r' >"$check/said.txt"; local status=${PIPESTATUS[0]}; cat "$check/said.txt"; [ "$status" -eq 0 ] && grep -aqF "$text" "$check/said.txt"; }

exits() { local wanted=$1 status=0; shift; "$@" || status=$?; echo "exit $status"; [ $status -eq "$wanted" ]; }

# in_folder BITS SCRIPT ARGUMENT...: a command script of the unpacked release.
script_in() { local bits=$1 file=$2; shift 2; wine_in "$bits" cmd /c "$(windows_path "$unpacked/$file")" "$@"; }

installer() { local bits=$1; shift; wine_in "$bits" msiexec "$@" /qn; }

registry() { # BITS NAME: exports what classes there are for the machine and the user
  local root
  for root in HKLM HKCU; do
    wine_in "$1" reg export "$root\\Software\\Classes" "$(windows_path "$check/$2-$root.reg")" /y >/dev/null
  done
}

# registry_is BITS NAME: the registry is as it was when it was exported under that name.
registry_is() {
  local root
  registry "$1" now || return 1
  for root in HKLM HKCU; do
    python "$top/scripts/registry_added.py" "$check/$2-$root.reg" "$check/now-$root.reg" >"$check/more.txt" || return 1
    cat "$check/more.txt"; [ ! -s "$check/more.txt" ] || return 1
  done
}

# added BITS ROOT FOLDER: what Vela has added since the prefix was made; FOLDER, its own, reads %HERE%. Wine shows what
# stands below TypeLib a second time, and writes it in two ways; a user has CLSID and the like from the first class on.
added() {
  registry "$1" now || return 1
  local here; here=$(printf '%s' "$3" | sed 's/\\/\\\\/g')
  python "$top/scripts/registry_added.py" "$check/clean$1-$2.reg" "$check/now-$2.reg" "$here=%HERE%" \
    'C:\\Program Files (x86)\\Vela=%HERE%' '%HERE%\\win64=%HERE%' '%HERE%\\win32=%HERE%' '%HERE%\\"=%HERE%"' Typelib=TypeLib |
    grep -v -e 'Wow6432Node\\TypeLib' -e 'Classes\]$' -e 'Classes\\[A-Za-z]*\]$' | sort -u
}

new_prefix() {
  local bits=$1
  mkdir -p "$check/wine$bits" "$check/win$bits"
  quietly "check-wineboot$bits.log" wine_in "$bits" wineboot -i
  cp "$build/win$bits/keepalive.exe" "$check/win$bits/"
  build=$check wine_run "$bits" "$check/win$bits/keepalive.exe" >/dev/null 2>&1 </dev/null &
  echo "" >"$check/empty.vbs"; wine_in "$bits" cscript //nologo "$(windows_path "$check/empty.vbs")" # registers itself
  wine_in "$bits" reg add 'HKCU\Software\Classes' /f >/dev/null # a fresh prefix has none to be exported
  registry "$bits" "clean$bits"
}

check_twice() {
  local bits file
  for bits in 64 32; do cmake --build "$build/win$bits" --target clean >/dev/null; done
  build_release
  make_release "$check/again"
  for file in "$check/again"/*.zip "$check/again"/*.msi; do
    expect "made twice, the same bytes: ${file##*/}" cmp "$file" "$build/release/${file##*/}"
  done
}

check_zip() {
  local bits=$1 script; script=$(windows_path "$unpacked/samples/vbscript/pedido.vbs")
  expect "$bits: the example runs without registration" \
    says 'Value: 1234.5' wine_in "$bits" "$unpacked/win$bits/pedido.exe" --values
  expect "$bits: vela-console runs" says "vela-console $version" wine_in "$bits" "$unpacked/win$bits/vela-console.exe" --version
  expect "$bits: no script finds Vela yet" refuses says passed wine_in "$bits" cscript //nologo "$script"
  expect "$bits: install.cmd" says 'Registered for every user' script_in "$bits" install.cmd /silent
  added "$bits" HKLM "$(windows_path "$unpacked")" >"$check/registered$bits.txt"
  expect "$bits: a script finds Vela" says passed wine_in "$bits" cscript //nologo "$script"
  expect "$bits: uninstall.cmd" says 'Removed for every user' script_in "$bits" uninstall.cmd /silent
  expect "$bits: nothing stays" registry_is "$bits" "clean$bits"
  expect "$bits: install.cmd /user" says 'Registered for this user' script_in "$bits" install.cmd /user /silent
  added "$bits" HKCU "$(windows_path "$unpacked")" | sed 's/HKEY_CURRENT_USER/HKEY_LOCAL_MACHINE/' >"$check/user$bits.txt"
  expect "$bits: the same for one user" diff "$check/registered$bits.txt" "$check/user$bits.txt"
  expect "$bits: uninstall.cmd /user" says 'Removed for this user' script_in "$bits" uninstall.cmd /user /silent
  expect "$bits: nothing stays for the user" registry_is "$bits" "clean$bits"
  expect "$bits: install.cmd with an unknown word" exits 2 script_in "$bits" install.cmd /everywhere
  mkdir -p "$check/alone"; cp "$unpacked/install.cmd" "$check/alone/"
  expect "$bits: install.cmd outside its folder" exits 1 wine_in "$bits" cmd /c "$(windows_path "$check/alone/install.cmd")" /silent
}

# The values of the installer are those of the library's own registering; of the 64-bit package, those of both.
same_as_registered() {
  local bits=$1 found=$check/installed$1.txt
  added "$bits" HKLM 'C:\Program Files\Vela' >"$found"
  if [ "$bits" = 64 ]; then
    diff <(grep -v 'Wow6432Node' "$found" | grep -v '\\0\\win32') "$check/registered64.txt" || return 1
    diff <(grep 'Wow6432Node' "$found" | sed 's/Wow6432Node\\//' | grep '\\CLSID\\{' | sort -u) <(grep '\\CLSID\\{' "$check/registered32.txt")
  else
    diff "$found" "$check/registered32.txt"
  fi
}

files_installed() { # BITS: each file of the release stands where it belongs
  local bits=$1 drive=$check/wine$1/drive_c file place
  while read -r file; do
    place="$drive/Program Files/Vela/$file"
    case $bits/$file in
      64/win32/*) place="$drive/Program Files (x86)/Vela/${file#win32/}" ;;
      32/win64/* | */install.cmd | */uninstall.cmd | */SHA256SUMS) [ ! -e "$place" ] || return 1; continue ;;
    esac
    cmp "$unpacked/$file" "$place" || return 1
  done < <(cd "$unpacked" && find . -type f | sed 's|^\./||')
}

check_installer() {
  local bits=$1 architecture=$2 other=$3 library drive=$check/wine$1/drive_c
  local package; package=$(windows_path "$build/release/vela-$version-$architecture.msi")
  library="$drive/Program Files/Vela/win$bits/Vela.ocx"
  expect "$bits: the package for the other Windows refuses" \
    refuses installer "$bits" /i "$(windows_path "$build/release/vela-$version-$other.msi")"
  expect "$bits: and leaves nothing" registry_is "$bits" "clean$bits"
  expect "$bits: msiexec /i" installer "$bits" /i "$package"
  expect "$bits: every file is there" files_installed "$bits"
  expect "$bits: registered as the library registers itself" same_as_registered "$bits"
  expect "$bits: a script finds Vela" says passed wine_in "$bits" cscript //nologo 'C:\Program Files\Vela\samples\vbscript\pedido.vbs'
  rm "$library"; wine_in "$bits" reg delete 'HKLM\Software\Classes\Vela.Vela' /f >/dev/null
  expect "$bits: damaged, no script finds it" refuses says passed wine_in "$bits" cscript //nologo 'C:\Program Files\Vela\samples\vbscript\pedido.vbs'
  expect "$bits: msiexec /i REINSTALL=ALL REINSTALLMODE=amus" installer "$bits" /i "$package" REINSTALL=ALL REINSTALLMODE=amus
  expect "$bits: every file is there again" files_installed "$bits"
  expect "$bits: registered again" same_as_registered "$bits"
  expect "$bits: a script finds Vela again" says passed wine_in "$bits" cscript //nologo 'C:\Program Files\Vela\samples\vbscript\pedido.vbs'
  expect "$bits: msiexec /x" installer "$bits" /x "$package"
  expect "$bits: no file stays" refuses ls -d "$drive"/Program\ Files*/Vela
  expect "$bits: nothing stays in the registry" registry_is "$bits" "clean$bits"
}

# Signed with a certificate of the day; a file changed afterwards is noticed.
check_signatures() {
  local folder=$check/signing file; mkdir -p "$folder"
  echo 'words of the day' >"$folder/password"
  quietly check-openssl.log openssl req -x509 -newkey rsa:2048 -nodes -keyout "$folder/key.pem" -out "$folder/cert.pem" -days 2 \
    -subj '/CN=Vela release check' -addext extendedKeyUsage=codeSigning
  quietly check-openssl.log openssl pkcs12 -export -inkey "$folder/key.pem" -in "$folder/cert.pem" -out "$folder/cert.p12" \
    -passout "file:$folder/password"
  VELA_SIGN_PASSWORD_FILE=$folder/password make_release "$check/signed" "$folder/cert.p12"
  for file in "$check/signed/vela-$version"/win*/*.{ocx,exe} "$check/signed"/*.msi; do
    expect "signed: ${file#"$check/signed/"}" osslsigncode verify -CAfile "$folder/cert.pem" -in "$file"
  done
  cp "$check/signed/vela-$version/win64/Vela.ocx" "$folder/changed.ocx"
  printf 'X' | dd of="$folder/changed.ocx" bs=1 seek=20000 conv=notrunc status=none
  expect "a changed library is noticed" refuses osslsigncode verify -CAfile "$folder/cert.pem" -in "$folder/changed.ocx"
  expect "signing changes nothing else" same_without_signature "$check/signed/vela-$version/win64/Vela.ocx" "$build/win64/Vela.ocx"
}

same_without_signature() {
  osslsigncode remove-signature -in "$1" -out "$check/signing/bare" && cmp "$check/signing/bare" "$2"
}

check_release() {
  rm -rf "$check"; mkdir -p "$check"
  trap clean_up_check EXIT
  check_twice
  compile win64 keepalive; compile win32 keepalive
  unpacked="$check/a folder/vela-$version"
  mkdir -p "$check/a folder"
  unzip -q "$build/release/vela-$version.zip" -d "$check/a folder"
  expect "the sums are right" env -C "$unpacked" sha256sum --quiet -c SHA256SUMS
  start_display
  local bits
  for bits in 32 64; do new_prefix $bits; check_zip $bits; done
  check_installer 32 x86 x64
  check_installer 64 x64 x86
  check_signatures
  say "Release: $((checks - failures)) of $checks checks passed"
  [ $failures -eq 0 ]
}

clean_up_check() { build=$check wine_started='64 32' clean_up; }
