// Property pages under difficult hosts: bad selections, and a host that lets go of the page while something runs in it.
#include "shown_page.h"

namespace vela::test {

namespace {

constexpr auto lacksMember = static_cast<HRESULT>(0x800A01B6); // error 438

// --- selections

TEST(PageSelections, NoneIsAnErrorAndTheNextOneIsEdited)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const ShownPage shown(activex::fontePage, {});
    EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
    EXPECT_EQ(shown.page->Apply(), E_UNEXPECTED);
    EXPECT_EQ(errorText(), u"Object variable or With block variable not set");
    EXPECT_EQ(shown.page->SetObjects(1, nullptr), E_POINTER);
    EXPECT_EQ(shown.select(control.Get()), S_OK);
    typeOver(shown.find(L"EDIT", u"8"), L'9');
    EXPECT_EQ(shown.page->SetObjects(0, nullptr), S_OK);
    EXPECT_EQ(shown.page->Apply(), E_UNEXPECTED);
    EXPECT_EQ(Automation(control.Get()).textOf(u"FontSize"), u"8") << "no longer selected";
    EXPECT_EQ(shown.select(control.Get()), S_OK);
    EXPECT_EQ(shown.find(L"EDIT", u"9"), nullptr) << "loaded again";
    EXPECT_EQ(shown.page->Apply(), S_OK);
}

// The calendar is an automation object that has none of the properties; the main page names the line it could not read.
TEST(PageSelections, ObjectsWithoutThePropertiesAreAnErrorOnEveryPage)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const ComPtr<IUnknown> calendar = create(L"Vela.cCalendar");
    const std::u16string lacks = u"Object doesn't support this property or method";
    const std::pair<const CLSID&, std::u16string> pages[] = {
        {activex::principalPage, u"Rotina: PropertyPage_SelectionChanged\r\nLinha: 1\r\nErro: 438\r\n" + lacks},
        {activex::geralPage, lacks},
        {activex::errosPage, lacks},
        {activex::fontePage, lacks},
        {activex::calendarioPage, lacks}};
    for (const auto& [id, said] : pages) {
        const AnsweredBoxes boxes;
        const ShownPage shown(id, {calendar.Get()});
        ASSERT_EQ(AnsweredBoxes::texts(), std::vector<std::u16string>{said}) << "said when the page is activated";
        const bool main = id == activex::principalPage; // says it to the person, the others to the host
        EXPECT_EQ(shown.page->Apply(), main ? E_FAIL : lacksMember) << "blanks are not written over what was not read";
        if (!main) {
            EXPECT_EQ(errorText(), lacks);
        }
        EXPECT_EQ(AnsweredBoxes::texts(), (std::vector<std::u16string>{said, said}));
        EXPECT_EQ(shown.select(control.Get()), S_OK);
        EXPECT_EQ(shown.page->Apply(), S_OK) << "the page is usable";
        EXPECT_EQ(shown.select(calendar.Get()), main ? S_OK : lacksMember);
        EXPECT_EQ(AnsweredBoxes::texts().size(), main ? 3u : 2u);
    }
}

TEST(PageSelections, AnObjectWithoutAutomationIsRefusedAndTheFormerOnesStay)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const ComPtr<PageFrame> other = make<PageFrame>();
    const ShownPage shown(activex::geralPage, {control.Get()});
    EXPECT_EQ(shown.select(other.Get()), E_NOINTERFACE);
    EXPECT_EQ(shown.page->Apply(), S_OK);
}

// The page's reference keeps the closed control alive: what is applied is written there without an error.
TEST(PageSelections, AControlClosedWhileItsPageIsOpenStillTakesItsValues)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    const ComPtr<IUnknown> another = create();
    for (const CLSID& id : {activex::geralPage, activex::fontePage}) {
        Site& closed = form.addActive();
        const Automation field = closed.automation();
        field.put(u"FontBold", truth(true));
        const ShownPage shown(id, {closed.control()});
        form.remove(closed);
        EXPECT_EQ(shown.page->Apply(), S_OK);
        EXPECT_EQ(field.textOf(u"FontBold"), u"True");
        EXPECT_EQ(shown.select(another.Get()), S_OK);
        EXPECT_EQ(shown.page->Apply(), S_OK);
    }
    form.remove(site);
}

