// What reader programs call a box: the text of a hidden label that stands before it, made when one first asks.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace vela::win32 {

// The text of the label that a form shows before a control, with its access key marked; empty when there is none.
[[nodiscard]] std::wstring labelBefore(HWND control);
// A name as a label's text: what stands in it for itself does not mark an access key.
[[nodiscard]] std::wstring asLabel(std::u16string_view name);

// The system's own description of an edit box names it after the STATIC window before it, hidden or not. This one asks
// for its text whenever it is read, so that it follows what the name is made from.
class NameLabel {
public:
    explicit NameLabel(std::function<std::wstring()> text) : text_(std::move(text)) {}
    NameLabel(const NameLabel&) = delete;
    NameLabel& operator=(const NameLabel&) = delete;
    ~NameLabel();

    void standBefore(HWND box); // made at the first call
    bool refresh();             // whether it became another text

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;

    std::function<std::wstring()> text_;
    HWND window_ = nullptr;
    std::wstring shown_;
};

} // namespace vela::win32
