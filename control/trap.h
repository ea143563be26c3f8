// The error traps of the control's routines: a failure is reported once and not passed on.
#pragma once

#include "engine/alive.h"
#include "engine/trapped.h"

#include <string>
#include <utility>

namespace vela::control {

// Calls `report` with the error that `body` raises and its step as counted by `step`; error number 0 is not reported.
// What the body did before it failed is not undone. When the control was destroyed meanwhile, 91 is raised to the
// caller instead.
template <class Body, class Report>
void trap(engine::Life& life, Body&& body, Report&& report)
{
    const engine::Alive alive(life);
    int step = 0;
    auto failure = engine::trapped([&] { std::forward<Body>(body)(step); });
    if (!failure)
        return;
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
    failure->step = step;
    if (failure->number != 0)
        report(std::as_const(*failure));
}

// Runs a handler that the platform has called. Its error is passed on to the platform unless the control is gone.
template <class Body>
void whileAlive(engine::Life& life, Body&& body)
{
    const engine::Alive alive(life);
    try {
        std::forward<Body>(body)();
    } catch (const engine::Error&) {
        if (alive)
            throw;
    }
}

} // namespace vela::control
