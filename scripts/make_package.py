"""Puts the release together: make_package.py SOURCES BUILD VERSION ZIP. Names in order, one fixed time: same bytes."""
import hashlib
import pathlib
import sys
import zipfile

FIXED_TIME = (2026, 1, 1, 0, 0, 0)
CRLF = {".txt", ".vbs", ".hta", ".bas", ".vbp", ".frm", ".cs", ".cmd", ".dpr", ".ahk", ".cpp", ".md", ".manifest"}
CODE_PAGE_1252 = {".vbs", ".hta", ".bas", ".vbp", ".frm", ".dpr"}


def content(path):
    data = path.read_bytes()
    if path.suffix in CRLF or path.name == "LICENSE":
        text = data.decode("utf-8").replace("\r\n", "\n").replace("\n", "\r\n")
        data = text.encode("cp1252" if path.suffix in CODE_PAGE_1252 else "utf-8")
    return data


def entries(sources, build):
    for bits in ("win64", "win32"):
        yield f"{bits}/Vela.ocx", build / bits / "Vela.ocx"
        yield f"{bits}/Vela.ocx.manifest", build / bits / "Vela.ocx.manifest"
        yield f"{bits}/Vela.tlb", build / bits / "activex" / "vela.tlb"
    yield "console/vela-console.exe", build / "win64" / "vela-console.exe"
    for name in ("README.txt", "install.cmd", "uninstall.cmd", "THIRD-PARTY.txt"):
        yield name, sources / "release" / name
    yield "LICENSE.txt", sources / "LICENSE"
    yield "CHANGELOG.md", sources / "CHANGELOG.md"
    for folder, target in (("docs", "manual"), ("samples", "samples")):
        for path in sorted((sources / folder).rglob("*")):
            if path.is_file():
                yield f"{target}/{path.relative_to(sources / folder).as_posix()}", path


def add(package, version, name, data):
    entry = zipfile.ZipInfo(f"vela-{version}/{name}", FIXED_TIME)
    entry.compress_type = zipfile.ZIP_DEFLATED
    entry.external_attr = 0o644 << 16
    package.writestr(entry, data)


def main():
    sources, build, version, target = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3], sys.argv[4]
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as package:
        sums = ""
        for name, path in entries(sources, build):
            data = content(path)
            sums += f"{hashlib.sha256(data).hexdigest()}  {name}\n"
            add(package, version, name, data)
        add(package, version, "SHA256SUMS", sums.encode())


main()
