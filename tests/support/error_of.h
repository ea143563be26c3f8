// The number of the error that an act ends in.
#pragma once

#include "engine/error.h"

namespace vela::engine {

template <class Act>
[[nodiscard]] int errorOf(Act&& act) // 0: none was raised
{
    try {
        static_cast<void>(act());
    } catch (const Error& error) {
        return error.number;
    }
    return 0;
}

} // namespace vela::engine
