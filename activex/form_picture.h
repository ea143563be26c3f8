// Draws a form as it stands into any device context, metafiles included, whether it has windows or not.
#pragma once

#include "platform/widgets.h"

#include <windows.h>

namespace vela::activex {

// Scaled from the layout's size to the bounds. Draws a form of labels and combos: the calendar is one.
void drawForm(HDC dc, const RECT& bounds, const platform::Widgets& widgets);

} // namespace vela::activex
