// One visit of the focus: entering the field, clicks in it, leaving it, and the answer to a wrong entry.
#pragma once

#include "control/content.h"
#include "control/look.h"
#include "tooltip/balloon_tooltip.h"

#include <memory>
#include <optional>
#include <string_view>

namespace vela::control {

class Visit {
public:
    Visit(Context& context, Content& content, Look& look) : context_(context), content_(content), look_(look) {}

    void enter();
    void enterText(); // the form that is edited
    void enterSelection();
    void click();
    void leave(platform::Leaving leaving);
    void hideTip();
    void hideTips(); // and the alert
    void end();

private:
    struct Wrong {
        std::u16string_view title;
        std::u16string_view text;
    };
    using Tip = std::unique_ptr<tooltip::CBalloonToolTip>;

    void showEntryTip();
    void selectAll();
    void placeCaretByClick();
    void check(platform::Leaving leaving);
    [[nodiscard]] std::optional<Wrong> checkByType();
    [[nodiscard]] std::optional<Wrong> checkNumber();
    [[nodiscard]] std::optional<Wrong> checkDate();
    void answerWrong(const Wrong& wrong, platform::Leaving leaving);
    void showAlert(const Wrong& wrong);
    [[nodiscard]] tooltip::CBalloonToolTip& made(Tip& tip); // at its first use

    Context& context_;
    Content& content_;
    Look& look_;
    Tip tip_;                    // of the entry
    Tip alert_;                  // where the box has no balloon of its own
    bool returnedFocus_ = false; // a wrong entry has been given the focus back once
    bool held_ = false;          // the focus returned because this field's entry is wrong
    bool firstClick_ = false;    // no click yet since the focus arrived
};

} // namespace vela::control
