// What a pop-up tells the record of pop-ups that holds it: that a handler of its runs, and that it has closed.
#pragma once

#include <functional>

namespace vela::popups {

// While a handler runs, no closed pop-up may be destroyed: the handler may be its own.
struct PopupRecord {
    int handlersRunning = 0;
    std::function<void()> closed; // clears the process-wide reference; the object lives on for a while
};

class HandlerScope {
public:
    explicit HandlerScope(PopupRecord& record) noexcept : record_(record) { ++record_.handlersRunning; }
    ~HandlerScope() { --record_.handlersRunning; }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    PopupRecord& record_;
};

} // namespace vela::popups
