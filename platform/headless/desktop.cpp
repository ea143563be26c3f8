// The desktop's answers, its queue of asked-for Tabs and its active window.
#include "platform/headless/desktop.h"

#include <utility>

namespace vela::headless {

using platform::BoxAnswer;
using platform::BoxButtons;

// The oldest queued answer when it is of this kind; one of another kind is dropped.
template <class Kind>
std::optional<Kind> Desktop::takeAnswer()
{
    if (answers_.empty())
        return std::nullopt;
    const Answer answer = std::move(answers_.front());
    answers_.pop_front();
    const Kind* wanted = std::get_if<Kind>(&answer);
    return wanted != nullptr ? std::optional<Kind>(*wanted) : std::nullopt;
}

std::optional<engine::Colour> Desktop::choosePalette()
{
    const std::optional<engine::Colour> answer = takeAnswer<engine::Colour>();
    sink_.trace(trace::Palette{answer});
    return answer;
}

BoxAnswer Desktop::messageBox(platform::BoxIcon icon, BoxButtons buttons, std::u16string_view title,
                              std::u16string_view text)
{
    faults_.pass();
    const BoxAnswer unasked = buttons == BoxButtons::yesNo ? BoxAnswer::yes : BoxAnswer::ok;
    const BoxAnswer answer = takeAnswer<BoxAnswer>().value_or(unasked);
    sink_.trace(trace::MessageBox{icon, title, text, answer});
    return answer;
}

std::u16string Desktop::inputBox(std::u16string_view prompt, std::u16string_view title)
{
    faults_.pass();
    std::u16string answer = takeAnswer<std::u16string>().value_or(std::u16string());
    sink_.trace(trace::InputBox{prompt, title, answer});
    return answer;
}

void Desktop::aboutBox(std::u16string_view version)
{
    faults_.pass();
    sink_.trace(trace::About{version});
}

void Desktop::sendKeys(std::u16string_view keys)
{
    faults_.pass();
    sink_.trace(trace::KeysSent{keys});
    if (keys == u"{TAB}")
        tabs_.push_back(TabMove::forwards);
    else if (keys == u"+{TAB}")
        tabs_.push_back(TabMove::backwards);
}

void Desktop::keyDown(int virtualKey)
{
    faults_.pass();
    sink_.trace(trace::KeyInjected{virtualKey});
    if (virtualKey == 9)
        tabs_.push_back(TabMove::forwards);
}

Desktop::TabMove Desktop::nextTab()
{
    if (tabs_.empty())
        return TabMove::none;
    const TabMove first = tabs_.front();
    tabs_.erase(tabs_.begin());
    return first;
}

platform::WindowId Desktop::activeWindow() const
{
    return active_ != nullptr ? active_->topLevelWindow() : platform::WindowId{};
}

bool Desktop::isChild(platform::WindowId parent, platform::WindowId window) const
{
    for (const auto& [owner, child] : children_)
        if (owner == parent && child == window)
            return true;
    return false;
}

void Desktop::activate(TopLevel* window)
{
    if (window == active_)
        return;
    if (window != nullptr) {
        std::erase(order_, window);
        order_.push_back(window);
    }
    TopLevel* const former = std::exchange(active_, window);
    if (former != nullptr)
        former->becameInactive();
    if (window != nullptr && active_ == window)
        window->becameActive();
}

void Desktop::retire(const TopLevel& window) noexcept
{
    std::erase(order_, &window);
    if (active_ == &window)
        active_ = order_.empty() ? nullptr : order_.back();
}

void Desktop::adopt(platform::WindowId parent, platform::WindowId window)
{
    children_.emplace_back(parent, window);
}

} // namespace vela::headless
