// The manual's reference is the one the tables give, and its examples may be put.
#include "apps/console/session.h"
#include "apps/console/value_text.h"
#include "apps/manual/reference_page.h"
#include "control/property_table.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

using vela::manual::Language;

TEST(Manual, TheReferenceIsUpToDateInBothLanguages)
{
    const std::filesystem::path docs = std::filesystem::path(VELA_TEST_DIR) / ".." / ".." / "docs";
    for (const auto& [language, folder] :
         {std::pair{Language::english, "en"}, std::pair{Language::portuguese, "pt-BR"}}) {
        std::ifstream stream(docs / folder / "reference.md", std::ios::binary);
        const std::string kept{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        EXPECT_EQ(kept, vela::manual::referencePage(language)) << "run vela-manual docs";
    }
}

// On a field of the first text type for which the property means something; it reads back but for what the type
// forbids.
TEST(Manual, TheExamplesOfTheReferenceMayBePut)
{
    for (const vela::control::Property& property : vela::control::properties()) {
        const vela::control::ManualText& about = property.manual;
        if (about.example.empty())
            continue;
        std::string output;
        const auto write = [&](std::string_view bytes) { output += bytes; };
        vela::console::Session session(write, write);
        const std::string type = std::to_string(std::string_view("TNDM").find(about.types.front()));
        session.runScript("new f\nset f Mask \"___\"\nset f TextType " + type + "\n");
        session.runLine("set f " + vela::console::toUtf8(property.name) + " " + std::string(about.example));
        EXPECT_EQ(output, "") << vela::console::toUtf8(property.name);
    }
}
