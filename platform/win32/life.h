// Tells a running function that its object was destroyed by something it called.
#pragma once

namespace vela::win32 {

class Watch;

// A member of the watched object. Costs one pointer; watches live on the stack.
class Life {
public:
    Life() noexcept = default;
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;
    ~Life();

private:
    friend class Watch;
    Watch* innermost_ = nullptr;
};

// `Watch watch(life_); events->changed(); if (!watch.alive()) return;`
class Watch {
public:
    explicit Watch(Life& life) noexcept;
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch();
    [[nodiscard]] bool alive() const noexcept { return life_ != nullptr; }

private:
    friend class Life;
    Life* life_;
    Watch* outer_;
};

} // namespace vela::win32
