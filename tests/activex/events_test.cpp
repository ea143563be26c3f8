// Events and property notifications: by-reference arguments, and hosts that do harm inside them.
#include "container.h"

#include "activex/guids.h"

#include <gtest/gtest.h>
#include <olectl.h>

namespace vela::test {

namespace {

constexpr DISPID change = 1;

std::u16string textIn(Site& site)
{
    return site.automation().textOf(u"Text");
}

TEST(Events, KeysArriveInOrderAndTheirCodesMayBeChanged)
{
    Form form;
    Site& site = form.addActive();
    form.focus(site);
    site.log.clear();
    int code = 0;
    int shift = -1;
    site.onEvent = [&](DISPID id, DISPPARAMS& parameters) {
        if (id == DISPID_KEYDOWN && parameters.cArgs == 2) { // the last argument stands first
            code = *parameters.rgvarg[1].piVal;
            shift = *parameters.rgvarg[0].piVal;
        }
        if (id != DISPID_KEYPRESS)
            return;
        ASSERT_EQ(parameters.cArgs, 1u);
        ASSERT_EQ(parameters.rgvarg[0].vt, VT_BYREF | VT_I2);
        SHORT& key = *parameters.rgvarg[0].piVal;
        key = key == 'a' ? 'B' : key == 'x' ? 0 : key;
    };
    form.press('A'); // its character comes from the key
    EXPECT_EQ(textIn(site), u"B");
    EXPECT_EQ(code, 'A');
    EXPECT_EQ(shift, 0);
    for (const char* const event : {"event -602", "event -603", "event 1", "event -604"})
        EXPECT_EQ(site.count(event), 1) << event;
    form.type(u"xc\u00E7");
    EXPECT_EQ(textIn(site), u"Bc\u00E7");
}

TEST(Events, BoundPropertiesAskBeforeAndTellAfter)
{
    Form form;
    Site& site = form.addActive();
    site.log.clear();
    ASSERT_EQ(site.automation().put(u"Text", text(u"um")).result, S_OK);
    EXPECT_EQ(site.count("request 0"), 1);
    EXPECT_EQ(site.count("changed 0"), 1);
    EXPECT_EQ(site.count("request -1"), 0);
    site.refuseEdits = true;
    const Outcome refused = site.automation().put(u"Text", text(u"dois"));
    EXPECT_EQ(refused.error, 387);
    EXPECT_EQ(textIn(site), u"um");
    site.log.clear();
    EXPECT_EQ(site.automation().put(u"NomeCampo", text(u"n")).result, S_OK) << "only bound properties ask";
    EXPECT_EQ(site.automation().put(u"UpTAB", truth(false)).result, S_OK);
    EXPECT_EQ(site.count("request 0"), 0);
    EXPECT_EQ(site.count("changed " + std::to_string(*site.automation().id(u"UpTAB"))), 1);
    EXPECT_EQ(site.count("changed " + std::to_string(*site.automation().id(u"NomeCampo"))), 0) << "not marked";
}

TEST(Events, FrozenControlsAreSilent)
{
    Form form;
    Site& site = form.addActive();
    const auto control = site.as<IOleControl>();
    site.log.clear();
    ASSERT_EQ(control->FreezeEvents(TRUE), S_OK);
    ASSERT_EQ(control->FreezeEvents(TRUE), S_OK);
    ASSERT_EQ(control->FreezeEvents(FALSE), S_OK);
    site.automation().put(u"Text", text(u"a"));
    EXPECT_EQ(site.count("event 1"), 0);
    ASSERT_EQ(control->FreezeEvents(FALSE), S_OK);
    site.automation().put(u"Text", text(u"b"));
    EXPECT_EQ(site.count("event 1"), 1);
}

// An error that a handler raises is trapped by the field and shown in a box, when all have heard; of several the first.
TEST(Events, AHandlersErrorIsShownAndKeepsNoOtherFromHearing)
{
    class Sink final : public Dispatch {
    public:
        int told = 0;
        HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO* info,
                                         UINT*) override
        {
            ++told;
            info->scode = static_cast<SCODE>(0x800A0000u + 4321);
            return DISP_E_EXCEPTION;
        }
    };
    const AnsweredBoxes boxes;
    Form form;
    Site& site = form.addActive();
    const auto second = make<Sink>();
    Connection connection;
    ASSERT_TRUE(connection.open(site.control(), activex::velaEvents, second.Get()));
    site.eventResult = DISP_E_EXCEPTION;
    EXPECT_EQ(site.automation().put(u"Text", text(u"a")).result, S_OK);
    site.eventResult = S_OK;
    EXPECT_EQ(second->told, 1);
    ASSERT_EQ(AnsweredBoxes::texts().size(), 1u);
    EXPECT_NE(AnsweredBoxes::texts()[0].find(u"1234"), std::u16string::npos);
    EXPECT_NE(AnsweredBoxes::texts()[0].find(u"handler"), std::u16string::npos);
}

TEST(Events, SinksThatKnowNoEventAreNoFailure)
{
    Form form;
    Site& site = form.addActive();
    for (const HRESULT answer : {DISP_E_MEMBERNOTFOUND, E_NOTIMPL, E_FAIL}) {
        site.eventResult = answer;
        EXPECT_EQ(site.automation().put(u"Text", number(answer)).result, S_OK);
    }
}

TEST(Events, ASinkMayGoAndAnotherComeInsideAnEvent)
{
    class Sink final : public ComObject<IPropertyNotifySink> {
    public:
        Connection connection;
        int told = 0;
        std::function<void()> inside;
        HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override
        {
            ++told;
            if (inside)
                inside();
            return connection.close();
        }
        HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }
    };
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    const auto sink = make<Sink>(), later = make<Sink>();
    const auto connect = [&](Sink& to) { return to.connection.open(site.control(), IID_IPropertyNotifySink, &to); };
    sink->inside = [&] { EXPECT_TRUE(connect(*later.Get())); };
    ASSERT_TRUE(connect(*sink.Get()));
    site.automation().put(u"UpTAB", truth(false));
    EXPECT_EQ(later->told, 0) << "it was before its time";
    site.automation().put(u"UpTAB", truth(true));
    EXPECT_EQ(sink->told, 1);
    EXPECT_EQ(later->told, 1);
}

