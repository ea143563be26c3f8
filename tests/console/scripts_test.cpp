// Runs every script in scripts/ and compares what it prints with the transcript beside it, and with the .err file for
// what it says on standard error (its first line is the exit status; none: status 0, nothing said).
// VELA_PROMOTE=1 writes the transcripts instead: read the difference before committing it.
#include "apps/console/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace vela::console {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

// An empty one is no file.
void expectContent(const std::string& content, const fs::path& file)
{
    if (std::getenv("VELA_PROMOTE") != nullptr) {
        std::ofstream(file, std::ios::binary) << content;
        if (content.empty())
            fs::remove(file);
    }
    EXPECT_EQ(content, contentOf(file));
}

std::vector<fs::path> scripts()
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(fs::path(VELA_TEST_DIR) / "scripts"))
        if (entry.path().extension() == ".vela")
            found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

class Script : public testing::TestWithParam<fs::path> {};

TEST_P(Script, printsItsTranscript)
{
    std::string output;
    std::string complaints;
    Session session([&](std::string_view bytes) { output += bytes; },
                    [&](std::string_view bytes) { complaints += bytes; });
    session.runScript(contentOf(GetParam()));
    if (session.exitStatus() != 0)
        complaints = "exit " + std::to_string(session.exitStatus()) + "\n" + complaints;
    expectContent(output, fs::path(GetParam()).replace_extension(".txt"));
    expectContent(complaints, fs::path(GetParam()).replace_extension(".err"));
}

INSTANTIATE_TEST_SUITE_P(Console, Script, testing::ValuesIn(scripts()),
                         [](const auto& script) { return script.param.stem().string(); });

} // namespace
} // namespace vela::console
