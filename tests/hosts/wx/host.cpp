// A wxWidgets form with wxActiveXContainer: fields left by key and by mouse, and windows destroyed under them.
// The program that runs it does what is asked on the output (see scripts/hosts.sh) and counts what is said.
#include <wx/wx.h>

#include <wx/msw/ole/activex.h>
#include <wx/msw/ole/automtn.h>

#include <cstdio>
#include <functional>
#include <string>

namespace {

void say(const wxString& line)
{
    std::printf("%s\n", static_cast<const char*>(line.utf8_str()));
    std::fflush(stdout);
}

void check(bool held, const wxString& what, const wxString& found = {})
{
    say(held ? "ok " + what : "fail " + what + ": " + found);
}

// The container fills its parent, so each field has a panel of its own.
struct Field {
    wxPanel* panel;
    wxActiveXContainer* container = nullptr;
    wxAutomationObject object;

    Field(wxWindow* form, int y) : panel(new wxPanel(form, wxID_ANY, wxPoint(16, y), wxSize(180, 24)))
    {
        CLSID id;
        IDispatch* made = nullptr;
        if (FAILED(CLSIDFromProgID(L"Vela.Vela", &id)) ||
            FAILED(
                CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(&made)))) {
            say("fail the control cannot be made");
            return;
        }
        container = new wxActiveXContainer(panel, IID_IDispatch, made);
        object.SetDispatchPtr(made); // takes the reference over
    }
    wxString text() const { return object.GetProperty("Text").GetString(); }
    bool focused() const { return ::IsChild(static_cast<HWND>(container->GetHWND()), ::GetFocus()); }
};

wxString focus()
{
    wchar_t name[64] = L"";
    RECT place{};
    ::GetClassNameW(::GetFocus(), name, 64);
    ::GetWindowRect(::GetFocus(), &place);
    return wxString::Format("the focus is at %ls %ld,%ld", name, place.left, place.top);
}

class Host : public wxApp {
public:
    bool OnInit() override
    {
        delete wxLog::SetActiveTarget(new wxLogStderr);
        wxSetAssertHandler(
            [](const wxString& file, int line, const wxString&, const wxString& condition, const wxString& message) {
                say(wxString::Format("note wx asserts %s, %s:%d %s", condition, file.AfterLast('/'), line, message));
            });
        frame_ = new wxFrame(nullptr, wxID_ANY, "wxWidgets", wxPoint(60, 60), wxSize(300, 260));
        form_ = new wxPanel(frame_);
        frame_->Show();
        CallAfter(&Host::run);
        return true;
    }

private:
    void rest(int milliseconds)
    {
        const ULONGLONG until = ::GetTickCount64() + milliseconds;
        do {
            Yield();
            ::Sleep(5);
        } while (::GetTickCount64() < until);
    }

    void ask(const wxString& what)
    {
        say(what);
        const wxString answer = wxString::Format("%s/ack-%d", argv[1], ++asked_);
        const ULONGLONG patience = ::GetTickCount64() + 60000;
        while (::GetFileAttributesW(answer.wc_str()) == INVALID_FILE_ATTRIBUTES && ::GetTickCount64() < patience)
            rest(20);
        rest(400);
    }

    void click(const Field& field)
    {
        const wxPoint at = field.panel->ClientToScreen(wxPoint(40, 10));
        ask(wxString::Format("click %d %d", at.x, at.y));
    }

    bool comes(const std::function<bool()>& wanted)
    {
        for (int tries = 0; tries < 20 && !wanted(); ++tries)
            rest(250);
        return wanted();
    }
    void checkText(const Field& field, const wxString& wanted, const wxString& what)
    {
        check(comes([&] { return field.text() == wanted; }), what, field.text());
    }
    void checkFocus(const Field& field, const wxString& what)
    {
        check(comes([&] { return field.focused(); }), what, focus());
    }

    void typing(Field& name, Field& code)
    {
        name.container->Bind(wxEVT_ACTIVEX, [this](wxActiveXEvent& event) { seen_ << event.GetDispatchId() << ' '; });
        click(name);
        checkFocus(name, "a click focuses the field");
        ask("type maria");
        checkText(name, "maria", "text is typed");
        check(seen_.Contains("-602 ") && seen_.Contains("-603 ") && seen_.Contains("-604 ") &&
                  seen_.Contains("-600 ") && seen_.StartsWith("-600 ") && seen_.Contains(" 1 "),
              "the events arrive", seen_);
        code.container->Bind(wxEVT_ACTIVEX, [this](wxActiveXEvent& event) {
            if (event.GetDispatchId() != -603 || by_ == By::nobody)
                return;
            if (by_ == By::native)
                *event.GetNativeParameters()->pDispParams->rgvarg[0].piVal = 'y';
            else
                event[0] = static_cast<long>('z');
        });
        click(code);
        ask("type x");
        checkText(code, "y", "KeyAscii changed through the native parameters is what is typed");
        by_ = By::event;
        ask("type x");
        say(code.text() == "yz"
                ? "note KeyAscii changed through the event is what is typed"
                : "host a parameter by reference changed through the event itself is lost: found " + code.text());
        by_ = By::nobody;
    }

