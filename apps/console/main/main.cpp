// vela-console: runs a script of a form from a file or from standard input.
#include "apps/console/session.h"

#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <string>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

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

int run(std::istream& script)
{
    vela::console::Session session([](std::string_view bytes) { writeTo(stdout, bytes); },
                                   [](std::string_view bytes) { writeTo(stderr, bytes); });
    for (std::string line; std::getline(script, line);)
        session.runLine(line);
    std::fflush(stdout);
    return session.exitStatus();
}

} // namespace

int main(int argc, char** argv)
{
    useBytes();
    if (argc > 2) {
        std::fputs("usage: vela-console [FILE]\n", stderr);
        return 1;
    }
    if (argc < 2)
        return run(std::cin);
    std::ifstream file(argv[1], std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "vela-console: cannot read %s\n", argv[1]);
        return 1;
    }
    return run(file);
}
