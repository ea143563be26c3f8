// The messages of the balloon tooltip, in the order the tooltip window wants them.
#include "tooltip/balloon_tooltip.h"

#include "engine/error.h"

#include <limits>
#include <utility>

namespace vela::tooltip {
namespace {

constexpr int autoPopDelay = 2;
constexpr int initialDelay = 3;

// x + y * 65536 in signed 32 bits; beyond them an error, never a wrap.
std::int32_t packPoint(int x, int y)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const auto fits = [](std::int64_t number) { return number >= Limits::min() && number <= Limits::max(); };
    const std::int64_t high = std::int64_t{y} * 65536;
    if (!fits(high) || !fits(high + x))
        engine::raise(engine::error_number::overflow);
    return static_cast<std::int32_t>(high + x);
}

} // namespace

CBalloonToolTip::CBalloonToolTip(std::unique_ptr<platform::TooltipWindow> window) : window_(std::move(window)) {}

CBalloonToolTip::~CBalloonToolTip()
{
    Destroy();
}

void CBalloonToolTip::CreateToolTip(platform::WindowId parent)
{
    Destroy();
    window_->create(parent); // a window that could not be made takes the messages without effect
    window_->addTool(tipText_);
    if (!title_.empty() || icon_ != engine::eIconeToolTipText::TTNoIcon)
        showTitle();
    if (foreColour_.value != 0)
        window_->setTextColour(foreColour_);
    if (backColour_.value != 0)
        window_->setBackColour(backColour_);
    window_->setDelay(autoPopDelay, visibleTime_);
    window_->setDelay(initialDelay, delayTime_);
}

void CBalloonToolTip::ShowAt(int x, int y, platform::WindowId window)
{
    const auto [screenX, screenY] = window_->clientToScreen(window, x, y);
    window_->trackPosition(packPoint(screenX, screenY));
    window_->trackActivate(true);
}

void CBalloonToolTip::Destroy()
{
    if (window_->exists())
        window_->destroy();
}

bool CBalloonToolTip::exists() const
{
    return window_->exists();
}

void CBalloonToolTip::Icon(engine::eIconeToolTipText icon)
{
    icon_ = icon;
    if (window_->exists() && !title_.empty())
        showTitle();
}

void CBalloonToolTip::ForeColor(engine::Colour colour)
{
    foreColour_ = colour;
    if (window_->exists())
        window_->setTextColour(colour);
}

void CBalloonToolTip::Title(std::u16string_view title)
{
    title_ = title;
    if (window_->exists() && !title_.empty())
        showTitle();
}

void CBalloonToolTip::TipText(std::u16string_view text)
{
    tipText_ = text;
    if (window_->exists())
        window_->updateText(tipText_);
}

void CBalloonToolTip::BackColor(engine::Colour colour)
{
    backColour_ = colour;
    if (window_->exists())
        window_->setBackColour(colour);
}

void CBalloonToolTip::showTitle()
{
    window_->setTitle(static_cast<int>(icon_), title_);
}

} // namespace vela::tooltip
