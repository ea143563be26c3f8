"""Proves the arrows of the layering: which room may include which, and that neutral rooms name no system header."""
import pathlib
import re
import sys

ENGINE = {"engine", "engine/text", "engine/field"}
ROOMS = {
    "engine": {"engine"},
    "engine/text": {"engine", "engine/text"},
    "engine/field": ENGINE,
    "platform": ENGINE | {"platform"},
    "platform/headless": ENGINE | {"platform", "platform/headless"},
    "platform/win32": ENGINE | {"platform", "platform/win32"},
    "tooltip": ENGINE | {"platform", "tooltip"},
    "popups": ENGINE | {"platform", "popups"},
    "control": ENGINE | {"platform", "popups", "tooltip", "control"},
    "pages": ENGINE | {"platform", "pages"},
}
NEUTRAL = set(ROOMS) - {"platform/win32"}
STANDARD = set("""algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes
climits clocale cmath compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream functional
future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex
source_location span sstream stack stdexcept stop_token streambuf string string_view syncstream system_error thread tuple
type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version""".split())
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
SYSTEM_TEST = re.compile(r"^\s*#\s*if.*\b(_WIN32|WIN32|__linux__|__unix__|__MINGW32__)\b", re.M)


def room_of(path):
    return max((room for room in ROOMS if path == room or path.startswith(room + "/")), key=len, default=None)


def faults_in(root, file):
    path = file.relative_to(root).as_posix()
    room = room_of(path)
    text = file.read_text(encoding="utf-8")
    for kind, header in INCLUDE.findall(text):
        if kind == '"':
            target = room_of(header)
            if target is None or target not in ROOMS[room]:
                yield f"{path}: {room} may not include {header}"
        elif room in NEUTRAL and header not in STANDARD:
            yield f"{path}: {header} is no header of the standard library"
    if room in NEUTRAL and SYSTEM_TEST.search(text):
        yield f"{path}: asks which system it is built for"


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    files = [f for top in ("engine", "platform", "tooltip", "popups", "control", "pages")
             for f in sorted((root / top).rglob("*")) if f.suffix in (".h", ".cpp")]
    faults = [fault for file in files for fault in faults_in(root, file)]
    if not files:
        faults = ["no source files found"]
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


sys.exit(main())
