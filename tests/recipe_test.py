#!/usr/bin/env python3
"""Follows CONTRIBUTING's recipe "Add a property" on a copy of the tree, builds the console and the writer of the interface
definition there, and sees the new property put, told, saved, loaded, edited on its page and published. Takes a few minutes:
it is run by hand. `recipe_test.py --leave-out STEP` leaves one step out and must fail.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parent.parent
MOST_FILES = 3
STEP = re.compile(r"^\d\. `(?P<file>[^`]+)`, at the (?P<place>top|end) of `(?P<list>[^`]+)`.*?   ```cpp\n(?P<code>.*?)   ```", re.M | re.S)

SCRIPT = """new f
get f TextoDeAjuda
trace changed
set f TextoDeAjuda "leia"
trace none
save f
reload f
get f TextoDeAjuda
page open ppGeral f
page get txtAjuda
page set txtAjuda "outro"
page apply
get f TextoDeAjuda
load g
get g TextoDeAjuda
"""
ANSWERS = ['f.TextoDeAjuda = "ajuda"', 'changed f "TextoDeAjuda"', 'f "TextoDeAjuda" = "leia"', 'f.TextoDeAjuda = "leia"',
           'txtAjuda = "leia"', 'f.TextoDeAjuda = "outro"', 'g.TextoDeAjuda = "sem ajuda"']


def steps():
    text = (TOP / "CONTRIBUTING.md").read_text(encoding="utf-8")
    recipe = text[text.index("**Add a property.**"):text.index("**Add a letter")]
    return [match.groupdict() for match in STEP.finditer(recipe)]


def apply(tree, step):
    path = tree / step["file"]
    text = path.read_text(encoding="utf-8")
    start = text.index(step["list"])
    at = text.index("{\n", start) + 2 if step["place"] == "top" else text.index("\n});", start) + 1
    path.write_text(text[:at] + re.sub("^   ", "", step["code"], flags=re.M) + text[at:], encoding="utf-8")


def run(*command, **options):
    return subprocess.run([str(word) for word in command], check=True, text=True, encoding="utf-8",
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options).stdout


def build(tree):
    run("cmake", "-S", tree, "-B", tree / "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O0 -g0")
    run("cmake", "--build", tree / "build", "--target", "vela-console", "vela-idl")


def faults(tree):
    (tree / "recipe.vela").write_text(SCRIPT, encoding="utf-8")
    said = run(tree / "build/vela-console", tree / "recipe.vela").splitlines()
    rest = iter(said)
    for answer in ANSWERS:
        if answer not in rest:
            yield f"the console does not say: {answer}\nit says:\n" + "\n".join(said)
            return
    run(tree / "build/activex/vela-idl", tree / "with.idl")
    before = (TOP / "activex/idl/vela.idl").read_text(encoding="utf-8").splitlines()
    after = (tree / "with.idl").read_text(encoding="utf-8").splitlines()
    new = [line.strip() for line in after if line not in before]
    if len(after) != len(before) + 2 or len(new) != 2 or not all("[id(82)" in line and "TextoDeAjuda(" in line for line in new):
        yield "the interface definition has these new lines: " + "\n".join(new)


def main():
    recipe = steps()
    if not recipe or len(recipe) > MOST_FILES:
        return f"the recipe names {len(recipe)} files, {MOST_FILES} at most are allowed"
    if sys.argv[1:2] == ["--leave-out"]:
        del recipe[int(sys.argv[2]) - 1]
    with tempfile.TemporaryDirectory() as folder:
        tree = pathlib.Path(folder) / "vela"
        shutil.copytree(TOP, tree, ignore=shutil.ignore_patterns("build", ".git"))
        for step in recipe:
            apply(tree, step)
        try:
            build(tree)
            found = list(faults(tree))
        except subprocess.CalledProcessError as error:
            return f"{error}\n{error.stdout[-3000:]}"
    print(f"recipe: a property added in {len(recipe)} files, seen by the console and the interface definition")
    return "\n".join(found) or 0


if __name__ == "__main__":
    sys.exit(main())
