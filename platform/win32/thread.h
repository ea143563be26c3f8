// What the library keeps for each thread, and the calls into it that are under way there.
#pragma once

#include "platform/win32/module.h"

#include <windows.h>

#include <new>
#include <unordered_map>
#include <vector>

namespace vela::win32 {

class FocusArbiter;
class ModalListener;

// Kept in a TLS slot of the system. The compiler's thread-local storage is slower, and a destructor there would keep
// the module loaded until the thread ends, and then unload the code that is running.
struct ThreadRecord {
    // The module stays loaded while a procedure of its own may get the window's messages, bound or not.
    struct Window {
        void* object = nullptr;
        WNDPROC behind = nullptr; // the procedure that ours was put in front of
        ModuleUse use;
    };
    struct Act {
        void (*run)(void* object) noexcept;
        void* object;
    };

    ThreadRecord() noexcept = default;
    ThreadRecord(const ThreadRecord&) = delete;
    ThreadRecord& operator=(const ThreadRecord&) = delete;
    ~ThreadRecord();

    std::unordered_map<HWND, Window> windows; // see window_map.h
    FocusArbiter* arbiter = nullptr;
    ModalListener* modal = nullptr;
    int calls = 0;
    std::vector<Act> afterwards;
    void* variables[8] = {};      // of the compiler's library, from malloc
    ThreadRecord* next = nullptr; // of all records
};

[[nodiscard]] ThreadRecord* threadRecord() noexcept; // null where the thread has none yet
[[nodiscard]] ThreadRecord& madeThreadRecord();      // raises std::bad_alloc
[[nodiscard]] ThreadRecord* madeThreadRecord(std::nothrow_t) noexcept;
// The entry point says that the calling thread ends: its record goes, and its windows are the system's to destroy.
void endThread() noexcept;

// On the stack of every call from outside (window procedures and methods of objects); keeps the module loaded.
class LibraryCall {
public:
    LibraryCall() noexcept;
    LibraryCall(const LibraryCall&) = delete;
    LibraryCall& operator=(const LibraryCall&) = delete;
    ~LibraryCall();

private:
    ThreadRecord* record_;
};

// Calls `run` when the thread's outermost LibraryCall ends, when nothing on the stack uses the object any more; at once
// when no call is under way. False when the work could not be stored.
bool afterCall(void (*run)(void* object) noexcept, void* object) noexcept;

} // namespace vela::win32