// --- one property

TEST(Pages, AreOpenedOnOneProperty)
{
    struct Row {
        const CLSID& page;
        const char16_t* property;
        const char16_t* text; // of its box; null: it is set by a button
    };
    const Row rows[] = {
        {activex::fontePage, u"FontSize", u"14"},
        {activex::principalPage, u"Mask", u"__-__"},      // on the third tab
        {activex::principalPage, u"TextoLivre", nullptr}, // on the fourth
        {activex::geralPage, u"IF_IsEmpty", u"vazio"},    // in the group that is hidden at first
        {activex::calendarioPage, u"Calendar_Selected", nullptr},
    };
    const ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    field.set({{u"FontSize", 14}, {u"Mask", u"__-__"}, {u"IF_IsEmpty", u"vazio"}});
    for (const Row& row : rows) {
        SCOPED_TRACE(Bstr(row.property).get());
        const ShownPage shown(row.page, {control.Get()});
        EXPECT_EQ(shown.page->EditProperty(*field.id(row.property)), S_OK);
        const HWND focus = GetFocus();
        EXPECT_TRUE(IsChild(shown.window(), focus));
        EXPECT_TRUE(IsWindowVisible(focus));
        EXPECT_TRUE(isOf(row.text ? L"Edit" : L"Button", focus));
        if (row.text) {
            EXPECT_EQ(shownBy(focus), row.text);
        }
        EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
    }
    ComPtr<IPropertyPage2> idle;
    ASSERT_EQ(CoCreateInstance(activex::fontePage, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&idle)), S_OK);
    EXPECT_EQ(idle->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_EQ(idle->Apply(), E_UNEXPECTED);
    EXPECT_EQ(idle->IsPageDirty(), S_FALSE);
    EXPECT_EQ(idle->Deactivate(), S_OK);
    const ShownPage shown(activex::fontePage, {control.Get()});
    EXPECT_EQ(shown.page->EditProperty(*field.id(u"Mask")), E_INVALIDARG) << "another page's";
    EXPECT_EQ(shown.page->EditProperty(4711), E_INVALIDARG);
}

// --- failures of what a person does, who is told

constexpr const wchar_t* profiles = L"Software\\VB and VBA Program Settings\\Vela - By Aldren\\Profiles";
constexpr const wchar_t* profile = L" perfil dos testes"; // the blank makes it the first, which is chosen

TEST(PageActs, AStoreThatFailsIsSaidAndThePageStaysUsable)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, profiles, profile, REG_SZ, L"abc", 8), ERROR_SUCCESS);
    const ShownPage shown(activex::principalPage, {control.Get()});
    EXPECT_EQ(shown.page->EditProperty(*Automation(control.Get()).id(u"TextoLivre")), S_OK); // its tab to the front
    ASSERT_EQ(RegDeleteKeyValueW(HKEY_CURRENT_USER, profiles, profile), ERROR_SUCCESS);
    const AnsweredBoxes boxes;
    const HWND remove = shown.find(L"BUTTON", u"&Excluir Profile");
    ASSERT_NE(remove, nullptr);
    SendMessageW(remove, BM_CLICK, 0, 0);
    ASSERT_EQ(AnsweredBoxes::texts().size(), 1u);
    EXPECT_EQ(AnsweredBoxes::texts().front(), u"Invalid procedure call or argument");
    EXPECT_EQ(shown.page->Apply(), S_OK);
}

// --- hosts that let go of the page while something runs in it

