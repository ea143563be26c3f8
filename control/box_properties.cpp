// The properties that live in the edit box: text, selection, colours, font, limits.
#include "control/conversion.h"
#include "control/internal.h"
#include "engine/error.h"

#include <limits>

namespace vela::control {

namespace {

// A window handle as the 32-bit number that hosts read: the system never uses more bits.
std::int32_t handleOf(platform::WindowId window) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(window.value));
}

int notNegative(std::int32_t value)
{
    if (value < 0)
        engine::raise(engine::error_number::invalidPropertyValue);
    return value;
}

} // namespace

platform::EditBox& Vela::box() const
{
    if (deaf())
        engine::raise(engine::error_number::objectNotSet);
    if (box_ == nullptr)
        box_ = &surface_.activate(platform::EditBoxKind::singleLine);
    return *box_;
}

Alinhamento Vela::Alignment() const
{
    return static_cast<Alinhamento>(box().traits().alignment);
}

void Vela::Alignment(Alinhamento value)
{
    putTrait(&platform::EditTraits::alignment, static_cast<platform::TextAlignment>(value));
}

Vela::Colour Vela::BackColor() const
{
    return box().colours().back;
}

// Oddity: BackColor also sets BackColorGotFocus; forms put BackColor alone and expect to see it during the entry.
void Vela::BackColor(Colour value)
{
    box().putColours({box().colours().fore, value});
    BackColorGotFocus(value);
    markChanged(u"BackColor");
}

bool Vela::Enabled() const
{
    return box().traits().enabled;
}

void Vela::Enabled(bool value)
{
    putTrait(&platform::EditTraits::enabled, value);
    surface_.putEnabled(value);
}

const Vela::FontDescription& Vela::Font() const
{
    return box().traits().font;
}

void Vela::Font(const FontDescription& value)
{
    putTrait(&platform::EditTraits::font, value);
    markChanged(u"Font");
}

bool Vela::FontBold() const
{
    return Font().bold;
}

void Vela::FontBold(bool value)
{
    putFontPart(&FontDescription::bold, value);
    markChanged(u"FontBold");
}

bool Vela::FontItalic() const
{
    return Font().italic;
}

void Vela::FontItalic(bool value)
{
    putFontPart(&FontDescription::italic, value);
    markChanged(u"FontItalic");
}

const Vela::Text16& Vela::FontName() const
{
    return Font().name;
}

void Vela::FontName(View value)
{
    putFontPart(&FontDescription::name, Text16(value));
    markChanged(u"FontName");
}

std::uint8_t Vela::FontSize() const
{
    return wholePoints(Font().size);
}

void Vela::FontSize(std::uint8_t value)
{
    putFontPart(&FontDescription::size, static_cast<double>(value));
    markChanged(u"FontSize");
}

bool Vela::FontStrikethru() const
{
    return Font().strikethrough;
}

void Vela::FontStrikethru(bool value)
{
    putFontPart(&FontDescription::strikethrough, value);
    markChanged(u"FontStrikethru");
}

bool Vela::FontUnderline() const
{
    return Font().underline;
}

void Vela::FontUnderline(bool value)
{
    putFontPart(&FontDescription::underline, value);
    markChanged(u"FontUnderline");
}

std::int32_t Vela::hwnd() const
{
    return handleOf(box().window());
}

std::int32_t Vela::HwndCtl() const
{
    return handleOf(surface_.window());
}

std::int16_t Vela::MaxLength() const
{
    return static_cast<std::int16_t>(box().traits().maxLength);
}

void Vela::MaxLength(std::int16_t value)
{
    static_cast<void>(box()); // raises 91 when there is no box
    putTrait(&platform::EditTraits::maxLength, notNegative(value));
}

Vela::Text16 Vela::nomeContainer() const
{
    return host_.containerName();
}

Vela::Text16 Vela::PasswordChar() const
{
    const char16_t shown = box().traits().passwordChar;
    return shown == 0 ? Text16() : Text16(1, shown);
}

void Vela::PasswordChar(View value)
{
    static_cast<void>(box()); // as above
    if (value.size() > 1)
        engine::raise(engine::error_number::invalidPropertyValue);
    putTrait(&platform::EditTraits::passwordChar, value.empty() ? u'\0' : value.front());
}

std::int32_t Vela::SelLength() const
{
    return box().selection().length;
}

void Vela::SelLength(std::int32_t value)
{
    box().select({box().selection().start, notNegative(value)});
}

std::int16_t Vela::SelStart() const
{
    const int start = box().selection().start;
    if (start > std::numeric_limits<std::int16_t>::max())
        engine::raise(engine::error_number::overflow);
    return static_cast<std::int16_t>(start);
}

void Vela::SelStart(std::int16_t value)
{
    box().select({notNegative(value), 0});
}

Vela::Text16 Vela::Text() const
{
    Text16 text;
    readText(text);
    return text;
}

void Vela::Text(View value)
{
    putText(value, Writer::host);
}

} // namespace vela::control
