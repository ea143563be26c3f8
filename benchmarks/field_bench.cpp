// What a field does for one key or one exit, beside ICU doing the nearest thing and beside the floor.
#include "benchmarks/allocations.h"
#include "engine/field/date_check.h"
#include "engine/field/keystroke.h"
#include "engine/field/mask.h"
#include "engine/field/number_display.h"
#include "engine/text/letter_case.h"

#include <benchmark/benchmark.h>
#include <unicode/ubrk.h>
#include <unicode/udat.h>
#include <unicode/unum.h>
#include <unicode/ustring.h>

#include <array>
#include <charconv>
#include <cstdlib>

namespace {

using namespace vela::engine;
using vela::bench::AllocationsPerTurn;

void require(UErrorCode status)
{
    if (U_FAILURE(status))
        std::abort();
}

// A key into a mask field that is reduced to its box: what the control asks of the filter.
void maskKeystroke(benchmark::State& state)
{
    constexpr std::u16string_view empty = u"___-____";
    constexpr std::u16string_view plate = u"abc1234";
    KeystrokeSettings settings;
    settings.textType = TipoText::Mascara;
    settings.autoTab = true;
    settings.mask = {empty, u"@@@-####", u"_"};
    std::u16string text(empty);
    KeyBox box{.text = &text, .maxLength = static_cast<int>(empty.size())};
    std::size_t typed = 0;
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        if (typed == plate.size()) {
            text = empty;
            box.caret = 0;
            typed = 0;
        }
        const int key = plate[typed++];
        const bool reads = needsOf(key, settings, KeyTurn::first).text;
        benchmark::DoNotOptimize(&reads);
        const KeyPlan plan = planKey(key, settings, box, KeyTurn::first);
        box.caret = plan.promptCaret.value_or(plan.writtenCaret.value_or(box.caret));
        const bool tab = tabFollows(plan.key, settings, box);
        benchmark::DoNotOptimize(&tab);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(maskKeystroke);

void floorReplaceOneCharacter(benchmark::State& state)
{
    const std::u16string text = u"ABC-1___";
    std::u16string edited;
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        edited = text;
        edited[5] = u'2';
        benchmark::DoNotOptimize(edited.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(floorReplaceOneCharacter);

void icuDecimalFormat(benchmark::State& state)
{
    UErrorCode status = U_ZERO_ERROR;
    UNumberFormat* format = unum_open(UNUM_PATTERN_DECIMAL, u"#,##0.00", -1, "pt_BR", nullptr, &status);
    require(status);
    std::array<UChar, 64> text{};
    double number = 1234567.5;
    for (auto _ : state) {
        const auto length = unum_formatDouble(format, number, text.data(), text.size(), nullptr, &status);
        benchmark::DoNotOptimize(text.data());
        benchmark::DoNotOptimize(&length);
        number += 1;
    }
    require(status);
    unum_close(format);
}
BENCHMARK(icuDecimalFormat);

void numberDisplay(benchmark::State& state)
{
    const NumberSettings settings{u",", u".", 2, true, ptBr()};
    const std::u16string text = u"1234567,5";
    std::u16string shown;
    displayNumber(text, settings, shown);
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        displayNumber(text, settings, shown);
        benchmark::DoNotOptimize(shown.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(numberDisplay);

void floorGroupedDigits(benchmark::State& state)
{
    std::array<char, 32> digits{};
    std::u16string shown;
    double number = 1234567.5;
    for (auto _ : state) {
        const auto end =
            std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, 2).ptr;
        const auto length = static_cast<std::size_t>(end - digits.data());
        shown.clear();
        for (std::size_t i = 0; i < length; ++i) {
            if (i != 0 && i + 3 < length && (length - 3 - i) % 3 == 0)
                shown.push_back(u'.');
            shown.push_back(static_cast<char16_t>(digits[i] == '.' ? ',' : digits[i]));
        }
        benchmark::DoNotOptimize(shown.data());
        number += 1;
    }
}
BENCHMARK(floorGroupedDigits);

void liveFormatKeystroke(benchmark::State& state)
{
    const NumberSettings settings{u",", u".", 2, false, ptBr()};
    const std::u16string text = u"1.234,567"; // a 7 typed behind 1.234,56
    LivePattern patterns;
    std::u16string shown;
    static_cast<void>(liveFormat(text, 9, settings, patterns, shown));
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        const auto caret = liveFormat(text, 9, settings, patterns, shown);
        benchmark::DoNotOptimize(&caret);
        benchmark::DoNotOptimize(shown.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(liveFormatKeystroke);

void dateCheck(benchmark::State& state)
{
    const DateCheckSettings settings{u"__/__/____", u"dd/mm/yyyy", u"_", ptBr()};
    const std::u16string text = u"29/02/2024";
    std::u16string corrected;
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        const bool accepted = checkDate(text, settings, corrected).accepted;
        benchmark::DoNotOptimize(&accepted);
    }
}
BENCHMARK(dateCheck);

void timeCheck(benchmark::State& state)
{
    const DateCheckSettings settings{u"__:__", u"hh:nn", u"_", ptBr()};
    const std::u16string text = u"23:59";
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        const bool accepted = checkTime(text, settings).accepted;
        benchmark::DoNotOptimize(&accepted);
    }
}
BENCHMARK(timeCheck);

void icuStrictParse(benchmark::State& state, const UChar* pattern, const UChar* text)
{
    UErrorCode status = U_ZERO_ERROR;
    UDateFormat* format = udat_open(UDAT_PATTERN, UDAT_PATTERN, "pt_BR", u"UTC", -1, pattern, -1, &status);
    require(status);
    udat_setLenient(format, false);
    for (auto _ : state) {
        const UDate date = udat_parse(format, text, -1, nullptr, &status);
        benchmark::DoNotOptimize(&date);
        benchmark::ClobberMemory();
    }
    require(status);
    udat_close(format);
}
void icuParseDate(benchmark::State& state)
{
    icuStrictParse(state, u"dd/MM/yyyy", u"29/02/2024");
}
BENCHMARK(icuParseDate);
void icuParseTime(benchmark::State& state)
{
    icuStrictParse(state, u"HH:mm", u"23:59");
}
BENCHMARK(icuParseTime);

constexpr std::u16string_view name = u"MARIA DOS SANTOS E SOUZA D'ÁVILA DE ALMEIDA";

void properCaseOfName(benchmark::State& state)
{
    std::u16string shown;
    properCase(name, shown);
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        properCase(name, shown);
        benchmark::DoNotOptimize(shown.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(properCaseOfName);

void icuTitleOfName(benchmark::State& state)
{
    UErrorCode status = U_ZERO_ERROR;
    UBreakIterator* words = ubrk_open(UBRK_WORD, "pt_BR", nullptr, 0, &status);
    require(status);
    std::array<UChar, 128> shown{};
    for (auto _ : state) {
        u_strToTitle(shown.data(), shown.size(), name.data(), static_cast<int>(name.size()), words, "pt_BR", &status);
        benchmark::DoNotOptimize(shown.data());
        benchmark::ClobberMemory();
    }
    require(status);
    ubrk_close(words);
}
BENCHMARK(icuTitleOfName);

} // namespace
