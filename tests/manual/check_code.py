"""No code without a proof: every fence of the manual and every sample is run, compiled or replayed on the control.

check_code.py native        parses, compiles C#, compares the languages of the manual, looks links up
check_code.py 64|32         runs scripts and C++ programs under Wine on the registered Vela.ocx, replays the rest
check_code.py list          what is done with each block
check_code.py pascal FOLDER writes the forms that `./test hosts:lazarus` compiles

How each language is treated (a fence of any other language fails):
  vela          run by vela-console, what it prints compared
  vbs, js       run by cscript, what they print compared
  cpp           compiled as its head says or with the system's libraries, run with --values, what it prints compared
  csharp        compiled with Mono's compiler, and replayed
  vb, vbnet, pascal, ahk, html, frm
                replayed: each property put or read, name by name, on the registered control
  cmd           each line a command that is known; registrations are run
  sh            parsed; the step for continuous integration is run
  xml, reg      parsed
  text          no code: a drawing
The tests that the manual names are looked up.
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree

from code_blocks import TOP, acts, fences, pages, samples

REPLAYED = {"vb", "vbnet", "pascal", "ahk", "html", "frm", "csharp"}
LANGUAGES = REPLAYED | {"vela", "vbs", "js", "cpp", "cmd", "sh", "xml", "reg", "vbp", "text"}
COMMANDS = r"(?i)@echo|rem|regsvr32|install\.cmd|uninstall\.cmd|msiexec|cscript|csc|vbc|dotnet|reg|del|copy|cd|signtool|vela-console"
WORK = TOP / "build/manual" / "".join(sys.argv[1:2])  # the parts of ./test run at the same time


def run(command, encoding="utf-8", **more):
    """The status and what was printed."""
    try:
        done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120, **more)
    except subprocess.TimeoutExpired as late: # a box that nobody answers
        raise ValueError(f"{command[-1]} did not end: {(late.stdout or b'').decode(encoding, 'replace')[-300:]}") from late
    return done.returncode, done.stdout.decode(encoding, "replace").replace("\r", "")


def must(block, command, **more):
    status, printed = run(command, **more)
    if status != 0:
        raise ValueError(f"{block}: {' '.join(map(str, command))}\n{printed[-2000:]}")
    return printed


def written(block, suffix, encoding="utf-8"):
    WORK.mkdir(parents=True, exist_ok=True)
    path = WORK / (re.sub(r"\W+", "-", str(block)) + suffix)
    path.write_text(block.code, encoding=encoding)
    return path


def all_blocks():
    """Every block once: the languages of the manual share theirs."""
    seen = set()
    for block in [*samples(), *(fence for page in pages() for fence in fences(page))]:
        if (block.language, block.code) not in seen:
            seen.add((block.language, block.code))
            yield block


# --- What needs no Windows.

CONSOLE = TOP / "build/native-asan/vela-console"


def check_example(block):
    printed = run([CONSOLE, written(block, ".vela")])[1]
    if printed != block.output:
        raise ValueError(f"{block}: it printed\n{printed}")


def check_shell(block):
    script = written(block, ".sh")
    must(block, ["bash", "-n", script])
    if "forms/*.vela" in block.code:
        check_pipeline(block, script)


def check_pipeline(block, script):
    """The step for continuous integration passes forms that keep their expectations, and no others."""
    folder = WORK / "pipeline"
    (folder / "forms").mkdir(parents=True, exist_ok=True)
    form = next(other.code for other in fences(TOP / block.place) if re.search(r"(?m)^expect .*1\.234,50", other.code))
    path = f"{CONSOLE.parent}:{os.environ['PATH']}"
    for code, expected in ((form, 0), (form.replace("1.234,50", "1.234,51"), 1)):
        (folder / "forms/form.vela").write_text(code, encoding="utf-8")
        if run(["bash", script], cwd=folder, env={**os.environ, "PATH": path})[0] != expected:
            raise ValueError(f"{block}: it did not end with {expected}")


def check_xml(block):
    xml.etree.ElementTree.fromstring(block.code.encode())


def check_registry(block):
    lines = [line for line in block.code.split("\n") if line]
    if lines[0] != "Windows Registry Editor Version 5.00":
        raise ValueError(f"{block}: not a registry file")
    for line in lines[1:]:
        if not re.fullmatch(r'\[-?HKEY_(CURRENT_USER|LOCAL_MACHINE|CLASSES_ROOT)\\[^]]+\]|("[^"]+"|@)=("[^"]*"|dword:[0-9a-f]{8}|-)', line):
            raise ValueError(f"{block}: {line}")


def check_commands(block):
    for line in filter(None, block.code.split("\n")):
        word = line.split()[0].split("\\")[-1].removesuffix(".exe")
        if not re.fullmatch(COMMANDS, word):
            raise ValueError(f"{block}: an unknown command: {line}")


def check_project(block):
    identity = re.search(r"Object=\{([^}]+)\}#([\d.]+)#0; Vela\.ocx", block.code)
    if not identity or f"uuid({identity[1]}), version({identity[2]})" not in (TOP / "activex/idl/vela.idl").read_text():
        raise ValueError(f"{block}: not the identity of the type library")


def check_csharp(block):
    target = "winexe" if "static void Main" in block.code else "library"
    source = written(block, ".cs")
    must(block, ["mcs", "-nologo", f"-target:{target}", f"-out:{source.with_suffix('.exe')}", "-r:System.Windows.Forms",
                 "-r:System.Drawing", "-r:Microsoft.CSharp", "-warnaserror", source])


def check_identities(block):
    known = (TOP / "activex/identities.h").read_text().upper()
    for identity in re.findall(r"(?i)[0-9a-f]{8}-(?:[0-9a-f]{4}-){3}[0-9a-f]{12}", block.code):
        if identity.upper() not in known:
            raise ValueError(f"{block}: an unknown identity: {identity}")


NATIVE = {"vela": check_example, "sh": check_shell, "xml": check_xml, "reg": check_registry, "cmd": check_commands, "vbp": check_project,
          "csharp": check_csharp}


def same_in_both_languages():
    pairs = [(TOP / "docs/en" / name, TOP / "docs/pt-BR" / name)
             for name in {path.name for path in [*TOP.glob("docs/en/*.md"), *TOP.glob("docs/pt-BR/*.md")]}]
    for page, other in [*pairs, (TOP / "README.md", TOP / "README.pt-BR.md")]:
        if not page.exists() or not other.exists():
            raise ValueError(f"{page.name} is there in one language only")
        mine, theirs = ([(b.language, b.code, b.output) for b in fences(path)] for path in (page, other))
        mine = [block for block in mine if page.name != "README.md" or block[0] != "sh"]  # developers read English
        if mine != theirs:
            at = next((i for i, (a, b) in enumerate(zip(mine, theirs)) if a != b), min(len(mine), len(theirs)))
            raise ValueError(f"{other.relative_to(TOP)}: block {at + 1} is not that of {page.relative_to(TOP)}")


def anchors_of(page):
    headings = re.findall(r"(?m)^#+ (.*)$", page.read_text(encoding="utf-8"))
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def links_lead_somewhere():
    for page in {*pages(), *TOP.glob("*/README.md")}:
        for link, anchor in re.findall(r"\]\(([^)#\s]*)#?([^)\s]*)\)", page.read_text(encoding="utf-8")):
            if link.startswith("http"):
                continue
            target = page.parent / link if link else page
            if not target.exists() or (anchor and anchor not in anchors_of(target)):
                raise ValueError(f"{page.relative_to(TOP)}: a link to {link}#{anchor}, which is not there")


def named_tests_exist():
    tests = "".join(path.read_text(encoding="utf-8") for path in (TOP / "tests").rglob("*.cpp"))
    page = (TOP / "docs/en/tested.md").read_text(encoding="utf-8")
    for suite, name in re.findall(r"`([A-Z]\w+)\.([A-Z]\w+)`", page):
        if not re.search(rf"TEST(_F|_P)?\({suite},\s*{name}\)", tests):
            raise ValueError(f"docs/en/tested.md: no test {suite}.{name}")


def native():
    for block in all_blocks():
        if block.language not in LANGUAGES:
            raise ValueError(f"{block}: a block of the unknown language '{block.language}'")
        check_identities(block)
        if block.language in REPLAYED and not acts(block):
            raise ValueError(f"{block}: nothing in it touches the control, so that nothing of it is tested")
        NATIVE.get(block.language, lambda _: None)(block)
    same_in_both_languages()
    named_tests_exist()
    links_lead_somewhere()


# --- On the registered control.

def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def script(bits, block):
    """A script that dies says nothing and answers 0: its last word counts."""
    last = {"vbs": '\nWScript.Echo "passed"\n', "js": '\nWScript.Echo("passed");\n'}[block.language]
    block.code += last
    path = written(block, "." + block.language, "cp1252")
    printed = must(block, [TOP / "scripts/wine-command", bits, "cscript", "//nologo", windows_path(path)], encoding="cp850")
    block.code = block.code.removesuffix(last)
    if not printed.endswith("passed\n"):
        raise ValueError(f"{block}: it died after\n{printed}")
    if block.output is not None and printed.removesuffix("passed\n") != block.output:
        raise ValueError(f"{block}: it printed\n{printed}")


def compiled(bits, block):
    compiler = {"64": "x86_64-w64-mingw32-g++", "32": "i686-w64-mingw32-g++"}[bits]
    source = written(block, ".cpp")
    built = source.with_suffix(f".{bits}.exe")
    must(block, [compiler, "-std=c++17", "-Wall", "-Werror", "-municode", source, "-o", built, "-static", "-lole32", "-loleaut32", "-luuid"])
    return built


def program(bits, block, built):
    expected = block.output if block.output is not None else "Text: 1234,50\nValue: 1234.5\n"
    printed = run([TOP / "scripts/wine-command", bits, built, "--values"])[1]
    if printed != expected:
        raise ValueError(f"{block}: it printed\n{printed}")


def replay(bits, blocks):
    """One script for all: the place is told before each act, so that the last line names the one that failed."""
    lines = ["Option Explicit", "Dim o, x"]
    for block in blocks:
        rows = acts(block)
        for field in dict.fromkeys(row[1].lower() for row in rows):
            lines.append('Set o = CreateObject("Vela.Vela")')
            for number, path, member, value in rows:
                if path.lower() != field or member.lower() == "about":
                    continue
                lines.append(f'WScript.Echo "{block.place}:{number} {member}"')
                lines.append(f"x = o.{member}" if value is None else f"o.{member} = {value}")
    lines.append('WScript.Echo "passed"')
    WORK.mkdir(parents=True, exist_ok=True)
    path = WORK / f"replay{bits}.vbs"
    path.write_text("\n".join(lines) + "\n", encoding="cp1252")
    printed = must(path, [TOP / "scripts/wine-command", bits, "cscript", "//nologo", windows_path(path)])
    if not printed.endswith("passed\n"):
        raise ValueError(f"replaying died at {printed.splitlines()[-1:]}")


def registrations(bits, blocks):
    """The lines of the manual that register and take back, as they stand; the folder is the build."""
    for block in blocks:
        for line in re.findall(r"(?m)^\S*regsvr32 .*$", block.code):
            if f"win{bits}" in line:
                words = re.sub(r"^\S*regsvr32", "regsvr32 /s", line).split()
                must(f"{block}: {line}", [TOP / "scripts/wine-command", bits, *words], cwd=TOP / "build")


def without_registration(bits, built):
    """The manifest's sample, in a folder with the control: it works while nothing is registered, and only with the manifest."""
    folder = WORK / f"alone{bits}"
    folder.mkdir(parents=True, exist_ok=True)
    manifest = (TOP / "samples/manifest/pedido.exe.manifest").read_text(encoding="utf-8")
    if bits == "32":
        manifest = manifest.replace("amd64", "x86")
    for name in ("Vela.ocx", "Vela.ocx.manifest"):
        (folder / name).write_bytes((TOP / f"build/win{bits}" / name).read_bytes())
    for name in ("pedido.exe", "bare.exe"):
        (folder / name).write_bytes(built.read_bytes())
    (folder / "pedido.exe.manifest").write_text(manifest, encoding="utf-8")
    register = [TOP / "scripts/wine-command", bits, "regsvr32", "/s"]
    must("regsvr32 /u", [*register, "/u", TOP / f"build/win{bits}/Vela.ocx"])
    try:
        bare, with_manifest = (run([TOP / "scripts/wine-command", bits, folder / name, "--values"])[1]
                               for name in ("bare.exe", "pedido.exe"))
    finally:
        must("regsvr32", [*register, TOP / f"build/win{bits}/Vela.ocx"])
    if "not registered" not in bare or with_manifest != "Text: 1234,50\nValue: 1234.5\n":
        raise ValueError(f"samples/manifest: without it {bare!r}, with it {with_manifest!r}")


