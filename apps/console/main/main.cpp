// vela-console: runs a script of a form from a file, from standard input, or typed by hand.
#include "apps/console/ansi.h"
#include "apps/console/main/options.h"
#include "apps/console/main/prompt.h"
#include "apps/console/session.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

using vela::console::Options;
using vela::console::Session;

// Bytes in, bytes out: no line ends of the system's own.
void useBytes()
{
#ifdef _WIN32
    for (const int stream : {0, 1, 2})
        _setmode(stream, _O_BINARY);
#endif
}

void writeTo(std::FILE* file, std::string_view bytes)
{
    std::fwrite(bytes.data(), 1, bytes.size(), file);
}

template <class NextLine>
int run(const Options& options, NextLine&& nextLine)
{
    Session session([](std::string_view bytes) { writeTo(stdout, bytes); },
                    [](std::string_view bytes) { writeTo(stderr, bytes); }, options.run);
    for (std::string line; !session.ended() && nextLine(line);)
        session.runLine(options.ansi ? vela::console::utf8FromAnsi(line) : line);
    session.finish();
    std::fflush(stdout);
    return session.exitStatus();
}

int runStream(const Options& options, std::istream& script)
{
    return run(options, [&](std::string& line) { return static_cast<bool>(std::getline(script, line)); });
}

int runPrompt(const Options& options)
{
    vela::console::Prompt prompt;
    return run(options, [&](std::string& line) {
        std::fflush(stdout);
        return prompt.read(line);
    });
}

int runFile(const Options& options)
{
    std::ifstream file(options.file, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "vela-console: cannot read %s\n", options.file.c_str());
        return 1;
    }
    return runStream(options, file);
}

} // namespace

int main(int argc, char** argv)
{
    useBytes();
    const Options options = vela::console::readOptions({argv + 1, static_cast<std::size_t>(argc - 1)});
    if (!options.complaint.empty()) {
        std::fprintf(stderr, "vela-console: %s\n%s", options.complaint.c_str(), vela::console::usage());
        return 1;
    }
    if (options.answer != nullptr) {
        std::fputs(options.answer, stdout);
        return 0;
    }
    if (!options.file.empty())
        return runFile(options);
    return vela::console::typedByHand() ? runPrompt(options) : runStream(options, std::cin);
}
