// Paints what has no window: labels, frames, the pane of the tabs; and the swatches.
#include "platform/win32/colours.h"
#include "platform/win32/form_window.h"
#include "platform/win32/owners.h"
#include "platform/win32/paint.h"
#include "platform/win32/text.h"

#include <algorithm>
#include <cmath>

namespace vela::win32 {
namespace {

using platform::WidgetKind;

void fill(HDC dc, const RECT& place, COLORREF colour) noexcept
{
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    FillRect(dc, &place, brush.get());
}

UINT alignmentOf(platform::TextAlignment alignment) noexcept
{
    switch (alignment) {
    case platform::TextAlignment::left: return DT_LEFT;
    case platform::TextAlignment::right: return DT_RIGHT;
    case platform::TextAlignment::center: return DT_CENTER;
    }
    return DT_LEFT;
}

int lineHeight(HDC dc) noexcept
{
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return static_cast<int>(metrics.tmHeight);
}

} // namespace

void FormWindow::repaint(const Widget& widget)
{
    if (!window_)
        return;
    if (widget.window)
        InvalidateRect(widget.window, nullptr, TRUE);
    const RECT place = rectOf(widget);
    InvalidateRect(window_, &place, FALSE);
}

void FormWindow::paint()
{
    const PaintDc dc(window_);
    RECT client{};
    GetClientRect(window_, &client);
    const UniqueMemoryDc memory(CreateCompatibleDC(dc.get()));
    const UniqueGdi<HBITMAP> picture(CreateCompatibleBitmap(dc.get(), client.right, client.bottom));
    const SelectedObject selected(memory.get(), picture.get());
    paintAll(memory.get(), client);
    BitBlt(dc.get(), 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
}

void FormWindow::paintAll(HDC dc, const RECT& client)
{
    fitted_ = {};
    fill(dc, client, resolve(back_, ColourRole::back));
    for (const auto& widget : widgets_)
        if (showing(*widget))
            paintWidget(dc, *widget);
    if (role_ == Role::popup) {
        const UniqueGdi<HBRUSH> edge(CreateSolidBrush(GetSysColor(COLOR_WINDOWFRAME)));
        FrameRect(dc, &client, edge.get());
    }
}

void FormWindow::paintWidget(HDC dc, Widget& widget)
{
    if (!widget.shared)
        applyFont(widget);
    const RECT place = rectOf(widget);
    switch (widget.kind()) {
    case WidgetKind::label:
    case WidgetKind::preview: paintLabel(dc, widget, place); break;
    case WidgetKind::frame: paintFrame(dc, widget, place); break;
    case WidgetKind::tabStrip: paintPane(dc, widget, place); break;
    case WidgetKind::button:
    case WidgetKind::comboBox:
    case WidgetKind::dropDownList:
    case WidgetKind::listBox:
    case WidgetKind::checkBox:
    case WidgetKind::optionButton:
    case WidgetKind::textBox:
    case WidgetKind::swatch: break;
    }
}

// Of the characters, in pixels, when this much of its place on either side is the border's.
int FormWindow::labelHeight(HDC dc, const Widget& widget, int border)
{
    constexpr double twipsPerPoint = 20;
    const platform::FontDescription font = fontOf(widget);
    const int height = std::max(static_cast<int>(std::lround(font.size * twipsPerPoint * scale_)), 1);
    return fitted_.of(widget.row->name, dc, font, height, [&] {
        std::vector<FittingText> texts;
        for (const auto& one : widgets_) {
            const RECT place = rectOf(*one);
            if (one->row->name == widget.row->name && showing(*one))
                texts.push_back({one->text, static_cast<int>(place.right - place.left) - 2 * border});
        }
        return texts;
    });
}

void FormWindow::paintLabel(HDC dc, Widget& widget, RECT place)
{
    const platform::WidgetLook& look = widget.look;
    const RECT outer = place;
    const bool preview = widget.kind() == WidgetKind::preview;
    if (look.opaque && look.round)
        paintMark(dc, place, resolve(look.back), pixels(30));
    else if (look.opaque)
        fill(dc, place,
             resolve(look.back, look.back == engine::Colour{0x8000000F} ? ColourRole::face : ColourRole::back));
    if (look.border || preview) {
        DrawEdge(dc, &place, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
        InflateRect(&place, -pixels(30), 0);
    }
    if (widget.text.empty())
        return;
    const bool fits = widget.row->fits;
    const UniqueGdi<HFONT> fitted(
        fits ? makeFont(fontOf(widget), labelHeight(dc, widget, static_cast<int>(place.left - outer.left))) : nullptr);
    const SelectedObject font(dc, fits ? fitted.get() : widget.shared->get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, widget.enabled ? resolve(look.fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT));
    const bool oneLine = fits || place.bottom - place.top < 2 * lineHeight(dc);
    const UINT format = (preview ? DT_CENTER : alignmentOf(widget.row->alignment)) |
                        (fits ? DT_END_ELLIPSIS : DT_NOCLIP) | (oneLine ? DT_SINGLELINE | DT_VCENTER : DT_WORDBREAK);
    DrawTextW(dc, wide(widget.text.c_str()), -1, &place, format);
}

// An etched frame with its caption in the upper side.
void FormWindow::paintFrame(HDC dc, Widget& widget, RECT place)
{
    const SelectedObject font(dc, widget.shared->get());
    RECT line = place;
    line.top += lineHeight(dc) / 2;
    DrawEdge(dc, &line, EDGE_ETCHED, BF_RECT);
    if (widget.text.empty())
        return;
    RECT caption = place;
    caption.left += pixels(120);
    DrawTextW(dc, wide(widget.text.c_str()), -1, &caption, DT_SINGLELINE | DT_CALCRECT);
    RECT gap = caption;
    InflateRect(&gap, pixels(30), 0);
    fill(dc, gap, resolve(back_, ColourRole::back));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, widget.enabled ? resolve(widget.look.fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT));
    DrawTextW(dc, wide(widget.text.c_str()), -1, &caption, DT_SINGLELINE);
}

// What the tabs' captions stand on.
void FormWindow::paintPane(HDC dc, const Widget& widget, RECT place)
{
    RECT captions{};
    if (widget.window) {
        GetWindowRect(widget.window, &captions);
        MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&captions), 2);
        place.top = captions.bottom - 1;
    }
    DrawEdge(dc, &place, EDGE_RAISED, BF_RECT);
}

