// A form's picture from its table and its values.
#include "activex/form_picture.h"

#include "platform/win32/colours.h"
#include "platform/win32/fonts.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"

namespace vela::activex {

namespace {

constexpr double twipsPerPoint = 20;

struct Scale {
    RECT bounds;
    const platform::FormLayout& layout;

    [[nodiscard]] int x(int twips) const
    {
        return bounds.left + MulDiv(twips, bounds.right - bounds.left, layout.width);
    }
    [[nodiscard]] int y(int twips) const
    {
        return bounds.top + MulDiv(twips, bounds.bottom - bounds.top, layout.height);
    }
};

void fill(HDC dc, const RECT& place, COLORREF colour)
{
    const win32::UniqueGdi<HBRUSH> brush(CreateSolidBrush(colour));
    FillRect(dc, &place, brush.get());
}

void outline(HDC dc, const RECT& place, COLORREF colour)
{
    const win32::UniqueGdi<HPEN> pen(CreatePen(PS_SOLID, 0, colour));
    const win32::SelectedObject selectedPen(dc, pen.get());
    const win32::SelectedObject selectedBrush(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, place.left, place.top, place.right, place.bottom);
}

UINT alignmentOf(const platform::WidgetRow& row)
{
    switch (row.alignment) {
    case platform::TextAlignment::left: return DT_LEFT;
    case platform::TextAlignment::right: return DT_RIGHT;
    case platform::TextAlignment::center: break;
    }
    return DT_CENTER;
}

void drawText(HDC dc, RECT place, const Scale& scale, const platform::WidgetRow& row, std::u16string_view text,
              COLORREF colour)
{
    platform::FontDescription description;
    description.name = scale.layout.fontName;
    description.size = row.fontSize > 0 ? row.fontSize : scale.layout.fontSize;
    description.bold = row.bold;
    const int height = scale.y(static_cast<int>(description.size * twipsPerPoint)) - scale.y(0);
    const win32::UniqueGdi<HFONT> font(win32::makeFont(description, height));
    const win32::SelectedObject selected(dc, font.get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colour);
    DrawTextW(dc, win32::wide(text.data()), static_cast<int>(text.size()), &place,
              alignmentOf(row) | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void drawWidget(HDC dc, const Scale& scale, const platform::WidgetRow& row, platform::WidgetId id,
                const platform::Form& form)
{
    const platform::WidgetLook& look = form.look(id);
    const RECT place{scale.x(look.left), scale.y(look.top), scale.x(look.left + row.place.width),
                     scale.y(look.top + row.place.height)};
    if (look.opaque || row.kind != platform::WidgetKind::label)
        fill(dc, place, win32::resolve(look.back));
    if (look.border || row.kind == platform::WidgetKind::dropDownList || row.kind == platform::WidgetKind::comboBox)
        outline(dc, place, win32::resolve(look.fore));
    drawText(dc, place, scale, row, form.text(id), win32::resolve(look.fore));
}

} // namespace

void drawForm(HDC dc, const RECT& bounds, const platform::FormLayout& layout, const platform::Form& form,
              engine::Colour back)
{
    const win32::SavedDc saved(dc);
    const Scale scale{bounds, layout};
    fill(dc, bounds, win32::resolve(back));
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const platform::WidgetId id{static_cast<int>(i)};
        if (form.visible(id))
            drawWidget(dc, scale, layout.rows[i], id, form);
    }
}

} // namespace vela::activex
