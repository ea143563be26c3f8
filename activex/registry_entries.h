// What registering the library writes into the registry, for the library itself and for installers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vela::activex {

enum class Bitness { win32, win64 };

struct RegistryEntry {
    std::wstring key;    // below Software\Classes
    const wchar_t* name; // null: the key's own value
    std::wstring value;  // a text; empty: the key alone
};

// Of the library at this path: "C:\\Vela\\Vela.ocx". Its folder is what stands before the last backslash.
[[nodiscard]] std::vector<RegistryEntry> registryEntries(const std::wstring& module, Bitness bitness);

// The keys at the top of all those entries.
[[nodiscard]] std::vector<std::wstring> keysOfOneBitness();
[[nodiscard]] std::vector<std::wstring> keysOfBothBitnesses();
[[nodiscard]] std::wstring libraryFileKey(Bitness bitness); // the type library's file, below a shared key

[[nodiscard]] std::wstring decimal(long long number);             // "-12"
[[nodiscard]] std::wstring registryClassKey(std::string_view id); // "CLSID\\{...}"

} // namespace vela::activex
