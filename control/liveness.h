// Tells the routines on the stack that the control they belong to has gone: a host may destroy it inside any event.
#pragma once

namespace vela::control {

// One per control. A probe on the stack stays true until the control is terminated or destroyed.
//     const Liveness::Probe alive(life_);
//     host_.raiseChange();
//     if (!alive) return; // no member may be touched
class Liveness {
public:
    // Probes end in the reverse order of their making, as locals do.
    class Probe {
    public:
        explicit Probe(Liveness& life) noexcept : life_(&life), outer_(life.innermost_), alive_(!life.ended_)
        {
            life.innermost_ = this;
        }
        ~Probe()
        {
            if (life_ != nullptr)
                life_->innermost_ = outer_;
        }
        Probe(const Probe&) = delete;
        Probe& operator=(const Probe&) = delete;
        explicit operator bool() const noexcept { return alive_; }

    private:
        friend class Liveness;
        Liveness* life_; // null once the object itself is gone
        Probe* outer_;
        bool alive_;
    };

    Liveness() = default;
    ~Liveness();
    Liveness(const Liveness&) = delete;
    Liveness& operator=(const Liveness&) = delete;

    [[nodiscard]] bool ended() const noexcept { return ended_; }
    void end() noexcept;

private:
    Probe* innermost_ = nullptr;
    bool ended_ = false;
};

} // namespace vela::control
