// Codes of keys, as every platform reports them when they go down.
#pragma once

namespace vela::engine::key_code {

inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int pageUp = 33;
inline constexpr int pageDown = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int del = 46;
inline constexpr int keypadDecimal = 110;
inline constexpr int f2 = 113;

} // namespace vela::engine::key_code
