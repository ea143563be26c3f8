// What the process has in use, counted also where the system's own counters are not kept.
#pragma once

#include <windows.h>

namespace vela::test {

struct Usage {
    Usage();

    int windows = 0;   // of this thread, hidden ones and those for messages only included
    int drawing = 0;   // pens, brushes, fonts, bitmaps, regions, contexts
    int handles = 0;   // of files, events and the like
    SIZE_T memory = 0; // bytes of its own
};

// A number from the environment above 0, or the other one: how long or often a test shall run.
[[nodiscard]] int asked(const char* variable, int otherwise);

// Fails the test when more is in use than before, beyond what a caching system takes.
void expectFlat(const Usage& before, const Usage& after, SIZE_T memoryAllowed);

} // namespace vela::test
