// The list of watches of an object; each stands on the stack of a function that runs inside it.
#include "platform/win32/life.h"

namespace vela::win32 {

Life::~Life()
{
    for (Watch* watch = innermost_; watch; watch = watch->outer_)
        watch->life_ = nullptr;
}

Watch::Watch(Life& life) noexcept : life_(&life), outer_(life.innermost_)
{
    life.innermost_ = this;
}

Watch::~Watch()
{
    if (life_)
        life_->innermost_ = outer_;
}

} // namespace vela::win32
