// The rows of the table: which benchmark stands beside which, and the ratio wanted.
#include "benchmarks/report.h"

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
};

void printRow(const Row& row, const Measured& own, const Measured& beside, std::ostream& out)
{
    out << std::left << std::setw(38) << row.title << std::right << std::fixed << std::setprecision(1) << std::setw(10)
        << own.nanoseconds << std::setw(8);
    if (own.allocations < 0) {
        out << '-';
    } else {
        out << own.allocations;
    }
    const double ratio = beside.nanoseconds / own.nanoseconds;
    out << "  " << std::left << std::setw(26) << row.beside << std::right << std::setw(10) << beside.nanoseconds
        << std::setw(8) << ratio;
    if (row.goal > 0) {
        out << std::setw(7) << row.goal << (ratio >= row.goal ? "  reached" : "  NOT REACHED");
    }
    out << '\n';
}

} // namespace

void CollectingReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
        if (run.error_occurred || (run.run_type == Run::RT_Aggregate && !median)) {
            continue;
        }
        Measured& entry = measured_[run.run_name.function_name];
        entry.nanoseconds = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        const auto counter = run.counters.find("allocs");
        entry.allocations = counter == run.counters.end() ? -1.0 : static_cast<double>(counter->second.value);
    }
}

void printTable(const std::map<std::string, Measured>& measured, std::ostream& out)
{
    out << "row                                           ns  allocs  beside                            ns   ratio   "
           "goal\n";
    for (const Row& row : rows) {
        const auto own = measured.find(std::string(row.benchmark));
        const auto beside = measured.find(std::string(row.beside));
        if (own != measured.end() && beside != measured.end()) {
            printRow(row, own->second, beside->second, out);
        }
    }
}

} // namespace vela::bench
