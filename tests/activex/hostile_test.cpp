// Hosts that mean harm: one that destroys the control inside every call it gets, and one that does anything at random.
#include "container.h"
#include "host_objects.h"

#include "control/property_table.h"
#include "tests/windows/usage.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <cstdio>
#include <optional>
#include <random>

namespace vela::test {

namespace {

// Calls the control without holding a reference: the host has the only one, so that its release inside any call
// destroys the control.
template <class Interface>
Interface* bare(const Site& site)
{
    return site.as<Interface>().Get();
}

// What a host holds of the control, and its random choices.
class Hand {
public:
    explicit Hand(unsigned seed) : random_(seed) {}

    Form form;
    Site* site = nullptr;
    const ComPtr<Bag> bag = make<Bag>();
    const ComPtr<Storage> storage = make<Storage>();
    const ComPtr<AdviseSink> sink = make<AdviseSink>();

    void throwFrom(unsigned seed) { random_.seed(seed); }
    [[nodiscard]] std::size_t lot(std::size_t below) { return random_() % below; }
    [[nodiscard]] bool has() const { return site->control() != nullptr; }
    [[nodiscard]] Stream* stream() // from its start
    {
        storage->stream->position = 0;
        return storage->stream.Get();
    }

    bool rare = false; // is what ends all

private:
    std::mt19937 random_;
};

Variant invoke(Hand& hand, DISPID id, WORD flags, VARIANT* value = nullptr)
{
    DISPID name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{value, value ? &name : nullptr, value ? 1u : 0u, value ? 1u : 0u};
    Variant result;
    const HRESULT answer =
        bare<IDispatch>(*hand.site)
            ->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result.put(), nullptr, nullptr);
    return answer == S_OK ? std::move(result) : Variant();
}

DISPID idOf(std::u16string_view name)
{
    return control::findProperty(name)->dispid;
}

void put(Hand& hand, std::u16string_view name, Variant value)
{
    invoke(hand, idOf(name), DISPATCH_PROPERTYPUT, &value.ref());
}

Variant anyValue(Hand& hand)
{
    static constexpr std::u16string_view texts[] = {u"", u"0", u"12,5", u"31/12/2024", u"__/__/____", u"abc", u"-7"};
    switch (hand.lot(6)) {
    case 0: return number(static_cast<int>(hand.lot(7)) - 1);
    case 1: return truth(hand.lot(2) == 0);
    case 2: return given(VT_NULL);
    case 3: return Variant();
    default: return text(texts[hand.lot(std::size(texts))]);
    }
}

void verb(Hand& hand, LONG verb)
{
    const RECT place{10, 10, 150, 34};
    bare<IOleObject>(*hand.site)->DoVerb(verb, nullptr, hand.site, 0, hand.form.window(), &place);
}

void draw(Hand& hand)
{
    const HDC dc = CreateCompatibleDC(nullptr);
    const RECTL bounds{0, 0, 100, 24};
    const LONG part = static_cast<LONG>(hand.lot(3)) - 1;
    drawn(*bare<IViewObject>(*hand.site), dc, &bounds, part);
    DeleteDC(dc);
}

void data(Hand& hand)
{
    static constexpr CLIPFORMAT kinds[] = {CF_UNICODETEXT, CF_ENHMETAFILE, CF_METAFILEPICT};
    FORMATETC format{kinds[hand.lot(std::size(kinds))], nullptr, DVASPECT_CONTENT, -1,
                     TYMED_HGLOBAL | TYMED_ENHMF | TYMED_MFPICT};
    STGMEDIUM medium{};
    if (bare<IDataObject>(*hand.site)->GetData(&format, &medium) == S_OK)
        ReleaseStgMedium(&medium);
}

void advise(Hand& hand)
{
    FORMATETC format{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    DWORD connection = 0;
    bare<IViewObject>(*hand.site)->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, hand.sink.Get());
    if (hand.has())
        bare<IDataObject>(*hand.site)->DAdvise(&format, ADVF_PRIMEFIRST, hand.sink.Get(), &connection);
    if (hand.has())
        bare<IOleObject>(*hand.site)->Advise(hand.sink.Get(), &connection);
}

void listen(Hand& hand)
{
    ComPtr<IConnectionPoint> point; // a reference of the control; it goes before the connection
    bare<IConnectionPointContainer>(*hand.site)->FindConnectionPoint(IID_IPropertyNotifySink, &point);
    IConnectionPoint* const bareOne = point.Get();
    point.Reset();
    DWORD connection = 0;
    bareOne->Advise(static_cast<IPropertyNotifySink*>(hand.site), &connection);
    if (hand.has() && connection != 0)
        bareOne->Unadvise(connection);
}

void quickActivate(Hand& hand)
{
    QACONTAINER container{};
    container.cbSize = sizeof container;
    container.pClientSite = hand.site;
    container.pPropertyNotifySink = hand.site;
    QACONTROL control{};
    control.cbSize = sizeof control;
    bare<IQuickActivate>(*hand.site)->QuickActivate(&container, &control);
}

void siteAnew(Hand& hand)
{
    bare<IOleObject>(*hand.site)->SetClientSite(nullptr);
    if (hand.has())
        bare<IOleObject>(*hand.site)->SetClientSite(hand.site);
}

void storeAndTell(Hand& hand)
{
    bare<IPersistStorage>(*hand.site)->Save(hand.storage.Get(), FALSE);
    if (hand.has())
        bare<IPersistStorage>(*hand.site)->SaveCompleted(nullptr);
}

void resize(Hand& hand)
{
    SIZEL extent{static_cast<LONG>(1000 + hand.lot(3000)), 635};
    bare<IOleObject>(*hand.site)->SetExtent(DVASPECT_CONTENT, &extent);
}

void move(Hand& hand)
{
    const auto left = static_cast<LONG>(hand.lot(60));
    const RECT place{left, 20, left + 120, 44};
    const RECT clip{0, 0, 100, 100};
    bare<IOleInPlaceObject>(*hand.site)->SetObjectRects(&place, &clip);
}

void pressKeys(Hand& hand)
{
    static constexpr WPARAM keys[] = {'A', VK_LEFT, VK_RETURN, VK_TAB, VK_F2, VK_ESCAPE, VK_BACK, VK_DOWN};
    hand.form.press(keys[hand.lot(std::size(keys))]);
    hand.form.type(u"1,b");
}

// The edit box is asked for its handle, as by a host that knows nothing else.
HWND editOf(Hand& hand)
{
    const Variant handle = invoke(hand, idOf(u"hwnd"), DISPATCH_PROPERTYGET);
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle.get().vt == VT_EMPTY ? 0 : handle.get().lVal));
}

