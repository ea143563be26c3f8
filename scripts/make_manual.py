"""The manual as pages that any browser shows: make_manual(DOCS, TARGET, RELEASE), from every Markdown file below DOCS.

Each folder with a README.md becomes a manual of its own with a list of its pages; docs/en and docs/pt-BR, where there
are such, are two. Beside the pages stands an index of words in the order of the alphabet: headings and members.
A link that leads nowhere ends the making; one to a file that the release does not hold loses its underline only.
"""
import html
import os
import pathlib
import re
import shutil
import sys
import unicodedata
import urllib.parse

from markdown_it import MarkdownIt

STYLE = """body { font: 16px/1.5 "Segoe UI", Arial, sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; color: #222; }
nav { border-bottom: 1px solid #bbb; padding-bottom: .5em; } nav a { margin-right: 1.5em; }
a { color: #0b5cad; } img { max-width: 100%; } h1, h2, h3 { line-height: 1.2; margin-top: 1.6em; }
code, pre { font: 14px/1.4 Consolas, monospace; background: #f3f3f3; } pre { padding: .8em; overflow-x: auto; }
table { border-collapse: collapse; } th, td { border: 1px solid #bbb; padding: .3em .6em; text-align: left; vertical-align: top; }
ul.index { columns: 3 16em; list-style: none; padding: 0; }
"""
PAGE = """<!DOCTYPE html>
<html lang="{language}">
<head><meta charset="utf-8"><title>{title} - Vela</title><link rel="stylesheet" href="{up}manual.css"></head>
<body>
<nav>{links}</nav>
{body}
</body>
</html>
"""
# A manual's first page, its index, and its own language, as it calls them.
WORDS = {"pt-BR": ("Início", "Índice alfabético", "Português"), "en": ("Start", "Index", "English")}
RENAMED = {"README.md": "README.txt", "LICENSE": "LICENSE.txt", "README.pt-BR.md": "README.txt"}
HEADING = re.compile(r'<h([1-3]) id="([^"]*)">(.*?)</h\1>', re.S)
MEMBER_ROW = re.compile(r"<tr>\s*<td><code>(\w+)</code></td>")


# As the places where Markdown is read online make them: "Coming from `Mask`" -> "coming-from-mask"
def slug(text):
    return re.sub(r"[^\w\- ]", "", text.lower()).strip().replace(" ", "-")


def page_name(path):
    return path.parent / ("index.html" if path.name == "README.md" else path.stem + ".html")


def plain(text):
    return html.unescape(re.sub(r"<[^>]+>", "", text)).strip()


