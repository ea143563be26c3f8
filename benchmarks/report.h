// Collects what the benchmarks measure and prints it as one table of ratios within the run.
#pragma once

#include <benchmark/benchmark.h>

#include <iosfwd>
#include <map>
#include <string>

namespace vela::bench {

struct Measured {
    double nanoseconds = 0;
    double allocations = -1; // a turn; below 0 where they were not counted
    double bytes = 0;        // held by one; 0 where they were not counted
};

// Takes the least time of the repetitions of each benchmark, and the most allocations and bytes.
class CollectingReporter final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    [[nodiscard]] const std::map<std::string, Measured>& measured() const { return measured_; }

private:
    std::map<std::string, Measured> measured_;
};

void printTable(const std::map<std::string, Measured>& measured, std::ostream& out);

} // namespace vela::bench
