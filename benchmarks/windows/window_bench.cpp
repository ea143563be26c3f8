// Speeds of real fields in real windows, each beside bare EDIT windows in the same process.
#include "apps/demo/container.h"
#include "apps/demo/fields.h"
#include "tests/windows/usage.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using vela::demo::ComPtr;
using vela::demo::ControlSite;
using vela::demo::FormFrame;
using vela::demo::make;
using vela::demo::OleValue;
using vela::demo::Setting;
using vela::test::Usage;

constexpr int fieldCount = 1000;
constexpr int keyCount = 2000;

double now() // microseconds
{
    LARGE_INTEGER frequency, count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return static_cast<double>(count.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart);
}

void pump()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// The least of a few rounds, in microseconds a repetition: what the machine can do when nothing disturbs it.
double measure(int repetitions, const std::function<void(int)>& body)
{
    double best = 1e300;
    for (int round = 0; round < 5; ++round) {
        const double start = now();
        for (int i = 0; i < repetitions; ++i)
            body(i);
        best = std::min(best, (now() - start) / repetitions);
        pump();
    }
    return best;
}

void row(const char* name, double mine, const char* beside, double theirs, double goal)
{
    std::printf("%-44s %10.2f us   %-44s %10.2f us   ratio %5.2f   goal <= %.1f %s\n", name, mine, beside, theirs,
                mine / theirs, goal, mine / theirs <= goal ? "reached" : "MISSED");
    std::fflush(stdout);
}

void resourceRow(const char* name, const Usage& before, const Usage& after)
{
    std::printf("%-44s %10.0f bytes %6.2f windows %6.2f GDI objects each\n", name,
                static_cast<double>(after.memory - before.memory) / fieldCount,
                static_cast<double>(after.windows - before.windows) / fieldCount,
                static_cast<double>(after.drawing - before.drawing) / fieldCount);
}

Setting number(const wchar_t* key, long value)
{
    return {key, OleValue(value)};
}
Setting text(const wchar_t* key, const wchar_t* value)
{
    return {key, OleValue(std::wstring_view(value))};
}

class Form {
public:
    Form()
    {
        window_ = CreateWindowExW(WS_EX_CONTROLPARENT, L"#32770", L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800,
                                  600, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
        frame_ = make<FormFrame>(window_);
    }
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form()
    {
        DestroyWindow(window_);
        DeleteObject(font_);
    }

    [[nodiscard]] HWND window() const { return window_; }
    ComPtr<ControlSite> field(std::vector<Setting> settings, int top = 10)
    {
        ComPtr<ControlSite> site = make<ControlSite>(*frame_.Get(), window_, L"field");
        if (FAILED(site->open(L"Vela.Vela", RECT{10, top, 210, top + 23}, settings)))
            std::printf("a field could not be created\n");
        return site;
    }
    // Of version 6, as the field's box is: such an EDIT paints itself anew at each change of the focus.
    [[nodiscard]] HWND themedEdit(int top) const
    {
        ACTCTXW wanted{};
        wanted.cbSize = sizeof wanted;
        wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        wanted.hModule = GetModuleHandleW(L"Vela.ocx");
        wanted.lpResourceName = MAKEINTRESOURCEW(2); // the library's manifest, which asks for that version
        const HANDLE context = CreateActCtxW(&wanted);
        ULONG_PTR cookie = 0;
        ActivateActCtx(context, &cookie);
        const HWND made = edit(top);
        DeactivateActCtx(0, cookie);
        ReleaseActCtx(context);
        return made;
    }
    [[nodiscard]] HWND edit(int top = 10, DWORD style = ES_AUTOHSCROLL) const
    {
        const HWND made = CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                                          10, top, 200, 23, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE); // a scalable one, as forms have
        return made;
    }

private:
    HWND window_;
    HFONT font_ = CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Sans Serif");
    ComPtr<FormFrame> frame_;
};

HWND editOf(ControlSite& site)
{
    OleValue handle;
    vela::demo::getByName(site.object(), L"hwnd", handle);
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle.get().lVal));
}

