// What stands in the registry, as one list of entries, and its writing and deleting.
#include "activex/registration.h"

#include "activex/calendar_content.h"
#include "activex/com/guard.h"
#include "activex/guids.h"
#include "activex/resource.h"
#include "activex/vela_content.h"
#include "platform/win32/module.h"
#include "platform/win32/owners.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vela::activex {

namespace {

constexpr wchar_t classes[] = L"Software\\Classes\\";
constexpr wchar_t automationProxy[] = L"{00020420-0000-0000-C000-000000000046}"; // of dispinterfaces
constexpr wchar_t controlCategory[] = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr wchar_t programmableCategory[] = L"{40FC6ED5-2438-11CF-A3DB-080036F12502}";
constexpr wchar_t libraryName[] = L"Vela 1.0";
constexpr wchar_t libraryFlags[] = L"2"; // a library of controls
#ifdef _WIN64
constexpr wchar_t platformKey[] = L"win64";
constexpr REGSAM otherView = KEY_WOW64_32KEY;
#else
constexpr wchar_t platformKey[] = L"win32";
constexpr REGSAM otherView = KEY_WOW64_64KEY;
#endif

struct Entry {
    std::wstring key; // below Software\Classes
    const wchar_t* name;
    std::wstring value;
};

struct ControlKeys {
    const ClassFacts& (*facts)() noexcept;
    std::string_view classId;
    std::string_view interfaceId;
    const wchar_t* interfaceName;
    std::string_view eventsId;
    const wchar_t* eventsName;
};
constexpr ControlKeys controls[] = {
    {velaFacts, identity::velaClass, identity::velaInterface, L"IVela", identity::velaEvents, L"IVelaEvents"},
    {calendarFacts, identity::calendarClass, identity::calendarInterface, L"IcCalendar", identity::calendarEvents,
     L"IcCalendarEvents"},
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

std::wstring decimal(long number)
{
    return wide(std::string_view(std::to_string(number)));
}

std::wstring classKey(std::string_view id)
{
    return L"CLSID\\" + keyOf(id);
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

void addServer(std::vector<Entry>& entries, const std::wstring& key, const std::wstring& name,
               const std::wstring& module)
{
    entries.push_back({key, nullptr, name});
    entries.push_back({key + L"\\InprocServer32", nullptr, module});
    entries.push_back({key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
}

void addControl(std::vector<Entry>& entries, const ControlKeys& control, const std::wstring& module)
{
    const ClassFacts& facts = control.facts();
    const std::wstring key = classKey(control.classId);
    const std::wstring progId = wide(facts.progId);
    const std::wstring general = withoutVersion(progId);
    const std::wstring name = wide(facts.name);
    addServer(entries, key, name, module);
    entries.push_back({key + L"\\ProgID", nullptr, progId});
    entries.push_back({key + L"\\VersionIndependentProgID", nullptr, general});
    entries.push_back({key + L"\\TypeLib", nullptr, keyOf(identity::library)});
    entries.push_back({key + L"\\Version", nullptr, wide(identity::libraryVersion)});
    entries.push_back({key + L"\\Control", nullptr, {}});
    entries.push_back({key + L"\\Programmable", nullptr, {}});
    entries.push_back({key + L"\\MiscStatus", nullptr, L"0"});
    entries.push_back({key + L"\\MiscStatus\\1", nullptr, decimal(miscStatus)});
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

void addInterface(std::vector<Entry>& entries, std::string_view id, const wchar_t* name)
{
    const std::wstring key = interfaceKey(id);
    entries.push_back({key, nullptr, name});
    entries.push_back({key + L"\\ProxyStubClsid32", nullptr, automationProxy});
    entries.push_back({key + L"\\TypeLib", nullptr, keyOf(identity::library)});
    entries.push_back({key + L"\\TypeLib", L"Version", wide(identity::libraryVersion)});
}

void addLibrary(std::vector<Entry>& entries, const std::wstring& module)
{
    const std::wstring key = libraryKey() + L"\\" + wide(identity::libraryVersion);
    entries.push_back({key, nullptr, libraryName});
    entries.push_back({key + L"\\0\\" + platformKey, nullptr, module});
    entries.push_back({key + L"\\FLAGS", nullptr, libraryFlags});
    entries.push_back({key + L"\\HELPDIR", nullptr, module.substr(0, module.rfind(L'\\'))});
}

std::vector<Entry> allEntries()
{
    const std::wstring module = win32::modulePath();
    std::vector<Entry> entries;
    for (const ControlKeys& control : controls) {
        addControl(entries, control, module);
        addInterface(entries, control.interfaceId, control.interfaceName);
        addInterface(entries, control.eventsId, control.eventsName);
    }
    for (const auto& [id, name] : pageClasses)
        addServer(entries, classKey(id), name, module);
    addLibrary(entries, module);
    return entries;
}

// Keys that each bitness has to itself.
std::vector<std::wstring> ownKeys()
{
    std::vector<std::wstring> keys;
    for (const ControlKeys& control : controls) {
        keys.push_back(classKey(control.classId));
        keys.push_back(interfaceKey(control.interfaceId));
        keys.push_back(interfaceKey(control.eventsId));
    }
    for (const auto& [id, name] : pageClasses)
        keys.push_back(classKey(id));
    return keys;
}

std::vector<std::wstring> sharedKeys()
{
    std::vector<std::wstring> keys{libraryKey()};
    for (const ControlKeys& control : controls) {
        const std::wstring progId = wide(control.facts().progId);
        keys.push_back(progId);
        keys.push_back(withoutVersion(progId));
    }
    return keys;
}

win32::UniqueKey opened(HKEY root, const std::wstring& key, REGSAM access)
{
    HKEY found = nullptr;
    RegOpenKeyExW(root, (classes + key).c_str(), 0, access, &found);
    return win32::UniqueKey(found);
}

LSTATUS deleteTree(HKEY root, const std::wstring& key)
{
    const LSTATUS status = RegDeleteTreeW(root, (classes + key).c_str());
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

struct Failure {
    LSTATUS status = ERROR_SUCCESS;
    std::wstring key;
};

// Writes entries and remembers what stood there, so that an attempt that fails leaves what was registered before.
class Attempt {
public:
    explicit Attempt(HKEY root) noexcept : root_(root) {}

    LSTATUS write(const Entry& entry)
    {
        if (const std::wstring fresh = firstMissing(entry.key); !fresh.empty())
            changes_.push_back({fresh, nullptr, true, {}});
        HKEY made = nullptr;
        if (const LSTATUS status = RegCreateKeyExW(root_, (classes + entry.key).c_str(), 0, nullptr, 0,
                                                   KEY_SET_VALUE | KEY_QUERY_VALUE, nullptr, &made, nullptr))
            return status;
        const win32::UniqueKey key(made);
        if (entry.value.empty())
            return ERROR_SUCCESS;
        changes_.push_back({entry.key, entry.name, false, valueOf(made, entry.name)});
        return RegSetValueExW(made, entry.name, 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.value.c_str()),
                              static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t)));
    }

    void undo()
    {
        for (auto change = changes_.rbegin(); change != changes_.rend(); ++change) {
            if (change->wholeKey) {
                deleteTree(root_, change->key);
                continue;
            }
            const win32::UniqueKey key = opened(root_, change->key, KEY_SET_VALUE);
            if (change->before)
                RegSetValueExW(key.get(), change->name, 0, change->before->type, change->before->bytes.data(),
                               static_cast<DWORD>(change->before->bytes.size()));
            else
                RegDeleteValueW(key.get(), change->name);
        }
    }

private:
    struct Value {
        DWORD type = REG_NONE;
        std::vector<BYTE> bytes;
    };
    struct Change {
        std::wstring key;
        const wchar_t* name;
        bool wholeKey; // there was no such key
        std::optional<Value> before;
    };

    // "Vela.Vela\\CLSID" -> "Vela.Vela" when there is none; "" when the key itself stands.
    [[nodiscard]] std::wstring firstMissing(const std::wstring& key) const
    {
        for (std::size_t end = 0; end < key.size();) {
            end = std::min(key.find(L'\\', end + 1), key.size());
            if (!opened(root_, key.substr(0, end), KEY_QUERY_VALUE).get())
                return key.substr(0, end);
        }
        return {};
    }
    [[nodiscard]] static std::optional<Value> valueOf(HKEY key, const wchar_t* name)
    {
        Value value;
        DWORD size = 0;
        if (RegQueryValueExW(key, name, nullptr, &value.type, nullptr, &size) != ERROR_SUCCESS)
            return std::nullopt;
        value.bytes.resize(size);
        if (RegQueryValueExW(key, name, nullptr, &value.type, value.bytes.data(), &size) != ERROR_SUCCESS)
            return std::nullopt;
        return value;
    }

    HKEY root_;
    std::vector<Change> changes_;
};

bool otherBitnessRegistered(HKEY root)
{
    HKEY found = nullptr;
    const std::wstring path = classes + classKey(identity::velaClass);
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_QUERY_VALUE | otherView, &found) != ERROR_SUCCESS)
        return false;
    const win32::UniqueKey close(found);
    // Where the two bitnesses see one key, it is the one that was just deleted, or it names another kind of server.
    HKEY server = nullptr;
    if (RegOpenKeyExW(found, L"InprocServer32", 0, KEY_QUERY_VALUE | otherView, &server) != ERROR_SUCCESS)
        return false;
    const win32::UniqueKey closeServer(server);
    return true;
}

// A user has these keys from the first registration on only.
void deleteEmptyParents(HKEY root)
{
    for (const wchar_t* const parent : {L"CLSID", L"Interface", L"TypeLib"}) {
        const win32::UniqueKey key = opened(root, parent, KEY_QUERY_VALUE);
        DWORD keys = 1;
        DWORD values = 1;
        if (key.get() &&
            RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                             nullptr, nullptr) == ERROR_SUCCESS &&
            keys == 0 && values == 0)
            RegDeleteKeyW(root, (classes + std::wstring(parent)).c_str());
    }
}

Failure deleteAll(HKEY root)
{
    Failure first;
    const auto remove = [&](const std::wstring& key) {
        const LSTATUS status = deleteTree(root, key);
        if (status != ERROR_SUCCESS && first.status == ERROR_SUCCESS)
            first = {status, key};
    };
    for (const std::wstring& key : ownKeys())
        remove(key);
    if (otherBitnessRegistered(root))
        remove(libraryKey() + L"\\" + wide(identity::libraryVersion) + L"\\0\\" + platformKey);
    else
        for (const std::wstring& key : sharedKeys())
            remove(key);
    deleteEmptyParents(root);
    return first;
}

// regsvr32 /s, and whoever else has no wish for boxes.
bool wantsSilence()
{
    const std::wstring line = GetCommandLineW() + std::wstring(L" ");
    for (const wchar_t* const option : {L" /s ", L" /S ", L" -s ", L" -S "})
        if (line.find(option) != std::wstring::npos)
            return true;
    return false;
}

// A service has none, and nobody would ever answer the box.
bool hasVisibleStation() noexcept
{
    USEROBJECTFLAGS flags{};
    return GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, nullptr) &&
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

void tell(int number, const std::wstring& text)
{
    reportError({number, std::u16string(text.begin(), text.end())});
    if (!wantsSilence() && hasVisibleStation())
        MessageBoxW(nullptr, text.c_str(), L"Vela", MB_OK | MB_ICONEXCLAMATION);
}

HRESULT report(HKEY root, const Failure& failure)
{
    const bool machine = root == HKEY_LOCAL_MACHINE;
    const std::wstring cure =
        machine ? L"Execute o comando como administrador, ou registre a biblioteca s\u00F3 para o seu usu\u00E1rio: "
                  L"regsvr32 /n /i:user Vela.ocx"
                : L"Pe\u00E7a ao administrador permiss\u00E3o para gravar nesta chave.";
    const std::wstring text = L"N\u00E3o foi poss\u00EDvel alterar a chave " +
                              std::wstring(machine ? L"HKEY_LOCAL_MACHINE\\" : L"HKEY_CURRENT_USER\\") + classes +
                              failure.key + L" (erro " + decimal(failure.status) + L").\r\n" + cure;
    tell(engine::error_number::permissionDenied, text);
    return HRESULT_FROM_WIN32(static_cast<DWORD>(failure.status));
}

HRESULT registerIn(HKEY root)
{
    Attempt attempt(root);
    for (const Entry& entry : allEntries())
        if (const LSTATUS status = attempt.write(entry)) {
            attempt.undo();
            return report(root, {status, entry.key});
        }
    return S_OK;
}

bool mayWriteMachine()
{
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, classes, 0, KEY_CREATE_SUB_KEY | KEY_SET_VALUE, &key);
    const win32::UniqueKey close(key);
    return status != ERROR_ACCESS_DENIED;
}

} // namespace

