// Fonts by description, one system object for all equal ones in use.
#include "platform/win32/fonts.h"

#include "platform/win32/locked.h"
#include "platform/win32/text.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vela::win32 {
namespace {

struct Entry {
    platform::FontDescription description;
    int dpi = 0;
    std::weak_ptr<const Font> font;
};

constexpr double pointsPerInch = 72;

// Of the process: a font is no thread's own.
SRWLOCK keptLock = SRWLOCK_INIT;
std::vector<Entry> kept;

} // namespace

HFONT makeFont(const platform::FontDescription& description, int height) noexcept
{
    LOGFONTW wanted{};
    wanted.lfHeight = -height;
    wanted.lfWeight = description.bold ? FW_BOLD : FW_NORMAL;
    wanted.lfItalic = description.italic;
    wanted.lfUnderline = description.underline;
    wanted.lfStrikeOut = description.strikethrough;
    wanted.lfCharSet = DEFAULT_CHARSET;
    wanted.lfQuality = DEFAULT_QUALITY;
    const std::size_t units = std::min<std::size_t>(description.name.size(), LF_FACESIZE - 1);
    std::copy_n(wide(description.name.data()), units, wanted.lfFaceName);
    return CreateFontIndirectW(&wanted);
}

SharedFont sharedFont(const platform::FontDescription& description, int dpi)
{
    const Locked lock(keptLock);
    std::erase_if(kept, [](const Entry& entry) { return entry.font.expired(); });
    for (const Entry& entry : kept)
        if (entry.dpi == dpi && entry.description == description)
            if (SharedFont font = entry.font.lock())
                return font;
    const int height = static_cast<int>(std::lround(description.size * dpi / pointsPerInch));
    auto font = std::make_shared<const Font>(makeFont(description, std::max(height, 1)));
    kept.push_back({description, dpi, font});
    return font;
}

} // namespace vela::win32
