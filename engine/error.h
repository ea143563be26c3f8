// The one run-time error of the system: a number, a description and a source, as hosts see them.
#pragma once

#include <string>
#include <string_view>

namespace vela::engine {

// Thrown by value. `step` is the number of the last numbered step a routine reached before it failed,
// 0 when none was reached or the routine numbers none.
struct Error {
    int number = 0;
    std::u16string description;
    std::u16string source = u"Vela";
    int step = 0;

    friend bool operator==(const Error&, const Error&) = default;
};

// Numbers of the run-time errors that the system itself raises.
namespace error_number {
inline constexpr int invalidCall = 5;
inline constexpr int overflow = 6;
inline constexpr int outOfMemory = 7;
inline constexpr int subscriptOutOfRange = 9;
inline constexpr int typeMismatch = 13;
inline constexpr int permissionDenied = 70;
inline constexpr int pathFileAccess = 75;
inline constexpr int pathNotFound = 76;
inline constexpr int objectNotSet = 91;
inline constexpr int invalidPropertyValue = 380;
inline constexpr int unsupportedMember = 438;
inline constexpr int emptyMask = 1001;
inline constexpr int readOnlyProperty = 1002;
} // namespace error_number

// The fixed description of a number above; empty for a number the system does not raise.
[[nodiscard]] std::u16string_view errorDescription(int number) noexcept;

// Throws Error{number, errorDescription(number)}.
[[noreturn]] void raise(int number);

} // namespace vela::engine
