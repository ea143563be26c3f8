// The font object that a control hands out: the system's own, alive with the control's font. What somebody changes in
// it is heard, and so is what changes in a font that a host gave; that one is never written.
#pragma once

#include "activex/com/owners.h"
#include "engine/scoped_value.h"
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

// A font and the sink for its change notifications. Empty until it is given one.
class HeardFont {
public:
    using Changed = std::function<void(DISPID part)>; // DISPID_FONT_...

    explicit HeardFont(Changed changed);
    HeardFont(const HeardFont&) = delete;
    HeardFont& operator=(const HeardFont&) = delete;
    ~HeardFont();

    void put(ComPtr<IFont> font) noexcept;
    [[nodiscard]] IFont* get() const noexcept { return font_.Get(); }

private:
    class Sink;

    Changed changed_;
    ComPtr<IFont> font_;
    ComPtr<IConnectionPoint> point_;
    ComPtr<Sink> sink_;
    DWORD cookie_ = 0;
};

class FontObject {
public:
    // Told which part of the font changed (DISPID_FONT_...) and the font as it now is.
    using Changed = std::function<void(DISPID part, const platform::FontDescription& font)>;

    explicit FontObject(Changed changed);
    FontObject(const FontObject&) = delete;
    FontObject& operator=(const FontObject&) = delete;

    // The object that stands for the control's font, one for the control's life. Raises 7 when there can be none.
    [[nodiscard]] ComPtr<IFontDisp> object(const platform::FontDescription& description);
    // The control's font is this now; where the object exists it shows it at once.
    void follow(const platform::FontDescription& description) noexcept;
    // From now on the control's font is taken from this one and its changes. Raises 13 for an object that is no font.
    platform::FontDescription adopt(IUnknown* font);

private:
    void heard(const HeardFont& font, DISPID part) noexcept;
    void write(const platform::FontDescription& description);

    Changed changed_;
    bool writing_ = false;              // the change is the control's own
    platform::FontDescription written_; // what was last written to the object, which may show another installed font
    HeardFont own_;
    HeardFont given_;
};

} // namespace vela::activex
