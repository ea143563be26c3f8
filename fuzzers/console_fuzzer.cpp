// Any bytes as a script of vela-console: it never fails, its output is UTF-8, and a second run of a short one
// prints the same.
#include "apps/console/session.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace vela::console;

constexpr std::size_t longestScript = 8192;
constexpr std::size_t longestPlayedTwice = 1024;
constexpr std::size_t longestOutput = 1U << 20;
// Whatever the machine's clock says, a run is the same.
constexpr std::string_view frozenClock = "clock #2024-02-29 14:05:33#\n";

void require(bool holds)
{
    if (!holds)
        std::abort();
}

struct Transcript {
    std::string output;
    std::string complaints;
    int status = 0;
    friend bool operator==(const Transcript&, const Transcript&) = default;
};

Transcript play(std::string_view script)
{
    Transcript transcript;
    {
        Session session([&](std::string_view bytes) { transcript.output += bytes; },
                        [&](std::string_view bytes) { transcript.complaints += bytes; });
        session.runScript(frozenClock);
        while (!script.empty() && transcript.output.size() < longestOutput) {
            const std::size_t end = script.find('\n');
            session.runLine(script.substr(0, end));
            script.remove_prefix(end == std::string_view::npos ? script.size() : end + 1);
        }
        transcript.status = session.exitStatus();
    }
    return transcript;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > longestScript)
        return -1;
    const std::string script(reinterpret_cast<const char*>(data), size);
    const Transcript first = play(script);
    require(first.status == (first.complaints.empty() ? 0 : 2));
    require(first.output.empty() || first.output.back() == '\n');
    static_cast<void>(fromUtf8(first.output)); // throws, and so ends the run, for what is no UTF-8
    if (size <= longestPlayedTwice)
        require(play(script) == first);
    return 0;
}
