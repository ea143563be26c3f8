// Keys and names as hosts and reader programs meet them: control characters, form libraries that ask the field's window
// which keys are its own, loops that know no Tab, and what the field is called.
#include "person.h"

#include <gtest/gtest.h>
#include <olectl.h>

namespace vela::test {

namespace {

// A key of the keyboard's in a host whose loop knows nothing of dialogs.
void plainKey(int key, int with = 0)
{
    sendKey(with, true);
    sendKey(key, true);
    sendKey(key, false);
    sendKey(with, false);
    const DWORD start = GetTickCount();
    do
        pump();
    while (GetQueueStatus(QS_ALLINPUT & ~QS_TIMER) != 0 && GetTickCount() - start < 5000);
}

struct ControlKey {
    const char* rule;
    int key;
    int with;
    int code; // of its KeyPress
    const char16_t* shows;
};

// Typed over "abcd", of which "bc" is selected, with "XY" on the clipboard.
const ControlKey controlKeys[] = {
    {"Esc means nothing to the box", VK_ESCAPE, 0, 27, u"abcd"},
    {"nor does Control and B", 'B', VK_CONTROL, 2, u"abcd"},
    {"nor Control and I, which is no Tab", 'I', VK_CONTROL, 9, u"abcd"},
    {"cut", 'X', VK_CONTROL, 24, u"ad"},
    {"paste", 'V', VK_CONTROL, 22, u"aXYd"},
    {"undo", 'Z', VK_CONTROL, 26, u"abc"},
};

TEST(HostsKeys, ControlCharactersAreHeardAndPassByTheFilter)
{
    const LeakCheck leaks;
    for (const ControlKey& row : controlKeys)
        for (const int answer : {row.code, 0, int{'x'}}) {
            SCOPED_TRACE(std::string(row.rule) + ", answered " + std::to_string(answer));
            Form form;
            Site& site = form.addActive();
            Site& next = form.addActive();
            form.focus(site);
            form.type(u"abcd");
            site.automation().set({{u"MaxLength", 5}, {u"AutoTAB", true}, {u"TextoLivre", false}});
            SendMessageW(site.edit(), EM_SETSEL, row.code == 27 ? 4 : 1, row.code == 27 ? 4 : 3);
            putClipboard(u"XY");
            site.automation().put(u"CaractLiberados", text(u"abcdXY"));
            std::vector<int> heard;
            site.onEvent = [&](DISPID id, DISPPARAMS& parameters) {
                if (id != DISPID_KEYPRESS)
                    return;
                heard.push_back(*parameters.rgvarg[0].piVal);
                *parameters.rgvarg[0].piVal = static_cast<SHORT>(heard.back() == row.code ? answer : heard.back());
            };
            plainKey(row.key, row.with);
            ASSERT_FALSE(heard.empty());
            EXPECT_EQ(heard.front(), row.code);
            EXPECT_EQ(shownBy(site.edit()), answer == 0 ? u"abcd" : row.shows);
            EXPECT_EQ(GetFocus(), site.edit()) << "no automatic tab";
            EXPECT_EQ(next.count("OnFocus 1"), 0);
        }
    Form form;
    Site& site = form.addActive();
    form.focus(site);
    form.type(u"abcd");
    for (const bool allowed : {false, true}) {
        site.onEvent = [&](DISPID id, DISPPARAMS& parameters) {
            if (id == DISPID_KEYPRESS && !allowed)
                *parameters.rgvarg[0].piVal = 0;
        };
        plainKey('A', VK_CONTROL);
        EXPECT_EQ(SendMessageW(site.edit(), EM_GETSEL, 0, 0), allowed ? MAKELRESULT(0, 4) : MAKELRESULT(4, 4));
    }
}

// --- form libraries: before a key goes to the focused window, the form asks the window that it knows

using Mask = LRESULT (*)(WPARAM key);

// As the VCL has it: what a key is worth as an input key.
LRESULT vcl(WPARAM key)
{
    switch (key) {
    case VK_TAB: return DLGC_WANTTAB;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN: return DLGC_WANTARROWS;
    default: return DLGC_WANTALLKEYS;
    }
}

LRESULT windowsForms(WPARAM key)
{
    return vcl(key) | DLGC_WANTALLKEYS;
}

TEST(HostsKeys, TheFieldsWindowTellsFormLibrariesWhichKeysAreItsOwn)
{
    const LeakCheck leaks;
    for (const Mask mask : {windowsForms, vcl})
        for (const bool eats : {false, true}) {
            SCOPED_TRACE(std::string(mask == vcl ? "VCL" : "Windows Forms") + (eats ? ", Enter is the field's" : ""));
            Form form;
            Site& site = form.addActive();
            form.addActive();
            site.automation().set({{u"EnterAsTab", eats}, {u"UpTAB", false}});
            form.focus(site);
            form.type(u"ab");
            std::vector<WPARAM> formKeys; // those of the dialog kind that the form used
            site.onKey = [&](MSG* message) -> HRESULT {
                if (message->message != WM_KEYDOWN || message->wParam == VK_CONTROL)
                    return S_FALSE;
                if (SendMessageW(site.window(), WM_GETDLGCODE, 0, 0) & mask(message->wParam))
                    return S_FALSE;
                formKeys.push_back(message->wParam);
                return S_OK;
            };
            for (const int key : {VK_LEFT, VK_UP, VK_DOWN, VK_RIGHT, VK_ESCAPE, VK_TAB})
                hardKey(form, key);
            EXPECT_EQ(formKeys, (std::vector<WPARAM>{VK_ESCAPE, VK_TAB}));
            hardKey(form, VK_RETURN);
            EXPECT_EQ(formKeys.back() == VK_RETURN, !eats);
            // A window that is asked out of the loop cannot know the key: then all that may be its own is.
            EXPECT_EQ((SendMessageW(site.window(), WM_GETDLGCODE, 0, 0) & DLGC_WANTALLKEYS) != 0, eats);
            MSG tab{site.edit(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
            EXPECT_FALSE(SendMessageW(site.window(), WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)) &
                         (DLGC_WANTALLKEYS | DLGC_WANTTAB));
        }
}

TEST(HostsKeys, TheHostHearsWhenEnterBecomesTheFields)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    VARIANT& running = site.ambients[DISPID_AMBIENT_USERMODE].ref();
    running = truth(false).release();
    const auto flags = [&] {
        CONTROLINFO info{};
        info.cb = sizeof info;
        site.as<IOleControl>()->GetControlInfo(&info);
        return info.dwFlags;
    };
    site.log.clear();
    DWORD inside = 0;
    site.onCall = [&](const char* word) {
        if (std::string_view(word) == "OnControlInfoChanged")
            inside = flags();
    };
    int told = 0;
    for (const auto& [name, value, tells] :
         {std::tuple{u"EnterAsTab", true, true}, std::tuple{u"EnterAsTab", true, false},
          std::tuple{u"MultLine", true, false}, std::tuple{u"EnterAsTab", false, false},
          std::tuple{u"MultLine", false, true}}) {
        site.automation().put(name, truth(value));
        told += tells;
        EXPECT_EQ(site.count("OnControlInfoChanged"), told);
        EXPECT_EQ(inside, flags());
    }
    running.boolVal = VARIANT_TRUE; // MultLine is refused at run time with its value stored
    site.automation().put(u"MultLine", truth(true));
    EXPECT_EQ(site.count("OnControlInfoChanged"), told + 1);
}

TEST(HostsKeys, ATabThatNobodyUsedGoesOn)
{
    const LeakCheck leaks;
    for (const DWORD marked : {0UL, static_cast<DWORD>(WS_EX_CONTROLPARENT)}) {
        SCOPED_TRACE(marked ? "in a marked container" : "in a container that is not marked");
        Form form;
        Site& first = form.addActive();
        Site& second = form.addActive();
        const HWND panel = CreateWindowExW(marked, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, form.window(),
                                           nullptr, nullptr, nullptr);
        const HWND after = plainWindow(L"BUTTON", {10, 240, 100, 264}, form.window());
        SetParent(first.window(), panel);
        SetParent(second.window(), panel);
        SetWindowPos(second.window(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        form.focus(first);
        plainKey(VK_TAB);
        EXPECT_EQ(GetFocus(), second.edit());
        plainKey(VK_TAB, VK_SHIFT);
        EXPECT_EQ(GetFocus(), first.edit());
        plainKey(VK_TAB);
        plainKey(VK_TAB);
        EXPECT_EQ(GetFocus(), after);
        form.focus(second);
        int asked = 0;
        second.onKey = [&](MSG* message) {
            asked += message->message == WM_KEYDOWN && message->wParam == VK_TAB;
            return S_OK;
        };
        plainKey(VK_TAB);
        EXPECT_EQ(asked, 1) << "the container comes first";
        EXPECT_EQ(GetFocus(), second.edit());
    }
}

std::wstring nameOf(HWND window)
{
    ComPtr<IAccessible> reader;
    reader.Attach(readerOf(window));
    return reader ? heardOf(*reader.Get()) : L"?";
}

TEST(HostsKeys, AReaderHearsTheFieldsNameOrItsLabels)
{
    const LeakCheck leaks;
    Form form;
    Site& first = form.addActive();
    Site& site = form.addActive();
    const HWND label = plainWindow(L"STATIC", {0, 200, 80, 220}, form.window(), L"&Vencimento:");
    SetWindowPos(site.window(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(nameOf(first.edit()), L"");
    EXPECT_EQ(nameOf(site.edit()), L"Vencimento:");
    SetWindowTextW(label, L"Pagamento:");
    EXPECT_EQ(nameOf(site.edit()), L"Pagamento:");
    site.automation().put(u"NomeCampo", text(u"Débito & crédito"));
    EXPECT_EQ(nameOf(site.edit()), L"Débito & crédito");
    site.automation().put(u"Alignment", number(1)); // a new box
    EXPECT_EQ(nameOf(site.edit()), L"Débito & crédito");
    site.automation().put(u"NomeCampo", text(u""));
    EXPECT_EQ(nameOf(site.edit()), L"Pagamento:");
}

} // namespace

} // namespace vela::test
