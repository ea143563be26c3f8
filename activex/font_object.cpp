// Fonts of the control as font objects of the system.
#include "activex/font_object.h"

#include "activex/com/guard.h"
#include "platform/win32/com_object.h"

#include <olectl.h>

#include <cmath>
#include <new>
#include <utility>

namespace vela::activex {

namespace {

constexpr double sizeUnits = 10000; // a size in points is a currency value

platform::FontDescription describe(IFont& font)
{
    Bstr name;
    CY size{};
    BOOL bold = FALSE;
    BOOL italic = FALSE;
    BOOL underline = FALSE;
    BOOL strikethrough = FALSE;
    check(font.get_Name(name.put()));
    check(font.get_Size(&size));
    check(font.get_Bold(&bold));
    check(font.get_Italic(&italic));
    check(font.get_Underline(&underline));
    check(font.get_Strikethrough(&strikethrough));
    return {std::u16string(name.text()),
            static_cast<double>(size.int64) / sizeUnits,
            bold != FALSE,
            italic != FALSE,
            underline != FALSE,
            strikethrough != FALSE};
}

CY sizeOf(const platform::FontDescription& description)
{
    CY size;
    size.int64 = std::llround(description.size * sizeUnits);
    return size;
}

ComPtr<IFont> makeFont(const platform::FontDescription& description)
{
    FONTDESC wanted{};
    wanted.cbSizeofstruct = sizeof wanted;
    wanted.lpstrName = const_cast<wchar_t*>(wide(description.name.c_str()));
    wanted.cySize = sizeOf(description);
    wanted.sWeight = description.bold ? FW_BOLD : FW_NORMAL;
    wanted.sCharset = DEFAULT_CHARSET;
    wanted.fItalic = description.italic;
    wanted.fUnderline = description.underline;
    wanted.fStrikethrough = description.strikethrough;
    ComPtr<IFont> font;
    check(OleCreateFontIndirect(&wanted, IID_PPV_ARGS(&font)));
    return font;
}

} // namespace

class HeardFont::Sink final : public win32::ComObject<IPropertyNotifySink> {
public:
    explicit Sink(HeardFont& owner) noexcept : owner_(&owner) {}

    void forget() noexcept { owner_ = nullptr; } // the font object may outlive the control

    STDMETHODIMP OnChanged(DISPID part) noexcept override
    {
        if (owner_)
            owner_->changed_(part);
        return S_OK;
    }
    STDMETHODIMP OnRequestEdit(DISPID) noexcept override { return S_OK; }

private:
    HeardFont* owner_;
};

std::optional<platform::FontDescription> describeFont(IUnknown* object)
{
    const auto font = query<IFont>(object);
    if (!font)
        return std::nullopt;
    return describe(*font.Get());
}

platform::FontDescription withPart(platform::FontDescription font, DISPID part, const platform::FontDescription& other)
{
    switch (part) {
    case DISPID_FONT_NAME: font.name = other.name; break;
    case DISPID_FONT_SIZE: font.size = other.size; break;
    case DISPID_FONT_BOLD:
    case DISPID_FONT_WEIGHT: font.bold = other.bold; break;
    case DISPID_FONT_ITALIC: font.italic = other.italic; break;
    case DISPID_FONT_UNDER: font.underline = other.underline; break;
    case DISPID_FONT_STRIKE: font.strikethrough = other.strikethrough; break;
    case DISPID_FONT_CHARSET: break;
    default: return other;
    }
    return font;
}

HeardFont::HeardFont(Changed changed) : changed_(std::move(changed)) {}

HeardFont::~HeardFont()
{
    put({});
}

void HeardFont::put(ComPtr<IFont> font) noexcept
{
    if (sink_)
        sink_->forget();
    if (const auto point = std::move(point_); point && cookie_ != 0)
        point->Unadvise(std::exchange(cookie_, 0));
    sink_.Reset();
    font_ = std::move(font);
    const auto container = query<IConnectionPointContainer>(font_.Get());
    if (!container || FAILED(container->FindConnectionPoint(IID_IPropertyNotifySink, &point_)))
        return; // a font that never changes
    sink_ = adopt<Sink>(new (std::nothrow) Sink(*this));
    if (!sink_ || FAILED(point_->Advise(sink_.Get(), &cookie_)))
        cookie_ = 0;
}

FontObject::FontObject(Changed changed)
    : changed_(std::move(changed)), own_([this](DISPID part) { heard(own_, part); }),
      given_([this](DISPID part) { heard(given_, part); })
{
}

ComPtr<IFontDisp> FontObject::object(const platform::FontDescription& description)
{
    if (own_.get()) {
        follow(description);
    } else {
        own_.put(makeFont(description));
        written_ = description;
    }
    auto object = query<IFontDisp>(own_.get());
    if (!object)
        engine::raise(engine::error_number::outOfMemory);
    return object;
}

// A value that the font object refuses is not shown by the object; the control keeps it.
void FontObject::follow(const platform::FontDescription& description) noexcept
{
    if (!own_.get() || written_ == description)
        return;
    const engine::ScopedFlag writing(writing_, true); // a sink that is notified of one part may change another
    contained([&] { write(description); });
}

platform::FontDescription FontObject::adopt(IUnknown* object)
{
    auto font = query<IFont>(object);
    if (!font)
        engine::raise(engine::error_number::typeMismatch);
    platform::FontDescription description = describe(*font.Get());
    if (font.Get() == own_.get())
        font.Reset(); // its changes are heard already
    given_.put(std::move(font));
    return description;
}

// Puts only what differs, because each put makes the object search the installed fonts again.
void FontObject::write(const platform::FontDescription& description)
{
    const platform::FontDescription before = std::exchange(written_, description);
    const auto held = ComPtr<IFont>(own_.get());
    IFont& font = *held.Get();
    if (description.name != before.name)
        check(font.put_Name(Bstr(description.name).get()));
    if (description.size != before.size)
        check(font.put_Size(sizeOf(description)));
    if (description.bold != before.bold)
        check(font.put_Bold(description.bold));
    if (description.italic != before.italic)
        check(font.put_Italic(description.italic));
    if (description.underline != before.underline)
        check(font.put_Underline(description.underline));
    if (description.strikethrough != before.strikethrough)
        check(font.put_Strikethrough(description.strikethrough));
}

void FontObject::heard(const HeardFont& font, DISPID part) noexcept
{
    if (!font.get() || (writing_ && &font == &own_))
        return;
    contained([&] {
        const platform::FontDescription now = describe(*font.get());
        if (&font == &own_)
            written_ = withPart(written_, part, now);
        changed_(part, now);
    });
}

} // namespace vela::activex
