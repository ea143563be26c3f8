// The host's form in memory: its elements in tab order, where the focus and the pointer are, and what a person does.
#pragma once

#include "engine/geometry.h"
#include "platform/headless/desktop.h"
#include "platform/headless/element.h"
#include "platform/headless/fault.h"
#include "platform/headless/trace.h"

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vela::headless {

// One form of the host. Windows of its elements stand at fixed screen places. Errors of handlers reach the caller of
// the act once the act is over.
class FormWindow final : public TopLevel {
public:
    FormWindow(Desktop& desktop, TraceSink& sink, FaultPlan& faults);
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    ~FormWindow();

    [[nodiscard]] Desktop& desktop() const noexcept { return desktop_; }
    [[nodiscard]] TraceSink& sink() const noexcept { return sink_; }
    [[nodiscard]] FaultPlan& faults() const noexcept { return faults_; }

    Element& addPlain(std::u16string name); // owned by the form
    [[nodiscard]] Element* find(std::u16string_view name) const noexcept;
    [[nodiscard]] const std::vector<Element*>& elements() const noexcept { return elements_; } // in tab order
    // The element that is made next takes this one's place in the tab order.
    void reserveNextPlace(std::size_t place) noexcept { nextPlace_ = place; }
    [[nodiscard]] std::size_t placeOf(const Element& element) const noexcept;

    [[nodiscard]] Element* focused() const noexcept { return focused_; }
    // Nothing when it has the focus already or does not accept it. The element that is left may keep the focus by
    // asking for it (askFocus); it is then entered again and the one asked for sees nothing.
    void focus(Element& element);
    void focusNone(); // another window's control takes it, and may have to give it back
    // The element no longer accepts the focus. When it has the focus it is left with Leaving::away, and no element has
    // it then.
    void release(Element& element);
    void tab(bool backwards); // skips elements that do not accept the focus, goes round at both ends
    // From handlers: granted at once, or when a change of the focus that is under way has settled.
    void askFocus(Element& element);

    std::function<void()> focusArrived; // after the element that has it now has been entered

    // Acts of a person at the focused element; nothing without one. Tabs asked for are carried out at the end.
    void key(Key key) { act({.kind = Act::strike, .key = key}); }
    void paste(std::u16string_view text) { act({.kind = Act::paste, .text = text}); }
    void pasteIntoBox(std::u16string_view text) { act({.kind = Act::pasteIntoBox, .text = text}); }
    void cut() { act({.kind = Act::cut}); }
    void undo() { act({.kind = Act::undo}); }
    void redo() { act({.kind = Act::redo}); }
    void placeCaret(int start, int length) { act({.kind = Act::placeCaret, .start = start, .length = length}); }
    // Give the focus first; where it is not granted nothing follows.
    void click(Element& element) { clickAt(element, Act::click); }
    void doubleClick(Element& element) { clickAt(element, Act::doubleClick); }
    void pointTo(Element& element); // nothing over one that does not accept the focus
    void pointAway();
    void tick(); // of every element's enabled timer, in tab order

    // The screen place of a window's top left corner; (0, 0) for one that is not known.
    [[nodiscard]] engine::PointPixels originOf(platform::WindowId window) const noexcept;
    void putOrigin(platform::WindowId window, engine::PointPixels origin);
    [[nodiscard]] platform::WindowId makeWindow() noexcept; // a fresh id

    [[nodiscard]] platform::WindowId topLevelWindow() const override { return window_; }
    void becameActive() override {}
    void becameInactive() override {}

private:
    friend class Element;
    void attach(Element& element);
    void detach(Element& element) noexcept;
    void moveFocus(Element* target);
    void leaveFocused();
    void arriveAt(Element* target);
    void act(const Act& what);
    void clickAt(Element& element, Act::Kind kind);
    void runPendingTabs();
    [[nodiscard]] bool holds(const Element* element) const noexcept;

    Desktop& desktop_;
    TraceSink& sink_;
    FaultPlan& faults_;
    platform::WindowId window_;
    std::vector<Element*> elements_;
    std::vector<std::unique_ptr<Element>> plains_;
    std::vector<std::pair<platform::WindowId, engine::PointPixels>> origins_;
    std::uintptr_t lastWindow_ = 0x10000;
    std::size_t nextPlace_;
    Element* focused_ = nullptr;
    Element* wanted_ = nullptr; // asked for while the focus was on its way
    Element* pointer_ = nullptr;
    std::exception_ptr failure_; // the first one of the move that is under way
    bool moving_ = false;
};

} // namespace vela::headless
