// Long work in one process: windows, drawing objects, handles, memory and references are flat at the end.
#include "shown_page.h"

#include "tests/windows/usage.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <algorithm>
#include <cstdio>
#include <random>

namespace vela::test {

namespace {

int rounds()
{
    return asked("VELA_TEST_COUNT", 300); // 10000 takes minutes
}

// Once to fill the caches, then so often that sixty lost bytes a round are seen.
void expectFlatOver(int count, const std::function<void(int)>& live)
{
    const LeakCheck leaks;
    for (int round = 0; round < 50; ++round)
        live(round);
    const Usage before;
    for (int round = 0; round < count; ++round)
        live(round);
    expectFlat(before, Usage(), 16 * 1024);
}

TEST(Endurance, ManyControlsLeaveNothingBehind)
{
    Form form;
    expectFlatOver(rounds(), [&](int round) {
        Site& site = form.addActive();
        const Automation field = site.automation();
        field.set({{u"QtdCasasDec", 2}, {u"TextType", round % 2}});
        field.set({{u"BorderStyle", round % 6}}); // last: the XP style answers a type with a box
        form.focus(site);
        form.type(u"12,5");
        field.get(u"Value");
        field.get(u"Font");
        form.remove(site);
    });
}

// A form that a person works on for a while with everything it offers, the next step drawn by lot.
class Work {
public:
    explicit Work(unsigned seed) : random_(seed)
    {
        for (const auto kind : {asName, asPrice, asAmount, asCheckedDate, asDate, asLeavingPlate}) {
            Site& site = form_.addActive();
            kind(site.automation());
            sites_.push_back(&site);
        }
        form_.focus(anySite());
    }

    void step()
    {
        static constexpr void (Work::*steps[])() = {&Work::type,     &Work::type,  &Work::type,  &Work::tab,
                                                    &Work::tab,      &Work::click, &Work::hover, &Work::popUp,
                                                    &Work::edit,     &Work::dress, &Work::page,  &Work::away,
                                                    &Work::saveLoad, &Work::value, &Work::renew};
        (this->*steps[lot(std::size(steps))])();
    }
    [[nodiscard]] bool answers()
    {
        return std::ranges::all_of(sites_,
                                   [](const Site* site) { return SUCCEEDED(site->automation().get(u"Text").result); });
    }

private:
    static void asName(const Automation& field)
    {
        field.set({{u"tipoLetra", 3}, {u"ToolTipGotFocus", u"O nome todo"}});
    }
    static void asPrice(const Automation& field)
    {
        asNumber(field);
        field.set({{u"SimbolAgrupMilhar", 1}, {u"SimboloMonetario", u"R$ "}, {u"ErrorAlert", true}});
    }
    static void asCheckedDate(const Automation& field)
    {
        asDate(field);
        field.set({{u"ErrorAlert", true}, {u"ErrorTextClear", true}});
    }
    static void asLeavingPlate(const Automation& field)
    {
        asPlate(field);
        field.set({{u"AutoTAB", true}});
    }

    std::size_t lot(std::size_t below) { return random_() % below; }
    Site& anySite() { return *sites_[lot(sites_.size())]; }

