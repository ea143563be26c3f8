// Writing the registry's entries and deleting them.
#include "activex/registration.h"

#include "activex/com/guard.h"
#include "activex/identities.h"
#include "activex/registry_entries.h"
#include "platform/win32/module.h"
#include "platform/win32/owners.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace vela::activex {

namespace {

constexpr wchar_t classes[] = L"Software\\Classes\\";
#ifdef _WIN64
constexpr Bitness ownBitness = Bitness::win64;
constexpr REGSAM otherView = KEY_WOW64_32KEY;
#else
constexpr Bitness ownBitness = Bitness::win32;
constexpr REGSAM otherView = KEY_WOW64_64KEY;
#endif

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

    LSTATUS write(const RegistryEntry& entry)
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
    // Where the two bitnesses see one key, it is the one that was just deleted, or it names another kind of server.
    const std::wstring server = registryClassKey(identity::velaClass) + L"\\InprocServer32";
    return static_cast<bool>(opened(root, server, KEY_QUERY_VALUE | otherView));
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
    for (const std::wstring& key : keysOfOneBitness())
        remove(key);
    if (otherBitnessRegistered(root))
        remove(libraryFileKey(ownBitness));
    else
        for (const std::wstring& key : keysOfBothBitnesses())
            remove(key);
    deleteEmptyParents(root);
    return first;
}

// Whether the caller wants no boxes, as regsvr32 /s.
bool wantsSilence()
{
    const std::wstring line = GetCommandLineW() + std::wstring(L" ");
    for (const wchar_t* const option : {L" /s ", L" /S ", L" -s ", L" -S "})
        if (line.find(option) != std::wstring::npos)
            return true;
    return false;
}

// A service has no desktop that anybody sees, so nobody would answer the box.
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
    for (const RegistryEntry& entry : registryEntries(win32::modulePath(), ownBitness))
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
