// Paints what has no window: labels, frames, the pane of the tabs; and the swatches.
#include "platform/win32/access_key.h"
#include "platform/win32/colours.h"
#include "platform/win32/form_window.h"
#include "platform/win32/owners.h"
#include "platform/win32/paint.h"
#include "platform/win32/text.h"

#include <commctrl.h>
#include <uxtheme.h>
#include <vsstyle.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vela::win32 {
namespace {

using platform::Widget;
using platform::WidgetKind;

constexpr engine::Colour buttonFace{0x8000000F}; // of a form without a colour of its own

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

void paintLine(HDC dc, const RECT& place, int systemColour) noexcept
{
    FrameRect(dc, &place, GetSysColorBrush(systemColour));
}

bool isDark(COLORREF colour) noexcept
{
    return 3 * GetRValue(colour) + 6 * GetGValue(colour) + GetBValue(colour) < 640; // a quarter of white
}

int lineHeight(HDC dc) noexcept
{
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return static_cast<int>(metrics.tmHeight);
}

} // namespace

bool FormWindow::hasGround() const noexcept
{
    return role_ == Role::child && !widgets_.backColour();
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
    paintGround(dc, client);
    for (const Widget& widget : widgets_.all())
        if (showing(widget))
            paintWidget(dc, widget);
    if (role_ == Role::popup) {
        const UniqueGdi<HBRUSH> edge(CreateSolidBrush(GetSysColor(COLOR_WINDOWFRAME)));
        FrameRect(dc, &client, edge.get());
    }
}

void FormWindow::paintGround(HDC dc, const RECT& client)
{
    fill(dc, client, hasGround() ? ground_ : resolve(widgets_.backColour().value_or(buttonFace), ColourRole::back));
    for (const WidgetWindow& widget : windows_)
        if (widget.kind() == WidgetKind::tabStrip)
            paintPane(dc, widget);
}

