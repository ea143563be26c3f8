"""Runs the real vela-console over every script, from a file and from standard input, and compares bytes and exit status."""
import pathlib
import subprocess
import sys


def expected(script):
    complaints = script.with_suffix(".err")
    lines = complaints.read_bytes().split(b"\n", 1) if complaints.exists() else [b"exit 0", b""]
    return script.with_suffix(".txt").read_bytes(), lines[1], int(lines[0].split()[1])


def faults_of(program, script):
    output, complaints, status = expected(script)
    text = script.read_bytes()
    for how, run in (("file", subprocess.run([program, script], capture_output=True, timeout=60)),
                     ("input", subprocess.run([program], input=text, capture_output=True, timeout=60))):
        if (run.stdout, run.stderr, run.returncode) != (output, complaints, status):
            yield f"{script.name} by {how}: exit {run.returncode}\n{run.stderr.decode(errors='replace')}"


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    scripts = sorted(folder.rglob("*.vela"))
    faults = [fault for script in scripts for fault in faults_of(program, script)]
    for arguments, status in ((["no such file"], 1), (["one", "two"], 1)):
        if subprocess.run([program, *arguments], capture_output=True, timeout=60).returncode != status:
            faults.append(f"{arguments}: another exit status than {status}")
    if not scripts:
        faults.append("no scripts found")
    print("\n".join(faults) or f"{len(scripts)} scripts")
    return 1 if faults else 0


sys.exit(main())
