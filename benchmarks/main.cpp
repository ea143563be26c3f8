// vela_bench [options of Google Benchmark] [FILE]: runs the benchmarks and prints their table, into FILE as well.
#include "benchmarks/report.h"

#include <fstream>
#include <iostream>

int main(int argumentCount, char** arguments)
{
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
