// The desktop in memory: boxes answered from a queue, keystrokes kept until the key in hand is done, the active window.
#pragma once

#include "engine/value.h"
#include "platform/desktop.h"
#include "platform/headless/fault.h"
#include "platform/headless/trace.h"

#include <deque>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vela::headless {

// A top-level window: it is told when it becomes the active one and when it no longer is.
class TopLevel {
public:
    [[nodiscard]] virtual platform::WindowId topLevelWindow() const = 0;
    virtual void becameActive() = 0;
    virtual void becameInactive() = 0;

protected:
    ~TopLevel() = default;
};

using Answer = std::variant<platform::BoxAnswer, std::u16string, engine::Colour>;

class Desktop final : public platform::Desktop {
public:
    Desktop(TraceSink& sink, FaultPlan& faults) : sink_(sink), faults_(faults) {}

    // Answers to the next boxes, first come first served. One of another kind than the box asks for is used up and
    // counts as none; with none a box answers ok or yes, an input box the empty text, the palette nothing.
    void queueAnswer(Answer answer) { answers_.push_back(std::move(answer)); }
    [[nodiscard]] std::optional<engine::Colour> choosePalette(); // the palette dialog's answer, traced

    platform::BoxAnswer messageBox(platform::BoxIcon icon, platform::BoxButtons buttons, std::u16string_view title,
                                   std::u16string_view text) override;
    std::u16string inputBox(std::u16string_view prompt, std::u16string_view title) override;
    void aboutBox(std::u16string_view version) override;
    void sendKeys(std::u16string_view keys) override;
    void keyDown(int virtualKey) override;
    void processPendingEvents() override {}
    [[nodiscard]] platform::WindowId activeWindow() const override;
    [[nodiscard]] bool isChild(platform::WindowId parent, platform::WindowId window) const override;
    [[nodiscard]] platform::WindowId windowUnderPointer() const override { return pointer_; }

    // Focus moves asked for by "{TAB}", "+{TAB}" and the Tab key, oldest first; the form carries them out.
    enum class TabMove { none, forwards, backwards };
    [[nodiscard]] TabMove nextTab();

    // The former active window hears becameInactive(), then this one becameActive(). Null: another program's window.
    void activate(TopLevel* window);
    // A window is going or hides, nothing is told to anybody: when it was active, the one active before it is again.
    void retire(const TopLevel& window) noexcept;
    [[nodiscard]] TopLevel* active() const noexcept { return active_; }

    std::u16string clipboard; // a text; empty: nothing has been copied

    void putPointer(platform::WindowId window) noexcept { pointer_ = window; } // 0: away from all
    void adopt(platform::WindowId parent, platform::WindowId window);          // for isChild()

private:
    template <class Kind>
    std::optional<Kind> takeAnswer();

    TraceSink& sink_;
    FaultPlan& faults_;
    std::deque<Answer> answers_;
    std::vector<TabMove> tabs_;
    TopLevel* active_ = nullptr;
    std::vector<TopLevel*> order_; // the latest active last
    platform::WindowId pointer_;
    std::vector<std::pair<platform::WindowId, platform::WindowId>> children_; // parent, child
};

} // namespace vela::headless