void focus(Hand& hand)
{
    if (const HWND edit = editOf(hand))
        SetFocus(edit);
    hand.form.run();
}

void click(Hand& hand)
{
    if (const HWND edit = editOf(hand))
        for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
            SendMessageW(edit, message, MK_LBUTTON, MAKELPARAM(3, 3));
    hand.form.run();
}

void leave(Hand& hand)
{
    SetFocus(hand.form.window());
    hand.form.run();
}

struct Act {
    const char* what;
    void (*act)(Hand&);
};
const Act acts[] = {
    {"InitNew", [](Hand& hand) { bare<IPersistStreamInit>(*hand.site)->InitNew(); }},
    {"load from a bag", [](Hand& hand) { bare<IPersistPropertyBag>(*hand.site)->Load(hand.bag.Get(), nullptr); }},
    {"save into a bag",
     [](Hand& hand) { bare<IPersistPropertyBag>(*hand.site)->Save(hand.bag.Get(), TRUE, hand.lot(2) == 0); }},
    {"save into a stream", [](Hand& hand) { bare<IPersistStreamInit>(*hand.site)->Save(hand.stream(), TRUE); }},
    {"load from a stream", [](Hand& hand) { bare<IPersistStreamInit>(*hand.site)->Load(hand.stream()); }},
    {"save into a storage", storeAndTell},
    {"load from a storage", [](Hand& hand) { bare<IPersistStorage>(*hand.site)->Load(hand.storage.Get()); }},
    {"site anew", siteAnew},
    {"quick activation", quickActivate},
    {"moniker",
     [](Hand& hand) {
         ComPtr<IMoniker> moniker;
         bare<IOleObject>(*hand.site)->GetMoniker(1, 1, &moniker);
     }},
    {"advise", advise},
    {"listen", listen},
    {"activate", [](Hand& hand) { verb(hand, OLEIVERB_INPLACEACTIVATE); }},
    {"activate with the interface", [](Hand& hand) { verb(hand, OLEIVERB_UIACTIVATE); }},
    {"hide", [](Hand& hand) { verb(hand, OLEIVERB_HIDE); }},
    {"show", [](Hand& hand) { verb(hand, OLEIVERB_SHOW); }},
    {"properties", [](Hand& hand) { verb(hand, OLEIVERB_PROPERTIES); }},
    {"extent", resize},
    {"rectangles", move},
    {"draw", draw},
    {"data", data},
    {"focus", focus},
    {"keys", pressKeys},
    {"click", click},
    {"leave", leave},
    {"mnemonic", [](Hand& hand) { bare<IOleControl>(*hand.site)->OnMnemonic(nullptr); }},
    {"ambient change", [](Hand& hand) { bare<IOleControl>(*hand.site)->OnAmbientPropertyChange(DISPID_UNKNOWN); }},
    {"control information",
     [](Hand& hand) {
         CONTROLINFO info{};
         info.cb = sizeof info;
         bare<IOleControl>(*hand.site)->GetControlInfo(&info);
     }},
    {"key to the active object",
     [](Hand& hand) {
         MSG message{GetFocus(), WM_KEYDOWN, VK_LEFT, 1, 0, {}};
         bare<IOleInPlaceActiveObject>(*hand.site)->TranslateAccelerator(&message);
     }},
    {"put the text", [](Hand& hand) { put(hand, u"Text", text(hand.lot(2) == 0 ? u"12" : u"abc")); }},
    {"put the kind", [](Hand& hand) { put(hand, u"TextType", number(static_cast<int>(hand.lot(4)))); }},
    {"put EnterAsTab", [](Hand& hand) { put(hand, u"EnterAsTab", truth(hand.lot(2) == 0)); }},
    {"put MultLine", [](Hand& hand) { put(hand, u"MultLine", truth(hand.lot(2) == 0)); }},
    {"put anything",
     [](Hand& hand) {
         const auto properties = control::properties();
         put(hand, properties[hand.lot(properties.size())].name, anyValue(hand));
     }},
    {"get anything",
     [](Hand& hand) {
         const auto properties = control::properties();
         invoke(hand, properties[hand.lot(properties.size())].dispid, DISPATCH_PROPERTYGET);
     }},
    {"call anything", // but the About box, which waits for a person
     [](Hand& hand) {
         const control::Method& method = control::methods()[hand.lot(control::methods().size())];
         if (method.name != u"About")
             invoke(hand, method.dispid, DISPATCH_METHOD);
     }},
    {"put FontBold", [](Hand& hand) { put(hand, u"FontBold", truth(hand.lot(2) == 0)); }},
    {"get the font", [](Hand& hand) { invoke(hand, idOf(u"Font"), DISPATCH_PROPERTYGET); }},
    {"container's name", [](Hand& hand) { invoke(hand, idOf(u"nomeContainer"), DISPATCH_PROPERTYGET); }},
    {"interface away", [](Hand& hand) { bare<IOleInPlaceObject>(*hand.site)->UIDeactivate(); }},
    {"deactivate", [](Hand& hand) { bare<IOleInPlaceObject>(*hand.site)->InPlaceDeactivate(); }},
    {"close", [](Hand& hand) { bare<IOleObject>(*hand.site)->Close(OLECLOSE_SAVEIFDIRTY); }},
    {"the form's window goes",
     [](Hand& hand) {
         if (!hand.rare || hand.lot(20) == 0)
             hand.form.destroyWindow();
     }},
    {"release", [](Hand& hand) { hand.site->abandon(); }},
};