class Manual:
    def __init__(self, docs, target, release):
        self.docs, self.target, self.release = docs, target, release
        self.sources = sorted(p.relative_to(docs) for p in docs.rglob("*.md"))
        self.roots = [pathlib.PurePath(".")] if (docs / "README.md").exists() else []
        self.roots += [p.parent for p in self.sources if p.name == "README.md" and p.parent.name in WORDS]
        self.entries = {root: set() for root in self.roots}
        self.broken, self.places, self.wanted = [], {}, []

    def root_of(self, page):
        return max((r for r in self.roots if r == pathlib.PurePath(".") or r in page.parents), key=lambda r: len(r.parts),
                   default=self.roots[0] if self.roots else pathlib.PurePath("."))

    def words(self, root):
        return WORDS.get(root.name, WORDS["en"])

    def link(self, source, href):
        if re.match(r"[a-z]+:", href):
            return href
        path, _, place = href.partition("#")
        path = path or source.name
        wanted = pathlib.PurePath(os.path.normpath(source.parent / path))
        end = "#" + place if place else ""
        if wanted.parts[:1] != ("..",):
            if not (self.docs / wanted).exists():
                self.broken.append(f"{source}: {href}")
            if (self.docs / wanted).is_dir():
                wanted /= "README.md"
            if wanted.suffix != ".md":
                return path + end
            if place:
                self.wanted.append((source, href, page_name(wanted), urllib.parse.unquote(place)))
            return os.path.relpath(page_name(wanted), source.parent) + end
        outside = pathlib.PurePath(*wanted.parts[1:])
        if not (self.docs.parent / outside).exists():
            self.broken.append(f"{source}: {href}")
        inside = outside.parent / RENAMED.get(outside.name, outside.name) if outside.parent == pathlib.PurePath(".") else outside
        if (self.release / inside).is_dir() and (self.release / inside / "README.md").exists():
            inside /= "README.md"
        return os.path.relpath(pathlib.PurePath("..") / inside, source.parent) + end if (self.release / inside).is_file() else None

    def body(self, source):
        text = MarkdownIt("commonmark", {"html": False}).enable("table").render((self.docs / source).read_text(encoding="utf-8"))
        taken = {}

        def placed(match):
            name = slug(plain(match[2]))
            taken[name] = taken.get(name, -1) + 1
            name += f"-{taken[name]}" if taken[name] else ""
            return f'<h{match[1]} id="{name}">{match[2]}</h{match[1]}>'

        text = re.sub(r"<h([1-6])>(.*?)</h\1>", placed, text)

        def linked(match):
            href = self.link(source, html.unescape(match[1]))
            return f'<a href="{html.escape(href)}">{match[2]}</a>' if href else match[2]

        text = re.sub(r'<a href="([^"]*)">(.*?)</a>', linked, text, flags=re.S)
        for picture in re.findall(r'<img [^>]*src="([^"]*)"', text):
            if "://" not in picture and not (self.docs / source.parent / picture).exists():
                self.broken.append(f"{source}: {picture}")
        return MEMBER_ROW.sub(lambda m: f'<tr id="{m[1]}"><td><code>{m[1]}</code></td>', text)

    def collect(self, page, root, body):
        entries = self.entries[root] if root in self.entries else set()
        self.places[page] = set(re.findall(r' id="([^"]*)"', body))
        title = next((plain(m[3]) for m in HEADING.finditer(body)), page.stem)
        for match in HEADING.finditer(body):
            word = plain(match[3])
            entries.add((word if match[1] == "1" or word == title else f"{word} ({title})", page, match[2]))
        for member in re.findall(r'<tr id="(\w+)">', body):
            entries.add((f"{member} ({title})", page, member))
        return title

    def write(self, page, root, title, body):
        up = os.path.relpath(".", page.parent) + "/"
        start, index = self.words(root)[:2]
        home = os.path.relpath(root, page.parent)
        links = [(f"{home}/index.html", start)]
        links += [(f"{home}/words.html", index)] if self.has_index(root) else []
        links += [(f"{os.path.relpath(other, page.parent)}/index.html", self.words(other)[2]) for other in self.roots if other != root and other.name]
        target = self.target / page
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(PAGE.format(language=root.name or "en", title=html.escape(title), up=up, body=body,
                                       links="".join(f'<a href="{href}">{word}</a>' for href, word in links)).encode())

    def has_index(self, root):
        return root.name in WORDS or len(self.roots) == 1

    def index_page(self, root):
        def key(entry):
            return unicodedata.normalize("NFD", entry[0]).encode("ascii", "ignore").decode().casefold(), entry[0], str(entry[1]), entry[2]

        body, letter = f"<h1>{self.words(root)[1]}</h1>", ""
        for word, page, place in sorted(self.entries[root], key=key):
            first = next((c for c in key((word, "", ""))[0] if c.isalnum()), "#").upper()
            if first != letter:
                body += ("</ul>" if letter else "") + f"<h2>{first}</h2><ul class=\"index\">"
                letter = first
            body += f'<li><a href="{os.path.relpath(page, root)}#{place}">{html.escape(word)}</a></li>'
        self.write(root / "words.html", root, self.words(root)[1], body + ("</ul>" if letter else ""))

    # Where no README.md names the manuals there are.
    def door(self):
        links = "".join(f'<li><a href="{root.as_posix()}/index.html">{self.words(root)[2]}</a></li>' for root in self.roots)
        page = PAGE.format(language="en", title="Manual", up="", links="", body=f"<h1>Vela</h1><ul>{links}</ul>")
        (self.target / "index.html").write_text(page, encoding="utf-8")

    def make(self):
        self.target.mkdir(parents=True)
        (self.target / "manual.css").write_text(STYLE)
        for source in self.sources:
            root, page, body = self.root_of(source), page_name(source), self.body(source)
            self.write(page, root, self.collect(page, root, body), body)
        for path in sorted(self.docs.rglob("*.png")):
            copy = self.target / path.relative_to(self.docs)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(path, copy)
        for root in filter(self.has_index, self.roots):
            self.index_page(root)
        self.broken += [f"{source}: {href}" for source, href, page, place in self.wanted if place not in self.places.get(page, ())]
        if not (self.target / "index.html").exists():
            self.door()
        if self.broken:
            sys.exit("links that lead nowhere:\n" + "\n".join(self.broken))


def make_manual(docs, target, release):
    Manual(docs, target, release).make()
