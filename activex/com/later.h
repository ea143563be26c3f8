// Letting go of an object when its thread next looks for messages, off the stack of whoever may still be using it.
#pragma once

#include <unknwn.h>

namespace vela::activex {

// Takes over one reference. Without means to wait the reference is kept for good, which is the lesser harm.
void releaseWhenIdle(IUnknown& object) noexcept;

} // namespace vela::activex