    void leaving(Field& name, Field& second, Field& code, Field& last)
    {
        click(name);
        ask("key Tab");
        checkFocus(second, "Tab");
        ask("key shift+Tab");
        checkFocus(name, "Shift+Tab");
        name.object.PutProperty("EnterAsTab", true);
        ask("key Return");
        checkFocus(second, "Enter as Tab");
        code.object.PutProperty("MaxLength", 3);
        code.object.PutProperty("AutoTAB", true);
        code.object.PutProperty("Text", "");
        click(code);
        ask("type abc");
        checkFocus(last, "a full field goes on by itself");
        checkText(name, "maria", "and none of these writes into a field");
        ask("picture keys");
    }

    void wrongDate(Field& date, Field& other)
    {
        date.object.PutProperty("FormatoExibData", "__/__/____");
        date.object.PutProperty("DateFormat", "dd/mm/yyyy");
        date.object.PutProperty("TextType", 2);
        date.object.PutProperty("ErrorAlert", true);
        date.object.PutProperty("ErrorFocus", true);
        click(date);
        ask("type 31022024");
        ask("key Tab");
        checkFocus(date, "a wrong date is held by Tab");
        ask("picture alert");
        click(other);
        checkFocus(date, "and by the mouse");
        ask("key Home");
        ask("type 28022024");
        ask("key Tab");
        check(comes([&] { return !date.focused(); }), "a right date lets go", focus());
        checkText(date, "28/02/2024", "and is kept");
    }

    // With the focus inside, after a key's event; the object lives on without its site.
    void destroyed(const wxString& what, const std::function<void(wxFrame*, wxPanel*, wxActiveXContainer*)>& destroy)
    {
        auto* frame = new wxFrame(nullptr, wxID_ANY, what, wxPoint(400, 60), wxSize(260, 160));
        auto* form = new wxPanel(frame);
        frame->Show();
        rest(300);
        Field field(form, 16), beside(form, 48);
        const HWND window = static_cast<HWND>(field.container->GetHWND());
        bool gone = false;
        field.container->Bind(wxEVT_ACTIVEX, [&](wxActiveXEvent& event) {
            if (event.GetDispatchId() != -603 || gone)
                return;
            gone = true;
            CallAfter([=, container = field.container] { destroy(frame, form, container); });
        });
        click(field);
        ask("type a");
        rest(300);
        check(gone && !::IsWindow(window), what, gone ? "its window is still there" : "no KeyPress came");
        check(field.text() == "a", what + ", and its object answers on", field.text());
        if (::IsWindow(static_cast<HWND>(frame_->GetHWND())) && wxTopLevelWindows.Find(frame))
            frame->Destroy();
        rest(300);
    }

    void run()
    {
        rest(1000);
        Field name(form_, 16), second(form_, 48), code(form_, 80), last(form_, 112), date(form_, 144);
        rest(500);
        ask("picture shown");
        typing(name, code);
        leaving(name, second, code, last);
        wrongDate(date, name);
        destroyed("container deleted", [](wxFrame*, wxPanel*, wxActiveXContainer* container) { delete container; });
        destroyed("panel destroyed", [](wxFrame*, wxPanel* panel, wxActiveXContainer*) { panel->Destroy(); });
        destroyed("frame destroyed", [](wxFrame* frame, wxPanel*, wxActiveXContainer*) { frame->Destroy(); });
        destroyed("frame closed", [](wxFrame* frame, wxPanel*, wxActiveXContainer*) { frame->Close(); });
        click(name);
        checkFocus(name, "the other fields live on");
        ask("picture end");
        form_->DestroyChildren();
        rest(300);
        say("end");
        frame_->Destroy();
    }

    wxFrame* frame_ = nullptr;
    wxPanel* form_ = nullptr;
    int asked_ = 0;
    wxString seen_;
    enum class By { native, event, nobody } by_ = By::native;
};

} // namespace

wxIMPLEMENT_APP(Host);
