// How the focus and the pointer move over the form, and how a person's acts reach the focused element.
#include "platform/headless/form_window.h"

#include "engine/scoped_value.h"

#include <algorithm>
#include <utility>

namespace vela::headless {

namespace {

constexpr std::size_t atTheEnd = static_cast<std::size_t>(-1);
constexpr int longestChase = 100; // moves of the focus that handlers may ask for in a row

class PlainElement final : public Element {
public:
    using Element::Element;
};

// Runs what may fail and keeps the first failure.
template <class Step>
void guarded(std::exception_ptr& failure, Step&& step)
{
    try {
        step();
    } catch (...) {
        if (!failure)
            failure = std::current_exception();
    }
}

void rethrow(std::exception_ptr& failure)
{
    if (failure)
        std::rethrow_exception(std::exchange(failure, nullptr));
}

} // namespace

FormWindow::FormWindow(Desktop& desktop, TraceSink& sink, FaultPlan& faults)
    : desktop_(desktop), sink_(sink), faults_(faults), window_(makeWindow()), nextPlace_(atTheEnd)
{
    desktop_.activate(this);
}

FormWindow::~FormWindow()
{
    desktop_.retire(*this);
}

Element& FormWindow::addPlain(std::u16string name)
{
    return *plains_.emplace_back(std::make_unique<PlainElement>(*this, std::move(name)));
}

void FormWindow::attach(Element& element)
{
    const std::size_t place = std::min(std::exchange(nextPlace_, atTheEnd), elements_.size());
    elements_.insert(elements_.begin() + static_cast<std::ptrdiff_t>(place), &element);
}

void FormWindow::detach(Element& element) noexcept
{
    std::erase(elements_, &element);
    if (focused_ == &element)
        focused_ = nullptr;
    if (wanted_ == &element)
        wanted_ = nullptr;
    if (pointer_ == &element)
        pointAway();
}

Element* FormWindow::find(std::u16string_view name) const noexcept
{
    const auto found =
        std::find_if(elements_.begin(), elements_.end(), [&](const Element* e) { return e->name() == name; });
    return found != elements_.end() ? *found : nullptr;
}

std::size_t FormWindow::placeOf(const Element& element) const noexcept
{
    return static_cast<std::size_t>(std::find(elements_.begin(), elements_.end(), &element) - elements_.begin());
}

bool FormWindow::holds(const Element* element) const noexcept
{
    return std::find(elements_.begin(), elements_.end(), element) != elements_.end();
}

void FormWindow::focus(Element& element)
{
    if (&element != focused_ && element.acceptsFocus())
        moveFocus(&element);
}

void FormWindow::focusNone()
{
    if (focused_ != nullptr)
        moveFocus(nullptr);
}

void FormWindow::release(Element& element)
{
    if (&element == focused_ && !moving_)
        moveFocus(nullptr); // a change of focus that is under way handles it
}

void FormWindow::askFocus(Element& element)
{
    if (moving_)
        wanted_ = &element;
    else
        focus(element);
}

// Backwards from the first element is the last one, and the other way round.
void FormWindow::tab(bool backwards)
{
    if (focused_ == nullptr)
        return;
    const std::size_t count = elements_.size();
    const std::size_t step = backwards ? count - 1 : 1;
    for (std::size_t at = (placeOf(*focused_) + step) % count; elements_[at] != focused_; at = (at + step) % count) {
        if (elements_[at]->acceptsFocus()) {
            focus(*elements_[at]);
            return;
        }
    }
}

void FormWindow::moveFocus(Element* target)
{
    if (moving_) {
        wanted_ = target;
        return;
    }
    const engine::ScopedFlag moving(moving_, true);
    for (int moves = 0; moves < longestChase; ++moves) {
        wanted_ = nullptr;
        leaveFocused();
        if (wanted_ != nullptr && wanted_->acceptsFocus())
            target = wanted_; // it kept the focus, or another element was given it
        wanted_ = nullptr;
        arriveAt(holds(target) && target->acceptsFocus() ? target : nullptr);
        target = std::exchange(wanted_, nullptr); // the element just entered asked for another
        const bool refused = focused_ != nullptr && !focused_->acceptsFocus();
        if (!refused && (target == nullptr || target == focused_))
            break;
    }
    wanted_ = nullptr;
    rethrow(failure_);
}

void FormWindow::leaveFocused()
{
    Element* const left = std::exchange(focused_, nullptr);
    if (left != nullptr)
        guarded(failure_,
                [&] { left->leave(left->acceptsFocus() ? platform::Leaving::within : platform::Leaving::away); });
}

void FormWindow::arriveAt(Element* target)
{
    focused_ = target;
    sink_.trace(trace::Focus{target != nullptr ? std::u16string_view(target->name()) : std::u16string_view()});
    if (target != nullptr)
        guarded(failure_, [&] { target->enter(); });
    guarded(failure_, [&] {
        if (focusArrived)
            focusArrived();
    });
    // Pop-ups that are still on show see another window become active.
    guarded(failure_, [&] { desktop_.activate(focused_ != nullptr ? this : nullptr); });
}

// Tabs that the act asked for are carried out even when it failed.
void FormWindow::act(const Act& what)
{
    if (focused_ == nullptr)
        return;
    std::exception_ptr failure;
    guarded(failure, [&] { focused_->take(what); });
    guarded(failure, [&] { runPendingTabs(); });
    rethrow(failure);
}

void FormWindow::runPendingTabs()
{
    for (int moves = 0; moves < longestChase; ++moves) {
        const Desktop::TabMove move = desktop_.nextTab();
        if (move == Desktop::TabMove::none)
            return;
        tab(move == Desktop::TabMove::backwards);
    }
}

void FormWindow::clickAt(Element& element, Act::Kind kind)
{
    focus(element);
    if (focused_ == &element)
        act({.kind = kind});
}

void FormWindow::pointTo(Element& element)
{
    if (!element.acceptsFocus())
        return;
    pointer_ = &element;
    desktop_.putPointer(element.pointerWindow());
    element.pointerMoved();
}

void FormWindow::pointAway()
{
    pointer_ = nullptr;
    desktop_.putPointer({});
}

void FormWindow::tick()
{
    std::exception_ptr failure;
    const std::vector<Element*> all = elements_; // a handler may destroy some
    for (Element* element : all)
        if (holds(element))
            guarded(failure, [&] { element->tick(); });
    rethrow(failure);
}

engine::PointPixels FormWindow::originOf(platform::WindowId window) const noexcept
{
    for (const auto& [known, origin] : origins_)
        if (known == window)
            return origin;
    for (const Element* element : elements_)
        if (const auto origin = element->originOf(window))
            return *origin;
    return {};
}

void FormWindow::putOrigin(platform::WindowId window, engine::PointPixels origin)
{
    origins_.emplace_back(window, origin);
}

platform::WindowId FormWindow::makeWindow() noexcept
{
    return {++lastWindow_};
}

} // namespace vela::headless
