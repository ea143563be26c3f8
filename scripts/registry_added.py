"""What stands in the second export of a registry and not in the first: registry_added.py BEFORE AFTER [OLD=NEW]...

A line for each key and each value, in order, with OLD replaced by NEW. Ends with 1 when a value of the first is gone or
changed. What the system's installer keeps of its own (Classes\\Installer) is no matter of the program's. An empty text as a key's own value is left out: installers and the library write keys that are their own meaning.
"""
import pathlib
import sys


def lines_of(path):
    text = pathlib.Path(path).read_text(encoding="utf-16").replace("\\\n", "")
    key = ""
    for line in text.splitlines()[1:]:
        if line.startswith("["):
            key = line
        if "\\Classes\\Installer" in key:
            continue
        if line.startswith("["):
            yield key
        elif line and line != '@=""':
            yield f"{key} {line}"


def main():
    before, after = (set(lines_of(path)) for path in sys.argv[1:3])
    for line in sorted(after - before):
        for rule in sys.argv[3:]:
            line = line.replace(*rule.split("=", 1))
        print(line)
    gone = sorted(line for line in before - after if not line.endswith("]"))
    if gone:
        sys.exit("gone: " + "\n".join(gone[:20]))


main()
