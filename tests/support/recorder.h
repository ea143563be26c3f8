// What happened on the platform: boxes, log records and windows, a line each as transcripts tell them.
#pragma once

#include "apps/console/trace_printer.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::test {

class Recorder final : public headless::TraceSink {
public:
    Recorder()
    {
        using enum headless::TraceCategory;
        printer_.show(console::categoryBit(dialogs) | console::categoryBit(log) | console::categoryBit(window));
    }
    void trace(const headless::TraceEntry& entry) override
    {
        printer_.trace(entry);
        if (duringBox && std::holds_alternative<headless::trace::MessageBox>(entry))
            duringBox();
    }

    std::vector<std::string> lines;
    std::function<void()> duringBox;

private:
    console::TracePrinter printer_{[this](std::string_view line) { lines.emplace_back(line); }};
};

} // namespace vela::test
