// A form's picture from its table and its values.
#include "activex/form_picture.h"

#include "platform/win32/colours.h"
#include "platform/win32/fitted_text.h"
#include "platform/win32/fonts.h"
#include "platform/win32/owners.h"
#include "platform/win32/paint.h"
#include "platform/win32/text.h"

namespace vela::activex {

namespace {

constexpr double twipsPerPoint = 20;
constexpr int arrowTwips = 240; // of a closed combo
constexpr int comboMargin = 75; // left of its text

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

bool isCombo(platform::WidgetKind kind) noexcept
{
    return kind == platform::WidgetKind::dropDownList || kind == platform::WidgetKind::comboBox;
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

// One drawing of a form.
class Picture {
public:
    Picture(HDC dc, const Scale& scale, const platform::Form& form) : dc_(dc), scale_(scale), form_(form) {}

    void drawWidget(const platform::WidgetRow& row, platform::WidgetId id)
    {
        const platform::WidgetLook& look = form_.look(id);
        const RECT place = placeOf(row, id);
        const bool label = row.kind == platform::WidgetKind::label;
        if (label && look.opaque && look.round)
            win32::paintMark(dc_, place, win32::resolve(look.back), scale_.x(markLine) - scale_.x(0));
        else if (label && look.opaque)
            fill(dc_, place, win32::resolve(look.back, win32::ColourRole::back));
        else if (isCombo(row.kind))
            win32::paintCombo(dc_, place, win32::resolve(look.back, win32::ColourRole::back),
                              scale_.x(arrowTwips) - scale_.x(0));
        else if (!label)
            fill(dc_, place, win32::resolve(look.back, win32::ColourRole::back));
        if (look.border)
            outline(dc_, place, win32::resolve(look.fore, win32::ColourRole::fore));
        drawText(place, row, id, win32::resolve(look.fore, win32::ColourRole::fore));
    }

private:
    static constexpr int markLine = 30; // twips

    [[nodiscard]] RECT placeOf(const platform::WidgetRow& row, platform::WidgetId id) const
    {
        const platform::WidgetLook& look = form_.look(id);
        return {scale_.x(look.left), scale_.y(look.top), scale_.x(look.left + row.place.width),
                scale_.y(look.top + row.place.height)};
    }

    [[nodiscard]] int heightOf(const platform::WidgetRow& row, const platform::FontDescription& font)
    {
        const int height = scale_.y(static_cast<int>(font.size * twipsPerPoint)) - scale_.y(0);
        if (!row.fits)
            return height;
        return fitted_.of(row.name, dc_, font, height, [&] {
            texts_.clear();
            std::vector<win32::FittingText> fitting;
            for (std::size_t i = 0; i < scale_.layout.rows.size(); ++i)
                if (scale_.layout.rows[i].name == row.name)
                    texts_.push_back(form_.text({static_cast<int>(i)}));
            for (const std::u16string& text : texts_)
                fitting.push_back({text, scale_.x(row.place.width) - scale_.x(0)});
            return fitting;
        });
    }

    void drawText(RECT place, const platform::WidgetRow& row, platform::WidgetId id, COLORREF colour)
    {
        platform::FontDescription description;
        description.name = scale_.layout.fontName;
        description.size = row.fontSize > 0 ? row.fontSize : scale_.layout.fontSize;
        description.bold = row.bold;
        const win32::UniqueGdi<HFONT> font(win32::makeFont(description, heightOf(row, description)));
        const win32::SelectedObject selected(dc_, font.get());
        const std::u16string text = form_.text(id);
        if (isCombo(row.kind))
            place.left += scale_.x(comboMargin) - scale_.x(0);
        SetBkMode(dc_, TRANSPARENT);
        SetTextColor(dc_, colour);
        DrawTextW(dc_, win32::wide(text.data()), static_cast<int>(text.size()), &place,
                  alignmentOf(row) | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }

    HDC dc_;
    const Scale& scale_;
    const platform::Form& form_;
    win32::FittedHeights fitted_;
    std::vector<std::u16string> texts_;
};

} // namespace

void drawForm(HDC dc, const RECT& bounds, const platform::FormLayout& layout, const platform::Form& form,
              engine::Colour back)
{
    const win32::SavedDc saved(dc);
    const Scale scale{bounds, layout};
    Picture picture(dc, scale, form);
    fill(dc, bounds, win32::resolve(back, win32::ColourRole::back));
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const platform::WidgetId id{static_cast<int>(i)};
        if (form.visible(id))
            picture.drawWidget(layout.rows[i], id);
    }
}

} // namespace vela::activex
