// Prints what happens on the platform as lines of a transcript, for the categories that are asked for.
#pragma once

#include "platform/headless/trace.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace vela::console {

class TracePrinter final : public headless::TraceSink {
public:
    explicit TracePrinter(std::function<void(std::string_view)> printLine) : printLine_(std::move(printLine)) {}

    // One bit a category, 1 << static_cast<unsigned>(category); at first dialogs, keys and log.
    void show(std::uint32_t categories) noexcept { categories_ = categories; }
    void trace(const headless::TraceEntry& entry) override;

private:
    std::function<void(std::string_view)> printLine_;
    std::uint32_t categories_;
};

} // namespace vela::console
