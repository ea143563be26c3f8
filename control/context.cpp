// The edit box, notifying, showing and logging, and the buffers that are lent.
#include "control/context.h"

#include "control/error_log.h"
#include "control/internal.h"
#include "control/property.h"

namespace vela::control {

platform::EditBox& Context::box() const
{
    if (deaf())
        engine::raise(engine::error_number::objectNotSet);
    if (box_ == nullptr)
        box_ = &surface.activate(platform::EditBoxKind::singleLine);
    return *box_;
}

platform::EditBox& Context::activate(bool multiLine)
{
    box_ = &surface.activate(multiLine ? platform::EditBoxKind::multiLine : platform::EditBoxKind::singleLine);
    released_ = false;
    return *box_;
}

void Context::notify(const Property& property)
{
    if (!property.notification.sent)
        return;
    const std::u16string_view otherName = property.notification.name;
    const engine::Alive alive(life);
    if (otherName.empty())
        host.propertyChanged(property.name, property.dispid);
    else
        host.propertyChanged(otherName, platform::unknownProperty);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

void Context::raise(void (platform::ControlHost::*event)())
{
    const engine::Alive alive(life);
    (host.*event)();
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

void Context::showBox(platform::BoxIcon icon, std::u16string_view title, std::u16string_view text)
{
    const engine::Alive alive(life);
    environment.desktop.messageBox(icon, platform::BoxButtons::ok, title, text);
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

void Context::log(const engine::Error& error, std::u16string_view label)
{
    appendToLog(environment, error, label);
}

bool Context::masked() const noexcept
{
    return settings.textType == TipoText::Data || settings.textType == TipoText::Mascara;
}

bool Context::liveNumber() const noexcept
{
    return settings.textType == TipoText::Numerico && settings.maskToNumeric;
}

engine::NumberSettings Context::numberSettings() const
{
    return {.displayDecimal = viewOf(settings.displayDecimal),
            .grouping = viewOf(settings.grouping),
            .qtdCasasDec = settings.qtdCasasDec,
            .inserirZeros = settings.inserirZeros,
            .locale = locale()};
}

engine::MaskSettings Context::maskSettings() const
{
    return {settings.mask, settings.maskRules, settings.promptChar, settings.locked};
}

Context::Scratch::~Scratch()
{
    constexpr std::size_t largestKept = 1024; // units; a long text's buffer is not kept
    if (!alive_ || text_->capacity() > largestKept)
        return;
    for (auto& place : context_.scratch_)
        if (!place) {
            place = std::move(text_);
            return;
        }
}

std::unique_ptr<std::u16string> Context::Scratch::borrow(Context& context)
{
    for (auto& kept : context.scratch_)
        if (kept) {
            kept->clear();
            return std::move(kept);
        }
    return std::make_unique<std::u16string>();
}

} // namespace vela::control
