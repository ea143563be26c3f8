// Draws borders, the button with its picture, and whole fields.
#include "platform/win32/paint.h"

#include "platform/win32/colours.h"
#include "platform/win32/device_context.h"
#include "platform/win32/dpi.h"
#include "platform/win32/fonts.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"

#include <uxtheme.h>
#include <vsstyle.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string_view>

namespace vela::win32 {
namespace {

// Lengths drawn and left out in turn, in line widths.
constexpr std::array<int, 2> dashes{6, 3};
constexpr std::array<int, 2> dots{1, 2};
constexpr std::array<int, 4> dashDots{6, 2, 1, 2};
constexpr int line3d = 4, lineXp = 5;

std::span<const int> patternOf(int line) noexcept
{
    switch (line) {
    case 1: return dashes;
    case 2: return dots;
    case 3: return dashDots;
    default: return {};
    }
}

// One side, along x or along y, from start to end.
void paintSide(HDC dc, const RECT& side, bool alongX, std::span<const int> pattern, int width, HBRUSH brush)
{
    if (pattern.empty()) {
        FillRect(dc, &side, brush);
        return;
    }
    const LONG end = alongX ? side.right : side.bottom;
    LONG position = alongX ? side.left : side.top;
    for (std::size_t i = 0; position < end; i = (i + 1) % pattern.size()) {
        const LONG next = std::min<LONG>(position + pattern[i] * std::max(width, 1), end);
        RECT piece = side;
        (alongX ? piece.left : piece.top) = position;
        (alongX ? piece.right : piece.bottom) = next;
        if (i % 2 == 0)
            FillRect(dc, &piece, brush);
        position = next;
    }
}

void paintSides(HDC dc, const RECT& r, const BorderPen& pen)
{
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(resolve(pen.colour, ColourRole::border)));
    const std::span<const int> pattern = patternOf(pen.line);
    const int w = pen.width;
    paintSide(dc, {r.left, r.top, r.right, r.top + w}, true, pattern, w, brush.get());
    paintSide(dc, {r.left, r.bottom - w, r.right, r.bottom}, true, pattern, w, brush.get());
    paintSide(dc, {r.left, r.top, r.left + w, r.bottom}, false, pattern, w, brush.get());
    paintSide(dc, {r.right - w, r.top, r.right, r.bottom}, false, pattern, w, brush.get());
}

void paintRounded(HDC dc, const RECT& r, const BorderPen& pen)
{
    const UniqueGdi<HPEN> line(CreatePen(PS_INSIDEFRAME, pen.width, resolve(pen.colour, ColourRole::border)));
    const SelectedObject selectedLine(dc, line.get());
    const SelectedObject hollow(dc, GetStockObject(NULL_BRUSH));
    const int diameter = std::max(pen.cornerRadius, 1) * 2;
    RoundRect(dc, r.left, r.top, r.right, r.bottom, diameter, diameter);
}

// Sunken, in shades of the border's own colour: dark above and left, the colour below and right.
void paintSunken(HDC dc, const RECT& r, const BorderPen& pen)
{
    const COLORREF light = resolve(pen.colour, ColourRole::border);
    const auto darker = [light](int percent) {
        return RGB(GetRValue(light) * percent / 100, GetGValue(light) * percent / 100,
                   GetBValue(light) * percent / 100);
    };
    const UniqueGdi<HBRUSH> bright(CreateSolidBrush(light));
    const UniqueGdi<HBRUSH> dark(CreateSolidBrush(darker(60)));
    const UniqueGdi<HBRUSH> darkest(CreateSolidBrush(darker(35)));
    const int w = pen.width;
    paintSide(dc, {r.left, r.bottom - w, r.right, r.bottom}, true, {}, w, bright.get());
    paintSide(dc, {r.right - w, r.top, r.right, r.bottom}, false, {}, w, bright.get());
    paintSide(dc, {r.left, r.top, r.right - w, r.top + w}, true, {}, w, dark.get());
    paintSide(dc, {r.left, r.top, r.left + w, r.bottom - w}, false, {}, w, dark.get());
    paintSide(dc, {r.left + w, r.top + w, r.right - w, r.top + 2 * w}, true, {}, w, darkest.get());
    paintSide(dc, {r.left + w, r.top + w, r.left + 2 * w, r.bottom - w}, false, {}, w, darkest.get());
}

RECT inner(const RECT& place, int numerator, int denominator) noexcept
{
    const LONG side = std::min(place.right - place.left, place.bottom - place.top) * numerator / denominator;
    const LONG left = (place.left + place.right - side) / 2;
    const LONG top = (place.top + place.bottom - side) / 2;
    return {left, top, left + side, top + side};
}

// A sheet with a dark head and 3 by 2 days.
void paintCalendarGlyph(HDC dc, const RECT& box, COLORREF colour)
{
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    FrameRect(dc, &box, brush.get());
    const LONG width = box.right - box.left;
    const LONG head = std::max<LONG>(width / 4, 2);
    const RECT top{box.left, box.top, box.right, box.top + head};
    FillRect(dc, &top, brush.get());
    const LONG day = std::max<LONG>(width / 8, 1);
    for (LONG row = 0; row < 2; ++row)
        for (LONG column = 0; column < 3; ++column) {
            const LONG x = box.left + width * (2 * column + 1) / 6 - day / 2;
            const LONG y = box.top + head + (width - head) * (2 * row + 1) / 4 - day / 2;
            const RECT cell{x, y, x + day, y + day};
            FillRect(dc, &cell, brush.get());
        }
}

// A case with a display and 3 by 3 keys.
void paintCalculatorGlyph(HDC dc, const RECT& box, COLORREF colour)
{
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    FrameRect(dc, &box, brush.get());
    const LONG width = box.right - box.left;
    const LONG unit = std::max<LONG>(width / 8, 1);
    const RECT display{box.left + 2 * unit, box.top + 2 * unit, box.right - 2 * unit, box.top + 3 * unit + 1};
    FillRect(dc, &display, brush.get());
    for (LONG row = 0; row < 3; ++row)
        for (LONG column = 0; column < 3; ++column) {
            const LONG x = box.left + width * (2 * column + 1) / 6 - unit / 2;
            const LONG y = box.top + width / 2 + row * (width / 2 - unit) / 3;
            const RECT key{x, y, x + unit, y + unit};
            FillRect(dc, &key, brush.get());
        }
}

// A theme's parts are pictures: they go where pictures go, not into metafiles or onto printers.
bool takesPictures(HDC dc) noexcept
{
    const DWORD kind = GetObjectType(dc);
    return kind != OBJ_ENHMETADC && kind != OBJ_METADC && GetDeviceCaps(dc, TECHNOLOGY) == DT_RASDISPLAY;
}

// The theme's data for a class, for a scope. None in high contrast: a theme keeps its own face there.
class Theme {
public:
    Theme(HWND window, HDC dc, const wchar_t* part) noexcept
        : theme_(!highContrast() && (window || takesPictures(dc)) ? OpenThemeData(window, part) : nullptr)
    {
    }
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;
    ~Theme()
    {
        if (theme_)
            CloseThemeData(theme_);
    }
    [[nodiscard]] explicit operator bool() const noexcept { return theme_ != nullptr; }
    [[nodiscard]] HTHEME get() const noexcept { return theme_; }

private:
    HTHEME theme_;
};

struct Scale {
    double x = 1;
    double y = 1;
    POINT origin{0, 0};

