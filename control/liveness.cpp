// The chain of probes that stand on the stack.
#include "control/liveness.h"

namespace vela::control {

Liveness::Probe::Probe(Liveness& life) noexcept : life_(&life), outer_(life.innermost_), alive_(!life.ended_)
{
    life.innermost_ = this;
}

Liveness::Probe::~Probe()
{
    if (life_ != nullptr)
        life_->innermost_ = outer_;
}

Liveness::~Liveness()
{
    end();
    for (Probe* probe = innermost_; probe != nullptr; probe = probe->outer_)
        probe->life_ = nullptr;
}

void Liveness::end() noexcept
{
    ended_ = true;
    for (Probe* probe = innermost_; probe != nullptr; probe = probe->outer_)
        probe->alive_ = false;
}

} // namespace vela::control