HRESULT registerServer(Scope scope) noexcept
{
    return guarded([&] {
        const bool machine = scope == Scope::machineOrUser && mayWriteMachine();
        return registerIn(machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER);
    });
}

HRESULT unregisterServer(Scope scope) noexcept
{
    return guarded([&]() -> HRESULT {
        HRESULT result = S_OK;
        for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
            if (root == HKEY_LOCAL_MACHINE && scope == Scope::user)
                continue;
            if (const Failure failure = deleteAll(root); failure.status != ERROR_SUCCESS)
                result = report(root, failure);
        }
        return result;
    });
}

HRESULT install(bool wanted, const wchar_t* word) noexcept
{
    Scope scope = Scope::machineOrUser;
    if (word && lstrcmpiW(word, L"user") == 0)
        scope = Scope::user;
    else if (word && *word)
        return guarded([&]() -> HRESULT {
            tell(engine::error_number::invalidCall, L"Op\u00E7\u00E3o desconhecida: /i:" + std::wstring(word) +
                                                        L".\r\nS\u00F3 existe /i:user, que vale para o seu "
                                                        L"usu\u00E1rio: regsvr32 /n /i:user Vela.ocx");
            return E_INVALIDARG;
        });
    return wanted ? registerServer(scope) : unregisterServer(scope);
}

} // namespace vela::activex
