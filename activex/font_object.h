// The font object that a control hands out and takes: the system's own, heard when somebody changes it.
#pragma once

#include "activex/com/owners.h"
#include "platform/edit_box.h"

#include <ocidl.h>

#include <functional>
#include <optional>

namespace vela::activex {

// Nothing for an object that is no font. 8.25 points stay 8.25.
[[nodiscard]] std::optional<platform::FontDescription> describeFont(IUnknown* font);
// `font` with that part taken from `other`: the font object may have replaced the other parts by what the system has.
[[nodiscard]] platform::FontDescription withPart(platform::FontDescription font, DISPID part,
                                                 const platform::FontDescription& other);

class FontObject {
public:
    // Told which part of the font changed (DISPID_FONT_...) and the font as it now is.
    using Changed = std::function<void(DISPID part, const platform::FontDescription& font)>;

    explicit FontObject(Changed changed);
    FontObject(const FontObject&) = delete;
    FontObject& operator=(const FontObject&) = delete;
    ~FontObject();

    // The object that stands for the control's font, brought up to this description. Raises 7 when there can be none.
    [[nodiscard]] ComPtr<IFontDisp> object(const platform::FontDescription& description);
    // From now on this one stands for it. Raises 13 for an object that is no font.
    platform::FontDescription adopt(IUnknown* font);

private:
    class Sink;

    void listen();
    void forget() noexcept;
    void heard(DISPID part) noexcept;
    void write(const platform::FontDescription& description);

    Changed changed_;
    ComPtr<IFont> font_;
    ComPtr<IConnectionPoint> point_;
    ComPtr<Sink> sink_;
    DWORD cookie_ = 0;
    bool writing_ = false;              // the change is the control's own
    platform::FontDescription written_; // what the object was last made to be: it may show another that exists
};

} // namespace vela::activex
