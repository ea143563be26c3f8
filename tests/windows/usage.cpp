// Counts windows by looking for them, drawing objects and handles in the tables of the process and the system.
#include "tests/windows/usage.h"

#include "tests/support/windows.h"

#include <gtest/gtest.h>
#include <psapi.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace vela::test {

namespace {

int windowsOfThread()
{
    int count = 0;
    eachWindow([&](HWND one) {
        ++count;
        eachInside(one, [&](HWND) { ++count; });
    });
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr)
        count += GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
    return count;
}

template <class Function>
Function ofSystem(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

struct DrawingObject { // as the table shared with the system has it
    UINT64 object;
    UINT owner;
    USHORT unique;
    UCHAR type; // 0: free
    UCHAR flags;
    UINT64 user;
};

const DrawingObject* drawingTable()
{
    struct Basic { // PROCESS_BASIC_INFORMATION
        void* status;
        BYTE* environment;
        void* others[4];
    };
    constexpr std::size_t tableOffset = sizeof(void*) == 8 ? 0xF8 : 0x94; // in the process environment block
    const auto query = ofSystem<LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*)>("NtQueryInformationProcess");
    Basic basic{};
    if (!query || query(GetCurrentProcess(), 0, &basic, sizeof basic, nullptr) != 0)
        return nullptr;
    return *reinterpret_cast<const DrawingObject* const*>(basic.environment + tableOffset);
}

// Wine's GetGuiResources answers 0.
int drawingObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(counted);
    constexpr int entries = 0xFFFF;
    const DrawingObject* const table = drawingTable();
    const auto used = [](const DrawingObject& one) { return one.type != 0; };
    return table ? static_cast<int>(std::count_if(table, table + entries, used)) : 0;
}

// Files, events and the like. Wine's GetProcessHandleCount answers 0; the system's list of all handles names owners.
int kernelHandles()
{
    DWORD counted = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &counted) && counted > 0)
        return static_cast<int>(counted);
    struct Entry {
        ULONG process;
        BYTE kind, flags;
        USHORT handle;
        void* object;
        ULONG access;
    };
    struct List {
        ULONG count;
        Entry entries[1];
    };
    constexpr int handleInformation = 16;
    const auto query = ofSystem<LONG(WINAPI*)(int, void*, ULONG, ULONG*)>("NtQuerySystemInformation");
    std::vector<List> room((1 << 20) / sizeof(List));
    if (!query || query(handleInformation, room.data(), static_cast<ULONG>(room.size() * sizeof(List)), nullptr) != 0)
        return 0;
    const Entry* const first = room.front().entries;
    const auto ours = [](const Entry& one) { return one.process == GetCurrentProcessId(); };
    return static_cast<int>(std::count_if(first, first + room.front().count, ours));
}

// Committed for this process alone.
SIZE_T privateBytes()
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

} // namespace

Usage::Usage() : windows(windowsOfThread()), drawing(drawingObjects()), handles(kernelHandles()), memory(privateBytes())
{
}

int asked(const char* variable, int otherwise)
{
    const char* const text = std::getenv(variable);
    const int value = text ? std::atoi(text) : 0;
    return value > 0 ? value : otherwise;
}

void expectFlat(const Usage& before, const Usage& after, SIZE_T memoryAllowed)
{
    EXPECT_LE(after.windows, before.windows);
    EXPECT_LE(after.drawing, before.drawing + 4);
    EXPECT_LE(after.handles, before.handles + 8);
    EXPECT_LE(after.memory, before.memory + memoryAllowed);
}

// A counter that is blind would find every leak flat.
TEST(Usage, IsCounted)
{
    const auto makeWindow = [] {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    };
    const HWND first = makeWindow(); // a thread's first has company
    const Usage before;
    EXPECT_GT(before.drawing, 0);
    const HWND window = makeWindow();
    std::vector<char> block(1 << 22, 'x');
    const HBRUSH brush = CreateSolidBrush(0x00123456);
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const Usage during;
    EXPECT_EQ(during.windows, before.windows + 1);
    EXPECT_EQ(during.drawing, before.drawing + 1);
    EXPECT_EQ(during.handles, before.handles + 1);
    EXPECT_GE(during.memory, before.memory + block.size() / 2);
    std::vector<char>().swap(block);
    CloseHandle(event);
    DeleteObject(brush);
    DestroyWindow(window);
    const Usage after;
    expectFlat(before, after, 1 << 20);
    DestroyWindow(first);
}

} // namespace vela::test
