// One activation context a module, made at first use from the manifest among its resources.
#include "platform/win32/activation_context.h"

#include "platform/win32/module.h"

#include <atomic>

namespace vela::win32 {
namespace {

// The number under which the module keeps the manifest that asks for version 6. 1 is a program's own.
constexpr WORD manifestResource = 2;

std::atomic<HANDLE> held{INVALID_HANDLE_VALUE};

// The controls' library itself is among the module's imports, which that manifest leads to version 6: it comes and goes
// with the module.
HANDLE makeContext() noexcept
{
    ACTCTXW wanted{};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = thisModule();
    wanted.lpResourceName = MAKEINTRESOURCEW(manifestResource);
    if (FindResourceW(thisModule(), wanted.lpResourceName, MAKEINTRESOURCEW(24)))
        held = CreateActCtxW(&wanted);
    return held;
}

HANDLE moduleContext() noexcept
{
    static const HANDLE context = makeContext();
    return context;
}

} // namespace

ActivationContext::ActivationContext() noexcept
{
    if (const HANDLE context = moduleContext(); context != INVALID_HANDLE_VALUE)
        ActivateActCtx(context, &cookie_);
}

ActivationContext::~ActivationContext()
{
    if (cookie_)
        DeactivateActCtx(0, cookie_);
}

void releaseActivationContext() noexcept
{
    if (const HANDLE context = held.exchange(INVALID_HANDLE_VALUE); context != INVALID_HANDLE_VALUE)
        ReleaseActCtx(context);
}

} // namespace vela::win32
