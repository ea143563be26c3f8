// differential [COUNT [SEED]] [--no-list | --sabotage]: the engine beside two judges, the system's automation library
// on COUNT random cases and a table of answers seen on Windows; where those two differ, the table is right. Exit status
// 1 when a difference is not a known one. --no-list knows none; --sabotage makes the engine's answers wrong, one kind
// after the other, and fails when fewer than 99 of 100 wrong answers are noticed.
#include "tests/differential/known_differences.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace vela::differential {
namespace {

constexpr int defaultCount = 20000;
constexpr unsigned defaultSeed = 20240229;
constexpr int mostShown = 100, kinds = static_cast<int>(questionNames.size());
constexpr double leastNoticed = 0.99;

struct Counts {
    int agreed = 0, listed = 0, unlisted = 0;
};

class Judge {
public:
    Judge(bool useList, bool quiet) : useList_(useList), quiet_(quiet) {}

    // True when nothing is wrong with the engine's answer.
    bool compare(Case asked)
    {
        if (asked.question == Question::fixedDecimals)
            asked.locale = userLocale();
        const Request request{asked, localeOf(asked.locale)};
        return settle(request, engineOutcome(request), systemOutcome(asked), library_);
    }

    // The engine beside the table, and then the library beside it.
    void compare(const SeenValue& seen)
    {
        const Outcome ours = engineOutcome(seen.request), theirs = systemOutcome(seen.request.asked);
        if (!agreeWithSeen(seen, ours)) {
            ++table_[seen.request.asked.question].unlisted;
            report("TABLE", seen.request.asked, ours, seen.answer);
        } else if (agreeWithSeen(seen, theirs)) {
            ++table_[seen.request.asked.question].agreed;
        } else {
            settle(seen.request, ours, theirs, table_);
        }
    }

    [[nodiscard]] bool summarise() const
    {
        for (const auto& [difference, count] : kinds_)
            std::printf("  %7d  %.*s\n", count, static_cast<int>(difference->name.size()), difference->name.data());
        const bool table = summarise("table", table_), library = summarise("library", library_);
        return table && library;
    }

private:
    using ByQuestion = std::map<Question, Counts>;

    bool settle(const Request& request, const Outcome& ours, const Outcome& theirs, ByQuestion& counts)
    {
        Counts& count = counts[request.asked.question];
        if (agree(ours, theirs)) {
            ++count.agreed;
            return true;
        }
        const auto known = useList_ ? explain(request, theirs) : std::vector<const KnownDifference*>();
        for (const KnownDifference* difference : known)
            ++kinds_[difference];
        if (!known.empty()) {
            ++count.listed;
            return true;
        }
        ++count.unlisted;
        report("UNLISTED", request.asked, ours, theirs);
        return false;
    }

    void report(const char* what, const Case& asked, const Outcome& ours, const Outcome& judged)
    {
        if (!quiet_ && ++shown_ <= mostShown)
            std::printf("%s %s: engine %s, judge %s\n", what, describe(asked).c_str(), describe(ours).c_str(),
                        describe(judged).c_str());
    }

    static bool summarise(const char* judge, const ByQuestion& counts)
    {
        Counts all;
        for (const auto& [question, count] : counts) {
            std::printf("  %-7s %-14s %6d agreed %6d listed %4d unlisted\n", judge, nameOf(question).data(),
                        count.agreed, count.listed, count.unlisted);
            all.agreed += count.agreed;
            all.listed += count.listed;
            all.unlisted += count.unlisted;
        }
        std::printf("differential: %s: %d compared, %d unlisted, %d listed differences\n", judge,
                    all.agreed + all.listed + all.unlisted, all.unlisted, all.listed);
        return all.unlisted == 0;
    }

    bool useList_, quiet_;
    int shown_ = 0;
    ByQuestion table_, library_;
    std::map<const KnownDifference*, int> kinds_;
};

bool isNoticed(Question question, int count, unsigned seed)
{
    Judge judge(true, true);
    Random random(seed);
    int noticed = 0;
    for (int i = 0; i < count; ++i) {
        const Case asked = randomCase(question, random);
        sabotage(question, static_cast<unsigned>(i) % 5);
        const bool missed = judge.compare(asked);
        if (missed && i - noticed < 5)
            std::printf("missed: %s, fault %d\n", describe(asked).c_str(), i % 5);
        noticed += missed ? 0 : 1;
    }
    sabotage(std::nullopt);
    std::printf("sabotage: %-14s %d of %d noticed, %.2f %%\n", nameOf(question).data(), noticed, count,
                100.0 * noticed / count);
    return noticed >= leastNoticed * count;
}

bool everySabotageIsNoticed(int count, unsigned seed)
{
    bool all = true;
    for (int question = 0; question < kinds; ++question)
        all &= isNoticed(static_cast<Question>(question), count / kinds, seed);
    return all;
}

bool judged(bool useList, int count, unsigned seed)
{
    Judge judge(useList, false);
    for (const SeenValue& seen : seenValues(VELA_TEST_DIR "/windows_values.txt"))
        judge.compare(seen);
    Random random(seed);
    for (int i = 0; i < count; ++i)
        judge.compare(randomCase(static_cast<Question>(i % kinds), random));
    return judge.summarise();
}

} // namespace
} // namespace vela::differential

int main(int argumentCount, char** arguments)
{
    using namespace vela::differential;
    std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    const bool useList = std::erase(words, "--no-list") == 0, sabotages = std::erase(words, "--sabotage") > 0;
    const int count = words.empty() ? defaultCount : std::atoi(words[0].data());
    const unsigned seed = words.size() < 2 ? defaultSeed : static_cast<unsigned>(std::atoi(words[1].data()));
    try {
        return (sabotages ? everySabotageIsNoticed(count, seed) : judged(useList, count, seed)) ? 0 : 1;
    } catch (const std::exception& error) {
        std::printf("differential: %s\n", error.what());
        return 2;
    }
}
