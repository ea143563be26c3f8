// The properties that live in the edit box or its window: text, selection, background, font, handles.
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

} // namespace

platform::EditBox& Vela::box() const
{
    if (deaf())
        engine::raise(engine::error_number::objectNotSet);
    if (box_ == nullptr)
        box_ = &surface_.activate(platform::EditBoxKind::singleLine);
    return *box_;
}

// Oddity: BackColor also sets BackColorGotFocus; forms put BackColor alone and expect to see it during the entry.
void Vela::putBackColor(Colour value)
{
    box().putColours({box().colours().fore, value});
    BackColorGotFocus(value);
}

void Vela::putEnabled(bool value)
{
    putTrait(&platform::EditTraits::enabled, value);
    surface_.putEnabled(value);
}

const Vela::FontDescription& Vela::Font() const
{
    return box().traits().font;
}

std::int32_t Vela::editWindow() const
{
    return handleOf(box().window());
}

std::int32_t Vela::surfaceWindow() const
{
    return handleOf(surface_.window());
}

Vela::Text16 Vela::containerName() const
{
    return host_.containerName();
}

std::int32_t Vela::selLength() const
{
    return box().selection().length;
}

void Vela::putSelLength(std::int32_t value)
{
    box().select({box().selection().start, notNegative(value)});
}

std::int16_t Vela::selStart() const
{
    const int start = box().selection().start;
    if (start > std::numeric_limits<std::int16_t>::max())
        engine::raise(engine::error_number::overflow);
    return static_cast<std::int16_t>(start);
}

void Vela::putSelStart(std::int16_t value)
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
