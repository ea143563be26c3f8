// Gives a variable another value for the length of a scope.
#pragma once

#include "engine/alive.h"

#include <optional>
#include <utility>

namespace vela::engine {

template <class Value>
class ScopedValue {
public:
    // The variable outlives the scope.
    ScopedValue(Value& variable, Value during) noexcept : variable_(variable), before_(std::exchange(variable, during))
    {
    }
    // A member of an object that a call inside the scope may close: it is then left as it is.
    ScopedValue(Life& life, Value& variable, Value during) noexcept : ScopedValue(variable, during)
    {
        alive_.emplace(life);
    }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;
    ~ScopedValue()
    {
        if (!alive_ || *alive_)
            variable_ = before_;
    }

private:
    std::optional<Alive> alive_;
    Value& variable_;
    Value before_;
};

using ScopedFlag = ScopedValue<bool>;

} // namespace vela::engine
