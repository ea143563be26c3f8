// Asking both sides and comparing their answers.
#include "tests/differential/cases.h"

#include "engine/conversions.h"
#include "engine/error.h"
#include "engine/pattern.h"
#include "tests/differential/system_library.h"

#include <cmath>
#include <cstdio>

namespace vela::differential {
namespace {

constexpr double tolerance = 1e-14;

Refusal refusalOf(int number)
{
    switch (number) {
    case engine::error_number::typeMismatch: return Refusal::typeMismatch;
    case engine::error_number::overflow: return Refusal::overflow;
    case engine::error_number::invalidCall: return Refusal::invalidArgument;
    default: return Refusal::other;
    }
}

Outcome ask(const Request& request)
{
    const Case& asked = request.asked;
    const engine::Locale& locale = request.locale;
    const engine::Date today{systemToday()};
    switch (asked.question) {
    case Question::readNumber: return engine::toDouble(asked.text, locale);
    case Question::readCurrency: return static_cast<long long>(engine::toCurrency(asked.text, locale).tenThousandths);
    case Question::readDate: return engine::toDate(asked.text, locale, today).serial;
    case Question::writeNumber: return engine::numberToText(asked.number, locale);
    case Question::writeDate: return engine::dateToText({asked.number}, locale);
    case Question::formatNumber: return engine::format(asked.number, asked.pattern, locale, today);
    case Question::formatDate: return engine::format(engine::Date{asked.number}, asked.pattern, locale, today);
    case Question::formatText: return engine::format(asked.text, asked.pattern, locale, today);
    case Question::fixedDecimals: return engine::formatNumber(asked.number, asked.decimals, locale);
    }
    return Refusal::other;
}

std::string utf8(const std::u16string& text)
{
    std::string result;
    for (const char16_t unit : text) {
        if (unit >= 0x20 && unit < 0x7F) {
            result.push_back(static_cast<char>(unit));
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(unit));
            result += escape;
        }
    }
    return result;
}

std::string exact(double number)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

const char* nameOf(Question question)
{
    switch (question) {
    case Question::readNumber: return "read number";
    case Question::readCurrency: return "read currency";
    case Question::readDate: return "read date";
    case Question::writeNumber: return "write number";
    case Question::writeDate: return "write date";
    case Question::formatNumber: return "format number";
    case Question::formatDate: return "format date";
    case Question::formatText: return "format text";
    case Question::fixedDecimals: return "fixed decimals";
    }
    return "?";
}

} // namespace

Request requestFor(const Case& asked)
{
    return {asked, asked.language == Language::portuguese ? engine::ptBr() : engine::enUs()};
}

Outcome engineOutcome(const Request& request)
{
    try {
        return ask(request);
    } catch (const engine::Error& error) {
        return refusalOf(error.number);
    }
}

bool agree(const Outcome& ours, const Outcome& theirs)
{
    const double* const ourNumber = std::get_if<double>(&ours);
    const double* const theirNumber = std::get_if<double>(&theirs);
    if (ourNumber != nullptr && theirNumber != nullptr) {
        const double scale = std::fabs(*theirNumber);
        return std::fabs(*ourNumber - *theirNumber) <= scale * tolerance;
    }
    return ours == theirs;
}

std::string describe(const Case& asked)
{
    std::string text = nameOf(asked.question);
    text += asked.language == Language::portuguese ? " pt-BR" : " en-US";
    switch (asked.question) {
    case Question::readNumber:
    case Question::readCurrency:
    case Question::readDate: return text + " \"" + utf8(asked.text) + "\"";
    case Question::writeNumber:
    case Question::writeDate: return text + " " + exact(asked.number);
    case Question::formatNumber:
    case Question::formatDate: return text + " " + exact(asked.number) + " with \"" + utf8(asked.pattern) + "\"";
    case Question::formatText: return text + " \"" + utf8(asked.text) + "\" with \"" + utf8(asked.pattern) + "\"";
    case Question::fixedDecimals: return text + " " + exact(asked.number) + " to " + std::to_string(asked.decimals);
    }
    return text;
}

std::string describe(const Outcome& outcome)
{
    if (const auto* text = std::get_if<std::u16string>(&outcome))
        return '"' + utf8(*text) + '"';
    if (const auto* number = std::get_if<double>(&outcome))
        return exact(*number);
    if (const auto* currency = std::get_if<long long>(&outcome))
        return std::to_string(*currency);
    switch (std::get<Refusal>(outcome)) {
    case Refusal::typeMismatch: return "type mismatch";
    case Refusal::overflow: return "overflow";
    case Refusal::invalidArgument: return "invalid argument";
    default: return "refused";
    }
}

} // namespace vela::differential
