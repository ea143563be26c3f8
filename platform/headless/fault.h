// Faults on demand: makes the n-th operation of the platform fail, so that tests can sweep over all of them.
#pragma once

#include "engine/error.h"

#include <utility>

namespace vela::headless {

class FaultPlan {
public:
    // The n-th operation from now (1: the next one) raises the error; those after it work again.
    void failAt(long n, engine::Error error)
    {
        error_ = std::move(error);
        countdown_ = n;
        fired_ = false;
    }
    void disarm() noexcept { countdown_ = 0; }
    [[nodiscard]] bool fired() const noexcept { return fired_; }
    [[nodiscard]] long operations() const noexcept { return operations_; } // since it was made
    // Called at the start of each operation that may fail; what it was to do is then not done.
    void pass()
    {
        ++operations_;
        if (countdown_ > 0 && --countdown_ == 0)
            fire();
    }

private:
    [[noreturn]] void fire();

    long countdown_ = 0; // 0: off
    long operations_ = 0;
    bool fired_ = false;
    engine::Error error_;
};

} // namespace vela::headless
