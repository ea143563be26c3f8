"""The code that readers copy: every fence of the manual, every sample, and what each does to the control."""
import pathlib
import re
from html.parser import HTMLParser

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
SUFFIXES = {".vbs": "vbs", ".js": "js", ".cpp": "cpp", ".cs": "csharp", ".vb": "vbnet", ".frm": "frm", ".bas": "vb",
            ".hta": "html", ".ahk": "ahk", ".dpr": "pascal", ".cmd": "cmd", ".vbp": "vbp", ".csproj": "xml",
            ".manifest": "xml"}
OUTPUT_OF = {"vela", "vbs", "js", "cpp"}  # a fence without a language behind one of these is what it prints


class Block:
    def __init__(self, place, language, code, line=1):
        self.place, self.language, self.code, self.line = place, language, code, line
        self.output = None

    def __str__(self):
        return f"{self.place}:{self.line}"


def pages():
    found = [TOP / "README.md", TOP / "README.pt-BR.md", TOP / "CONTRIBUTING.md", *TOP.glob("docs/**/*.md"),
             *TOP.glob("samples/**/*.md")]
    return sorted(path for path in found if path.exists())


def fences(path):
    """The fences of a page in order; the one behind a program without a language of its own is its output."""
    blocks, opened, before = [], None, None
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        if not line.startswith("```"):
            if opened:
                opened.code += line + "\n"
        elif not opened:
            opened = Block(path.relative_to(TOP).as_posix(), line[3:].strip(), "", number)
        else:
            if opened.language == "" and before and before.language in OUTPUT_OF and before.output is None:
                before.output = opened.code
            else:
                blocks.append(opened)
                before = opened
            opened = None
    if opened:
        raise ValueError(f"{opened}: the fence is not closed")
    return blocks


def samples():
    for path in sorted((TOP / "samples").rglob("*")):
        if path.is_file() and path.suffix != ".md":
            yield Block(path.relative_to(TOP).as_posix(), SUFFIXES.get(path.suffix, path.suffix),
                        path.read_text(encoding="utf-8"))


# --- The interface, from the definition that the type library is made of.

IDL = (TOP / "activex/idl/vela.idl").read_text(encoding="utf-8")


def members_of(interface):
    body = re.search(r"dispinterface " + interface + r"\s*\{(.*?)\n    \}", IDL, re.S).group(1)
    return {found.lower() for found in re.findall(r"(\w+)\([^()]*\);", body)}


MEMBERS = members_of("IVela")
EVENTS = members_of("IVelaEvents")
HOST_EVENTS = {"gotfocus", "lostfocus", "validate", "enter", "exit", "updated", "beforeupdate", "afterupdate"}
ENUMERATORS = dict(re.findall(r"^        (\w+) = (\d+),?$", IDL, re.M))
HOST_MEMBERS = {"height", "left", "tabindex", "top", "width", "visible", "name", "parent", "setbounds", "setfocus", "object",
                "oleobject", "oleserver", "active", "_extentx", "_extenty"}

COMMENTS = {"vb": r"'[^\n]*", "frm": r"'[^\n]*", "vbnet": r"'[^\n]*", "html": r"'[^\n]*", "csharp": r"//[^\n]*",
            "pascal": r"//[^\n]*|\{[^}]*\}", "ahk": r"(?:^|(?<=\s));[^\n]*"}


def without_comments(code, language):
    """Comments become nothing; texts stay, and so do the lines."""
    text = r"'[^'\n]*'" if language == "pascal" else r'"(?:[^"\n]|"")*"'
    return re.sub(f"({text})|{COMMENTS[language]}", lambda found: found.group(1) or "", code, flags=re.M)


def script_value(source):
    """A literal of any of the languages as VBScript writes it; None for an expression."""
    source = source.strip().rstrip(";").strip()
    source = re.sub(r"^\(\w+\)", "", source)
    if re.fullmatch(r"(?i)true|false|-?\d+(\.\d+)?", source):
        return source
    if re.fullmatch(r"&H[0-9A-Fa-f]+&?", source):
        return str(int(source.strip("&")[1:], 16))
    if re.fullmatch(r'"(?:[^"]|"")*"', source):
        return source
    if re.fullmatch(r"'[^']*'", source):
        return '"' + source[1:-1].replace('"', '""') + '"'
    return ENUMERATORS.get(source.split(".")[-1])


