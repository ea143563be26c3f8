// Conversions and patterns of the engine, beside ICU doing the same and beside the standard library's floor.
#include "benchmarks/allocations.h"
#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"

#include <benchmark/benchmark.h>
#include <unicode/udat.h>
#include <unicode/unum.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <string>

namespace {

using namespace vela::engine;
using vela::bench::AllocationsPerTurn;

constexpr std::u16string_view amount = u"1.234.567,89";

void require(UErrorCode status)
{
    if (U_FAILURE(status))
        std::abort();
}

void numberRead(benchmark::State& state)
{
    const Locale& locale = ptBr();
    const std::u16string text(amount);
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        const double number = isNumeric(text, locale) ? toDouble(text, locale) : 0.0;
        benchmark::DoNotOptimize(&number);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(numberRead);

void floorFromChars(benchmark::State& state)
{
    const std::string text = "1234567.89";
    for (auto _ : state) {
        double number = 0;
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        std::from_chars(text.data(), text.data() + text.size(), number);
        benchmark::DoNotOptimize(&number);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(floorFromChars);

void icuParseNumber(benchmark::State& state)
{
    UErrorCode status = U_ZERO_ERROR;
    UNumberFormat* format = unum_open(UNUM_DECIMAL, nullptr, 0, "pt_BR", nullptr, &status);
    require(status);
    for (auto _ : state) {
        const double number =
            unum_parseDouble(format, amount.data(), static_cast<int>(amount.size()), nullptr, &status);
        benchmark::DoNotOptimize(&number);
        benchmark::ClobberMemory();
    }
    require(status);
    unum_close(format);
}
BENCHMARK(icuParseNumber);

void numberPattern(benchmark::State& state)
{
    const Pattern pattern(u"#,##0.00");
    const Locale& locale = ptBr();
    std::u16string text;
    pattern.format(1234567.89, locale, text);
    double number = 1234567.5;
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        text.clear();
        pattern.format(number, locale, text);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        number += 1.25;
    }
}
BENCHMARK(numberPattern);

void datePattern(benchmark::State& state)
{
    const Pattern pattern(u"dd/mm/yyyy");
    const Locale& locale = ptBr();
    std::u16string text;
    Date date = makeDate({2024, 2, 29});
    pattern.format(date, locale, text);
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        text.clear();
        pattern.format(date, locale, text);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        date.serial = date.serial < 80000 ? date.serial + 1 : 45351;
    }
}
BENCHMARK(datePattern);

void icuFormatDate(benchmark::State& state)
{
    constexpr double millisecondsPerDay = 86400000.0;
    UErrorCode status = U_ZERO_ERROR;
    UDateFormat* format = udat_open(UDAT_PATTERN, UDAT_PATTERN, "pt_BR", u"UTC", -1, u"dd/MM/yyyy", -1, &status);
    require(status);
    std::array<UChar, 64> text{};
    double day = 19782; // 29 February 2024
    for (auto _ : state) {
        udat_format(format, day * millisecondsPerDay, text.data(), static_cast<int>(text.size()), nullptr, &status);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        day = day < 54000 ? day + 1 : 19782;
    }
    require(status);
    udat_close(format);
}
BENCHMARK(icuFormatDate);

void dateRead(benchmark::State& state)
{
    const std::u16string text = u"29/02/2024";
    const Locale& locale = ptBr();
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        const auto date = tryParseDate(text, locale, {});
        benchmark::DoNotOptimize(&date);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(dateRead);

} // namespace
