// The demonstration form's window, its fields and its message loop.
#include "apps/demo/demo_form.h"

#include "apps/demo/property_frame.h"
#include "engine/text/utf8.h"
#include "platform/win32/text.h"

#include <cstdio>
#include <utility>

namespace vela::demo {

namespace {

constexpr wchar_t windowClassName[] = L"VelaDemonstration";
constexpr int clientWidth = 920, clientHeight = 600;
constexpr int margin = 16, columnWidth = 288, labelHeight = 15, fieldHeight = 23, lineHeight = 14, rowGap = 10;
constexpr int fieldWidth = 150, valueGap = 6; // the rest of the column tells the field's Value
constexpr int valuesTop = 470;

enum CommandId { valuesCommand = 100, propertiesCommand, closeCommand, valuesBox, statusBox };

// Its own property frame never applies what was changed.
bool underWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

} // namespace

DemoForm::~DemoForm()
{
    if (font_)
        DeleteObject(font_);
}

std::wstring DemoForm::open(HINSTANCE instance)
{
    instance_ = instance;
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &DemoForm::windowProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = windowClassName;
    RegisterClassExW(&windowClass);

    HDC screen = GetDC(nullptr);
    dpi_ = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    RECT size{0, 0, scaled(clientWidth), scaled(clientHeight)};
    constexpr DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    AdjustWindowRectEx(&size, style, FALSE, WS_EX_CONTROLPARENT);
    font_ = CreateFontW(-MulDiv(8, dpi_, 72), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT, windowClassName, L"Vela - demonstração", style, 20, 20,
                              size.right - size.left, size.bottom - size.top, nullptr, nullptr, instance, this);
    if (!window_)
        return L"A janela não pôde ser criada.";
    frame_ = make<FormFrame>(window_);
    layOut();
    std::wstring failure = openFields();
    ShowWindow(window_, SW_SHOW);
    UpdateWindow(window_);
    if (!fields_.empty())
        fields_.front().site->takeFocus();
    return failure;
}

HWND DemoForm::makeChild(const wchar_t* windowClass, const wchar_t* text, DWORD style, RECT place, int id)
{
    HWND child = CreateWindowExW(windowClass == std::wstring_view(L"EDIT") ? WS_EX_CLIENTEDGE : 0, windowClass, text,
                                 WS_CHILD | WS_VISIBLE | style, scaled(place.left), scaled(place.top),
                                 scaled(place.right - place.left), scaled(place.bottom - place.top), window_,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance_, nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
    return child;
}

void DemoForm::layOut()
{
    for (int column = 0; column < columnCount; ++column) {
        const int left = margin + column * (columnWidth + margin);
        makeChild(L"BUTTON", columnTitles[column], BS_GROUPBOX, {left - 8, 6, left + columnWidth + 4, valuesTop - 5},
                  -1);
        nextY_[column] = 28;
    }
}

std::wstring DemoForm::openFields()
{
    std::wstring failure;
    fields_.reserve(fieldRows().size());
    for (const FieldRow& row : fieldRows()) {
        const int left = margin + row.column * (columnWidth + margin);
        int& y = nextY_[row.column];
        makeChild(L"STATIC", row.label, 0, {left, y, left + columnWidth - 8, y + labelHeight}, -1);
        y += labelHeight + 1;
        const int height = fieldHeight + (row.lines - 1) * lineHeight;
        const RECT place{scaled(left), scaled(y), scaled(left + fieldWidth), scaled(y + height)};
        HWND told = makeChild(L"STATIC", L"", SS_NOPREFIX | (row.lines == 1 ? SS_CENTERIMAGE | SS_ENDELLIPSIS : 0),
                              {left + fieldWidth + valueGap, y, left + columnWidth, y + height}, -1);
        y += height + rowGap;
        Field field{&row, make<ControlSite>(*frame_.Get(), window_, row.name), place, told};
        const std::size_t index = fields_.size();
        const HRESULT opened =
            field.site->open(L"Vela.Vela", place, row.settings, [this, index](const std::wstring& event) {
                lastFocused_ = index;
                SetWindowTextW(status_, (std::wstring(L"Evento: ") + fields_[index].row->name + L"." + event).c_str());
            });
        if (FAILED(opened) && failure.empty()) {
            wchar_t code[16];
            swprintf(code, 16, L"%08lX", static_cast<unsigned long>(opened));
            failure = std::wstring(L"O campo ") + row.name + L" não pôde ser criado (" + code +
                      L"). Registre Vela.ocx com regsvr32.";
        }
        fields_.push_back(std::move(field));
    }
    constexpr int right = margin + columnCount * (columnWidth + margin) - margin;
    values_ = makeChild(L"EDIT", L"", ES_MULTILINE | ES_READONLY | WS_VSCROLL,
                        {margin - 8, valuesTop, right - 140, clientHeight - 28}, valuesBox);
    makeChild(L"BUTTON", L"&Mostrar valores (F9)", WS_TABSTOP, {right - 130, valuesTop, right + 4, valuesTop + 26},
              valuesCommand);
    makeChild(L"BUTTON", L"Propriedades (F12)", WS_TABSTOP, {right - 130, valuesTop + 32, right + 4, valuesTop + 58},
              propertiesCommand);
    makeChild(L"BUTTON", L"Fechar", WS_TABSTOP, {right - 130, valuesTop + 64, right + 4, valuesTop + 90}, closeCommand);
    status_ = makeChild(L"STATIC", L"", 0, {margin - 8, clientHeight - 20, right, clientHeight - 4}, statusBox);
    return failure;
}

std::wstring DemoForm::valuesOf(const Field& field) const
{
    OleValue value;
    std::wstring line = field.row->name;
    line += L":";
    if (!field.row->schemes) {
        getByName(field.site->object(), L"Value", value);
        return line + L" " + value.text() + L"\r\n";
    }
    OleValue before;
    getByName(field.site->object(), L"EsquemaRetornoAtual", before);
    for (long scheme = 1; scheme <= 4; ++scheme) {
        putByName(field.site->object(), L"EsquemaRetornoAtual", OleValue(scheme));
        getByName(field.site->object(), L"Value", value);
        line += (scheme == 1 ? L" " : L" | ") + value.text();
    }
    putByName(field.site->object(), L"EsquemaRetornoAtual", before);
    return line + L"\r\n";
}

// Read once the field was left: reading the Value of a date that is being typed would correct it.
void DemoForm::showValue(const Field& field)
{
    OleValue value;
    getByName(field.site->object(), L"Value", value);
    SetWindowTextW(field.told, (L"Value: " + value.text()).c_str());
}

// While a field's pop-up has the focus, the form still shows the field as entered.
void DemoForm::noteFocus()
{
    HWND focus = GetFocus();
    if (focus == window_ || !IsChild(window_, focus))
        return;
    std::size_t now = 0;
    while (now < fields_.size() && !IsChild(fields_[now].site->window(), focus))
        ++now;
    const std::size_t before = std::exchange(entered_, now);
    if (before != now && before < fields_.size())
        showValue(fields_[before]);
}

void DemoForm::showValues()
{
    std::wstring all;
    for (const Field& field : fields_) {
        all += valuesOf(field);
        showValue(field);
    }
    SetWindowTextW(values_, all.c_str());
    const std::string bytes = engine::toUtf8(win32::asText(all));
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

std::size_t DemoForm::indexOf(std::wstring_view name) const noexcept
{
    std::size_t index = 0;
    while (index < fields_.size() && name != fields_[index].row->name)
        ++index;
    return index;
}

void DemoForm::showProperties(std::size_t field)
{
    if (field >= fields_.size())
        return;
    if (!underWine()) {
        fields_[field].site->showProperties();
        return;
    }
    IUnknown* selected = fields_[field].site->control();
    PropertyFrame frame(instance_, window_);
    if (frame.open({&selected, 1}, fields_[field].row->name))
        frame.runModal();
}

void DemoForm::printPlaces() const
{
    for (const Field& field : fields_) {
        RECT place = field.place;
        MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&place), 2);
        std::printf("place %ls %ld %ld %ld %ld\n", field.row->name, static_cast<long>(place.left),
                    static_cast<long>(place.top), static_cast<long>(place.right), static_cast<long>(place.bottom));
    }
}

void DemoForm::command(int id)
{
    switch (id) {
    case valuesCommand: showValues(); break;
    case propertiesCommand: showProperties(lastFocused_); break;
    case closeCommand:
    case IDCANCEL: PostMessageW(window_, WM_CLOSE, 0, 0); break;
    default: break;
    }
}

LRESULT CALLBACK DemoForm::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    if (message == WM_NCCREATE) {
        auto* self = static_cast<DemoForm*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<DemoForm*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self)
        return DefWindowProcW(window, message, wParam, lParam);
    try {
        return self->handle(message, wParam, lParam);
    } catch (const std::exception&) {
        return 0; // nothing crosses the system's frame
    }
}