def windows(bits):
    blocks = list(all_blocks())
    registrations(bits, [block for block in blocks if block.language == "cmd"])
    must("regsvr32", [TOP / "scripts/wine-command", bits, "regsvr32", "/s", TOP / f"build/win{bits}/Vela.ocx"])
    replay(bits, [block for block in blocks if block.language in REPLAYED])
    programs = [block for block in blocks if block.language == "cpp"]
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        compiling = [pool.submit(compiled, bits, block) for block in programs]
        for block in blocks:
            if block.language in ("vbs", "js"):
                script(bits, block)
    for block, built in zip(programs, compiling):
        program(bits, block, built.result())
        if block.place == "samples/cpp/pedido.cpp":
            without_registration(bits, built.result())


def pascal_units(folder):
    """The forms of the manual that use the imported unit, each beside a form file, for a compiler that has that unit."""
    for block in all_blocks():
        unit = re.match(r"unit (\w+);", block.code) if block.language == "pascal" else None
        if unit and "VelaLib_1_0_TLB" in block.code:
            form = re.search(r"(\w+): T(\w+);\s*implementation", block.code)
            pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
            (pathlib.Path(folder) / f"{unit[1].lower()}.pas").write_text(block.code, encoding="utf-8")
            (pathlib.Path(folder) / f"{unit[1].lower()}.lfm").write_text(f"object {form[1]}: T{form[2]}\nend\n")


def tell():
    how = {"vela": "run by vela-console", "vbs": "run by cscript", "js": "run by cscript", "cpp": "compiled and run",
           "csharp": "compiled by mcs and replayed", "cmd": "known commands; registrations run", "sh": "bash -n; the pipeline's step run", "xml": "parsed",
           "reg": "parsed", "vbp": "identity compared", "text": "no code"}
    for block in all_blocks():
        print(f"{block}\t{block.language}\t{how.get(block.language, 'replayed')}")


if __name__ == "__main__":
    try:
        {"native": native, "list": tell, "pascal": lambda: pascal_units(sys.argv[2])}.get(sys.argv[1], lambda: windows(sys.argv[1]))()
    except ValueError as fault:
        sys.exit(str(fault))
