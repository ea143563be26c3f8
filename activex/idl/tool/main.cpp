// vela-idl FILE writes the interface definition; vela-idl --check FILE tells whether the file still is that.
#include "activex/idl/idl_writer.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace {

std::string contentsOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

int main(int count, char** arguments)
{
    const bool check = count == 3 && std::string_view(arguments[1]) == "--check";
    if (count != 2 && !check) {
        std::fputs("vela-idl [--check] FILE\n", stderr);
        return 2;
    }
    const char* const path = arguments[count - 1];
    const std::string text = vela::activex::interfaceDefinition();
    if (check) {
        if (contentsOf(path) == text)
            return 0;
        std::fprintf(stderr, "%s is not what the table of members says; write it again with vela-idl\n", path);
        return 1;
    }
    std::ofstream file(path, std::ios::binary);
    file << text;
    return file.flush() ? 0 : 1;
}
