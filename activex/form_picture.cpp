// A form's picture from the values of its widgets.
#include "activex/form_picture.h"

#include "platform/win32/colours.h"
#include "platform/win32/device_context.h"
#include "platform/win32/fonts.h"
#include "platform/win32/label_painter.h"
#include "platform/win32/owners.h"
#include "platform/win32/paint.h"
#include "platform/win32/text.h"

namespace vela::activex {

namespace {

constexpr int arrowTwips = 240; // of a closed combo
constexpr int comboMargin = 75; // left of its text

void drawCombo(HDC dc, const win32::FormScale& scale, const platform::Widget& combo)
{
    RECT place = scale.placeOf(combo);
    win32::paintCombo(dc, place, win32::resolve(combo.look.back, win32::ColourRole::back), scale.units(arrowTwips));
    const win32::UniqueGdi<HFONT> font(win32::makeFont(combo.font, scale.heightOf(combo.font)));
    const win32::SelectedObject selected(dc, font.get());
    const std::u16string text = scale.widgets.text(combo.id);
    place.left += scale.units(comboMargin);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, win32::resolve(combo.look.fore, win32::ColourRole::fore));
    DrawTextW(dc, win32::wide(text.data()), static_cast<int>(text.size()), &place,
              DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

} // namespace

void drawForm(HDC dc, const RECT& bounds, const platform::Widgets& widgets)
{
    const win32::SavedDc saved(dc);
    const platform::FormLayout& layout = widgets.layout();
    const win32::FormScale scale{widgets,
                                 static_cast<double>(bounds.right - bounds.left) / layout.width,
                                 static_cast<double>(bounds.bottom - bounds.top) / layout.height,
                                 {bounds.left, bounds.top}};
    win32::LabelPainter labels(dc, scale);
    win32::fill(dc, bounds, win32::resolve(widgets.backColour(), win32::ColourRole::back));
    for (const platform::Widget& widget : widgets.all())
        if (widgets.visible(widget.id)) {
            if (platform::isCombo(widget.kind()))
                drawCombo(dc, scale, widget);
            else
                labels.paint(widget);
        }
}

} // namespace vela::activex
