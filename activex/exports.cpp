// The entry points of the library.
#include "activex/class_factory.h"
#include "activex/com/module_lock.h"
#include "activex/registration.h"
#include "platform/win32/activation_context.h"
#include "platform/win32/window.h"

using namespace vela;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* atProcessEnd)
{
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(module);
    if (reason == DLL_PROCESS_DETACH && !atProcessEnd) {
        win32::unregisterClasses();
        win32::releaseActivationContext();
    }
    return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** object)
{
    return activex::getClassObject(clsid, iid, object);
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow()
{
    return activex::ModuleLock::any() || win32::windowsToDestroy() > 0 ? S_FALSE : S_OK;
}

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer()
{
    return activex::registerServer(activex::Scope::machineOrUser);
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer()
{
    return activex::unregisterServer(activex::Scope::machineOrUser);
}

// regsvr32 /n /i:user Vela.ocx, with /u to undo it.
extern "C" HRESULT STDAPICALLTYPE DllInstall(BOOL install, const wchar_t* commandLine)
{
    return activex::install(install != FALSE, commandLine);
}
