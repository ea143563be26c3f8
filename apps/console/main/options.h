// The words of vela-console's command line.
#pragma once

#include "apps/console/session.h"

#include <span>
#include <string>

namespace vela::console {

struct Options {
    RunOptions run;
    bool ansi = false;            // the script is in Windows-1252, not UTF-8
    std::string file;             // empty: standard input
    const char* answer = nullptr; // to print instead of running anything: of --help and --version
    std::string complaint;        // not empty: the words are not understood
};

// The words behind the program's name.
[[nodiscard]] Options readOptions(std::span<char* const> words);
[[nodiscard]] const char* usage() noexcept;

} // namespace vela::console
