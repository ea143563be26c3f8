// An owner of pop-ups that keeps what is put into it, fails when told to, and does what a test wants inside a put.
#pragma once

#include "platform/headless/environment.h"
#include "popups/popups.h"
#include "tests/support/error_of.h"
#include "tests/support/recorder.h"

#include <functional>
#include <string>
#include <vector>

namespace vela::popups {

using engine::errorOf;

class ScriptedOwner final : public Owner {
public:
    std::u16string popupText() override { return text; }
    void putPopupText(const engine::Value& value) override
    {
        puts.push_back(value);
        if (duringPut)
            duringPut();
        if (failingPut != 0)
            engine::raise(failingPut);
    }
    void hideEntryTip() override { ++tipsHidden; }
    void takePopupFocus() override { ++focusTaken; }
    engine::RectPixels popupAnchor() override
    {
        if (failingAnchor != 0)
            engine::raise(failingAnchor);
        return {100, 200, 121, 21};
    }
    platform::ParentForm popupParent() override
    {
        if (failingParent != 0)
            throw engine::Error{failingParent, u"parent gone"};
        return parent;
    }

    std::u16string text;
    platform::ParentForm parent{false, false, platform::WindowId{77}};
    int failingPut = 0;
    int failingAnchor = 0;
    int failingParent = 0;
    std::function<void()> duringPut;
    std::vector<engine::Value> puts;
    int focusTaken = 0;
    int tipsHidden = 0;
};

} // namespace vela::popups
