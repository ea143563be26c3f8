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

void write(const fs::path& file, const std::string& content)
{
    std::ofstream(file, std::ios::binary) << content;
}

struct Printed {
    std::string output;
    std::string complaints; // with the exit status in front; empty when all went well
};

Printed run(const std::string& script)
{
    Printed result;
    Session session([&](std::string_view bytes) { result.output += bytes; },
                    [&](std::string_view bytes) { result.complaints += bytes; });
    session.runScript(script);
    if (session.exitStatus() != 0)
        result.complaints = "exit " + std::to_string(session.exitStatus()) + "\n" + result.complaints;
    return result;
}

std::vector<fs::path> scripts()
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(VELA_TEST_DIR) / "scripts"))
        if (entry.path().extension() == ".vela")
            found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

void promote(const fs::path& script, const Printed& result)
{
    write(fs::path(script).replace_extension(".txt"), result.output);
    const fs::path complaints = fs::path(script).replace_extension(".err");
    if (result.complaints.empty())
        fs::remove(complaints);
    else
        write(complaints, result.complaints);
}

class Script : public testing::TestWithParam<fs::path> {};

TEST_P(Script, printsItsTranscript)
{
    const Printed result = run(contentOf(GetParam()));
    if (std::getenv("VELA_PROMOTE") != nullptr)
        promote(GetParam(), result);
    EXPECT_EQ(result.output, contentOf(fs::path(GetParam()).replace_extension(".txt")));
    EXPECT_EQ(result.complaints, contentOf(fs::path(GetParam()).replace_extension(".err")));
}

std::string nameOf(const testing::TestParamInfo<fs::path>& info)
{
    std::string name = info.param.parent_path().filename().string() + "_" + info.param.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Console, Script, testing::ValuesIn(scripts()), nameOf);

TEST(Transcripts, everyOneHasItsScript)
{
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(VELA_TEST_DIR) / "scripts")) {
        const fs::path extension = entry.path().extension();
        if (extension == ".txt" || extension == ".err") {
            EXPECT_TRUE(fs::exists(fs::path(entry.path()).replace_extension(".vela"))) << entry.path();
        }
    }
    EXPECT_FALSE(scripts().empty());
}

} // namespace
} // namespace vela::console
