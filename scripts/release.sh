# Makes the release's files. Sourced by ./package, which names the version.

# The manual's package is for the distribution's own Python.
python() { /usr/bin/python3 -B "$@"; }

build_release() {
  local bits
  compile native-asan vela-registry
  for bits in 64 32; do
    compile "win$bits" velaocx vela-console
    build_example "$bits"
  done
}

# The program that needs no registration, beside the library of its bitness.
build_example() {
  local folder=$build/win$1/samples architecture=amd64 cross=x86_64-w64-mingw32
  [ "$1" = 64 ] || architecture=x86 cross=i686-w64-mingw32
  mkdir -p "$folder"
  quietly "example$1.log" "$cross-g++" -std=c++17 -Os -municode "$top/samples/cpp/pedido.cpp" -o "$folder/pedido.exe" \
    -static -s -Wl,--no-insert-timestamp -lole32 -loleaut32 -luuid
  sed "s/\"amd64\"/\"$architecture\"/" "$top/samples/manifest/pedido.exe.manifest" >"$folder/pedido.exe.manifest"
}

registry_of() { "$build/native-asan/activex/vela-registry" "$1" '@FOLDER@\Vela.ocx' >"$2/$1.txt"; }

# make_release FOLDER [CERTIFICATE [TIMESTAMP]]
make_release() {
  local target=$1 name=vela-$version file; shift
  rm -rf "$target"; mkdir -p "$target/registry"
  registry_of win64 "$target/registry"; registry_of win32 "$target/registry"
  python "$top/scripts/make_package.py" stage "$top" "$build" "$target/$name"
  [ $# -eq 0 ] || for file in "$target/$name"/win*/*.{ocx,exe}; do sign "$file" "$@"; done
  python "$top/scripts/make_package.py" zip "$target/$name" "$target/$name.zip"
  make_msi x64 win64 win32
  make_msi x86 win32
  [ $# -eq 0 ] || for file in "$target"/*.msi; do sign "$file" "$@"; done
  rm -r "$target/registry"
  (cd "$target" && sha256sum ./*.zip ./*.msi | sed 's|\./||' >SHA256SUMS)
}

make_msi() { # ARCHITECTURE BITNESS...; in the folder that make_release fills
  local architecture=$1 registries=("${@:2}")
  registries=("${registries[@]/#/$target/registry/}")
  registries=("${registries[@]/%/.txt}")
  quietly "msi-$architecture.log" python "$top/scripts/make_msi.py" "$target/$name" "$architecture" "$version" \
    "${registries[@]}" "$target/$name-$architecture.msi"
}

# sign FILE CERTIFICATE [TIMESTAMP]: Authenticode, SHA-256.
sign() {
  local file=$1 certificate=$2 options=(); shift 2
  [ -z "${VELA_SIGN_PASSWORD_FILE:-}" ] || options+=(-readpass "$VELA_SIGN_PASSWORD_FILE")
  [ $# -eq 0 ] || options+=(-ts "$1")
  quietly sign.log osslsigncode sign -pkcs12 "$certificate" "${options[@]}" -h sha256 -n "Vela $version" -in "$file" -out "$file.signed"
  mv "$file.signed" "$file"
}
