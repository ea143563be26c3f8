// The library comes and goes with its users, on any thread, and nothing of it stays behind.
#include "apart.h"

#include "tests/activex/container.h"
#include "tests/windows/usage.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

namespace vela::test {

namespace {

// What COM keeps of a thread that uses it.
class Apartment : Fixed {
public:
    Apartment() { EXPECT_EQ(OleInitialize(nullptr), S_OK); }
    ~Apartment() { OleUninitialize(); }
};

HWND popupOfThread()
{
    HWND found = nullptr;
    eachWindow([&](HWND window) {
        if (isOf(L"VelaForm", window))
            found = window;
    });
    return found;
}

constexpr SIZE_T perLoading = 40 * 1024; // of memory; the loader and COM take most of it

HWND openPopup(const Site& site)
{
    SendMessageW(FindWindowExW(site.window(), nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
    return popupOfThread();
}

// A field made, typed into, with its pop-up up, and let go of in one of three ways.
void useAField(int round)
{
    Form form;
    Site& site = form.addActive();
    (round % 2 == 0 ? asDate : asNumber)(site.automation());
    SetFocus(site.edit());
    for (const wchar_t unit : {L'1', L'2', L'3'})
        SendMessageW(site.edit(), WM_CHAR, unit, 1);
    openPopup(site);
    form.run();
    const bool inEvent = round % 3 == 1;
    if (inEvent) {
        site.onEvent = [&](DISPID, DISPPARAMS&) {
            if (site.control())
                site.close();
        };
        SendMessageW(site.edit(), WM_CHAR, L'4', 1);
    } else if (round % 3 == 2) {
        form.destroyWindow();
    }
}

// Wine's library of controls leaves a drawing object behind whenever it is unloaded; here it stays.
class KeptControls : Fixed {
public:
    KeptControls()
    {
        const HMODULE user = LoadLibraryW(libraryPath().c_str());
        wchar_t path[MAX_PATH]{};
        GetModuleFileNameW(GetModuleHandleW(L"comctl32.dll"), path, MAX_PATH);
        kept_ = LoadLibraryW(path);
        FreeLibrary(user);
        EXPECT_NE(kept_, nullptr);
    }
    ~KeptControls() { FreeLibrary(kept_); }

private:
    HMODULE kept_ = nullptr;
};

// Wine makes its tables of a font's glyphs without a lock: even bare EDITs of two threads break the process' heap when
// both come first. These have the tables made before, and keep them.
class KeptGlyphs : Fixed {
public:
    KeptGlyphs()
    {
        Form form;
        Site& site = form.addActive();
        asNumber(site.automation());
        LOGFONTW description{};
        const auto font = SendMessageW(site.edit(), WM_GETFONT, 0, 0);
        EXPECT_NE(GetObjectW(reinterpret_cast<HFONT>(font), sizeof description, &description), 0);
        font_ = CreateFontIndirectW(&description);
        for (const HFONT each : {HFONT{}, font_}) {
            boxes_.push_back(
                CreateWindowExW(0, L"EDIT", L"", WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, nullptr, nullptr));
            SendMessageW(boxes_.back(), WM_SETFONT, reinterpret_cast<WPARAM>(each), FALSE);
            SetWindowTextW(boxes_.back(), L"01/02/1234,56");
            EXPECT_GT(SendMessageW(boxes_.back(), EM_POSFROMCHAR, 5, 0), 0);
        }
    }
    ~KeptGlyphs()
    {
        for (const HWND box : boxes_)
            DestroyWindow(box);
        DeleteObject(font_);
    }

private:
    HFONT font_ = nullptr;
    std::vector<HWND> boxes_;
};

// The library can go when a thread that did this has ended.
void expectLetGo(const std::function<void()>& work)
{
    const HMODULE kept = LoadLibraryW(libraryPath().c_str());
    EXPECT_TRUE(runOnThreads({[&] {
        const Apartment apartment;
        work();
    }}));
    EXPECT_EQ(canUnload(), S_OK);
    FreeLibrary(kept);
}

TEST(Unloading, AFieldLetGoOfInItsEventGoesWithTheEvent)
{
    if (!apart())
        return;
    expectLetGo([] {
        auto* const form = new Form; // the thread ends without looking for messages again
        Site& site = form->addActive();
        form->focus(site);
        site.onEvent = [&](DISPID, DISPPARAMS&) {
            if (site.control())
                site.close();
        };
        SendMessageW(site.edit(), WM_CHAR, L'a', 1);
        EXPECT_FALSE(site.control());
        EXPECT_EQ(canUnload(), S_OK);
    });
}

TEST(Unloading, APostedMessageKeepsItUntilItsThreadEnds)
{
    if (!apart())
        return;
    expectLetGo([] {
        auto* const form = new Form;
        Site& site = form->addActive();
        asPlate(site.automation());
        site.automation().set({{u"AutoTAB", true}});
        form->focus(site);
        for (const wchar_t unit : std::wstring_view(L"ABC1234")) // the Tab waits for the next message
            SendMessageW(site.edit(), WM_CHAR, unit, 1);
        site.close();
        EXPECT_EQ(canUnload(), S_FALSE);
    });
}

TEST(Unloading, AnAccessibleObjectKeepsIt)
{
    if (!apart())
        return;
    const HMODULE kept = LoadLibraryW(libraryPath().c_str());
    const Apartment apartment;
    ComPtr<IAccessible> held;
    {
        Form form;
        Site& site = form.addActive();
        asDate(site.automation());
        const HWND popup = openPopup(site);
        ASSERT_NE(popup, nullptr);
        const auto answer = SendMessageW(popup, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT));
        const HMODULE service = LoadLibraryW(L"oleacc.dll");
        const auto take = reinterpret_cast<HRESULT(WINAPI*)(LRESULT, REFIID, WPARAM, void**)>(
            reinterpret_cast<void*>(GetProcAddress(service, "ObjectFromLresult")));
        ASSERT_EQ(take(answer, __uuidof(IAccessible), 0, &held), S_OK);
    }
    EXPECT_EQ(popupOfThread(), nullptr);
    EXPECT_EQ(canUnload(), S_FALSE);
    VARIANT self{};
    self.vt = VT_I4;
    VARIANT role{};
    EXPECT_NE(held->get_accRole(self, &role), E_NOTIMPL); // code of the library, without a form
    held.Reset();
    pump();
    EXPECT_EQ(canUnload(), S_OK);
    FreeLibrary(kept);
}

TEST(Unloading, AThreadThatUsedAFieldEndsAndNothingStaysNorIsLoadedOnTheWayOut)
{
    if (!apart())
        return;
    const auto expectGone = [] {
        for (const wchar_t* const name : {L"Vela.ocx", L"comctl32.dll", L"oleacc.dll"})
            EXPECT_EQ(GetModuleHandleW(name), nullptr) << name;
    };
    FreeLibrary(LoadLibraryW(libraryPath().c_str()));
    expectGone(); // never used
    EXPECT_TRUE(runOnThreads({[] {
        const Apartment apartment;
        useAField(0);
    }})) << "the thread does not end";
    expectGone();
    EXPECT_EQ(liveObjects, 0);
}

TEST(Unloading, ComesAndGoesManyTimes)
{
    if (!apart())
        return;
    const auto cycles = [](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            const Apartment apartment;
            useAField(round);
        }
    };
    const KeptControls controls;
    cycles(20);
    const Usage before;
    const int rounds = asked("VELA_TEST_COUNT", 60);
    cycles(rounds);
    EXPECT_EQ(library(), nullptr);
    const Usage after;
    std::printf("%d rounds: memory %+lld\n", rounds,
                static_cast<long long>(after.memory) - static_cast<long long>(before.memory));
    expectFlat(before, after, static_cast<SIZE_T>(rounds) * perLoading);
}

// Some threads keep the library working while the others release it; now and then all release it.
TEST(Unloading, SixteenApartments)
{
    if (!apart())
        return;
    constexpr int threads = 16;
    const auto all = [](int rounds) {
        std::vector<std::function<void()>> works;
        for (int first = 0; first < threads; ++first)
            works.push_back([first, rounds] {
                for (int round = 0; round < rounds; ++round) {
                    const Apartment apartment;
                    useAField(first + round);
                    CoFreeUnusedLibrariesEx(0, 0);
                    useAField(first + round + 1);
                }
            });
        return runOnThreads(works);
    };
    std::optional<KeptGlyphs> glyphs;
    const Form first; // its window class is registered before the threads ask for it
    const KeptControls controls;
    {
        const Apartment apartment;
        glyphs.emplace();
    }
    ASSERT_TRUE(all(2)) << "a thread does not end";
    const int objects = liveObjects; // the first form's
    const Usage before;
    const int rounds = asked("VELA_TEST_COUNT", 2);
    ASSERT_TRUE(all(rounds)) << "a thread does not end";
    const Usage after;
    EXPECT_EQ(liveObjects, objects);
    EXPECT_EQ(library(), nullptr);
    EXPECT_LE(after.handles, before.handles + 3 * threads); // two of each ended thread stay, however many fields it had
    EXPECT_LE(after.drawing, before.drawing + 4);
    EXPECT_LE(after.memory, before.memory + (1 << 22) + static_cast<SIZE_T>(threads * rounds) * 2 * perLoading);
    std::printf("%d fields; memory %+lld, handles %+d\n", threads * rounds * 2,
                static_cast<long long>(after.memory) - static_cast<long long>(before.memory),
                after.handles - before.handles);
}

} // namespace

} // namespace vela::test
