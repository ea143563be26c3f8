// Every example of the manual: a block marked `vela` prints the block that follows it.
#include "apps/console/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Example {
    std::string script;
    std::string expected;
};

// The text between a line that opens a fence and the line "```"; `from` moves behind it.
std::string fenced(const std::string& page, std::size_t& from)
{
    const std::size_t start = page.find('\n', from) + 1;
    const std::size_t end = page.find("\n```", start - 1);
    from = end == std::string::npos ? page.size() : end + 4;
    return page.substr(start, end == std::string::npos ? std::string::npos : end + 1 - start);
}

std::vector<Example> examplesOf(const std::filesystem::path& file, const std::string& marker)
{
    std::ifstream stream(file, std::ios::binary);
    std::stringstream content;
    content << stream.rdbuf();
    const std::string page = content.str();
    std::vector<Example> examples;
    for (std::size_t at = page.find(marker); at != std::string::npos; at = page.find(marker, at)) {
        Example example;
        example.script = fenced(page, at);
        at = page.find("```", at);
        if (at == std::string::npos)
            break;
        example.expected = fenced(page, at);
        examples.push_back(example);
    }
    return examples;
}

std::string run(const std::string& script)
{
    std::string output;
    vela::console::Session session([&](std::string_view bytes) { output += bytes; },
                                   [&](std::string_view bytes) { output += bytes; });
    session.runScript(script);
    return output;
}

TEST(Manual, EveryExamplePrintsWhatItSays)
{
    const std::filesystem::path root = std::filesystem::path(VELA_TEST_DIR) / ".." / "..";
    int count = 0;
    const auto check = [&](const std::filesystem::path& page) {
        for (const Example& example : examplesOf(page, "```vela\n")) {
            EXPECT_EQ(run(example.script), example.expected) << page;
            ++count;
        }
    };
    check(root / "README.md");
    for (const auto& entry :
         std::filesystem::directory_iterator(root / "docs" / "en")) // the other language has the same
        check(entry.path());
    EXPECT_GE(count, 10) << "the manual has lost its examples";
}

} // namespace
