// What a form tells screen readers of the labels it paints: names, places, and the click they take.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace vela::win32 {

// A painted label as it is now.
struct SpokenLabel {
    int widget = -1;
    std::u16string name; // its spoken name, else its caption
    RECT screen{0, 0, 0, 0};
    bool enabled = true;
    bool cell = false; // has a spoken name: stands for more than its caption
};

class SpokenForm {
public:
    [[nodiscard]] virtual std::vector<SpokenLabel> spokenLabels() const = 0;
    virtual void clickLabel(int widget) = 0;

protected:
    ~SpokenForm() = default;
};

class FormAccessible;

// The object a form answers WM_GETOBJECT with, made when first asked for. Readers may hold it longer than the form
// lives: then it knows of no labels.
class FormSpeech {
public:
    FormSpeech() noexcept = default;
    FormSpeech(const FormSpeech&) = delete;
    FormSpeech& operator=(const FormSpeech&) = delete;
    ~FormSpeech() { forget(); }

    // The answer to WM_GETOBJECT for the client object; 0 where the system has no such service.
    [[nodiscard]] LRESULT answer(HWND window, WPARAM first, SpokenForm& form);
    void forget() noexcept; // the window goes

private:
    FormAccessible* object_ = nullptr;
};

} // namespace vela::win32
