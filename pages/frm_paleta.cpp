// The acts of the palette dialog.
#include "pages/frm_paleta.h"

#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/decimal_text.h"
#include "engine/text/key_codes.h"
#include "pages/key_filters.h"
#include "pages/layouts.h"
#include "pages/palette_colours.h"
#include "pages/spoken_names.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace vela::pages {

using engine::Colour;
using platform::WidgetId;

namespace {

constexpr std::u16string_view swatchName = u"Picture1";
namespace key = engine::key_code;

const platform::WidgetRow& rowOf(WidgetId widget)
{
    return paletaLayout().rows[static_cast<std::size_t>(widget.value)];
}

bool isSwatch(WidgetId widget)
{
    return widget && rowOf(widget).name == swatchName;
}

// "Vermelho 255, verde 0, azul 0", as the boxes of the own colour would have it.
std::u16string spokenColour(Colour colour)
{
    return u"Vermelho " + engine::decimalText(colour.value & 255) + u", verde " +
           engine::decimalText(colour.value >> 8 & 255) + u", azul " + engine::decimalText(colour.value >> 16 & 255);
}

} // namespace

frmPaleta::frmPaleta(platform::FormFactory& forms, platform::Desktop* desktop)
    : desktop_(desktop),
      form_(forms.make(paletaLayout(), {.clicks = this, .entries = this, .keysDown = this, .keys = this}))
{
    putSpokenNames(paletaLayout(), *form_);
    for (const PaletteColour& entry : paletteColours) {
        const WidgetId swatch = id(swatchName, entry.index);
        platform::WidgetLook look = form_->look(swatch);
        look.back = entry.colour;
        look.spokenName = spokenColour(entry.colour);
        form_->putLook(swatch, look);
    }
    platform::WidgetLook look = form_->look(id(u"picCustom"));
    look.back = colour_;
    look.border = true;
    form_->putLook(id(u"picCustom"), look);
}

const platform::FormLayout& frmPaleta::layout() const noexcept
{
    return paletaLayout();
}

Colour frmPaleta::preview() const
{
    return form_->look(id(u"picCustom")).back;
}

WidgetId frmPaleta::id(std::u16string_view name, int index) const
{
    const WidgetId found = platform::findWidget(paletaLayout(), name, index);
    assert(found);
    return found;
}

bool frmPaleta::isAmount(WidgetId widget) const
{
    return widget == id(u"txtR") || widget == id(u"txtG") || widget == id(u"txtB");
}

void frmPaleta::clicked(WidgetId widget)
{
    if (widget == id(u"cmdOK"))
        end(false);
    else if (widget == id(u"cmdCancel"))
        end(true);
}

void frmPaleta::end(bool cancelled)
{
    cancelled_ = cancelled;
    form_->close();
}

// Arrows move between the swatches. Enter stands for OK, Esc for Cancel, wherever the focus is; on a button Enter is
// the button's own.
void frmPaleta::keyDown(WidgetId widget, int& code, int&)
{
    if (isSwatch(widget) && code >= key::left && code <= key::down) {
        moveFrom(widget, std::exchange(code, 0));
        return;
    }
    const bool onButton = widget == id(u"cmdOK") || widget == id(u"cmdCancel");
    if (code != key::escape && (code != key::enter || onButton))
        return;
    const bool cancels = code == key::escape;
    code = 0;
    end(cancels);
}

// Oddity: the palette's colour boxes refuse Backspace, as every key but a digit; people select and type over, and a box
// never stands empty.
void frmPaleta::keyPress(WidgetId widget, int& key)
{
    if (isAmount(widget) && !digit(key))
        key = 0;
}

int frmPaleta::amount(std::u16string_view box) const
{
    const double number = std::nearbyint(engine::leadingNumber(form_->text(id(box)))); // halves to even
    if (number > 32767 || number < -32768)
        engine::raise(engine::error_number::overflow);
    if (number < 0)
        engine::raise(engine::error_number::invalidCall);
    return std::min(static_cast<int>(number), 255);
}

void frmPaleta::changed(WidgetId widget)
{
    if (!isAmount(widget))
        return;
    try {
        takeAmounts();
    } catch (const engine::Error& error) {
        if (!desktop_)
            throw;
        desktop_->messageBox(platform::BoxIcon::exclamation, platform::BoxButtons::ok, {}, error.description);
    }
}

void frmPaleta::takeAmounts()
{
    const Colour custom = rgb(amount(u"txtR"), amount(u"txtG"), amount(u"txtB"));
    platform::WidgetLook look = form_->look(id(u"picCustom"));
    look.back = custom;
    form_->putLook(id(u"picCustom"), look);
    colour_ = custom;
}

void frmPaleta::gotFocus(WidgetId widget)
{
    if (!isSwatch(widget))
        return;
    putBorder(widget, true);
    colour_ = form_->look(widget).back;
    selected_ = static_cast<std::uint8_t>(rowOf(widget).index);
}

void frmPaleta::lostFocus(WidgetId widget)
{
    if (isSwatch(widget))
        putBorder(id(swatchName, selected_), false);
}

void frmPaleta::putBorder(WidgetId swatch, bool on)
{
    platform::WidgetLook look = form_->look(swatch);
    look.border = on;
    form_->putLook(swatch, look);
}

void frmPaleta::moveFrom(WidgetId swatch, int arrow)
{
    const engine::RectTwips from = rowOf(swatch).place;
    const int across = arrow == key::right ? 1 : arrow == key::left ? -1 : 0;
    const int down = arrow == key::down ? 1 : arrow == key::up ? -1 : 0;
    for (const PaletteColour& entry : paletteColours)
        if (entry.left == from.left + across * paletteColumnStep && entry.top == from.top + down * paletteRowStep)
            form_->focus(id(swatchName, entry.index));
}

std::optional<Colour> PaletteChooser::choose()
{
    frmPaleta palette(forms_, &desktop_);
    palette.showModal();
    if (palette.cancelled())
        return std::nullopt;
    return palette.chosenColour();
}

} // namespace vela::pages
