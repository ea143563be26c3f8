// Measures texts and looks for the height at which all of them fit.
#include "platform/win32/fitted_text.h"

#include "platform/win32/device_context.h"
#include "platform/win32/fonts.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"

#include <algorithm>
#include <cmath>

namespace vela::win32 {
namespace {

constexpr int smallestPart = 2; // of the height that was wished for: no smaller than its half

// The smallest ratio of the width there is to the width that a text needs: at least 1 when all of them fit.
double roomFor(HDC dc, const platform::FontDescription& description, int height, const std::vector<FittingText>& texts)
{
    const UniqueGdi<HFONT> font(makeFont(description, height));
    const SelectedObject selected(dc, font.get());
    double room = 1;
    for (const FittingText& one : texts) {
        SIZE size{};
        GetTextExtentPoint32W(dc, wide(one.text.data()), static_cast<int>(one.text.size()), &size);
        if (size.cx > 0)
            room = std::min(room, static_cast<double>(one.width) / static_cast<double>(size.cx));
    }
    return room;
}

// Widths do not shrink evenly with heights: the height is tried, and the next lower one, until one is right.
int fittingHeight(HDC dc, const platform::FontDescription& font, int height, const std::vector<FittingText>& texts)
{
    const int least = std::max(height / smallestPart, 1);
    const double room = roomFor(dc, font, height, texts);
    if (room >= 1)
        return height;
    int tried = std::max(static_cast<int>(std::floor(height * room)), least);
    while (tried > least && roomFor(dc, font, tried, texts) < 1)
        --tried;
    return tried;
}

} // namespace

int FittedHeights::of(std::u16string_view array, HDC dc, const platform::FontDescription& font, int height,
                      const std::function<std::vector<FittingText>()>& texts)
{
    const auto found = std::ranges::find(known_, array, &std::pair<std::u16string_view, int>::first);
    if (found != known_.end())
        return found->second;
    known_.emplace_back(array, fittingHeight(dc, font, height, texts()));
    return known_.back().second;
}

} // namespace vela::win32
