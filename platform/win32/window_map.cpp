// A table a thread, there while any window is bound, with the last answer at hand: messages come in runs.
#include "platform/win32/window_map.h"

#include <unordered_map>

namespace vela::win32 {
namespace {

struct Table {
    std::unordered_map<HWND, void*> objects;
    HWND lastWindow = nullptr;
    void* lastObject = nullptr;
};

thread_local Table* table = nullptr;

} // namespace

void bindObject(HWND window, void* object)
{
    if (!table)
        table = new Table;
    table->objects[window] = object;
    table->lastWindow = window;
    table->lastObject = object;
}

void unbindObject(HWND window) noexcept
{
    if (!table || table->objects.erase(window) == 0)
        return;
    table->lastWindow = nullptr;
    if (table->objects.empty()) {
        delete table;
        table = nullptr;
    }
}

void* boundObject(HWND window) noexcept
{
    if (!table)
        return nullptr;
    if (window != table->lastWindow) {
        const auto found = table->objects.find(window);
        if (found == table->objects.end())
            return nullptr;
        table->lastWindow = window;
        table->lastObject = found->second;
    }
    return table->lastObject;
}

} // namespace vela::win32
