// Labels: their back, border and text.
#include "platform/win32/label_painter.h"

#include "platform/win32/access_key.h"
#include "platform/win32/colours.h"
#include "platform/win32/device_context.h"
#include "platform/win32/fonts.h"
#include "platform/win32/owners.h"
#include "platform/win32/paint.h"
#include "platform/win32/text.h"

#include <algorithm>
#include <cmath>

namespace vela::win32 {
namespace {

constexpr int margin = 30; // twips, beside the text in a border; the line of a round mark

UINT alignmentOf(platform::TextAlignment alignment) noexcept
{
    switch (alignment) {
    case platform::TextAlignment::left: return DT_LEFT;
    case platform::TextAlignment::right: return DT_RIGHT;
    case platform::TextAlignment::center: return DT_CENTER;
    }
    return DT_LEFT;
}

} // namespace

int lineHeight(HDC dc) noexcept
{
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return static_cast<int>(metrics.tmHeight);
}

int FormScale::units(int twips) const noexcept
{
    return static_cast<int>(std::lround(twips * across));
}

int FormScale::heightOf(const platform::FontDescription& font) const noexcept
{
    constexpr double twipsPerPoint = 20;
    return std::max(static_cast<int>(std::lround(font.size * twipsPerPoint * down)), 1);
}

RECT FormScale::placeOf(const platform::Widget& widget) const
{
    int left = widget.look.left;
    int top = widget.look.top;
    for (std::u16string_view parent = widget.row->parent; !parent.empty();) {
        const platform::Widget& frame = widgets.at(findWidget(widgets.layout(), parent));
        left += frame.look.left;
        top += frame.look.top;
        parent = frame.row->parent;
    }
    const auto x = [this](int twips) { return origin.x + std::lround(twips * across); };
    const auto y = [this](int twips) { return origin.y + std::lround(twips * down); };
    return {x(left), y(top), x(left + widget.row->place.width), y(top + widget.row->place.height)};
}

// The height of a label's characters, when a border takes `border` units on either side of its text.
int LabelPainter::fittingHeight(const platform::Widget& label, int border)
{
    return fitted_.of(label.row->name, dc_, label.font, scale_.heightOf(label.font), [&] {
        std::vector<FittingText> texts;
        for (const platform::Widget& one : scale_.widgets.all()) {
            const RECT place = scale_.placeOf(one);
            if (one.row->name == label.row->name && scale_.widgets.showing(one))
                texts.push_back({one.text, static_cast<int>(place.right - place.left) - 2 * border});
        }
        return texts;
    });
}

void LabelPainter::paint(const platform::Widget& label, HFONT font)
{
    const platform::WidgetLook& look = label.look;
    const bool preview = label.kind() == platform::WidgetKind::preview;
    const bool formColour = look.back == platform::buttonFace;
    const RECT outer = scale_.placeOf(label);
    RECT place = outer;
    if (look.opaque && look.round)
        paintMark(dc_, place, resolve(look.back), scale_.units(margin));
    else if (look.opaque && !(onGround_ && formColour))
        fill(dc_, place, resolve(look.back, formColour ? ColourRole::face : ColourRole::back));
    if (preview) {
        FrameRect(dc_, &place, GetSysColorBrush(COLOR_BTNSHADOW));
        InflateRect(&place, -1, -1);
    } else if (look.border) {
        DrawEdge(dc_, &place, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
        InflateRect(&place, -scale_.units(margin), 0);
    }
    if (label.text.empty())
        return;
    const bool fits = label.row->fits;
    const UniqueGdi<HFONT> fitted(
        fits ? makeFont(label.font, fittingHeight(label, static_cast<int>(place.left - outer.left))) : nullptr);
    const SelectedObject selected(dc_, fits ? fitted.get() : font);
    SetBkMode(dc_, TRANSPARENT);
    SetTextColor(dc_, label.enabled ? resolve(look.fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT));
    const bool oneLine = fits || place.bottom - place.top < 2 * lineHeight(dc_);
    const UINT clip = fits ? DT_END_ELLIPSIS : preview ? 0 : DT_NOCLIP;
    const UINT format = (preview ? DT_CENTER : alignmentOf(label.row->alignment)) | clip |
                        (oneLine ? DT_SINGLELINE | DT_VCENTER : DT_WORDBREAK);
    DrawTextW(dc_, wide(markedCaption(label).c_str()), -1, &place, format);
}

} // namespace vela::win32