void type(HWND window, wchar_t character)
{
    const WPARAM key = static_cast<WPARAM>(LOBYTE(VkKeyScanW(character)));
    SendMessageW(window, WM_KEYDOWN, key, 1);
    SendMessageW(window, WM_CHAR, character, 1);
    SendMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

// A thousand stand on the form at a time, in turn. The first round counts what they take; the times are those of the
// later ones, when both find the system's caches as a form that has been at work leaves them.
void creationRows(Form& form)
{
    std::vector<HWND> edits;
    std::vector<ComPtr<ControlSite>> fields;
    edits.reserve(fieldCount);
    fields.reserve(fieldCount);
    form.field({})->close();         // the library is loaded, its class known
    constexpr double notYet = 1e300; // also again after the first round
    double edit = notYet, field = notYet;
    for (int round = 0; round < 4; ++round) {
        const Usage beforeEdits;
        double start = now();
        for (int i = 0; i < fieldCount; ++i)
            edits.push_back(form.edit());
        edit = std::min(round < 2 ? notYet : edit, (now() - start) / fieldCount);
        const Usage afterEdits;
        for (HWND window : edits)
            DestroyWindow(window);
        edits.clear();
        pump();
        const Usage beforeFields;
        start = now();
        for (int i = 0; i < fieldCount; ++i)
            fields.push_back(form.field({}));
        field = std::min(round < 2 ? notYet : field, (now() - start) / fieldCount);
        const Usage afterFields;
        for (auto& site : fields)
            site->close();
        fields.clear();
        pump();
        if (round == 0) {
            resourceRow("each bare EDIT takes", beforeEdits, afterEdits);
            resourceRow("each field takes", beforeFields, afterFields);
        }
    }
    row("creating a field in a form", field, "creating a bare EDIT", edit, 1.6);
}

void typeInto(HWND window, const wchar_t* characters, int count)
{
    const int length = static_cast<int>(wcslen(characters));
    for (int i = 0; i < count; ++i)
        type(window, characters[i % length]);
}

void freeTextRow(Form& form)
{
    const auto site = form.field({});
    HWND mine = editOf(*site.Get());
    HWND bare = form.edit(60);
    const auto each = [](HWND window) {
        return measure(20,
                       [window](int) {
                           SetWindowTextW(window, L"");
                           typeInto(window, L"abcdefghij", 100);
                       }) /
               100;
    };
    SetFocus(bare);
    const double theirs = each(bare);
    SetFocus(mine);
    row("a character typed into free text", each(mine), "into a bare EDIT", theirs, 1.4);
    DestroyWindow(bare);
    site->close();
}

// A hundred thousand characters in lines, typed into in the middle.
void longTextRow(Form& form)
{
    std::wstring lines;
    while (lines.size() < 100000)
        lines += std::wstring(98, L'x') + L"\r\n";
    const auto site = form.field({{L"MultLine", OleValue(true)}});
    HWND mine = editOf(*site.Get());
    HWND bare = form.edit(60, ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL);
    SendMessageW(bare, EM_LIMITTEXT, 0, 0);
    const auto each = [&lines](HWND window) {
        SetFocus(window);
        SetWindowTextW(window, lines.c_str());
        return measure(5,
                       [window](int) {
                           SendMessageW(window, EM_SETSEL, 50000, 50000);
                           typeInto(window, L"abcdefghij", 10);
                       }) /
               10;
    };
    const double theirs = each(bare);
    row("a character into 100,000 characters", each(mine), "into a bare EDIT", theirs, 2.0);
    DestroyWindow(bare);
    site->close();
}

struct FormTimes {
    double created = 1e300;
    double loaded = 1e300;
    double key = 1e300;
};

// A form of `count` fields: the least stretch of ten among its last ones in `rounds`, in microseconds a field, and the
// least of twenty tries on the last two forms for a key into one of them.
FormTimes timesOf(Form& form, int count, int rounds)
{
    const std::vector<Setting> mask{number(L"TextType", 3), text(L"Mask", L"___-____-____"),
                                    text(L"MaskRules", L"@@@-####-####")};
    FormTimes best;
    const auto fill = [&](const std::vector<Setting>& settings, double& least, int tries) {
        std::vector<ComPtr<ControlSite>> fields;
        fields.reserve(static_cast<std::size_t>(count));
        double start = 0;
        for (int i = 0; i < count; ++i) {
            if (i % 10 == 0)
                start = now();
            fields.push_back(form.field(settings));
            if (i % 10 == 9 && i >= count - std::max(count / 10, 10))
                least = std::min(least, (now() - start) / 10);
        }
        HWND typed = editOf(*fields.back().Get());
        SetFocus(typed);
        for (int i = 0; i < tries; ++i) {
            SendMessageW(typed, EM_SETSEL, 0, 0);
            const double before = now();
            typeInto(typed, L"abc12345678", 11);
            best.key = std::min(best.key, (now() - before) / 11);
        }
        for (auto& site : fields)
            site->close();
        pump();
    };
    for (int round = 0; round < rounds; ++round) {
        fill({}, best.created, 0);
        fill(mask, best.loaded, rounds - round <= 2 ? 20 : 0);
    }
    return best;
}

void formSizeRows(Form& form)
{
    const FormTimes ten = timesOf(form, 10, 40);
    const FormTimes hundred = timesOf(form, 100, 6);
    const FormTimes thousand = timesOf(form, 1000, 2);
    for (const auto& [name, at] : {std::pair{"100", hundred}, std::pair{"1,000", thousand}}) {
        const std::string form_ = std::string("on a form of ") + name;
        row(("a field created " + form_).c_str(), at.created, "on a form of 10", ten.created, 1.2);
        row(("a mask field loaded " + form_).c_str(), at.loaded, "on a form of 10", ten.loaded, 1.2);
        row(("a key into a mask " + form_).c_str(), at.key, "on a form of 10", ten.key, 1.2);
    }
}

void maskRow(Form& form)
{
    const auto site =
        form.field({number(L"TextType", 3), text(L"Mask", L"___-____-____"), text(L"MaskRules", L"@@@-####-####")});
    HWND mine = editOf(*site.Get());
    SetFocus(mine);
    const double field = measure(40,
                                 [&](int) {
                                     SendMessageW(mine, EM_SETSEL, 0, 0);
                                     typeInto(mine, L"abc12345678", 11);
                                 }) /
                         11;
    HWND bare = form.edit(60);
    SetFocus(bare);
    const double theirs = measure(keyCount, [&](int i) {
        SetWindowTextW(bare, i % 2 == 0 ? L"ABC-1234-5___" : L"ABC-1234-56__");
        SendMessageW(bare, EM_SETSEL, 10, 10);
    });
    row("a character typed into a mask", field, "the same text by WM_SETTEXT", theirs, 1.1);
    DestroyWindow(bare);
    site->close();
}

WNDPROC plainEdit = nullptr;

// What a host would write itself: format what stands there and put it back.
LRESULT CALLBACK amountProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CallWindowProcW(plainEdit, window, message, wParam, lParam);
    if (message == WM_CHAR) {
        wchar_t digits[64];
        GetWindowTextW(window, digits, 64);
        VARIANT value;
        VariantInit(&value);
        VarR8FromStr(digits, LOCALE_USER_DEFAULT, 0, &value.dblVal);
        value.vt = VT_R8;
        wchar_t pattern[] = L"#,##0.00";
        BSTR formatted = nullptr;
        if (SUCCEEDED(VarFormat(&value, pattern, 0, 0, 0, &formatted))) {
            SetWindowTextW(window, formatted);
            SendMessageW(window, EM_SETSEL, SysStringLen(formatted), SysStringLen(formatted));
            SysFreeString(formatted);
        }
    }
    return result;
}

