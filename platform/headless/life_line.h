// Tells a function on the stack that its object was destroyed by a handler that it called.
#pragma once

namespace vela::headless {

class LifeLine {
public:
    LifeLine() = default;
    LifeLine(const LifeLine&) = delete;
    LifeLine& operator=(const LifeLine&) = delete;
    ~LifeLine()
    {
        if (watch_ != nullptr)
            *watch_ = true;
    }

    // const LifeLine::Watch watch(life_); handler(); if (watch.gone()) return;
    class Watch {
    public:
        explicit Watch(LifeLine& line) noexcept : line_(line), outer_(line.watch_) { line.watch_ = &gone_; }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;
        ~Watch()
        {
            if (!gone_)
                line_.watch_ = outer_;
            else if (outer_ != nullptr)
                *outer_ = true;
        }
        [[nodiscard]] bool gone() const noexcept { return gone_; }

    private:
        LifeLine& line_;
        bool* outer_;
        bool gone_ = false;
    };

private:
    bool* watch_ = nullptr;
};

} // namespace vela::headless