PATH = r"[A-Za-z_]\w*(?:\([^()\n]*\))?(?:\.[A-Za-z_]\w*(?:\([^()\n]*\))?)*"
STATEMENT = re.compile(r"(?P<path>" + PATH + r")?\.(?P<member>\w+)(?:\s*(?P<put>:?=)(?!=)\s*(?P<value>\"(?:[^\"\n]|\"\")*\"|'[^'\n]*'|[^:\n;]+))?")


class Html(HTMLParser):
    """The objects, their parameters and the scripts of a page."""

    def __init__(self):
        super().__init__()
        self.objects, self.parameters, self.script, self.inside = [], [], "", False

    def handle_starttag(self, tag, attributes):
        names = dict(attributes)
        if tag == "object":
            self.objects.append(names.get("id", ""))
        elif tag == "param":
            self.parameters.append((self.objects[-1], names["name"], names["value"]))
        self.inside = tag == "script"

    def handle_endtag(self, tag):
        self.inside = False

    def handle_data(self, data):
        if self.inside:
            self.script += "\n" * (self.getpos()[0] - 1 - self.script.count("\n")) + data


def form_file(block):
    """A form file: the settings of its controls, and its code."""
    settings, control, depth = [], None, 0
    for number, line in enumerate(block.code.split("\n"), block.line):
        if begin := re.match(r"\s*Begin (\S+) (\w+)", line):
            control = begin.group(2) if begin.group(1) == "VelaLib.Vela" else None
        elif re.match(r"\s*End\s*$", line):
            control = None
        elif control and (setting := re.match(r"\s*(\w+)\s*=\s*(.*)", line)):
            if setting.group(1).lower() not in HOST_MEMBERS:
                value = script_value(re.sub(r"\s+'.*", "", setting.group(2)))
                settings.append((number, control, setting.group(1), value))
    return settings


def acts(block):
    """What the block does to fields: rows of line, field, member, value; the value is None where it is only read."""
    rows, code, fields = [], block.code, set()
    if block.language == "frm":
        rows = form_file(block)
    if block.language == "html":
        page = Html()
        page.feed(code)
        rows = [(block.line, field, name, '"' + value + '"') for field, name, value in page.parameters]
        fields, code = {field.lower() for field in page.objects}, page.script
    fields |= {row[1].lower() for row in rows}
    code = without_comments(code, block.language)
    found, within = [], ""
    for number, line in enumerate(code.split("\n"), block.line):
        opened = re.match(r"(?i)\s*with\s+(" + PATH + r")\s*$", line)
        within = opened.group(1) if opened else "" if re.match(r"(?i)\s*end with", line) else within
        if opened:
            continue
        compares = re.match(r"(?i)\s*(\w+\s+)?(if|elseif|while|until)\b", line)
        for statement in STATEMENT.finditer(line):
            path = (statement["path"] or within).lower()
            put = statement["put"] and not compares
            found.append((number, path, statement["member"], statement["value"] if put else None))
    fields |= {path for _, path, member, value in found if member.lower() == "texttype" and value is not None}
    fields |= {path for _, path, _, _ in found if re.search(r"\.(oleobject|oleserver|object)$", path)}
    for number, path, member, value in found:
        if path in fields and member.lower() not in HOST_MEMBERS:
            rows.append((number, path, member, script_value(value) if value is not None else None))
    for event in re.finditer(r"\b(\w+?)_(\w+)\s*\(", code):
        if event.group(1).lower() in fields and event.group(2).lower() not in EVENTS | HOST_EVENTS:
            raise ValueError(f"{block}: the control has no event {event.group(2)}")
    for number, _, member, _ in rows:
        if member.lower() not in MEMBERS:
            raise ValueError(f"{block.place}:{number}: the control has no member {member}")
    return rows
