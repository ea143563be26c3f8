// What every contract test of a field starts from: the stage, its two fields and what they report.
#pragma once

#include "tests/contract/recorder.h"
#include "stage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace vela::contract {

using Log = std::vector<std::string>;

class FieldCase : public testing::Test {
protected:
    FieldCase()
    {
        first.box = &stage->field(0).activate(platform::EditBoxKind::singleLine);
        second.box = &stage->field(1).activate(platform::EditBoxKind::singleLine);
        stage->listen(0, first, first);
        stage->listen(1, second, second);
        for (int index : {0, 1})
            stage->field(index).arrange({.edit = {0, 0, 121, 21}});
        stage->settle();
        log.clear();
    }

    [[nodiscard]] platform::EditBox& box(int index = 0) { return *(index == 0 ? first : second).box; }
    [[nodiscard]] std::u16string text(int index = 0)
    {
        std::u16string read;
        box(index).text(read);
        return read;
    }
    // Only these reports, in their order.
    [[nodiscard]] Log only(std::initializer_list<std::string> reports) const
    {
        Log kept;
        for (const std::string& line : log)
            if (std::ranges::any_of(reports, [&](const std::string& report) { return line.ends_with(" " + report); }))
                kept.push_back(line);
        return kept;
    }
    [[nodiscard]] auto count(const std::string& line) const { return std::ranges::count(log, line); }

    Log log;
    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
    Recorder first{log, "A"};
    Recorder second{log, "B"};
};

} // namespace vela::contract