void liveAmountRow(Form& form)
{
    const auto site = form.field({number(L"TextType", 1),
                                  number(L"SimbolDecExib", 2),
                                  number(L"SimbolAgrupMilhar", 1),
                                  number(L"QtdCasasDec", 2),
                                  {L"MaskToNumeric", OleValue(true)}});
    HWND mine = editOf(*site.Get());
    SetFocus(mine);
    const auto amount = [](HWND window) {
        return measure(40,
                       [window](int) {
                           SetWindowTextW(window, L"0,00");
                           SendMessageW(window, EM_SETSEL, 4, 4);
                           typeInto(window, L"12345678", 8);
                       }) /
               8;
    };
    const double field = amount(mine);
    HWND bare = form.edit(60);
    plainEdit =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(bare, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&amountProcedure)));
    SetFocus(bare);
    row("a digit typed into a live amount", field, "an EDIT with VarFormat and WM_SETTEXT", amount(bare), 1.2);
    DestroyWindow(bare);
    site->close();
}

void focusRow(Form& form)
{
    const auto first = form.field({}), second = form.field({}, 60);
    HWND a = editOf(*first.Get()), b = editOf(*second.Get());
    const auto swap = [](HWND one, HWND other) {
        return measure(500, [=](int i) {
            SetFocus(i % 2 == 0 ? one : other);
            pump();
        });
    };
    const auto compare = [&](const char* beside, HWND one, HWND other) {
        const double theirs = swap(one, other);
        const double mine = swap(a, b);
        std::printf("%-44s %10.2f us   %-44s %10.2f us   ratio %5.2f\n", "focus in and out", mine, beside, theirs,
                    mine / theirs);
        DestroyWindow(one);
        DestroyWindow(other);
    };
    compare("between bare EDITs", form.edit(110), form.edit(160));
    compare("between bare EDITs of version 6", form.themedEdit(110), form.themedEdit(160));
    first->close();
    second->close();
}

