// The moment a planned fault strikes.
#include "platform/headless/fault.h"

namespace vela::headless {

void FaultPlan::fire()
{
    fired_ = true;
    throw error_;
}

} // namespace vela::headless
