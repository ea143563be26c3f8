// One activation context a module, made at first use from the manifest among its resources.
#include "platform/win32/activation_context.h"

#include "platform/win32/module.h"

namespace vela::win32 {
namespace {

// The number under which the module keeps the manifest that asks for version 6. 1 is a program's own.
constexpr WORD manifestResource = 2;

struct ModuleContext {
    HANDLE context = INVALID_HANDLE_VALUE;
    HMODULE controls = nullptr; // keeps the version 6 library loaded, so that its classes stay registered
};

ModuleContext makeContext() noexcept
{
    ACTCTXW wanted{};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = thisModule();
    wanted.lpResourceName = MAKEINTRESOURCEW(manifestResource);
    ModuleContext made;
    if (!FindResourceW(thisModule(), wanted.lpResourceName, MAKEINTRESOURCEW(24)))
        return made;
    made.context = CreateActCtxW(&wanted);
    ULONG_PTR cookie = 0;
    if (made.context != INVALID_HANDLE_VALUE && ActivateActCtx(made.context, &cookie)) {
        made.controls = LoadLibraryW(L"comctl32.dll");
        DeactivateActCtx(0, cookie);
    }
    return made;
}

ModuleContext& moduleContext() noexcept
{
    static ModuleContext context = makeContext();
    return context;
}

} // namespace

ActivationContext::ActivationContext() noexcept
{
    if (const HANDLE context = moduleContext().context; context != INVALID_HANDLE_VALUE)
        ActivateActCtx(context, &cookie_);
}

ActivationContext::~ActivationContext()
{
    if (cookie_)
        DeactivateActCtx(0, cookie_);
}

void releaseActivationContext() noexcept
{
    ModuleContext& held = moduleContext();
    if (held.context != INVALID_HANDLE_VALUE)
        ReleaseActCtx(held.context);
    held = {};
}

} // namespace vela::win32
