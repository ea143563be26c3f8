// What a screen reader says of the controls that show no words of their own: boxes, lists, swatches and help buttons.
#pragma once

#include "platform/form.h"

#include <string>

namespace vela::pages {

// Of the label before it: "Regras" for a text box, "Cor das Bordas" for a swatch, "Ajuda: Símbolo Monetário" for a
// button captioned "?". Empty for every other kind, and where no label stands before it.
[[nodiscard]] std::u16string spokenName(const platform::FormLayout& layout, platform::WidgetId control);

// Gives every such control of the form its spoken name.
void putSpokenNames(const platform::FormLayout& layout, platform::Form& form);

} // namespace vela::pages
