// Runs a routine and gives back the run-time error that it ended with.
#pragma once

#include "engine/error.h"

#include <new>
#include <optional>
#include <string>
#include <utility>

namespace vela::engine {

// Empty when the body ended well; want of memory is error 7. What is no error of the run time goes on to the caller.
template <class Body>
[[nodiscard]] std::optional<Error> trapped(Body&& body)
{
    try {
        std::forward<Body>(body)();
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        constexpr int number = error_number::outOfMemory;
        return Error{.number = number, .description = std::u16string(errorDescription(number))};
    }
    return std::nullopt;
}

} // namespace vela::engine
