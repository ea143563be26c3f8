// differential [COUNT [SEED]] [--no-list]: compares the engine with the system's automation library on chosen and on
// COUNT random cases. Exit status 1 when a difference is not a known one; --no-list knows none.
#include "tests/differential/generator.h"
#include "tests/differential/known_differences.h"
#include "tests/differential/system_library.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

namespace vela::differential {
namespace {

constexpr int defaultCount = 20000;
constexpr unsigned defaultSeed = 20240229;
constexpr int mostShown = 40;

class Tally {
public:
    explicit Tally(bool useList) : useList_(useList) {}

    void compare(Case asked)
    {
        ++compared_;
        if (asked.question == Question::fixedDecimals)
            asked.language = userIsPortuguese() ? Language::portuguese : Language::english;
        const Outcome ours = engineOutcome(requestFor(asked));
        const Outcome theirs = systemOutcome(asked);
        if (agree(ours, theirs))
            return;
        const auto known = useList_ ? explain(asked, theirs) : std::vector<const KnownDifference*>();
        if (known.empty()) {
            report(asked, ours, theirs);
            return;
        }
        ++listed_;
        for (const KnownDifference* difference : known)
            ++kinds_[difference];
    }

    [[nodiscard]] bool summarise() const
    {
        for (const auto& [difference, count] : kinds_)
            std::printf("  %7d  %.*s\n", count, static_cast<int>(difference->name.size()), difference->name.data());
        std::printf("differential: %d compared, %d unlisted, %d listed differences (%zu kinds)\n", compared_, unlisted_,
                    listed_, kinds_.size());
        return unlisted_ == 0;
    }

private:
    void report(const Case& asked, const Outcome& ours, const Outcome& theirs)
    {
        if (++unlisted_ <= mostShown) {
            std::printf("UNLISTED %s: engine %s, library %s\n", describe(asked).c_str(), describe(ours).c_str(),
                        describe(theirs).c_str());
        }
    }

    bool useList_;
    int compared_ = 0, unlisted_ = 0, listed_ = 0;
    std::map<const KnownDifference*, int> kinds_;
};

int run(int argumentCount, char** arguments)
{
    int count = defaultCount;
    unsigned seed = defaultSeed;
    bool useList = true;
    int position = 0;
    for (int i = 1; i < argumentCount; ++i)
        if (std::strcmp(arguments[i], "--no-list") == 0)
            useList = false;
        else if (position++ == 0)
            count = std::atoi(arguments[i]);
        else
            seed = static_cast<unsigned>(std::strtoul(arguments[i], nullptr, 10));
    Tally tally(useList);
    for (const Case& asked : chosenCases())
        tally.compare(asked);
    Generator generator(seed);
    for (int i = 0; i < count; ++i)
        tally.compare(generator.next());
    return tally.summarise() ? 0 : 1;
}

} // namespace
} // namespace vela::differential

int main(int argumentCount, char** arguments)
{
    return vela::differential::run(argumentCount, arguments);
}
