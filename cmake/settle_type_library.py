"""Takes the hour of its making out of a type library, so that the same sources give the same bytes."""
import re
import struct
import sys

FIXED_TEXT = b"Thu Jan  1 00:00:00 2026"
FIXED_TIME = 1767225600  # the same moment, in seconds since 1970
UNSIGNED_LONG = struct.pack("<H", 19)


def main():
    path = sys.argv[1]
    data = bytearray(open(path, "rb").read())
    made = re.search(rb"Created by WIDL version [^ ]+ at (.{24})", bytes(data), re.S)
    if not made:
        return  # another compiler, which leaves no trace of the hour
    data[made.start(1):made.end(1)] = FIXED_TEXT
    number = data.find(UNSIGNED_LONG, made.end())
    if number < 0 or number - made.end() > 8:
        sys.exit(f"{path}: the time of its making is not where it was expected")
    data[number + 2:number + 6] = struct.pack("<I", FIXED_TIME)
    open(path, "wb").write(data)


main()