// As a dialog does, gives the focus back to the window that had it when the form is activated again.
void DemoForm::keepFocus(bool active)
{
    if (active)
        SetFocus(IsWindow(focused_) ? focused_ : window_);
    else if (!active && IsChild(window_, GetFocus()))
        focused_ = GetFocus();
}

LRESULT DemoForm::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED)
            command(LOWORD(wParam));
        return 0;
    case WM_ACTIVATE: keepFocus(LOWORD(wParam) != WA_INACTIVE); return 0;
    case WM_DESTROY:
        for (Field& field : fields_)
            field.site->close();
        PostQuitMessage(0);
        return 0;
    case WM_NCDESTROY: SetWindowLongPtrW(window_, GWLP_USERDATA, 0); break;
    default: break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

bool DemoForm::translated(MSG& message)
{
    if (message.message == WM_KEYDOWN && (message.wParam == VK_F9 || message.wParam == VK_F12)) {
        command(message.wParam == VK_F9 ? valuesCommand : propertiesCommand);
        return true;
    }
    const bool ours = message.hwnd == window_ || IsChild(window_, message.hwnd);
    if (!ours)
        return false;
    if (IOleInPlaceActiveObject* active = frame_->activeObject();
        active && active->TranslateAccelerator(&message) == S_OK)
        return true;
    return IsDialogMessageW(window_, &message) != FALSE;
}

void DemoForm::run()
{
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!translated(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        noteFocus();
    }
}

} // namespace vela::demo
