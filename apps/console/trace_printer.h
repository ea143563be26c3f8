// Prints what happens on the platform as lines of a transcript, for the categories that are asked for.
#pragma once

#include "platform/headless/trace.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace vela::console {

[[nodiscard]] constexpr std::uint32_t categoryBit(headless::TraceCategory category) noexcept
{
    return 1U << static_cast<unsigned>(category);
}

class TracePrinter final : public headless::TraceSink {
public:
    explicit TracePrinter(std::function<void(std::string_view)> printLine);

    // One categoryBit() each; at first dialogs, keys and log.
    void show(std::uint32_t categories) noexcept { categories_ = categories; }
    void trace(const headless::TraceEntry& entry) override;

private:
    std::function<void(std::string_view)> printLine_;
    std::uint32_t categories_;
};

} // namespace vela::console
