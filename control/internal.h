// What the sources of the control share: writing, lent buffers, traits one at a time, trapping to the log.
#pragma once

#include "control/error_log.h"
#include "control/trap.h"
#include "control/vela.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace vela::control {

// A text's length where an Integer is wanted; 6 beyond 32,767.
[[nodiscard]] inline std::int16_t lengthAsInteger(std::u16string_view text)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        engine::raise(engine::error_number::overflow);
    return static_cast<std::int16_t>(text.size());
}

// A symbol as text: empty for none.
constexpr std::u16string_view viewOf(const char16_t& symbol) noexcept
{
    return {&symbol, symbol == 0 ? std::size_t{0} : std::size_t{1}};
}

// A text buffer that the control lends to one routine. It is empty at first and keeps its capacity when it is returned.
// Routines may nest: when the control has no buffer left, a new one is made.
class Vela::Scratch {
public:
    explicit Scratch(Vela& control) : control_(control), alive_(control.life_), text_(borrow(control)) {}
    ~Scratch()
    {
        if (!alive_ || text_->capacity() > largestKept)
            return;
        for (auto& place : control_.scratch_)
            if (!place) {
                place = std::move(text_);
                return;
            }
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    [[nodiscard]] std::u16string& operator*() noexcept { return *text_; }
    [[nodiscard]] std::u16string* operator->() noexcept { return text_.get(); }

private:
    static constexpr std::size_t largestKept = 1024; // units; a long text's buffer is not kept

    [[nodiscard]] static std::unique_ptr<std::u16string> borrow(Vela& control)
    {
        for (auto& kept : control.scratch_)
            if (kept) {
                kept->clear();
                return std::move(kept);
            }
        return std::make_unique<std::u16string>();
    }

    Vela& control_;
    engine::Alive alive_;
    std::unique_ptr<std::u16string> text_;
};

template <class T>
void Vela::putTrait(T platform::EditTraits::*trait, const T& value)
{
    if (box().traits().*trait == value)
        return;
    platform::EditTraits traits = box().traits();
    traits.*trait = value;
    box().putTraits(traits);
}

template <class Body>
void Vela::trapToLog(View label, Body body)
{
    trap(
        life_, [&](int&) { body(); }, [&](const engine::Error& failure) { log(failure, label); });
}

} // namespace vela::control
