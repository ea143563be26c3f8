// Narrow text of the process's code page.
#include "platform/win32/text.h"

#include <windows.h>

namespace vela::win32 {

std::string narrow(std::u16string_view text)
{
    const int units = static_cast<int>(text.size());
    if (units == 0)
        return {};
    const int size = WideCharToMultiByte(CP_ACP, 0, wide(text.data()), units, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide(text.data()), units, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

} // namespace vela::win32