TEST(PageHosts, LetGoInsideTheChangedFlagAndWhileABoxStands)
{
    const ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    field.set({{u"TextType", 2}, {u"DateFormat", u"dd/xx"}});
    {
        const LeakCheck leaks;
        ShownPage shown(activex::geralPage, {control.Get()});
        shown.frame->onStatus = [&] { shown.leave(); };
        typeOver(shown.find(L"EDIT", u""), L'#');
        EXPECT_FALSE(shown.page) << "the host was asked";
    }
    for (const bool all : {false, true}) { // the page and its site, or all of it and the frame's window
        const LeakCheck leaks;
        ShownPage shown(activex::geralPage, {control.Get()});
        const AnsweredBoxes boxes([&] {
            if (all) {
                shown.leave();
                DestroyWindow(shown.window());
            } else {
                shown.page->Deactivate();
                shown.page->SetPageSite(nullptr);
            }
        });
        SendMessageW(shown.find(L"BUTTON", u"?"), BM_CLICK, 0, 0);
        EXPECT_EQ(AnsweredBoxes::texts().size(), 1u);
    }
    const LeakCheck leaks;
    ShownPage shown(activex::principalPage, {control.Get()});
    const AnsweredBoxes boxes([&] { shown.leave(); });
    IPropertyPage2* const page = shown.page.Get();
    EXPECT_EQ(page->Apply(), E_FAIL);
    ASSERT_EQ(AnsweredBoxes::texts().size(), 2u);
    EXPECT_EQ(AnsweredBoxes::texts().back(), u"Formato da Data inválido");
    EXPECT_EQ(field.textOf(u"DateFormat"), u"dd/xx");
}

// Of the ten properties the host hears of the first change only, and has let go of everything by then.
TEST(PageHosts, LetGoInsideApplyWhichIsCarriedOutWhole)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    const Automation field = site.automation();
    field.put(u"Delimitador04", text(u"quatro"));
    ShownPage shown(activex::geralPage, {site.control()});
    typeOver(shown.find(L"EDIT", u"quatro"), L'4');
    SendMessageW(shown.find(L"BUTTON", u"Quando Pressionar &ENTER enviar um TAB"), BM_CLICK, 0, 0);
    site.onCall = [&](const char* word) {
        if (std::string_view(word).starts_with("changed"))
            shown.leave();
    };
    const DWORD before = shown.frame->status;
    IPropertyPage2* const page = shown.page.Get();
    EXPECT_EQ(page->Apply(), S_OK);
    site.onCall = nullptr;
    EXPECT_FALSE(shown.page);
    EXPECT_EQ(field.textOf(u"EnterAsTab"), u"True");
    EXPECT_EQ(field.textOf(u"Delimitador04"), u"4");
    EXPECT_EQ(shown.frame->status, before) << "a frame that has gone hears nothing";
}

TEST(PageHosts, SelectAnotherControlInsideAnAct)
{
    const LeakCheck leaks;
    Form form;
    Site& first = form.addActive();
    const ComPtr<IUnknown> second = create();
    Automation(second.Get()).put(u"Delimitador", text(u"outro"));
    const ShownPage shown(activex::geralPage, {first.control()});
    typeOver(shown.find(L"EDIT", u""), L'#');
    bool selected = false;
    first.onCall = [&](const char*) {
        if (std::exchange(selected, true))
            return;
        EXPECT_EQ(shown.select(second.Get()), S_OK);
        EXPECT_EQ(shown.find(L"EDIT", u"outro"), nullptr) << "not amid the writing";
    };
    EXPECT_EQ(shown.page->Apply(), S_OK);
    first.onCall = nullptr;
    EXPECT_TRUE(selected);
    EXPECT_EQ(first.automation().textOf(u"Delimitador"), u"#");
    EXPECT_EQ(Automation(second.Get()).textOf(u"Delimitador"), u"outro");
    EXPECT_NE(shown.find(L"EDIT", u"outro"), nullptr) << "loaded when the writing had ended";
    EXPECT_EQ(shown.page->IsPageDirty(), S_FALSE);
}

} // namespace

} // namespace vela::test
