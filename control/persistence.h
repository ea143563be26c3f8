// The settings of a control in the host's property bag, as the property table says.
#pragma once

#include "control/settings.h"
#include "engine/text/locale.h"
#include "platform/control_host.h"
#include "platform/edit_box.h"
#include "popups/calendar_colours.h"

#include <string>

namespace vela::control {

// Everything that is saved, those of the edit box and those of the process included.
struct StoredState {
    Settings settings;
    platform::EditTraits traits; // font, alignment, limit, password character, enabled
    engine::Colour back{0x00FFFFFF};
    std::u16string text;
    popups::CalendarColours colours;
};

// Reads what the bag holds, and defaults for what it lacks. When the bag fails, or holds what does not convert, the
// error is raised with `state` complete: what was read, and the defaults for the rest (the calendar colours, which all
// controls share, stay as they came).
// Oddity: AutoSelect and InserirZeros of a new control differ from those of a loaded one without the keys; saved forms
// leave the keys out.
void readState(platform::PropertyBag& bag, const engine::Locale& locale, StoredState& state);
void writeState(platform::PropertyBag& bag, const StoredState& state);

} // namespace vela::control
