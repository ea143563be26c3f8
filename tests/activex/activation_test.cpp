// In-place activation, focus and keys.
#include "person.h"

#include <gtest/gtest.h>
#include <olectl.h>

namespace vela::test {

namespace {

TEST(Activation, AsksTheSiteStepByStep)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    ASSERT_GE(site.log.size(), 4u);
    EXPECT_EQ(std::vector<std::string>(site.log.end() - 4, site.log.end()),
              (std::vector<std::string>{"CanInPlaceActivate", "OnInPlaceActivate", "GetWindowContext", "ShowObject"}));
    EXPECT_EQ(GetParent(site.window()), form.window());
    EXPECT_TRUE(IsWindowVisible(site.edit()));
    const RECT place = placeIn(site.window(), form.window());
    EXPECT_EQ(place.left, 10);
    EXPECT_EQ(place.right, 210);

    const RECT elsewhere{20, 50, 120, 80};
    EXPECT_EQ(site.as<IOleInPlaceObject>()->SetObjectRects(&elsewhere, &elsewhere), S_OK);
    EXPECT_EQ(clientOf(site.window()).right, 100);
    SIZEL extent{};
    EXPECT_EQ(site.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_NEAR(static_cast<double>(extent.cx), 2646, 30) << "100 pixels at 96 dots per inch, in HIMETRIC";

    EXPECT_EQ(site.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(site.log.back(), "OnInPlaceDeactivate");
    EXPECT_EQ(site.window(), nullptr);
}

TEST(Activation, FailsWhereTheHostClosesTheFieldInsideIt)
{
    const LeakCheck leaks;
    Form form;
    for (const std::string_view within : {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext"}) {
        Site& site = form.add();
        whenCalled = [&](const char* call) {
            return call == within ? site.as<IOleObject>()->Close(OLECLOSE_NOSAVE) : S_OK;
        };
        EXPECT_TRUE(FAILED(site.activate({10, 10, 110, 34}))) << within;
        whenCalled = nullptr;
        EXPECT_EQ(site.window(), nullptr) << within;
    }
}

TEST(Activation, WhatWasSetBeforeIsOnShowAndStaysAfterwards)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.add();
    const Automation field = site.automation();
    field.set({{u"Text", u"antes"}});
    ASSERT_EQ(site.activate({10, 10, 110, 34}), S_OK);
    EXPECT_EQ(shownBy(site.edit()), u"antes");
    form.focus(site);
    form.type(u"X");
    const std::u16string typed = field.textOf(u"Text");
    ASSERT_EQ(site.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(field.textOf(u"Text"), typed);
    ASSERT_EQ(site.activate({10, 10, 110, 34}), S_OK);
    EXPECT_EQ(shownBy(site.edit()), typed);

    site.log.clear();
    form.destroyWindow();
    EXPECT_EQ(site.count("OnInPlaceDeactivate"), 1) << "the control says that it has no window any more";
    EXPECT_EQ(field.textOf(u"Text"), typed);
    EXPECT_EQ(field.put(u"BorderStyle", number(2)).result, S_OK);
}

TEST(Activation, AClickGivesTheUserInterface)
{
    Form form;
    Site& first = form.addActive();
    Site& second = form.addActive();
    SetForegroundWindow(form.window());
    clickAt(form, first.edit(), {3, 3});
    EXPECT_EQ(first.count("OnUIActivate"), 1);
    EXPECT_EQ(first.count("OnFocus 1"), 1);
    HWND active = nullptr;
    ASSERT_NE(form.active(), nullptr);
    form.active()->GetWindow(&active);
    EXPECT_EQ(active, first.window());

    EXPECT_EQ(second.activateInterface(), S_OK);
    form.run();
    EXPECT_EQ(GetFocus(), second.edit());
    EXPECT_EQ(first.count("OnUIDeactivate"), 1);
    EXPECT_EQ(first.count("OnFocus 0"), 1);
}

TEST(Activation, KeysGoToTheSiteFirst)
{
    Form form;
    Site& site = form.addActive();
    Site& next = form.addActive();
    form.focus(site);
    ASSERT_NE(form.active(), nullptr);
    site.onKey = [](MSG*) { return S_OK; };
    MSG message{GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_EQ(form.active()->TranslateAccelerator(&message), S_OK) << "taken by the host";
    site.onKey = nullptr;
    EXPECT_EQ(form.active()->TranslateAccelerator(&message), S_FALSE) << "left to the container";
    message.wParam = VK_LEFT;
    EXPECT_EQ(form.active()->TranslateAccelerator(&message), S_OK) << "the edit box's own";
    message.wParam = VK_RETURN;
    EXPECT_EQ(form.active()->TranslateAccelerator(&message), S_FALSE) << "the default button's";
    site.automation().put(u"EnterAsTab", truth(true));
    EXPECT_EQ(form.active()->TranslateAccelerator(nullptr), E_POINTER);
    strike(form, VK_RETURN);
    EXPECT_EQ(GetFocus(), next.edit()) << "Enter as Tab";
}

class Named final : public Dispatch {
public:
    explicit Named(bool extender) : extender_(extender) {}
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* id) override
    {
        *id = 7;
        return std::wstring_view(*names) == (extender_ ? L"Container" : L"Name") ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override
    {
        *result = (extender_ ? object(adopt<IDispatch>(new Named(false)).Get()) : text(u"Quadro1")).release();
        return S_OK;
    }

private:
    bool extender_;
};

TEST(Activation, TheContainersNameComesFromTheExtender)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.add();
    EXPECT_EQ(site.automation().textOf(u"nomeContainer"), u"");
    site.extender = adopt<IDispatch>(new Named(true));
    EXPECT_EQ(site.automation().textOf(u"nomeContainer"), u"Quadro1");
    site.extender.Reset();
}

TEST(Activation, ANewFieldHasTheFormsFont)
{
    Form form;
    Site& site = form.add({.initialise = false});
    site.ambients.emplace(DISPID_AMBIENT_FONT, object(font(L"Tahoma", 10, true).Get()));
    ASSERT_EQ(site.as<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_EQ(site.automation().textOf(u"FontBold"), u"True");
    EXPECT_EQ(site.automation().textOf(u"FontSize"), u"10");
}

// A site that offers nothing else still hosts a control; only activation is refused.
TEST(Activation, HostsWithoutTheServices)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.add({.inPlace = false, .controlSite = false, .ambients = false});
    EXPECT_EQ(site.automation().put(u"Text", text(u"a")).result, S_OK);
    EXPECT_TRUE(FAILED(site.activate({0, 0, 10, 10})));
    EXPECT_EQ(site.window(), nullptr);
    Site& keysOnly = form.add({.controlSite = false});
    EXPECT_EQ(keysOnly.activate({0, 0, 100, 24}), S_OK);
    form.focus(keysOnly);
    form.type(u"ok");
    EXPECT_EQ(keysOnly.automation().textOf(u"Text"), u"ok");
}

// A host whose programs stand still says so; the field keeps its text and opens nothing.
TEST(Activation, ADeadInterfaceAnswersNoKeyAndNoClick)
{
    for (const bool fromTheStart : {false, true}) {
        SCOPED_TRACE(fromTheStart);
        Form form;
        Site& site = form.add();
        const auto putDead = [&](bool dead) { site.ambients[DISPID_AMBIENT_UIDEAD].ref() = truth(dead).release(); };
        putDead(fromTheStart);
        ASSERT_EQ(site.activate({10, 10, 210, 34}), S_OK);
        asNumber(site.automation());
        form.focus(site);
        putDead(true);
        if (!fromTheStart)
            site.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_UIDEAD);
        site.log.clear();
        strike(form, '5');
        clickAt(form, buttonOf(site), middleOf(buttonOf(site)));
        settle(form);
        EXPECT_EQ(GetActiveWindow(), form.window());
        EXPECT_EQ(site.automation().textOf(u"Text"), u"");
        for (const int event : {DISPID_CLICK, DISPID_KEYDOWN, DISPID_KEYPRESS, DISPID_KEYUP})
            EXPECT_EQ(site.count("event " + std::to_string(event)), 0) << event;
        EXPECT_EQ(site.count("OnUIActivate"), 0);
        putDead(false);
        site.as<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN);
        strike(form, '5');
        EXPECT_EQ(shownBy(site.edit()), u"5");
    }
}

} // namespace

} // namespace vela::test
