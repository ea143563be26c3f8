"""Every oddity that the code keeps stands in the manual, and every one of the manual in the code.

In the code a comment `// Oddity: RULE; WHAT WOULD BREAK` begins with the words of its line in docs/en/oddities.md. The
Portuguese page has as many lines under each heading.
"""
import re
import sys

from code_blocks import TOP

ROOMS = ["engine", "control", "popups", "tooltip", "pages", "platform", "activex", "apps"]
OPENING = 6  # as many words of the rule are compared
HABIT = re.compile(r"\bkept so\b|[,;] kept\.|as it (always was|has always been)", re.IGNORECASE)


def words(text):
    return [word.rstrip(".,:;") for word in text.replace("`", "").lower().split()]


def headings(language):
    """The lines of the page, a list for each heading."""
    found = []
    for line in (TOP / f"docs/{language}/oddities.md").read_text(encoding="utf-8").split("\n"):
        if line.startswith("**"):
            found.append([])
        elif line.startswith("- "):
            found[-1].append(line[2:])
        elif line.startswith("  ") and found:
            found[-1][-1] += " " + line.strip()
    return found


def comments(path):
    """The oddities of a source as (line, text); a comment goes on over whole lines of comment."""
    found, open_ = [], False
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        before, mark, text = line.partition("// Oddity:")
        if mark:
            found.append((number, text.strip()))
            open_ = not before.strip()
        elif open_ and line.strip().startswith("// "):
            found[-1] = (found[-1][0], found[-1][1] + " " + line.strip()[3:])
        else:
            open_ = False
        if HABIT.search(line.partition("//")[2]):
            found.append((number, line.strip()))  # says no rule, so it fails
    return found


def main():
    faults = []
    listed = [line for heading in headings("en") for line in heading]
    missing = set(listed)
    sources = [path for room in ROOMS for path in (TOP / room).rglob("*.*") if path.suffix in (".cpp", ".h")]
    for path in sorted(sources):
        name = path.relative_to(TOP).as_posix()
        for number, text in comments(path):
            rule, semicolon, broken = text.partition("; ")
            opening = " ".join(words(rule)[:OPENING]) + " "
            lines = [line for line in listed if opening in " ".join(words(line)) + " "]
            missing.difference_update(lines)
            if not semicolon or not broken:
                faults.append(f"{name}:{number} does not say what would break: {text}")
            if not lines:
                faults.append(f"{name}:{number} is not in the manual: {rule}")
    faults += [f"docs/en/oddities.md, but no comment in the code: {line}" for line in sorted(missing)]
    if list(map(len, headings("en"))) != list(map(len, headings("pt-BR"))):
        faults.append("docs/pt-BR/oddities.md has another number of lines under a heading")
    print("\n".join(faults) or f"{len(listed)} oddities")
    return 1 if faults or not listed else 0


sys.exit(main())
