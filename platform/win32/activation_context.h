// The version 6 common controls, brought by the module's own manifest (RT_MANIFEST 2), for a scope.
#pragma once

#include <windows.h>

namespace vela::win32 {

// Windows created in the scope are of version 6 when the module carries the manifest; else the scope does nothing.
class ActivationContext {
public:
    ActivationContext() noexcept;
    ActivationContext(const ActivationContext&) = delete;
    ActivationContext& operator=(const ActivationContext&) = delete;
    ~ActivationContext();

private:
    ULONG_PTR cookie_ = 0;
};

// The module's context, if one was made, is given back when it is unloaded; called by its entry point.
void releaseActivationContext() noexcept;

} // namespace vela::win32
