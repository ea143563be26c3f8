// The count of what keeps the library loaded.
#pragma once

namespace vela::activex {

// Held by each object that must not outlive the library's code.
class ModuleLock {
public:
    ModuleLock() noexcept { add(); }
    ModuleLock(const ModuleLock&) = delete;
    ModuleLock& operator=(const ModuleLock&) = delete;
    ~ModuleLock() { remove(); }

    static void add() noexcept;
    static void remove() noexcept;
    [[nodiscard]] static bool any() noexcept;
};

} // namespace vela::activex