    [[nodiscard]] RECT rect(const engine::RectPixels& r) const noexcept
    {
        const auto at = [](LONG start, double scale, int value) { return start + std::lround(scale * value); };
        return {at(origin.x, x, r.left), at(origin.y, y, r.top), at(origin.x, x, r.right()),
                at(origin.y, y, r.bottom())};
    }
};

std::u16string shown(const FieldPicture& field)
{
    return field.traits.passwordChar ? std::u16string(field.text.size(), field.traits.passwordChar)
                                     : std::u16string(field.text);
}

UINT textFormat(const FieldPicture& field) noexcept
{
    UINT format = DT_NOPREFIX | DT_EDITCONTROL | (field.multiLine ? DT_WORDBREAK : DT_SINGLELINE);
    switch (field.traits.alignment) {
    case platform::TextAlignment::left: return format | DT_LEFT;
    case platform::TextAlignment::right: return format | DT_RIGHT;
    case platform::TextAlignment::center: return format | DT_CENTER;
    }
    return format;
}

// Left and right of the text in a system's box: half of the font's average character.
int boxMargin(HDC dc) noexcept
{
    constexpr std::wstring_view letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE size{};
    GetTextExtentPoint32W(dc, letters.data(), static_cast<int>(letters.size()), &size);
    const auto average = (static_cast<int>(size.cx) / 26 + 1) / 2;
    return average / 2;
}

void paintText(HDC dc, RECT place, const FieldPicture& field, double scale)
{
    constexpr double pointsPerInch = 72;
    const int height = static_cast<int>(std::lround(field.traits.font.size * field.dpi * scale / pointsPerInch));
    const UniqueGdi<HFONT> font(makeFont(field.traits.font, std::max(height, 1)));
    const SelectedObject selected(dc, font.get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc,
                 field.traits.enabled ? resolve(field.colours.fore, ColourRole::fore) : GetSysColor(COLOR_GRAYTEXT));
    const int edge = field.traits.sunken ? static_cast<int>(std::lround(scale)) : 0; // its box keeps one unit more
    InflateRect(&place, -(boxMargin(dc) + edge), -edge);
    const std::u16string text = shown(field);
    DrawTextW(dc, wide(text.data()), static_cast<int>(text.size()), &place, textFormat(field));
}

// Painted four times as large over what is there, and drawn smaller with the system's averaging.
void paintSmoothEllipse(HDC dc, const RECT& place, COLORREF colour)
{
    constexpr int fine = 4;
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    const UniqueMemoryDc memory(CreateCompatibleDC(dc));
    const UniqueGdi<HBITMAP> picture(CreateCompatibleBitmap(dc, width * fine, height * fine));
    const SelectedObject canvas(memory.get(), picture.get());
    StretchBlt(memory.get(), 0, 0, width * fine, height * fine, dc, place.left, place.top, width, height, SRCCOPY);
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    const SelectedObject inside(memory.get(), brush.get());
    const SelectedObject outline(memory.get(), GetStockObject(NULL_PEN));
    Ellipse(memory.get(), 0, 0, width * fine + 1, height * fine + 1);
    SetStretchBltMode(dc, HALFTONE);
    SetBrushOrgEx(dc, 0, 0, nullptr);
    StretchBlt(dc, place.left, place.top, width, height, memory.get(), 0, 0, width * fine, height * fine, SRCCOPY);
}

void paintPlainEllipse(HDC dc, const RECT& place, COLORREF colour)
{
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    const SelectedObject inside(dc, brush.get());
    const SelectedObject outline(dc, GetStockObject(NULL_PEN));
    Ellipse(dc, place.left, place.top, place.right + 1, place.bottom + 1);
}

// Smooth edges need a device context that can be read: a metafile and a printer get a plain ellipse.
void paintEllipse(HDC dc, const RECT& place, COLORREF colour)
{
    if (takesPictures(dc))
        paintSmoothEllipse(dc, place, colour);
    else
        paintPlainEllipse(dc, place, colour);
}

int boxState(const FieldPicture& field) noexcept
{
    if (!field.traits.enabled)
        return ETS_DISABLED;
    if (field.traits.locked)
        return ETS_READONLY;
    return field.focused ? ETS_FOCUSED : ETS_NORMAL;
}

// The edges of a sunken box, as the system's box has them; what is left is its client area.
void paintBoxEdge(HDC dc, RECT& edit, const FieldPicture& field)
{
    if (const Theme theme(nullptr, dc, L"EDIT"); theme) {
        const SavedDc saved(dc);
        RECT inside = edit;
        InflateRect(&inside, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
        ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
        DrawThemeBackground(theme.get(), dc, EP_EDITTEXT, boxState(field), &edit, nullptr);
        edit = inside;
        return;
    }
    DrawEdge(dc, &edit, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
}

// The surface's own ground; behind round corners the host's is seen.
void paintGround(HDC dc, const RECT& place, const FieldPicture& field, int radius)
{
    const COLORREF back = resolve(field.look.back, ColourRole::back);
    if (radius <= 0)
        return fill(dc, place, back);
    fill(dc, place, resolve(field.ground, ColourRole::face));
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(back));
    const UniqueGdi<HRGN> shape(
        CreateRoundRectRgn(place.left, place.top, place.right + 1, place.bottom + 1, radius * 2, radius * 2));
    FillRgn(dc, shape.get(), brush.get());
}

} // namespace

void fill(HDC dc, const RECT& place, COLORREF colour) noexcept
{
    const UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    FillRect(dc, &place, brush.get());
}

LRESULT controlColours(HDC dc, COLORREF fore, COLORREF back) noexcept
{
    SetTextColor(dc, fore);
    SetBkColor(dc, back);
    SetDCBrushColor(dc, back);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

void paintBorder(HDC dc, const RECT& place, const BorderPen& pen)
{
    if (pen.line == line3d)
        paintSunken(dc, place, pen);
    else if (pen.line == lineXp)
        paintRounded(dc, place, pen);
    else
        paintSides(dc, place, pen);
}

void paintMark(HDC dc, const RECT& place, COLORREF colour, int line)
{
    if (!highContrast()) {
        paintEllipse(dc, place, colour);
        return;
    }
    paintEllipse(dc, place, GetSysColor(COLOR_HIGHLIGHT));
    RECT inside = place;
    InflateRect(&inside, -line, -line);
    paintEllipse(dc, inside, GetSysColor(COLOR_WINDOW));
}

void paintGlyph(HDC dc, const RECT& place, platform::ButtonGlyph glyph, COLORREF colour)
{
    const RECT box = inner(place, 5, 8);
    switch (glyph) {
    case platform::ButtonGlyph::calendar: paintCalendarGlyph(dc, box, colour); break;
    case platform::ButtonGlyph::calculator: paintCalculatorGlyph(dc, box, colour); break;
    }
}

void paintButton(HDC dc, const RECT& place, platform::ButtonGlyph glyph, UINT itemState, HWND window)
{
    const bool pressed = (itemState & ODS_SELECTED) != 0;
    const bool disabled = (itemState & ODS_DISABLED) != 0;
    RECT face = place;
    if (const Theme theme(window, dc, L"BUTTON"); theme) {
        const int state = disabled ? PBS_DISABLED : pressed ? PBS_PRESSED : PBS_NORMAL;
        fill(dc, place, GetSysColor(COLOR_BTNFACE));
        DrawThemeBackground(theme.get(), dc, BP_PUSHBUTTON, state, &face, nullptr);
    } else {
        DrawFrameControl(dc, &face, DFC_BUTTON, DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0U));
    }
    if (pressed)
        OffsetRect(&face, 1, 1);
    paintGlyph(dc, face, glyph, GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
}

void paintCombo(HDC dc, RECT place, COLORREF back, int arrow)
{
    fill(dc, place, back);
    const Theme theme(nullptr, dc, L"COMBOBOX");
    if (theme) {
        DrawThemeBackground(theme.get(), dc, CP_BORDER, CBXS_NORMAL, &place, nullptr);
        InflateRect(&place, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
        fill(dc, place, back);
    } else {
        DrawEdge(dc, &place, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    }
    place.left = std::max(place.left, place.right - arrow);
    if (theme)
        DrawThemeBackground(theme.get(), dc, CP_DROPDOWNBUTTON, CBXS_NORMAL, &place, nullptr);
    else
        DrawFrameControl(dc, &place, DFC_SCROLL, DFCS_SCROLLCOMBOBOX);
}

void paintField(HDC dc, const RECT& place, const FieldPicture& field)
{
    if (field.client.cx <= 0 || field.client.cy <= 0)
        return;
    const SavedDc saved(dc);
    const Scale scale{static_cast<double>(place.right - place.left) / field.client.cx,
                      static_cast<double>(place.bottom - place.top) / field.client.cy,
                      {place.left, place.top}};
    const int width = std::max(1, static_cast<int>(std::lround(scaled(1, field.dpi) * scale.y)));
    const int radius = static_cast<int>(std::lround(field.layout.cornerRadius * scale.x));
    paintGround(dc, place, field, radius);
    RECT edit = scale.rect(field.layout.edit);
    fill(dc, edit, resolve(field.colours.back, ColourRole::back));
    if (field.traits.sunken)
        paintBoxEdge(dc, edit, field);
    paintText(dc, edit, field, scale.y);
    if (field.look.button)
        paintButton(dc, scale.rect(field.layout.button), field.look.glyph, 0, nullptr);
    if (field.look.ownBorder)
        paintBorder(dc, place, {field.look.line, field.look.border, width, radius});
}

} // namespace vela::win32
