// vela-registry win64|win32 MODULE prints what registering the library at that path writes, for installers: a line for
// each value, as key, name and text with tabs between them. The key's own value has no name.
#include "activex/registry_entries.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

std::string narrow(std::wstring_view text) // ASCII, all of it
{
    std::string result;
    for (const wchar_t unit : text)
        result += static_cast<char>(unit);
    return result;
}

} // namespace

int main(int count, char** arguments)
{
    using vela::activex::Bitness;
    const std::string_view bitness = count == 3 ? arguments[1] : "";
    if (bitness != "win64" && bitness != "win32") {
        std::fputs("vela-registry win64|win32 MODULE\n", stderr);
        return 2;
    }
    const std::string_view module = arguments[2];
    for (const auto& [key, name, value] : vela::activex::registryEntries(
             {module.begin(), module.end()}, bitness == "win64" ? Bitness::win64 : Bitness::win32))
        std::printf("%s\t%s\t%s\n", narrow(key).c_str(), name ? narrow(name).c_str() : "", narrow(value).c_str());
    return 0;
}
