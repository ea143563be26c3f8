// Tells the routines on the stack that the control they belong to has gone: a host may destroy it inside any event.
#pragma once

namespace vela::control {

// One per control. A probe on the stack stays true until the control is terminated or destroyed.
//     Liveness::Probe alive(life_);
//     host_.raiseChange();
//     if (!alive) return; // no member may be touched
class Liveness {
public:
    class Probe {
    public:
        explicit Probe(Liveness& life) noexcept : life_(life.ended_ ? nullptr : &life), outer_(life.innermost_)
        {
            life.innermost_ = this;
            owner_ = &life;
        }
        ~Probe()
        {
            if (owner_ != nullptr)
                owner_->innermost_ = outer_;
        }
        Probe(const Probe&) = delete;
        Probe& operator=(const Probe&) = delete;
        explicit operator bool() const noexcept { return life_ != nullptr; }

    private:
        friend class Liveness;
        Liveness* life_;            // null once the control is no longer to be used
        Liveness* owner_ = nullptr; // null once the object itself is gone
        Probe* outer_;
    };

    Liveness() = default;
    ~Liveness()
    {
        end();
        for (Probe* probe = innermost_; probe != nullptr; probe = probe->outer_)
            probe->owner_ = nullptr;
    }
    Liveness(const Liveness&) = delete;
    Liveness& operator=(const Liveness&) = delete;

    [[nodiscard]] bool ended() const noexcept { return ended_; }
    void end() noexcept
    {
        ended_ = true;
        for (Probe* probe = innermost_; probe != nullptr; probe = probe->outer_)
            probe->life_ = nullptr;
    }

private:
    Probe* innermost_ = nullptr;
    bool ended_ = false;
};

} // namespace vela::control
