"""Puts the release together: make_package.py stage SOURCES BUILD FOLDER, then make_package.py zip FOLDER ZIP.

Names in order and one fixed time: the same sources give the same bytes.
"""
import hashlib
import os
import pathlib
import shutil
import sys
import zipfile

from make_manual import make_manual

FIXED_TIME = 1767225600  # 2026-01-01
CRLF = {".txt", ".vbs", ".js", ".hta", ".bas", ".vbp", ".frm", ".cs", ".vb", ".cmd", ".dpr", ".pas", ".ahk", ".cpp", ".md",
        ".manifest", ".html", ".css"}
CODE_PAGE_1252 = {".vbs", ".js", ".hta", ".bas", ".vbp", ".frm", ".dpr", ".pas"}
CODE_PAGE_850 = {".cmd"}  # as the console of a Brazilian Windows has it
# The notices of what is linked in, as the distribution hands them out with it.
NOTICES = {"gcc": "gcc-mingw-w64-x86-64-posix-runtime", "mingw-w64": "mingw-w64-common"}


def content(path):
    data = path.read_bytes()
    if path.suffix in CRLF or path.name in ("LICENSE", "copyright"):
        text = data.decode("utf-8-sig").replace("\r\n", "\n").replace("\n", "\r\n")
        code = "cp1252" if path.suffix in CODE_PAGE_1252 else "cp850" if path.suffix in CODE_PAGE_850 else "utf-8"
        # Notepad and others of the time take a text without a mark for the code page of the system.
        data = text.encode("utf-8-sig" if code == "utf-8" and path.suffix in (".txt", "") else code)
    return data


def entries(sources, build):
    for bits in ("win64", "win32"):
        yield f"{bits}/Vela.ocx", build / bits / "Vela.ocx"
        yield f"{bits}/Vela.ocx.manifest", build / bits / "Vela.ocx.manifest"
        yield f"{bits}/Vela.tlb", build / bits / "activex" / "vela.tlb"
        yield f"{bits}/vela-console.exe", build / bits / "vela-console.exe"
        yield f"{bits}/pedido.exe", build / bits / "samples" / "pedido.exe"
        yield f"{bits}/pedido.exe.manifest", build / bits / "samples" / "pedido.exe.manifest"
    for name in ("README.txt", "install.cmd", "uninstall.cmd", "THIRD-PARTY.txt"):
        yield name, sources / "release" / name
    for name, package in NOTICES.items():
        yield f"licenses/{name}.txt", pathlib.Path("/usr/share/doc") / package / "copyright"
    yield "LICENSE.txt", sources / "LICENSE"
    yield "CHANGELOG.md", sources / "CHANGELOG.md"
    for path in sorted((sources / "samples").rglob("*")):
        if path.is_file():
            yield f"samples/{path.relative_to(sources / 'samples').as_posix()}", path


def stage(sources, build, folder):
    shutil.rmtree(folder, ignore_errors=True)
    version = folder.name.removeprefix("vela-")
    for name, path in entries(sources, build):
        target = folder / name
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content(path).replace(b"@VERSION@", version.encode()))
    make_manual(sources / "docs", folder / "manual", folder)


def settle(folder):
    sums = folder / "SHA256SUMS"
    sums.unlink(missing_ok=True)
    files = sorted(p for p in folder.rglob("*") if p.is_file())
    sums.write_text("".join(f"{hashlib.sha256(p.read_bytes()).hexdigest()}  {p.relative_to(folder).as_posix()}\n" for p in files), newline="\n")
    for path in [*files, sums]:
        os.utime(path, (FIXED_TIME, FIXED_TIME))
    return sorted([*files, sums])


def pack(folder, target):
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as package:
        for path in settle(folder):
            entry = zipfile.ZipInfo(path.relative_to(folder.parent).as_posix(), (2026, 1, 1, 0, 0, 0))
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            package.writestr(entry, path.read_bytes())


def main():
    action, *paths = sys.argv[1], *map(pathlib.Path, sys.argv[2:])
    {"stage": stage, "zip": pack}[action](*paths)


main()
