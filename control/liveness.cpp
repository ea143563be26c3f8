// The chain of probes that stand on the stack.
#include "control/liveness.h"

namespace vela::control {

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