struct Harm {
    const char* what;
    void (*act)(Form&, Site&);
};
const Harm harms[] = {
    {"closes it", [](Form&, Site& site) { site.close(); }},
    {"deactivates it", [](Form&, Site& site) { site.as<IOleInPlaceObject>()->InPlaceDeactivate(); }},
    {"takes its site", [](Form&, Site& site) { site.as<IOleObject>()->SetClientSite(nullptr); }},
    {"destroys the form", [](Form& form, Site&) { form.destroyWindow(); }},
    {"destroys the form, then closes it",
     [](Form& form, Site& site) {
         form.destroyWindow();
         site.close();
     }},
    {"puts the text again", [](Form&, Site& site) { site.automation().put(u"Text", text(u"outro")); }},
    {"takes its memory", [](Form&, Site& site) { site.automation().call(u"LimparMemoria"); }},
    {"makes it a mask",
     [](Form&, Site& site) {
         site.automation().put(u"Mask", text(u"__-__"));
         site.automation().put(u"TextType", number(3));
     }},
};

// A person's acts on the form, during which the host does its harm once, in the call that `arm` chooses.
void workUnder(const Harm& harm, const std::function<void(Site&, std::function<void()>)>& arm)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    form.addActive();
    bool done = false;
    arm(site, [&] {
        if (!std::exchange(done, true))
            harm.act(form, site);
    });
    form.focus(site);
    form.press('A');
    form.type(u"b");
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP})
        if (site.control())
            SendMessageW(site.edit(), message, MK_LBUTTON, MAKELPARAM(3, 3));
    form.run();
    if (site.control())
        site.automation().put(u"Text", text(u"c"));
    SetFocus(form.window());
    form.run();
    EXPECT_TRUE(done);
}

// Nothing may crash, and everything must be gone at the end.
TEST(Events, HostsMayDoHarmInsideThem)
{
    for (const Harm& harm : harms) {
        for (const DISPID event :
             {DISPID{DISPID_KEYDOWN}, DISPID{DISPID_KEYPRESS}, change, DISPID{DISPID_KEYUP}, DISPID{DISPID_CLICK}}) {
            SCOPED_TRACE(std::string(harm.what) + " in event " + std::to_string(event));
            workUnder(harm, [event](Site& site, const std::function<void()>& act) {
                site.onEvent = [=](DISPID id, DISPPARAMS&) {
                    if (id == event)
                        act();
                };
            });
        }
        for (const std::string_view call : {"OnFocus 1", "OnFocus 0", "OnUIActivate", "changed 0", "request 0"}) {
            SCOPED_TRACE(std::string(harm.what) + " in " + std::string(call));
            workUnder(harm, [call](Site& site, const std::function<void()>& act) {
                site.onCall = [=](const char* word) {
                    if (word == call)
                        act();
                };
            });
        }
    }
}

} // namespace

} // namespace vela::test
