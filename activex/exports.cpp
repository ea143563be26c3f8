// The entry points of the library.
#include "activex/class_factory.h"
#include "activex/registration.h"
#include "platform/win32/activation_context.h"
#include "platform/win32/module.h"
#include "platform/win32/thread.h"
#include "platform/win32/window.h"

using namespace vela;

#ifdef __GLIBCXX__
namespace __gnu_cxx {
void __freeres(); // gives back what the compiler's library keeps for throwing without memory, 70 KB
}
#endif

// The system holds the loader lock here: nothing may be loaded, made or waited for.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void* atProcessEnd)
{
    if (reason == DLL_THREAD_DETACH)
        win32::endThread();
    if (reason == DLL_PROCESS_DETACH && !atProcessEnd) {
        win32::unregisterClasses();
        win32::releaseActivationContext();
#ifdef __GLIBCXX__
        __gnu_cxx::__freeres();
#endif
    }
    return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** object)
{
    return activex::getClassObject(clsid, iid, object);
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow()
{
    return win32::moduleInUse() ? S_FALSE : S_OK;
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
