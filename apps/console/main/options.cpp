// Reading the command line.
#include "apps/console/main/options.h"

#include <string_view>

namespace vela::console {

namespace {

constexpr const char* usageText = "usage: vela-console [--strict] [--json] [--ansi] [FILE]\n"
                                  "       vela-console --help | --version\n";

constexpr const char* helpText =
    "usage: vela-console [--strict] [--json] [--ansi] [FILE]\n"
    "\n"
    "Runs a form of fields without a window system: one command a line, from FILE, from\n"
    "standard input, or typed by hand. The command `help` lists the commands.\n"
    "\n"
    "  --strict   the first run-time error that no expect-error expects ends the run\n"
    "  --json     prints one object a command: {\"line\":N,\"command\":...,\"output\":[...],\"error\":null}\n"
    "  --ansi     the script is in Windows-1252 (ANSI) instead of UTF-8\n"
    "  --help     prints this text\n"
    "  --version  prints the version\n"
    "\n"
    "Exit status, the first that applies: 3 an unexpected error ended a --strict run; 2 a\n"
    "line was no command; 4 an expectation failed; 0 none of these. 1: the script cannot be\n"
    "read, or these words are not understood.\n";

} // namespace

const char* usage() noexcept
{
    return usageText;
}

Options readOptions(std::span<char* const> words)
{
    Options options;
    bool onlyFiles = false;
    for (const std::string_view word : words)
        if (!onlyFiles && word == "--")
            onlyFiles = true;
        else if (!onlyFiles && word == "--strict")
            options.run.strict = true;
        else if (!onlyFiles && word == "--json")
            options.run.json = true;
        else if (!onlyFiles && word == "--ansi")
            options.ansi = true;
        else if (!onlyFiles && word == "--help")
            options.answer = helpText;
        else if (!onlyFiles && word == "--version")
            options.answer = "vela-console " VELA_VERSION "\n";
        else if (!onlyFiles && word.starts_with("--"))
            options.complaint = "no such option: " + std::string(word);
        else if (!options.file.empty())
            options.complaint = "one FILE at the most";
        else
            options.file = word;
    options.run.fileName = options.file;
    return options;
}

} // namespace vela::console
