// Clock, log file, version, folder and fonts of the machine.
#include "platform/win32/environment.h"

#include "engine/error.h"
#include "platform/win32/device_context.h"
#include "platform/win32/module.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"

#include <algorithm>
#include <cmath>

namespace vela::win32 {
namespace {

constexpr double secondsPerDay = 86400;
constexpr double ticksPerSecond = 1e7;        // of a FILETIME
constexpr double daysFrom1601To1900 = 109205; // 1 January 1601 to 30 December 1899

[[noreturn]] void raiseFileError(DWORD error)
{
    switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: engine::raise(engine::error_number::permissionDenied);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME: engine::raise(engine::error_number::pathNotFound);
    default: engine::raise(engine::error_number::pathFileAccess);
    }
}

int CALLBACK collectFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names)
{
    const std::wstring_view name = font->lfFaceName;
    if (!name.empty() && name.front() != L'@') // '@' marks the vertical twin
        reinterpret_cast<std::vector<std::u16string>*>(names)->push_back(utf16(name));
    return 1;
}

} // namespace

engine::Date Clock::now() const
{
    SYSTEMTIME local{};
    GetLocalTime(&local);
    local.wMilliseconds = 0; // as the automation clock, whole seconds
    FILETIME file{};
    SystemTimeToFileTime(&local, &file);
    const ULARGE_INTEGER ticks{{file.dwLowDateTime, file.dwHighDateTime}};
    return {std::round(static_cast<double>(ticks.QuadPart) / ticksPerSecond) / secondsPerDay - daysFrom1601To1900};
}

void LogFile::append(std::u16string_view path, const engine::LogRecord& record)
{
    const std::string bytes = engine::encode(record);
    const HANDLE opened = CreateFileW(wide(path).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        raiseFileError(GetLastError());
    const UniqueFile file(opened);
    DWORD written = 0;
    if (!WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        written != bytes.size())
        raiseFileError(GetLastError());
}

std::optional<platform::WindowsVersion> SystemInfo::windowsVersion() const
{
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    static_assert(sizeof version == 148);
    if (!GetVersionExA(&version))
        return std::nullopt;
    return platform::WindowsVersion{static_cast<int>(version.dwPlatformId), static_cast<int>(version.dwMinorVersion)};
}

// "C:\Vela\Vela.ocx" -> "C:\Vela", "C:\Vela.ocx" -> "C:\"
std::u16string SystemInfo::libraryFolder() const
{
    const std::wstring path = modulePath();
    const std::size_t separator = path.find_last_of(L"\\/");
    if (separator == std::wstring::npos)
        return {};
    const bool ofRoot = separator > 0 && path[separator - 1] == L':';
    return utf16(path.substr(0, separator + (ofRoot ? 1 : 0)));
}

std::vector<std::u16string> SystemInfo::fontNames() const
{
    std::vector<std::u16string> names;
    LOGFONTW every{};
    every.lfCharSet = DEFAULT_CHARSET;
    const WindowDc screen(nullptr);
    EnumFontFamiliesExW(screen.get(), &every, collectFont, reinterpret_cast<LPARAM>(&names), 0);
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

} // namespace vela::win32
