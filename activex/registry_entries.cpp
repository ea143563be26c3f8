// The registry's entries as one list.
#include "activex/registry_entries.h"

#include "activex/identities.h"
#include "activex/resource.h"

#include <utility>

namespace vela::activex {

namespace {

constexpr wchar_t automationProxy[] = L"{00020420-0000-0000-C000-000000000046}"; // of dispinterfaces
constexpr wchar_t controlCategory[] = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr wchar_t programmableCategory[] = L"{40FC6ED5-2438-11CF-A3DB-080036F12502}";
constexpr wchar_t libraryName[] = L"Vela 1.0";
constexpr wchar_t libraryFlags[] = L"2"; // a library of controls

struct ControlKeys {
    std::u16string_view progId; // with its version
    std::u16string_view name;
    std::string_view classId;
    std::string_view interfaceId;
    const wchar_t* interfaceName;
    std::string_view eventsId;
    const wchar_t* eventsName;
};
constexpr ControlKeys controls[] = {
    {identity::velaProgId, identity::velaName, identity::velaClass, identity::velaInterface, L"IVela",
     identity::velaEvents, L"IVelaEvents"},
    {identity::calendarProgId, identity::calendarName, identity::calendarClass, identity::calendarInterface,
     L"IcCalendar", identity::calendarEvents, L"IcCalendarEvents"},
};

constexpr std::pair<std::string_view, const wchar_t*> pageClasses[] = {
    {identity::principalPage, L"Vela: ppPrincipal"},   {identity::geralPage, L"Vela: ppGeral"},
    {identity::errosPage, L"Vela: ppErros"},           {identity::fontePage, L"Vela: ppFonte"},
    {identity::calendarioPage, L"Vela: ppCalendario"},
};

std::wstring wide(std::u16string_view text)
{
    return {text.begin(), text.end()};
}

std::wstring wide(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::wstring interfaceKey(std::string_view id)
{
    return L"Interface\\" + keyOf(id);
}

std::wstring libraryKey()
{
    return L"TypeLib\\" + keyOf(identity::library);
}

// "Vela.Vela.1" -> "Vela.Vela"
std::wstring withoutVersion(const std::wstring& progId)
{
    return progId.substr(0, progId.rfind(L'.'));
}

void addServer(std::vector<RegistryEntry>& entries, const std::wstring& key, const std::wstring& name,
               const std::wstring& module)
{
    entries.push_back({key, nullptr, name});
    entries.push_back({key + L"\\InprocServer32", nullptr, module});
    entries.push_back({key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
}

void addControl(std::vector<RegistryEntry>& entries, const ControlKeys& control, const std::wstring& module)
{
    const std::wstring key = registryClassKey(control.classId);
    const std::wstring progId = wide(control.progId);
    const std::wstring general = withoutVersion(progId);
    const std::wstring name = wide(control.name);
    addServer(entries, key, name, module);
    entries.push_back({key + L"\\ProgID", nullptr, progId});
    entries.push_back({key + L"\\VersionIndependentProgID", nullptr, general});
    entries.push_back({key + L"\\TypeLib", nullptr, keyOf(identity::library)});
    entries.push_back({key + L"\\Version", nullptr, wide(identity::libraryVersion)});
    entries.push_back({key + L"\\Control", nullptr, {}});
    entries.push_back({key + L"\\Programmable", nullptr, {}});
    entries.push_back({key + L"\\MiscStatus", nullptr, L"0"});
    entries.push_back({key + L"\\MiscStatus\\1", nullptr, decimal(identity::miscStatus)});
    entries.push_back({key + L"\\ToolboxBitmap32", nullptr, module + L", " + decimal(VELA_TOOLBOX_BITMAP)});
    entries.push_back({key + L"\\Verb\\0", nullptr, L"&Editar,0,2"});
    entries.push_back({key + L"\\Implemented Categories\\" + controlCategory, nullptr, {}});
    entries.push_back({key + L"\\Implemented Categories\\" + programmableCategory, nullptr, {}});
    entries.push_back({progId, nullptr, name});
    entries.push_back({progId + L"\\CLSID", nullptr, keyOf(control.classId)});
    entries.push_back({general, nullptr, name});
    entries.push_back({general + L"\\CLSID", nullptr, keyOf(control.classId)});
    entries.push_back({general + L"\\CurVer", nullptr, progId});
}

void addInterface(std::vector<RegistryEntry>& entries, std::string_view id, const wchar_t* name)
{
    const std::wstring key = interfaceKey(id);
    entries.push_back({key, nullptr, name});
    entries.push_back({key + L"\\ProxyStubClsid32", nullptr, automationProxy});
    entries.push_back({key + L"\\TypeLib", nullptr, keyOf(identity::library)});
    entries.push_back({key + L"\\TypeLib", L"Version", wide(identity::libraryVersion)});
}

std::wstring libraryVersionKey()
{
    return libraryKey() + L"\\" + wide(identity::libraryVersion);
}

void addLibrary(std::vector<RegistryEntry>& entries, const std::wstring& module, Bitness bitness)
{
    const std::wstring key = libraryVersionKey();
    entries.push_back({key, nullptr, libraryName});
    entries.push_back({libraryFileKey(bitness), nullptr, module});
    entries.push_back({key + L"\\FLAGS", nullptr, libraryFlags});
    entries.push_back({key + L"\\HELPDIR", nullptr, module.substr(0, module.rfind(L'\\'))});
}

} // namespace

std::wstring decimal(long long number)
{
    return wide(std::string_view(std::to_string(number)));
}

std::wstring registryClassKey(std::string_view id)
{
    return L"CLSID\\" + keyOf(id);
}

std::wstring libraryFileKey(Bitness bitness)
{
    return libraryVersionKey() + L"\\0\\" + (bitness == Bitness::win64 ? L"win64" : L"win32");
}

std::vector<RegistryEntry> registryEntries(const std::wstring& module, Bitness bitness)
{
    std::vector<RegistryEntry> entries;
    for (const ControlKeys& control : controls) {
        addControl(entries, control, module);
        addInterface(entries, control.interfaceId, control.interfaceName);
        addInterface(entries, control.eventsId, control.eventsName);
    }
    for (const auto& [id, name] : pageClasses)
        addServer(entries, registryClassKey(id), name, module);
    addLibrary(entries, module, bitness);
    return entries;
}

std::vector<std::wstring> keysOfOneBitness()
{
    std::vector<std::wstring> keys;
    for (const ControlKeys& control : controls) {
        keys.push_back(registryClassKey(control.classId));
        keys.push_back(interfaceKey(control.interfaceId));
        keys.push_back(interfaceKey(control.eventsId));
    }
    for (const auto& [id, name] : pageClasses)
        keys.push_back(registryClassKey(id));
    return keys;
}

std::vector<std::wstring> keysOfBothBitnesses()
{
    std::vector<std::wstring> keys{libraryKey()};
    for (const ControlKeys& control : controls) {
        const std::wstring progId = wide(control.progId);
        keys.push_back(progId);
        keys.push_back(withoutVersion(progId));
    }
    return keys;
}

} // namespace vela::activex
