"""Fails when the link map of the library shows thread-local variables with destructors, or the compiler's own threads.

A thread-local destructor holds the module until its thread ends, which then frees the code that is running. Threads of
the compiler's library leave handles behind whenever the module is unloaded.
"""

import re
import sys


def main():
    with open(sys.argv[1], encoding="utf-8", errors="replace") as file:
        # "libstdc++.a(atexit_thread.o)" and in the next line "fonts.cpp.obj (__cxa_thread_atexit)"
        included = file.read().split("Discarded input sections")[0].split("Memory Configuration")[0]
    pairs = re.findall(r"^(\S+\([^)\n]+\))\s+(\S[^\n]*)$", included, re.M)
    if not pairs:
        sys.exit(f"{sys.argv[1]}: no archive members; is this a link map?")
    bad = [f"{member} for {reason}" for member, reason in pairs
           if "thread_atexit" in reason or "emutls" in member or "-thread.o" in member]
    if bad:
        sys.exit("thread storage in the library:\n" + "\n".join(bad))


main()