    void type()
    {
        static constexpr std::u16string_view keys = u"0123456789,.-abcXYZ \u00E7\b\b";
        std::u16string typed;
        for (std::size_t i = 1 + lot(10); i > 0; --i)
            typed += keys[lot(keys.size())];
        form_.type(typed);
    }
    void tab() { strike(form_, VK_TAB, lot(3) == 0 ? VK_SHIFT : 0); }
    void click()
    {
        Site& site = anySite();
        clickAt(form_, site.edit(), middleOf(site.edit()));
    }
    void hover()
    {
        pointAt(anySite().edit(), {5, 5});
        settle(form_);
        pointAway();
    }
    // A day is picked or a sum done, or it is left by Esc, another window or the end of the field.
    void popUp()
    {
        Site& site = anySite();
        const HWND button = buttonOf(site);
        if (!button)
            return;
        clickAt(form_, button, middleOf(button));
        const HWND popup = GetActiveWindow();
        if (!popup || popup == form_.window())
            return;
        if (lot(4) == 0)
            away();
        else if (lot(4) == 0)
            renewAt(static_cast<std::size_t>(std::find(sites_.begin(), sites_.end(), &site) - sites_.begin()));
        else if (lot(4) == 0)
            strike(form_, VK_ESCAPE);
        else {
            const RECT client = clientOf(popup);
            clickAt(form_, popup, {client.right * static_cast<LONG>(1 + lot(6)) / 8, client.bottom * 2 / 3});
            form_.type(u"7+5=");
            strike(form_, lot(2) == 0 ? VK_F2 : VK_RETURN);
        }
        SetActiveWindow(form_.window());
        form_.focus(anySite());
    }
    void edit()
    {
        static constexpr std::u16string_view commands[] = {u"\x03", u"\x16", u"\x18", u"\x19", u"\x1A", u"\x1A"};
        SendMessageW(GetFocus(), EM_SETSEL, lot(4), static_cast<LPARAM>(lot(9)));
        form_.type(commands[lot(std::size(commands))]);
    }
    void dress()
    {
        static constexpr const char16_t* looks[] = {u"Appearance", u"BorderStyle", u"Alignment",        u"FontBold",
                                                    u"FontSize",   u"Enabled",     u"BackColorGotFocus"};
        const Automation field = anySite().automation();
        field.put(looks[lot(std::size(looks))], number(static_cast<int>(lot(5)))); // what it cannot be is refused
        settle(form_);
        field.put(u"Enabled", truth(true));
    }
    void page()
    {
        static constexpr const CLSID* pages[] = {&activex::principalPage, &activex::geralPage, &activex::errosPage,
                                                 &activex::fontePage, &activex::calendarioPage};
        const ShownPage shown(*pages[lot(std::size(pages))], {anySite().control()});
        if (const HWND box = shown.find(L"EDIT", u""))
            typeOver(box, L'1');
        shown.page->Apply();
    }
    void away()
    {
        const OtherWindow other;
        SetForegroundWindow(other.window());
        settle(form_);
        form_.focus(anySite());
    }
    void saveLoad()
    {
        Site& from = anySite();
        ComPtr<IStream> stream;
        CreateStreamOnHGlobal(nullptr, TRUE, &stream);
        from.as<IPersistStreamInit>()->Save(stream.Get(), TRUE);
        stream->Seek({}, STREAM_SEEK_SET, nullptr);
        from.as<IPersistStreamInit>()->Load(stream.Get());
    }
    void value()
    {
        const Automation field = anySite().automation();
        field.get(u"Value");
        field.put(u"Text", text(u"12"));
        field.get(u"Font");
    }
    void renew() { renewAt(lot(sites_.size())); }
    void renewAt(std::size_t index)
    {
        form_.remove(*sites_[index]);
        Site& site = form_.addActive();
        (lot(2) == 0 ? asCheckedDate : asPrice)(site.automation());
        sites_[index] = &site;
        form_.focus(site);
    }

    std::mt19937 random_;
    Form form_;
    std::vector<Site*> sites_;
};

// Twenty seconds; ten in 32 bit. VELA_TEST_SECONDS=3600 for an hour.
TEST(Endurance, AFormWorkedOnForLong)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    unsigned seed = 1;
    int steps = 0;
    const auto workFor = [&](DWORD milliseconds) {
        const DWORD start = GetTickCount();
        while (GetTickCount() - start < milliseconds) {
            SCOPED_TRACE("form " + std::to_string(seed));
            Work work(seed++);
            for (int i = 0; i < 40; ++i, ++steps)
                work.step();
            ASSERT_TRUE(work.answers());
        }
    };
    const auto whole = static_cast<DWORD>(asked("VELA_TEST_SECONDS", sizeof(void*) == 8 ? 20 : 10)) * 1000;
    workFor(whole / 4); // caches fill
    const Usage before;
    workFor(whole - whole / 4);
    const Usage after;
    expectFlat(before, after, 1 << 20);
    std::printf("%d steps on %u forms; memory %+lld bytes\n", steps, seed - 1,
                static_cast<long long>(after.memory) - static_cast<long long>(before.memory));
}

} // namespace

} // namespace vela::test
