// Counts heap allocations, so that a benchmark can show how many one turn makes.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>

namespace vela::bench {

[[nodiscard]] std::uint64_t allocations() noexcept; // since the program began
[[nodiscard]] std::uint64_t bytesHeld() noexcept;   // now, on the heap

// Reports the allocations of one turn as the counter "allocs" when it goes out of scope.
class AllocationsPerTurn {
public:
    explicit AllocationsPerTurn(benchmark::State& state) : state_(state), before_(allocations()) {}
    ~AllocationsPerTurn()
    {
        const auto made = static_cast<double>(allocations() - before_);
        state_.counters["allocs"] = benchmark::Counter(made / static_cast<double>(state_.iterations()));
    }
    AllocationsPerTurn(const AllocationsPerTurn&) = delete;
    AllocationsPerTurn& operator=(const AllocationsPerTurn&) = delete;

private:
    benchmark::State& state_;
    std::uint64_t before_;
};

} // namespace vela::bench
