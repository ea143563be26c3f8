"""Do the tests notice? Makes each fault of breaks.txt in a copy of the sources, builds the tests there and runs them.

run.py [WORD]...    the breaks whose title or folder has one of the words; all without one; --sound: none, the copy as it is

A break in a folder without `by` is for the native programs; `by` names programs that run under Wine, 64 bit, each with
a filter where only a part of it could notice: `activex_tests:View.*`. Ends with 1 when a break escapes or when its text
no longer stands there once: a row out of date is adapted. The copy is build/breaks; it keeps what is built, so that a
break costs one file and the programs.
"""
import pathlib
import re
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
COPY = TOP / "build/breaks"
NATIVE = ["console_tests", "engine_tests", "control_tests", "popups_tests", "pages_tests", "contract_tests", "manual_tests"]
LIMIT = 900 # seconds; a program that takes longer has noticed


class Break:
    def __init__(self, text):
        head, *lines = text.split("\n")
        found = re.fullmatch(r"\[(\S+)(?: by ([^]]*))?\] (.*)", head)
        self.folder, self.title = found[1], found[3]
        self.programs = (found[2] or "").split()
        self.old, self.new = ("\n".join(line[2:] for line in lines if line.startswith(sign)) for sign in "-+")

    def file(self):
        """The one file in the folder where the text stands, once."""
        where = [path for path in sorted((COPY / self.folder).rglob("*"))
                 if path.suffix in (".cpp", ".h") for _ in range(path.read_text(encoding="utf-8").count(self.old))]
        return where[0] if len(where) == 1 else None


def breaks():
    text = (pathlib.Path(__file__).parent / "breaks.txt").read_text(encoding="utf-8")
    return [Break(part.strip("\n")) for part in text.split("\n\n") if part.startswith("[")]


def run(command, limit=LIMIT):
    """The status, None when it took too long, and what was printed."""
    try:
        done = subprocess.run(["bash", "-c", f"set -euo pipefail; . scripts/lib.sh; {command}"], cwd=COPY, timeout=limit,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    except subprocess.TimeoutExpired as late:
        return None, (late.stdout or b"").decode(errors="replace")
    return done.returncode, done.stdout.decode(errors="replace")


def copy_sources():
    names = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=TOP, capture_output=True, check=True).stdout
    wanted = {name for name in names.decode().split("\n") if name and (TOP / name).is_file()}
    for path in [path for path in COPY.rglob("*") if path.is_file()] if COPY.exists() else []:
        name = path.relative_to(COPY).as_posix()
        if not name.startswith("build/") and name not in wanted:
            path.unlink()
    for name in wanted:
        content, target = (TOP / name).read_bytes(), COPY / name
        if not target.exists() or target.read_bytes() != content:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)
            target.chmod((TOP / name).stat().st_mode)


def program_notices(program, windows):
    """What noticed, or an empty text; a copy that does not build is an error of the row."""
    program, _, only = program.partition(":")
    preset, targets = ("win64", [program, "velaocx", "keepalive"]) if windows else ("native-asan", [program, "vela-console"])
    status, printed = run(f"compile {preset} {' '.join(targets)}", 3600)
    if status != 0:
        raise ValueError(f"it does not build\n{printed[-1500:]}")
    command = f"timeout {LIMIT} build/native-asan/tests/{program}"
    if windows:
        command = ("trap clean_up EXIT; start_display; start_wine 64; scripts/wine-command 64 regsvr32 /s build/win64/Vela.ocx; "
                   f"timeout {LIMIT} scripts/wine-command 64 build/win64/tests/{program}.exe '--gtest_filter={only or '*'}'")
    status, printed = run(command, LIMIT + 60)
    failed = dict.fromkeys(name for name in re.findall(r"^\[  FAILED  \] (\S+?),? ", printed, re.M) if not name.isdigit())
    return ", ".join(list(failed)[:3]) or (f"{program} ended with {status}" if status != 0 else "")


def notices(folder, programs):
    """What the first program that notices says; the transcripts are asked first, but of the engine."""
    native = sorted(NATIVE, key=lambda program: folder == "engine" and program != "engine_tests")
    for program in programs or native:
        if noticed := program_notices(program, bool(programs)):
            return noticed
    command = "python3 tests/console/program_test.py build/native-asan/vela-console tests/console/scripts"
    return "program_test.py" if not programs and run(command)[0] != 0 else ""


def main():
    words = sys.argv[1:]
    chosen = [row for row in breaks() if not words or any(word in f"{row.folder} {row.title}" for word in words)]
    copy_sources()
    if words == ["--sound"]:
        for programs in ([], sorted({program for row in breaks() for program in row.programs})):
            print(f"sound: {notices('', programs) or 'nothing noticed'}", flush=True)
        return 0
    bad = 0
    for row in chosen:
        file = row.file()
        if not file:
            bad += 1
            print(f"row out of date  [{row.folder}] {row.title}", flush=True)
            continue
        sound = file.read_text(encoding="utf-8")
        file.write_text(sound.replace(row.old, row.new), encoding="utf-8")
        try:
            noticed = notices(row.folder, row.programs)
            bad += not noticed
            print(f"{'caught ' if noticed else 'ESCAPED'} [{row.folder}] {row.title}: {noticed}", flush=True)
        except ValueError as fault:
            bad += 1
            print(f"row out of date  [{row.folder}] {row.title}: {fault}", flush=True)
        finally:
            file.write_text(sound, encoding="utf-8")
    print(f"{len(chosen) - bad} of {len(chosen)} caught")
    return 1 if bad or not chosen else 0


sys.exit(main())
