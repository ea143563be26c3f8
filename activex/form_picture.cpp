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
    Picture(HDC dc, const Scale& scale, const platform::Widgets& widgets) : dc_(dc), scale_(scale), widgets_(widgets) {}

    void drawWidget(const platform::Widget& widget)
    {
        const platform::WidgetLook& look = widget.look;
        const RECT place = placeOf(widget);
        const bool label = widget.kind() == platform::WidgetKind::label;
        if (label && look.opaque && look.round)
            win32::paintMark(dc_, place, win32::resolve(look.back), scale_.x(markLine) - scale_.x(0));
        else if (label && look.opaque)
            fill(dc_, place, win32::resolve(look.back, win32::ColourRole::back));
        else if (platform::isCombo(widget.kind()))
            win32::paintCombo(dc_, place, win32::resolve(look.back, win32::ColourRole::back),
                              scale_.x(arrowTwips) - scale_.x(0));
        else if (!label)
            fill(dc_, place, win32::resolve(look.back, win32::ColourRole::back));
        if (look.border)
            outline(dc_, place, win32::resolve(look.fore, win32::ColourRole::fore));
        drawText(place, widget, win32::resolve(look.fore, win32::ColourRole::fore));
    }

private:
    static constexpr int markLine = 30; // twips

    [[nodiscard]] RECT placeOf(const platform::Widget& widget) const
    {
        const platform::WidgetLook& look = widget.look;
        return {scale_.x(look.left), scale_.y(look.top), scale_.x(look.left + widget.row->place.width),
                scale_.y(look.top + widget.row->place.height)};
    }

    [[nodiscard]] int heightOf(const platform::Widget& widget)
    {
        const int height = scale_.y(static_cast<int>(widget.font.size * twipsPerPoint)) - scale_.y(0);
        if (!widget.row->fits)
            return height;
        return fitted_.of(widget.row->name, dc_, widget.font, height, [&] {
            std::vector<win32::FittingText> fitting;
            for (const platform::Widget& one : widgets_.all())
                if (one.row->name == widget.row->name)
                    fitting.push_back({one.text, scale_.x(widget.row->place.width) - scale_.x(0)});
            return fitting;
        });
    }

    void drawText(RECT place, const platform::Widget& widget, COLORREF colour)
    {
        const win32::UniqueGdi<HFONT> font(win32::makeFont(widget.font, heightOf(widget)));
        const win32::SelectedObject selected(dc_, font.get());
        const std::u16string text = widgets_.text(widget.id);
        if (platform::isCombo(widget.kind()))
            place.left += scale_.x(comboMargin) - scale_.x(0);
        SetBkMode(dc_, TRANSPARENT);
        SetTextColor(dc_, colour);
        DrawTextW(dc_, win32::wide(text.data()), static_cast<int>(text.size()), &place,
                  alignmentOf(*widget.row) | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }

    HDC dc_;
    const Scale& scale_;
    const platform::Widgets& widgets_;
    win32::FittedHeights fitted_;
};

} // namespace

void drawForm(HDC dc, const RECT& bounds, const platform::Widgets& widgets)
{
    const win32::SavedDc saved(dc);
    const Scale scale{bounds, widgets.layout()};
    Picture picture(dc, scale, widgets);
    if (widgets.backColour())
        fill(dc, bounds, win32::resolve(*widgets.backColour(), win32::ColourRole::back));
    for (const platform::Widget& widget : widgets.all())
        if (widgets.visible(widget.id))
            picture.drawWidget(widget);
}

} // namespace vela::activex
