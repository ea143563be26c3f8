// Tells a function on the stack that the object it works for was closed or destroyed by something it called.
#pragma once

namespace vela::engine {

class Alive;

// A member of the observed object: one per object, the size of two pointers at most.
class Life {
public:
    Life() noexcept = default;
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;
    ~Life();

    // Closed for good, while its memory may live on.
    void end() noexcept;
    [[nodiscard]] bool ended() const noexcept { return ended_; }

private:
    friend class Alive;
    Alive* innermost_ = nullptr;
    bool ended_ = false;
};

// Stands on the stack of a member function, which must touch no member once it is false. Instances end in the reverse
// order of their making, as locals do.
//     const Alive alive(life_);
//     host_.raiseChange();
//     if (!alive)
//         return;
class Alive {
public:
    explicit Alive(Life& life) noexcept : life_(&life), outer_(life.innermost_), alive_(!life.ended_)
    {
        life.innermost_ = this;
    }
    Alive(const Alive&) = delete;
    Alive& operator=(const Alive&) = delete;
    ~Alive()
    {
        if (life_ != nullptr)
            life_->innermost_ = outer_;
    }
    explicit operator bool() const noexcept { return alive_; }

private:
    friend class Life;
    Life* life_; // null once the object is destroyed
    Alive* outer_;
    bool alive_;
};

inline void Life::end() noexcept
{
    ended_ = true;
    for (Alive* each = innermost_; each != nullptr; each = each->outer_)
        each->alive_ = false;
}

inline Life::~Life()
{
    end();
    for (Alive* each = innermost_; each != nullptr; each = each->outer_)
        each->life_ = nullptr;
}

} // namespace vela::engine