// Behind a page shows what its frame paints there, the tabs' body or a colour; behind the widgets on the page's own
// tabs, the tabs' pane. Both are asked for once, because the frame paints itself for each answer.
void FormWindow::learnGround()
{
    if (!window_ || !hasGround())
        return;
    RECT sample{0, 0, 8, 8};
    constexpr int middle = 4;
    const WindowDc screen(window_);
    const UniqueMemoryDc memory(CreateCompatibleDC(screen.get()));
    const UniqueGdi<HBITMAP> picture(CreateCompatibleBitmap(screen.get(), sample.right, sample.bottom));
    const SelectedObject selected(memory.get(), picture.get());
    fill(memory.get(), sample, GetSysColor(COLOR_BTNFACE));
    DrawThemeParentBackground(window_, memory.get(), &sample);
    ground_ = pane_ = GetPixel(memory.get(), middle, middle);
    for (const WidgetWindow& widget : windows_)
        if (const HTHEME theme = widget.kind() == WidgetKind::tabStrip && widget.window
                                     ? OpenThemeData(widget.window, L"TAB")
                                     : nullptr) {
            constexpr RECT pane{-20, -20, 40, 40}; // its sides lie outside the sample
            DrawThemeBackground(theme, memory.get(), TABP_PANE, 0, &pane, &sample);
            CloseThemeData(theme);
            pane_ = GetPixel(memory.get(), middle, middle);
        }
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

COLORREF FormWindow::groundOf(const Widget& widget) const noexcept
{
    return widget.row->tab >= 0 ? pane_ : ground_;
}

void FormWindow::paintWidget(HDC dc, const Widget& widget)
{
    if (!of(widget).font)
        applyFont(of(widget));
    const RECT place = rectOf(widget);
    switch (widget.kind()) {
    case WidgetKind::label:
    case WidgetKind::preview: paintLabel(dc, widget, place); break;
    case WidgetKind::frame: paintFrame(dc, widget, place); break;
    case WidgetKind::tabStrip:
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

// The height of a label's characters in pixels, when a border takes `border` pixels on either side of its text.
int FormWindow::labelHeight(HDC dc, const Widget& widget, int border)
{
    constexpr double twipsPerPoint = 20;
    const platform::FontDescription& font = widget.font;
    const int height = std::max(static_cast<int>(std::lround(font.size * twipsPerPoint * scale_)), 1);
    return fitted_.of(widget.row->name, dc, font, height, [&] {
        std::vector<FittingText> texts;
        for (const Widget& one : widgets_.all()) {
            const RECT place = rectOf(one);
            if (one.row->name == widget.row->name && showing(one))
                texts.push_back({one.text, static_cast<int>(place.right - place.left) - 2 * border});
        }
        return texts;
    });
}

void FormWindow::paintLabel(HDC dc, const Widget& widget, RECT place)
{
    const platform::WidgetLook& look = widget.look;
    const RECT outer = place;
    const bool preview = widget.kind() == WidgetKind::preview;
    if (look.opaque && look.round)
        paintMark(dc, place, resolve(look.back), pixels(30));
    else if (look.opaque && !(hasGround() && look.back == buttonFace))
        fill(dc, place, resolve(look.back, look.back == buttonFace ? ColourRole::face : ColourRole::back));
    if (preview) {
        paintLine(dc, place, COLOR_BTNSHADOW);
        InflateRect(&place, -1, -1);
    } else if (look.border) {
        DrawEdge(dc, &place, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
        InflateRect(&place, -pixels(30), 0);
    }
    if (widget.text.empty())
        return;
    const bool fits = widget.row->fits;
    const UniqueGdi<HFONT> fitted(
        fits ? makeFont(widget.font, labelHeight(dc, widget, static_cast<int>(place.left - outer.left))) : nullptr);
    const SelectedObject font(dc, fits ? fitted.get() : of(widget).font->get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, widget.enabled ? resolve(look.fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT));
    const bool oneLine = fits || place.bottom - place.top < 2 * lineHeight(dc);
    const UINT clip = fits ? DT_END_ELLIPSIS : preview ? 0 : DT_NOCLIP;
    const UINT format = (preview ? DT_CENTER : alignmentOf(widget.row->alignment)) | clip |
                        (oneLine ? DT_SINGLELINE | DT_VCENTER : DT_WORDBREAK);
    DrawTextW(dc, wide(markedCaption(widget).c_str()), -1, &place, format);
}

// An etched frame with its caption in the upper side.
void FormWindow::paintFrame(HDC dc, const Widget& widget, RECT place)
{
    const SelectedObject font(dc, of(widget).font->get());
    RECT line = place;
    line.top += lineHeight(dc) / 2;
    RECT caption = place;
    caption.left += pixels(120);
    if (!widget.text.empty())
        DrawTextW(dc, wide(widget.text.c_str()), -1, &caption, DT_SINGLELINE | DT_CALCRECT);
    const int outside = SaveDC(dc);
    if (!widget.text.empty())
        ExcludeClipRect(dc, caption.left - pixels(30), caption.top, caption.right + pixels(30), caption.bottom);
    DrawEdge(dc, &line, EDGE_ETCHED, BF_RECT);
    RestoreDC(dc, outside);
    if (widget.text.empty())
        return;
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, widget.enabled ? resolve(widget.look.fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT));
    DrawTextW(dc, wide(widget.text.c_str()), -1, &caption, DT_SINGLELINE);
}

// What the tabs' captions stand on. Its upper side, where the tab in front joins it, is painted by their window.
void FormWindow::paintPane(HDC dc, const WidgetWindow& widget)
{
    if (!widget.window)
        return;
    RECT place = rectOf(widget.values);
    RECT caption{};
    SendMessageW(widget.window, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&caption));
    place.top += caption.bottom;
    const HTHEME theme = OpenThemeData(widget.window, L"TAB");
    if (theme) {
        DrawThemeBackground(theme, dc, TABP_PANE, 0, &place, nullptr);
        CloseThemeData(theme);
    } else {
        DrawEdge(dc, &place, EDGE_RAISED, BF_RECT | BF_SOFT);
    }
}

void FormWindow::drawItem(const DRAWITEMSTRUCT& item)
{
    const WidgetWindow* widget = ofWindow(item.hwndItem);
    if (!widget)
        return;
    RECT place = item.rcItem;
    const platform::WidgetLook& look = widget->values.look;
    const COLORREF colour = widget->values.enabled ? resolve(look.back) : GetSysColor(COLOR_BTNFACE);
    fill(item.hDC, place, colour);
    if (look.border)
        paintLine(item.hDC, place,
                  role_ == Role::child ? COLOR_BTNSHADOW
                  : isDark(colour)     ? COLOR_BTNHIGHLIGHT
                                       : COLOR_WINDOWFRAME);
    if ((item.itemState & ODS_FOCUS) && role_ == Role::child) { // in a dialog the border is the mark of the focus
        InflateRect(&place, -pixels(45), -pixels(45));
        DrawFocusRect(item.hDC, &place);
    }
}

LRESULT FormWindow::colourOf(UINT message, HDC dc, HWND child)
{
    const WidgetWindow* widget = ofWindow(child);
    if (!widget)
        widget = ofWindow(GetParent(child)); // a combo's list
    const bool typed = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const platform::WidgetLook fallback;
    const platform::WidgetLook& look = widget ? widget->values.look : fallback;
    const bool plain = !typed && look.back == buttonFace;
    const COLORREF back = plain && widget && hasGround() ? groundOf(widget->values)
                          : plain ? resolve(widgets_.backColour().value_or(buttonFace), ColourRole::face)
                                  : resolve(look.back, ColourRole::back);
    SetTextColor(dc, resolve(look.fore, ColourRole::fore));
    SetBkColor(dc, back);
    SetDCBrushColor(dc, back);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

} // namespace vela::win32
