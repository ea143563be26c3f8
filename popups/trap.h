// How the pop-ups trap a run-time error: the body runs, and what it raised comes back as a value.
#pragma once

#include "engine/error.h"

#include <new>
#include <optional>
#include <utility>

namespace vela::popups {

// Nothing when the body ended well. Want of memory counts as error 7.
template <class Body>
[[nodiscard]] std::optional<engine::Error> trapped(Body&& body)
{
    try {
        std::forward<Body>(body)();
    } catch (const engine::Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return engine::Error{engine::error_number::outOfMemory,
                             std::u16string(engine::errorDescription(engine::error_number::outOfMemory))};
    }
    return std::nullopt;
}

} // namespace vela::popups
