// Runs every transcript in scripts/: a script in which each answer stands under its command, "#> " what the command
// prints and "#! " what is said on standard error, without its line number; the last "#! exit N" is the exit status,
// when it is not 0. Both are comments to the program, so a transcript runs as it is. VELA_PROMOTE=1 writes the answers
// anew: read the difference before committing it.
#include "apps/console/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
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

std::vector<fs::path> scripts()
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(fs::path(VELA_TEST_DIR) / "scripts"))
        found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

// The lines of `text`, each behind the mark.
std::string marked(const std::string& mark, const std::string& text)
{
    std::string result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        result += mark + line + "\n";
    return result;
}

std::string transcriptOf(const std::string& script)
{
    std::string output, complaints, transcript;
    Session session([&](std::string_view bytes) { output += bytes; },
                    [&](std::string_view bytes) { complaints += bytes; });
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) {
        output.clear();
        complaints.clear();
        session.runLine(line);
        if (!line.starts_with("#> ") && !line.starts_with("#! "))
            transcript += line + "\n";
        transcript += marked("#> ", output);
        if (!complaints.empty())
            transcript += marked("#! ", complaints.substr(complaints.find(": ") + 2)); // behind "line 7: "
    }
    session.finish();
    return transcript + (session.exitStatus() == 0 ? "" : "#! exit " + std::to_string(session.exitStatus()) + "\n");
}

class Script : public testing::TestWithParam<fs::path> {};

TEST_P(Script, printsItsTranscript)
{
    const std::string transcript = transcriptOf(contentOf(GetParam()));
    if (std::getenv("VELA_PROMOTE") != nullptr)
        std::ofstream(GetParam(), std::ios::binary) << transcript;
    EXPECT_EQ(transcript, contentOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Console, Script, testing::ValuesIn(scripts()),
                         [](const auto& script) { return script.param.stem().string(); });

} // namespace
} // namespace vela::console