HWND popupOf(DWORD thread)
{
    HWND found = nullptr;
    EnumThreadWindows(
        thread,
        [](HWND window, LPARAM result) -> BOOL {
            if (!IsWindowVisible(window) || (GetWindowLongW(window, GWL_STYLE) & WS_POPUP) == 0)
                return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

void popupRow(Form& form, const char* name, std::vector<Setting> settings)
{
    const auto site = form.field(std::move(settings));
    const double each = measure(20, [&](int) {
        HWND button = GetWindow(site->window(), GW_CHILD);
        while (button && GetDlgCtrlID(button) == 0 && GetWindow(button, GW_HWNDNEXT))
            button = GetWindow(button, GW_HWNDNEXT);
        SetFocus(editOf(*site.Get()));
        SendMessageW(button, BM_CLICK, 0, 0);
        pump();
        if (HWND popup = popupOf(GetCurrentThreadId()))
            SendMessageW(popup, WM_CLOSE, 0, 0);
        pump();
    });
    std::printf("%-44s %10.2f us\n", name, each);
    std::fflush(stdout);
    site->close();
}

struct VirtualReader {
    virtual ~VirtualReader() = default;
    [[nodiscard]] virtual HRESULT read(VARIANT& into) const = 0;
};

// A property read by a virtual call, as a dual interface would give it: the same kind of value copied out.
struct PlainReader final : VirtualReader {
    VARIANT_BOOL kept = VARIANT_TRUE;
    [[nodiscard]] HRESULT read(VARIANT& into) const override
    {
        into.vt = VT_BOOL;
        into.boolVal = kept;
        return S_OK;
    }
};

void automationRow(Form& form)
{
    const auto site = form.field({});
    IDispatch* object = site->object();
    auto* name = const_cast<wchar_t*>(L"AutoSelect");
    DISPID id = 0;
    object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    const double dispatched = measure(100000, [&](int) {
        VARIANT value;
        VariantInit(&value);
        DISPPARAMS none{};
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
    });
    const std::unique_ptr<VirtualReader> reader = std::make_unique<PlainReader>();
    VirtualReader* volatile hidden = reader.get();
    const double direct = measure(100000, [&](int) {
        VARIANT value;
        VariantInit(&value);
        (void)hidden->read(value);
    });
    row("a property read by automation", dispatched, "the same by a virtual call", direct, 15);
    site->close();
}

} // namespace

int main()
{
    OleInitialize(nullptr);
    {
        Form form;
        pump();
        creationRows(form);
        freeTextRow(form);
        longTextRow(form);
        maskRow(form);
        liveAmountRow(form);
        focusRow(form);
        popupRow(form, "opening and closing the calendar",
                 {number(L"TextType", 2), {L"ShowButtonCalendario", OleValue(true)}});
        popupRow(form, "opening and closing the calculator",
                 {number(L"TextType", 1), {L"ShowButtonCalculadora", OleValue(true)}});
        automationRow(form);
        formSizeRows(form);
    }
    OleUninitialize();
    return 0;
}
