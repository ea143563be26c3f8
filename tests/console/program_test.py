"""Runs the real vela-console over every transcript (scripts_test.cpp tells what one is), from a file and from standard input, and compares bytes and exit status."""
import pathlib
import subprocess
import sys


def expected(script):
    """What a transcript says it prints, what it says on standard error, and its exit status."""
    output, complaints, status, command = b"", b"", 0, 0
    for number, line in enumerate(script.read_bytes().split(b"\n"), 1):
        if line.startswith(b"#> "):
            output += line[3:] + b"\n"
        elif line.startswith(b"#! exit "):
            status = int(line[8:])
        elif line.startswith(b"#! "):
            complaints += b"line %d: %s\n" % (command, line[3:])
        else:
            command = number
    return output, complaints, status


def faults_of(program, script):
    output, complaints, status = expected(script)
    text = script.read_bytes()
    for how, run in (("file", subprocess.run([program, script], capture_output=True, timeout=60)),
                     ("input", subprocess.run([program], input=text, capture_output=True, timeout=60))):
        if (run.stdout, run.stderr, run.returncode) != (output, complaints, status):
            yield f"{script.name} by {how}: exit {run.returncode}\n{run.stderr.decode(errors='replace')}"


# Options, each with a script on standard input: exit status, what stands on the outputs (a text, or what it begins with).
ERROR = '"error":{"number":438,"source":"Vela","description":"Object doesn\'t support this property or method"}'
RUNS = (
    (["--version"], "", 0, "vela-console 1.0.0\n", ""),
    (["--help"], "", 0, "usage: vela-console", ""),
    (["--nonsense"], "", 1, "", "vela-console: no such option: --nonsense\n"),
    (["--strict"], "new f\nget f A\nprint \"no\"\n", 3, "error 438", "-:2: get: error 438"),
    (["--strict"], "new f\nget f A", 3, "error 438", "-:2: get: error 438"),
    (["--strict"], "new f\nget f A\n\nexpect-error 438\nprint \"on\"\n", 0, "error 438", ""),
    (["--strict"], "new f\nget f A\nexpect-error 5\nnonsense\n", 2, "error 438", "-:3: expected error 5, found error 438"),
    ([], "new f\nexpect f Text \"a\"\nget f A\n", 4, "error 438", 'line 2: expected f.Text = "a", found ""\n'),
    ([], "nonsense\nnew f\nexpect f Text \"a\"\n", 2, "", 'line 1: no such command: "nonsense"\nline 3: expected'),
    ([], "fcous none\n", 2, "", 'line 1: no such command: "fcous"; did you mean "focus"?\n'),
    (["--json"], "# none\nnew f\n get f Text\nget f A\n", 0,
     '{"line":2,"command":"new f","output":[],"error":null}\n'
     '{"line":3,"command":" get f Text","output":["f.Text = \\"\\""],"error":null}\n'
     '{"line":4,"command":"get f A","output":[],' + ERROR + '}\n', ""),
    (["--ansi"], "print \"a\u00e7\u00e3o\"\n", 0, "a\u00e7\u00e3o\n", ""),
)


def faults_of_runs(program):
    for arguments, script, status, output, complaints in RUNS:
        text = script.encode("cp1252" if "--ansi" in arguments else "utf-8")
        run = subprocess.run([program, *arguments], input=text, capture_output=True, timeout=60)
        good = run.returncode == status and run.stdout.decode().startswith(output) and run.stderr.decode().startswith(complaints)
        if not good or not output and run.stdout or not complaints and run.stderr:
            yield f"{arguments} {script!r}: exit {run.returncode}\n{run.stdout.decode()}{run.stderr.decode()}"
    commands = subprocess.run([program], input=b"help\n", capture_output=True, timeout=60).stdout.decode().split("\n")
    for command in {line.split()[0] for line in commands if line}:
        told = subprocess.run([program], input=f"help {command}\n".encode(), capture_output=True, timeout=60)
        if told.returncode != 0 or "\n  " not in told.stdout.decode():
            yield f"help {command}: {told.stdout.decode()}{told.stderr.decode()}"


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    scripts = sorted(folder.rglob("*.vela"))
    faults = [fault for script in scripts for fault in faults_of(program, script)]
    faults += faults_of_runs(program)
    for arguments, status in ((["no such file"], 1), (["one", "two"], 1)):
        if subprocess.run([program, *arguments], capture_output=True, timeout=60).returncode != status:
            faults.append(f"{arguments}: another exit status than {status}")
    if not scripts:
        faults.append("no scripts found")
    print("\n".join(faults) or f"{len(scripts)} scripts")
    return 1 if faults else 0


sys.exit(main())