void FormWindow::drawItem(const DRAWITEMSTRUCT& item)
{
    Widget* widget = ofWindow(item.hwndItem);
    if (!widget)
        return;
    RECT place = item.rcItem;
    DrawEdge(item.hDC, &place, widget->look.border ? EDGE_BUMP : EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    fill(item.hDC, place, widget->enabled ? resolve(widget->look.back) : GetSysColor(COLOR_BTNFACE));
    if (item.itemState & ODS_FOCUS) {
        InflateRect(&place, -pixels(15), -pixels(15));
        DrawFocusRect(item.hDC, &place);
    }
}

LRESULT FormWindow::colourOf(UINT message, HDC dc, HWND child)
{
    Widget* widget = ofWindow(child);
    if (!widget)
        widget = ofWindow(GetParent(child)); // a combo's list
    const bool typed = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const platform::WidgetLook fallback;
    const platform::WidgetLook& look = widget ? widget->look : fallback;
    const bool plain = !typed && look.back == engine::Colour{0x8000000F};
    const COLORREF back = plain ? resolve(back_, ColourRole::face) : resolve(look.back, ColourRole::back);
    SetTextColor(dc, resolve(look.fore, ColourRole::fore));
    SetBkColor(dc, back);
    SetDCBrushColor(dc, back);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

} // namespace vela::win32
