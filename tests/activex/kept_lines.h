// What earlier versions promised, kept as lines of text: they must still be there, in the same order; more may stand
// between.
#pragma once

#include <guiddef.h>
#include <objbase.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace vela::test {

// Without comments (#) and empty lines. None for a file that cannot be read.
[[nodiscard]] inline std::vector<std::string> linesOf(const char* path)
{
    std::vector<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        line.erase(std::find(line.begin(), line.end(), '\r'), line.end());
        if (!line.empty() && line.front() != '#')
            lines.push_back(line);
    }
    return lines;
}

inline void writeLines(const char* path, const std::vector<std::string>& lines)
{
    std::ofstream file(path, std::ios::binary);
    for (const std::string& line : lines)
        file << line << '\n';
}

// Those of the kept lines that are not there any more, or not behind the ones before them.
[[nodiscard]] inline std::vector<std::string> lost(const std::vector<std::string>& kept,
                                                   const std::vector<std::string>& now)
{
    std::vector<std::string> missing;
    if (kept.empty())
        missing.push_back("(nothing was kept)");
    auto from = now.begin();
    for (const std::string& line : kept)
        if (const auto found = std::find(from, now.end(), line); found != now.end())
            from = found + 1;
        else
            missing.push_back(line);
    return missing;
}

// ASCII; other characters as \uXXXX.
[[nodiscard]] inline std::string narrow(std::u16string_view text)
{
    std::string result;
    for (const char16_t unit : text) {
        char written[8]{};
        std::snprintf(written, sizeof written, unit >= 0x20 && unit < 0x7F ? "%c" : "\\u%04X", unsigned{unit});
        result += written;
    }
    return result;
}

// "{320E27E0-A91E-4A22-8CAB-3D96B34084B5}"
[[nodiscard]] inline std::string textOf(const GUID& id)
{
    wchar_t text[40]{};
    const int length = StringFromGUID2(id, text, 40);
    return {text, text + std::max(length - 1, 0)};
}

} // namespace vela::test
