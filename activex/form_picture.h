// Draws a form as it stands into any device context, metafiles included, whether it has windows or not.
#pragma once

#include "platform/form.h"

#include <windows.h>

namespace vela::activex {

// Scaled from the layout's size to the bounds. Labels, frames, swatches and the texts of the other widgets.
void drawForm(HDC dc, const RECT& bounds, const platform::FormLayout& layout, const platform::Form& form,
              engine::Colour back);

} // namespace vela::activex