// New, with a site; with a window, the interface and sinks when it is to be `active`.
void prepare(Hand& hand, bool active)
{
    hand.site = &hand.form.add({.initialise = false});
    if (!active)
        return;
    verb(hand, OLEIVERB_UIACTIVATE);
    advise(hand);
    put(hand, u"Text", text(u"x"));
    bare<IPersistStreamInit>(*hand.site)->Save(hand.stream(), FALSE);
}

// Prints what was going on when the process ends in it; without the system's debugger.
std::string doing;

LONG WINAPI tellCrash(EXCEPTION_POINTERS* crash)
{
    std::printf("crash %08lx at %p: %s\n", crash->ExceptionRecord->ExceptionCode,
                crash->ExceptionRecord->ExceptionAddress, doing.c_str());
    std::fflush(stdout);
    return EXCEPTION_EXECUTE_HANDLER;
}

class Hostile : public testing::Test {
protected:
    void SetUp() override { before_ = SetUnhandledExceptionFilter(tellCrash); }
    void TearDown() override { SetUnhandledExceptionFilter(before_); }

private:
    LPTOP_LEVEL_EXCEPTION_FILTER before_ = nullptr;
};

// One act, with the control destroyed inside the call of this number; the call's name, "" when there are fewer.
std::string destroyedInside(Hand& hand, const Act& act, int number, bool active)
{
    prepare(hand, active);
    std::string where;
    int calls = 0;
    whenCalled = [&](const char* call) {
        if (++calls == number) {
            where = call;
            doing = std::string(act.what) + (active ? ", active: " : ", fresh: ") + where;
            hand.site->close();
        }
        return S_OK;
    };
    act.act(hand);
    whenCalled = nullptr;
    hand.form.remove(*hand.site);
    return where;
}

