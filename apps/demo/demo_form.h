// The demonstration form: real fields in a real window, embedded as any host embeds controls.
#pragma once

#include "apps/demo/container.h"
#include "apps/demo/fields.h"

#include <string>
#include <vector>

namespace vela::demo {

class DemoForm {
public:
    DemoForm() = default;
    DemoForm(const DemoForm&) = delete;
    DemoForm& operator=(const DemoForm&) = delete;
    ~DemoForm();

    // Answers an empty text, or why the form could not be opened.
    [[nodiscard]] std::wstring open(HINSTANCE instance);
    // Runs until the form is closed.
    void run();
    [[nodiscard]] std::size_t indexOf(std::wstring_view name) const noexcept; // the number of fields when there is none
    void showProperties(std::size_t field);                                   // 0-based
    // "place NAME LEFT TOP RIGHT BOTTOM" for each field, in screen pixels, on standard output.
    void printPlaces() const;

private:
    struct Field {
        const FieldRow* row = nullptr;
        ComPtr<ControlSite> site;
        RECT place{};
        HWND told = nullptr; // the text beside it
    };

    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void keepFocus(bool active);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void command(int id);
    [[nodiscard]] bool translated(MSG& message);
    [[nodiscard]] std::wstring openFields();
    HWND makeChild(const wchar_t* windowClass, const wchar_t* text, DWORD style, RECT place, int id);
    void layOut();
    void showValues();
    static void showValue(const Field& field);
    void noteFocus();
    [[nodiscard]] std::wstring valuesOf(const Field& field) const;
    [[nodiscard]] int scaled(int pixels) const noexcept { return MulDiv(pixels, dpi_, 96); }

    HINSTANCE instance_ = nullptr;
    HWND window_ = nullptr;
    HWND values_ = nullptr;
    HWND status_ = nullptr;
    HWND focused_ = nullptr; // while another window is active
    HFONT font_ = nullptr;
    int dpi_ = 96;
    int nextY_[columnCount] = {};
    ComPtr<FormFrame> frame_;
    std::vector<Field> fields_;
    std::size_t lastFocused_ = 0;
    std::size_t entered_ = 0; // the field that has the focus, fields_.size() for none
};

} // namespace vela::demo
