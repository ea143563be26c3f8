// Fonts of the control as font objects of the system.
#include "activex/font_object.h"

#include "activex/com/guard.h"
#include "platform/win32/com_object.h"

#include <olectl.h>

#include <cmath>

namespace vela::activex {

namespace {

constexpr double sizeUnits = 10000; // a size in points is a currency value

void check(HRESULT result)
{
    if (FAILED(result))
        throw errorFromHresult(result);
}

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
    wanted.lpstrName = const_cast<wchar_t*>(asWide(description.name));
    wanted.cySize = sizeOf(description);
    wanted.sWeight = description.bold ? FW_BOLD : FW_NORMAL;
    wanted.sCharset = DEFAULT_CHARSET;
    wanted.fItalic = description.italic;
    wanted.fUnderline = description.underline;
    wanted.fStrikethrough = description.strikethrough;
    ComPtr<IFont> font;
    check(OleCreateFontIndirect(&wanted, IID_IFont, font.putVoid()));
    return font;
}

} // namespace

class FontObject::Sink final : public win32::ComObject<IPropertyNotifySink> {
public:
    explicit Sink(FontObject& owner) noexcept : owner_(&owner) {}

    void forget() noexcept { owner_ = nullptr; } // the font object may outlive the control

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID part) noexcept override
    {
        if (owner_)
            owner_->heard(part);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) noexcept override { return S_OK; }

private:
    FontObject* owner_;
};

std::optional<platform::FontDescription> describeFont(IUnknown* object)
{
    const auto font = ComPtr<IFont>::from(object);
    if (!font)
        return std::nullopt;
    return describe(*font.get());
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

FontObject::FontObject(Changed changed) : changed_(std::move(changed)) {}

FontObject::~FontObject()
{
    forget();
}

ComPtr<IFontDisp> FontObject::object(const platform::FontDescription& description)
{
    if (!font_) {
        font_ = makeFont(description);
        written_ = description;
        listen();
    } else if (written_ != description) {
        writing_ = true;
        const HRESULT result = guarded([&] { write(description); });
        writing_ = false;
        check(result);
    }
    auto object = ComPtr<IFontDisp>::from(font_.get());
    if (!object)
        engine::raise(engine::error_number::outOfMemory);
    return object;
}

platform::FontDescription FontObject::adopt(IUnknown* object)
{
    auto font = ComPtr<IFont>::from(object);
    if (!font)
        engine::raise(engine::error_number::typeMismatch);
    platform::FontDescription description = describe(*font.get());
    forget();
    font_ = std::move(font);
    written_ = description;
    listen();
    return description;
}

// Only what differs: each put makes the object look again for what the system has.
void FontObject::write(const platform::FontDescription& description)
{
    if (description.name != written_.name)
        check(font_->put_Name(Bstr(description.name).get()));
    if (description.size != written_.size)
        check(font_->put_Size(sizeOf(description)));
    if (description.bold != written_.bold)
        check(font_->put_Bold(description.bold));
    if (description.italic != written_.italic)
        check(font_->put_Italic(description.italic));
    if (description.underline != written_.underline)
        check(font_->put_Underline(description.underline));
    if (description.strikethrough != written_.strikethrough)
        check(font_->put_Strikethrough(description.strikethrough));
    written_ = description;
}

void FontObject::listen()
{
    const auto container = ComPtr<IConnectionPointContainer>::from(font_.get());
    if (!container || FAILED(container->FindConnectionPoint(IID_IPropertyNotifySink, point_.put())))
        return; // a font that never changes
    sink_ = ComPtr<Sink>::adopt(new Sink(*this));
    if (FAILED(point_->Advise(sink_.get(), &cookie_)))
        forget();
}

void FontObject::forget() noexcept
{
    if (sink_)
        sink_->forget();
    if (point_ && cookie_ != 0)
        point_->Unadvise(cookie_);
    cookie_ = 0;
    sink_.reset();
    point_.reset();
}

void FontObject::heard(DISPID part) noexcept
{
    if (writing_ || !font_)
        return;
    contained([&] {
        const platform::FontDescription now = describe(*font_.get());
        written_ = withPart(written_, part, now);
        changed_(part, now);
    });
}

} // namespace vela::activex
