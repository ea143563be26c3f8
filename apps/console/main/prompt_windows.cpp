// The prompt on Windows: the console window itself edits the line and keeps the history.
#include "apps/console/main/prompt.h"

#include "engine/text/utf8.h"
#include "platform/win32/text.h"

#include <windows.h>

#include <string>

namespace vela::console {

namespace {

constexpr wchar_t endOfInput = 26; // Ctrl+Z at the start of a line

void write(const wchar_t* text, DWORD length)
{
    DWORD written = 0;
    WriteConsoleW(GetStdHandle(STD_OUTPUT_HANDLE), text, length, &written, nullptr);
}

} // namespace

bool typedByHand() noexcept
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode) &&
           GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode);
}

Prompt::Prompt()
{
    SetConsoleOutputCP(CP_UTF8); // what the run prints
}

Prompt::~Prompt() = default;

bool Prompt::read(std::string& line)
{
    write(L"vela> ", 6);
    std::wstring typed;
    while (typed.empty() || typed.back() != L'\n') {
        wchar_t part[512];
        DWORD count = 0;
        if (!ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), part, 512, &count, nullptr) || count == 0)
            return false;
        typed.append(part, count);
    }
    if (typed.front() == endOfInput)
        return false;
    typed.erase(typed.find_last_not_of(L"\r\n") + 1);
    line = engine::toUtf8(win32::asText(typed));
    return true;
}

} // namespace vela::console
