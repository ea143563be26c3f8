"""Do the tests notice? Makes each fault of breaks.txt in a copy of the sources, builds the tests there and runs them.

run.py [WORD]...    the breaks whose first line has one of the words (`[engine]`, `activex_tests`, a title), all without one;
                    --sound: none, the copy as it is

A break in a folder without `by` is for the native programs; `by` names programs that run under Wine, 64 bit, each with
a filter where only a part of it could notice: `activex_tests:View.*`. Ends with 1 when a break escapes or is not tried:
its text no longer stands there once, which is a row to adapt, or the copy does not build or start. The copy is
build/breaks, for one run at a time; it keeps what is built, so that a break costs one file and the programs.
"""
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
COPY = TOP / "build/breaks"
NATIVE = ["console_tests", "engine_tests", "control_tests", "popups_tests", "pages_tests", "contract_tests", "manual_tests"]
LIMIT = 900 # seconds; a program that takes longer has noticed


class Break:
    def __init__(self, text):
        self.head, *lines = text.split("\n")
        found = re.fullmatch(r"\[(\S+)(?: by ([^]]*))?\] (.*)", self.head)
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
    with tempfile.TemporaryFile() as output:
        shell = subprocess.Popen(["bash", "-c", f"set -euo pipefail; . scripts/lib.sh; {command}"], cwd=COPY,
                                 stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT, start_new_session=True)
        status = None
        try:
            status = shell.wait(limit)
        except subprocess.TimeoutExpired:
            pass
        finally:
            if shell.poll() is None: # ended so, it still stops its display and its Wine
                os.killpg(shell.pid, signal.SIGTERM)
                shell.wait()
        output.seek(0)
        return status, output.read().decode(errors="replace")


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
    """What noticed, or an empty text; a copy that does not build, or whose program does not start, is an error of the row."""
    program, _, only = program.partition(":")
    registered = [] if program == "contract_tests" else ["velaocx"]
    preset, targets = ("win64", [program, "keepalive", *registered]) if windows else ("native-asan", [program, "vela-console"])
    status, printed = run(f"compile {preset} {' '.join(targets)}", 3600)
    if status != 0:
        raise ValueError(f"it does not build\n{printed[-1500:]}")
    command = f"timeout {LIMIT} build/native-asan/tests/{program}"
    if windows:
        register = "timeout 120 scripts/wine-command 64 regsvr32 /s build/win64/Vela.ocx || true; " if registered else ""
        command = (f"trap clean_up EXIT; start_display; start_wine 64; {register}"
                   f"timeout {LIMIT} scripts/wine-command 64 build/win64/tests/{program}.exe '--gtest_filter={only or '*'}'")
    status, printed = run(command, LIMIT + 240)
    if not re.search(r"^\[ RUN ", printed, re.M):
        raise ValueError(f"{program} does not start, or its filter names nothing\n{printed[-1500:]}")
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


def tried(row):
    """What became of the break, and who noticed or what stood in the way."""
    file = row.file()
    if not file:
        return "NOT TRIED", "its text does not stand there once"
    sound = file.read_text(encoding="utf-8")
    file.write_text(sound.replace(row.old, row.new), encoding="utf-8")
    try:
        noticed = notices(row.folder, row.programs)
        return "caught" if noticed else "ESCAPED", noticed
    except ValueError as fault:
        return "NOT TRIED", str(fault)
    finally:
        file.write_text(sound, encoding="utf-8")


def main():
    words = sys.argv[1:]
    chosen = [row for row in breaks() if not words or any(word in row.head for word in words)]
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1)) # ended, it ends what it has started
    copy_sources()
    if words == ["--sound"]:
        for programs in ([], sorted({program for row in breaks() for program in row.programs})):
            print(f"sound: {notices('', programs) or 'nothing noticed'}", flush=True)
        return 0
    caught = 0
    for row in chosen:
        start = time.monotonic()
        outcome, detail = tried(row)
        caught += outcome == "caught"
        print(f"{outcome:9} {row.head}: {detail} ({time.monotonic() - start:.0f} s)", flush=True)
    print(f"{caught} of {len(chosen)} caught")
    return 0 if 0 < caught == len(chosen) else 1


sys.exit(main())
