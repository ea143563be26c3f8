// The check that both pop-ups make at every tick: may the pop-up stay open?
#pragma once

#include "platform/environment.h"
#include "platform/window_id.h"
#include "popups/owner.h"

#include <string_view>

namespace vela::popups {

inline constexpr std::u16string_view popupLogPath = u"C:\\Log_Vela.txt";
inline constexpr int clientSiteNotAvailable = 398; // never logged

// True when the active window is the pop-up's own. An error answers false and is logged under the label, 0 and 398
// excepted. Raises what the log raises.
[[nodiscard]] bool mayStayOpen(platform::WindowId popup, Owner& owner, const platform::Environment& environment,
                               std::u16string_view label);

} // namespace vela::popups