TEST_F(Hostile, EveryCallMayDestroyTheControl)
{
    const AnsweredBoxes boxes;
    int tried = 0;
    for (const bool active : {false, true})
        for (const Act& act : acts) {
            SCOPED_TRACE(std::string(act.what) + (active ? ", active" : ", fresh"));
            const LeakCheck leaks;
            std::optional<Hand> hand;
            std::string where = "?";
            for (int number = 1; !where.empty(); ++number, ++tried) {
                if (!hand || !hand->form.window())
                    hand.emplace(1);
                hand->throwFrom(1);
                const int objects = liveObjects;
                where = destroyedInside(*hand, act, number, active);
                EXPECT_LE(liveObjects, objects) << "held after " << where << ", call " << number;
            }
        }
    std::printf("%d calls\n", tried);
}

// Cancels the system's property frame, which shows where a site offers none of its own; a box is answered before that.
void CALLBACK cancelFrames(HWND, UINT, UINT_PTR, DWORD)
{
    eachWindow([](HWND window) {
        if (IsWindowVisible(window) && isOf(L"#32770", window))
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
}

// Does anything in any order; its sites fail and call back at random.
class Caller : Fixed {
public:
    explicit Caller(unsigned seed) : hand_(seed), who_("seed " + std::to_string(seed) + ", ")
    {
        hand_.rare = true;
        hand_.site = &hand_.form.add({.initialise = false});
        hand_.form.add({}, L"Vela.cCalendar").activate({10, 60, 200, 230});
        whenCalled = [this](const char* call) { return inside(call); };
    }
    ~Caller() { whenCalled = nullptr; }

    void step()
    {
        if (!hand_.has())
            hand_.site->hold(create(hand_.lot(6) == 0 ? L"Vela.cCalendar" : L"Vela.Vela"));
        if (!hand_.has())
            return; // released while it was given its site
        const Act& act = acts[hand_.lot(std::size(acts))];
        doing = who_ + act.what;
        act.act(hand_);
    }

private:
    HRESULT inside(const char* call)
    {
        static constexpr HRESULT failures[] = {E_FAIL, E_NOTIMPL, E_OUTOFMEMORY, E_UNEXPECTED};
        if (inside_ == 2 || std::string_view(call) == "ShowPropertyFrame") // the system's frame would wait for a person
            return S_OK;
        switch (hand_.lot(40)) {
        case 0:
        case 1: return failures[hand_.lot(std::size(failures))];
        case 2:
        case 3:
            ++inside_;
            step();
            --inside_;
            return S_OK;
        case 4: hand_.lot(2) == 0 ? hand_.site->close() : hand_.site->abandon(); return S_OK;
        default: return S_OK;
        }
    }

    Hand hand_;
    std::string who_;
    int inside_ = 0;
};

// The first sixty in 64 bit, the next in 32. Before a release: VELA_TEST_COUNT=2000 of them; VELA_TEST_SEED=17 begins
// with that one.
TEST_F(Hostile, AnythingInAnyOrder)
{
    const AnsweredBoxes boxes;
    const UINT_PTR timer = SetTimer(nullptr, 0, 50, cancelFrames);
    const AtEnd end([=] { KillTimer(nullptr, timer); });
    const auto seeds = static_cast<unsigned>(asked("VELA_TEST_COUNT", 60));
    const auto first = static_cast<unsigned>(asked("VELA_TEST_SEED", sizeof(void*) == 8 ? 1 : 61));
    { // what the system keeps for a thread is made once
        Caller warm(0);
        warm.step();
    }
    for (unsigned seed = first; seed < first + seeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const int windows = Usage().windows;
        const LeakCheck leaks;
        {
            Caller caller(seed);
            for (int i = 0; i < 120; ++i)
                caller.step();
        }
        pump();
        EXPECT_EQ(Usage().windows, windows);
        if (HasFailure())
            break;
        if (seeds > 100 && seed % 100 == 0) {
            std::printf("seed %u\n", seed);
            std::fflush(stdout);
        }
    }
}

} // namespace

} // namespace vela::test
