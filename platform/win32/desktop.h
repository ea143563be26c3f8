// Boxes, keystrokes and windows of the real desktop.
#pragma once

#include "platform/desktop.h"

namespace vela::win32 {

class Desktop final : public platform::Desktop {
public:
    // A box with an OK button that is asked for while the focus is on its way is shown when it has arrived.
    platform::BoxAnswer messageBox(platform::BoxIcon icon, platform::BoxButtons buttons, std::u16string_view title,
                                   std::u16string_view text) override;
    [[nodiscard]] std::u16string inputBox(std::u16string_view prompt, std::u16string_view title) override;
    void aboutBox(std::u16string_view version) override;
    void sendKeys(std::u16string_view keys) override;
    void keyDown(int virtualKey) override;
    void processPendingEvents() override;
    [[nodiscard]] platform::WindowId activeWindow() const override;
    [[nodiscard]] bool isChild(platform::WindowId parent, platform::WindowId window) const override;
    [[nodiscard]] platform::WindowId windowUnderPointer() const override;
};

} // namespace vela::win32
