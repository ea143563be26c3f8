// The error traps of the control's routines: a failure is reported once and not passed on.
#pragma once

#include "control/liveness.h"
#include "engine/error.h"

#include <new>
#include <optional>
#include <string>
#include <utility>

namespace vela::control {

// The error that `body` ends with, its step as counted by `step`; nothing after a normal end and for error 0. What the
// body had done before it failed stays done. When the control has not survived the body, 91 goes on to the caller.
template <class Body>
[[nodiscard]] std::optional<engine::Error> failureOf(Liveness& life, Body&& body)
{
    const Liveness::Probe alive(life);
    int step = 0;
    std::optional<engine::Error> failure; // made when it happens: most bodies end normally, and on every key
    try {
        std::forward<Body>(body)(step);
        return std::nullopt;
    } catch (const engine::Error& error) {
        failure = error;
    } catch (const std::bad_alloc&) {
        failure.emplace();
        failure->number = engine::error_number::outOfMemory;
        failure->description = engine::errorDescription(failure->number);
    }
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
    if (failure->number == 0)
        return std::nullopt;
    failure->step = step;
    return failure;
}

// Runs what the platform has called: its failure reaches the platform unless the control is gone.
template <class Body>
void whileAlive(Liveness& life, Body&& body)
{
    const Liveness::Probe alive(life);
    try {
        std::forward<Body>(body)();
    } catch (const engine::Error&) {
        if (alive)
            throw;
    }
}

// Decimal, with a minus sign where it is due: what error texts are made of.
[[nodiscard]] std::u16string decimalText(int number);

} // namespace vela::control
