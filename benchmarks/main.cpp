// vela_bench [options of Google Benchmark] [FILE]: runs the benchmarks and prints their table, into FILE as well.
#include "benchmarks/report.h"

#include <fstream>
#include <iostream>
#include <vector>

int main(int argumentCount, char** given)
{
    // Several short rounds of all benchmarks in turn: what disturbs the machine for a while disturbs none of them
    // alone.
    char repetitions[] = "--benchmark_repetitions=9";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char shortly[] = "--benchmark_min_time=0.1";
    std::vector<char*> all{given[0], repetitions, interleaving, shortly};
    all.insert(all.end(), given + 1, given + argumentCount);
    argumentCount = static_cast<int>(all.size());
    all.push_back(nullptr);
    char** const arguments = all.data();
    benchmark::Initialize(&argumentCount, arguments);
    vela::bench::CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    vela::bench::printTable(reporter.measured(), std::cout);
    if (argumentCount > 1) {
        std::ofstream file(arguments[1]);
        vela::bench::printTable(reporter.measured(), file);
    }
    benchmark::Shutdown();
    return 0;
}
