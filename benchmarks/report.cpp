// The rows of the table: which benchmark stands beside which, and the ratio wanted.
#include "benchmarks/report.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>
#include <string_view>

namespace vela::bench {
namespace {

struct Row {
    std::string_view title;
    std::string_view benchmark;
    std::string_view beside;
    double goal = 0; // at least so many times faster; 0: none
};

constexpr std::array rows{
    Row{"mask keystroke, filter and engine", "maskKeystroke", "icuDecimalFormat", 10},
    Row{"mask keystroke, beside the floor", "maskKeystroke", "floorReplaceOneCharacter"},
    Row{"number display on exit", "numberDisplay", "icuDecimalFormat", 5},
    Row{"number display, beside the floor", "numberDisplay", "floorGroupedDigits"},
    Row{"live re-format keystroke", "liveFormatKeystroke", "icuDecimalFormat", 3},
    Row{"numeric test and text to double", "numberRead", "icuParseNumber", 15},
    Row{"the same, beside std::from_chars", "numberRead", "floorFromChars"},
    Row{"number with a kept pattern", "numberPattern", "icuDecimalFormat"},
    Row{"date check", "dateCheck", "icuParseDate", 60},
    Row{"time check", "timeCheck", "icuParseTime", 60},
    Row{"text to date", "dateRead", "icuParseDate"},
    Row{"date with a kept pattern", "datePattern", "icuFormatDate", 10},
    Row{"proper case with particles", "properCaseOfName", "icuTitleOfName", 6},
    Row{"whole key through a control's mask", "wholeMaskKey", "icuDecimalFormat", 2},
    Row{"saving a control", "saveControl", "createControl"},
    Row{"loading a control from all its keys", "loadControl", "createControl", 0.2},
};

void printRow(const Row& row, const Measured& own, const Measured& beside, std::ostream& out)
{
    out << std::left << std::setw(38) << row.title << std::right << std::fixed << std::setprecision(1) << std::setw(10)
        << own.nanoseconds << std::setw(8);
    if (own.allocations < 0)
        out << '-';
    else
        out << own.allocations;
    const double ratio = beside.nanoseconds / own.nanoseconds;
    out << "  " << std::left << std::setw(26) << row.beside << std::right << std::setw(10) << beside.nanoseconds
        << std::setw(8) << std::setprecision(ratio < 1 ? 2 : 1) << ratio;
    if (row.goal > 0)
        out << std::setw(7) << row.goal << (ratio >= row.goal ? "  reached" : "  NOT REACHED");
    out << '\n';
}

// The one row without a yardstick: time and bytes of a control, in themselves.
void printCreating(const Measured& creating, std::ostream& out)
{
    constexpr double mostNanoseconds = 3000, mostBytes = 2600;
    const bool reached = creating.nanoseconds <= mostNanoseconds && creating.bytes <= mostBytes;
    out << std::left << std::setw(38) << "creating a control, of 10,000" << std::right << std::setw(10)
        << creating.nanoseconds << " ns, " << std::setprecision(0) << creating.bytes << " bytes; at most "
        << mostNanoseconds << " ns, " << mostBytes << " bytes  " << (reached ? "reached" : "NOT REACHED") << '\n';
}

} // namespace

void CollectingReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred || run.run_type == Run::RT_Aggregate)
            continue;
        double nanoseconds = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        const auto counter = run.counters.find("allocs");
        const auto turns = run.counters.find("turns"); // in one iteration, where it is not one
        if (turns != run.counters.end())
            nanoseconds /= static_cast<double>(turns->second.value);
        const auto [place, first] = measured_.try_emplace(run.run_name.function_name);
        Measured& entry = place->second;
        entry.nanoseconds = first ? nanoseconds : std::min(entry.nanoseconds, nanoseconds);
        const auto bytes = run.counters.find("bytes");
        if (bytes != run.counters.end())
            entry.bytes = std::max(entry.bytes, static_cast<double>(bytes->second.value));
        if (counter != run.counters.end())
            entry.allocations = std::max(entry.allocations, static_cast<double>(counter->second.value));
    }
}

void printTable(const std::map<std::string, Measured>& measured, std::ostream& out)
{
    out << "row                                           ns  allocs  beside                            ns   ratio   "
           "goal\n";
    for (const Row& row : rows) {
        const auto own = measured.find(std::string(row.benchmark));
        const auto beside = measured.find(std::string(row.beside));
        if (own != measured.end() && beside != measured.end())
            printRow(row, own->second, beside->second, out);
    }
    if (const auto creating = measured.find("createControl"); creating != measured.end())
        printCreating(creating->second, out);
}

} // namespace vela::bench
