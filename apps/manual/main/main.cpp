// Writes the manual's reference in both languages: vela-manual DOCS, from the project's folder `vela-manual docs`.
#include "apps/manual/reference_page.h"

#include <cstdio>
#include <exception>
#include <fstream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("vela-manual DOCS\n", stderr);
        return 2;
    }
    try {
        using enum vela::manual::Language;
        for (const auto& [language, folder] : {std::pair{english, "/en"}, std::pair{portuguese, "/pt-BR"}}) {
            std::ofstream page(std::string(argv[1]) + folder + "/reference.md", std::ios::binary);
            page.exceptions(std::ios::failbit | std::ios::badbit);
            page << vela::manual::referencePage(language);
        }
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
