// What a control asks of the desktop: boxes, keystrokes, windows under the pointer and in front.
#pragma once

#include "engine/geometry.h"
#include "platform/window_id.h"

#include <string>
#include <string_view>

namespace vela::platform {

enum class BoxIcon { none, information, exclamation, question };
enum class BoxButtons { ok, yesNo };
enum class BoxAnswer { ok, yes, no, cancel };

class Desktop {
public:
    virtual ~Desktop() = default;

    // Modal. An empty title stands for the application's. A box asked for during a change of focus is shown when that
    // has ended.
    virtual BoxAnswer messageBox(BoxIcon icon, BoxButtons buttons, std::u16string_view title,
                                 std::u16string_view text) = 0;
    [[nodiscard]] virtual std::u16string inputBox(std::u16string_view prompt,
                                                  std::u16string_view title) = 0; // "": cancelled
    virtual void aboutBox(std::u16string_view version) = 0;
    // "{TAB}", "+{TAB}", "{F4}" to the focused window, carried out after the key that asked has been handled whole.
    virtual void sendKeys(std::u16string_view keys) = 0;
    // One key-down of the key, without its key-up, through the input queue.
    virtual void keyDown(int virtualKey) = 0;
    virtual void processPendingEvents() = 0;
    [[nodiscard]] virtual WindowId activeWindow() const = 0;
    [[nodiscard]] virtual bool isChild(WindowId parent, WindowId window) const = 0;
    [[nodiscard]] virtual WindowId windowUnderPointer() const = 0;
};

} // namespace vela::platform
