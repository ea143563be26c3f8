// Paints what has no window: labels, frames, the pane of the tabs; and the swatches.
#include "platform/win32/access_key.h"
#include "platform/win32/colours.h"
#include "platform/win32/device_context.h"
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

using platform::buttonFace;
using platform::Widget;
using platform::WidgetKind;

void paintLine(HDC dc, const RECT& place, int systemColour) noexcept
{
    FrameRect(dc, &place, GetSysColorBrush(systemColour));
}

bool isDark(COLORREF colour) noexcept
{
    return 3 * GetRValue(colour) + 6 * GetGValue(colour) + GetBValue(colour) < 640; // a quarter of white
}

} // namespace

bool FormWindow::hasGround() const noexcept
{
    return role_ == Role::child && !widgets_.hasBackColour();
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
    paintGround(dc, client);
    LabelPainter labels(dc, windows_.scale(), hasGround());
    for (WidgetWindow& widget : windows_.all()) {
        if (platform::takesFocus(widget.kind()) || !widgets_.showing(widget.values))
            continue;
        if (!widget.font)
            windows_.applyFont(widget);
        if (widget.kind() == WidgetKind::frame)
            paintFrame(dc, widget);
        else
            labels.paint(widget.values, widget.font->get());
    }
    if (role_ == Role::popup)
        paintLine(dc, client, COLOR_WINDOWFRAME);
}

void FormWindow::paintGround(HDC dc, const RECT& client)
{
    fill(dc, client, hasGround() ? ground_ : resolve(widgets_.backColour(), ColourRole::back));
    for (const WidgetWindow& widget : windows_.all())
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
    for (const WidgetWindow& widget : windows_.all())
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

// An etched frame with its caption in the upper side.
void FormWindow::paintFrame(HDC dc, const WidgetWindow& frame)
{
    const Widget& widget = frame.values;
    const SelectedObject font(dc, frame.font->get());
    RECT line = windows_.rectOf(widget);
    RECT caption = line;
    line.top += lineHeight(dc) / 2;
    caption.left += windows_.pixels(120);
    if (!widget.text.empty())
        DrawTextW(dc, wide(widget.text.c_str()), -1, &caption, DT_SINGLELINE | DT_CALCRECT);
    const int outside = SaveDC(dc);
    if (!widget.text.empty())
        ExcludeClipRect(dc, caption.left - windows_.pixels(30), caption.top, caption.right + windows_.pixels(30),
                        caption.bottom);
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
    RECT place = windows_.rectOf(widget.values);
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
    const WidgetWindow* widget = windows_.ofWindow(item.hwndItem);
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
        InflateRect(&place, -windows_.pixels(45), -windows_.pixels(45));
        DrawFocusRect(item.hDC, &place);
    }
}

LRESULT FormWindow::colourOf(UINT message, HDC dc, HWND child)
{
    const WidgetWindow* widget = windows_.ofWindow(child);
    if (!widget)
        widget = windows_.ofWindow(GetParent(child)); // a combo's list
    const bool typed = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const platform::WidgetLook fallback;
    const platform::WidgetLook& look = widget ? widget->values.look : fallback;
    const bool plain = !typed && look.back == buttonFace;
    const COLORREF back = plain && widget && hasGround() ? groundOf(widget->values)
                          : plain                        ? resolve(widgets_.backColour(), ColourRole::face)
                                                         : resolve(look.back, ColourRole::back);
    return controlColours(dc, resolve(look.fore, ColourRole::fore), back);
}

} // namespace vela::win32
