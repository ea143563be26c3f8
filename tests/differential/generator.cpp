// Random numbers, texts and patterns of the shapes that fields meet, with a share of nonsense.
#include "tests/differential/generator.h"

#include <cmath>
#include <span>

namespace vela::differential {
namespace {

using Texts = std::vector<std::u16string>;

Texts split(std::u16string_view text)
{
    Texts result;
    for (std::size_t end = 0; end != std::u16string_view::npos;) {
        end = text.find(u'|');
        result.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::u16string_view::npos ? text.size() : end + 1);
    }
    return result;
}

const Texts numberPatterns =
    split(u"|0|#|0.00|#,##0|#,##0.00|0.0##|#.##|.00|000|0%|0.00%|0.00E+00|##0.0e-0|0.0E+0|#,##0;(#,##0)"
          u"|0.00;-0.00;zero|0;;\"nada\"|(00) 0000-0000|000\\.000\\.000-00|\"R$ \"#,##0.00|###################0.00"
          u"|###,###,###,###,###,##0.00|###.###.###.###.###.##0,00|###.###.###.###.###.##0.00"
          u"|###################0,00|Standard|Fixed|percent|Scientific|Currency|Yes/No|True/False|On/Off"
          u"|General Number|0;1;2;3|0;1;2;3;4");

// The library reads behind the end of a pattern with a "c" in its last characters: only as a whole pattern.
const Texts datePatterns =
    split(u"|dd/mm/yyyy|d/m/yy|yyyy-mm-dd|dd.MM.yyyy|hh:nn|hh:nn:ss|h:nn AM/PM|h:n am/pm|hh a/p|h AMPM"
          u"|dddd, d mmmm yyyy|ddd d mmm|dd/mm/yyyy hh:mm|mm/dd/yyyy|q y|ddddd|dddddd|ttttt|General Date|Long Date"
          u"|Medium Date|Short Date|Long Time|Medium Time|Short Time|yyy|d \"de\" mmmm|\\dd");

const Texts textPatterns = split(u"@|@@@@@|(@@) @@@@-@@@@|&&&&|!@@@@@|<|>|@@&&|@;\"vazio\"|\\x@\\x&");

const Texts monthNames = split(u"janeiro|fevereiro|março|dez|jan|mai|January|march|Dec|May|sep|agosto");
const Texts halves = split(u"am|pm|AM|PM");
const Texts dateSeparators = split(u"/|-|:|.| |, |/|/");

const Texts numberTexts =
    split(u"| |0|12|-12,5|1.234,5|1,234.5|1d3|1e3|1e--3|1e|(5)|(-5|(5|5-|5+-|+-5|- 5|R$ 1.234,50|$1,234.50|5 R$|&HFF"
          u"|&HFFFFFFFF|-&HFF|&O17|&O8|1e400|1e-400|,5|.5|,|.|0,000|1.2.3,4|123456789012345678901234567890"
          u"|922337203685477,5807|922337203685477,5808|1,00005|1,00015|10%|True");
const Texts dateTexts =
    split(u"|12|01/02/2024|12/31/1999|1/2|29/02/2023|2024-02-29|15:30|25:00|12:30 pm|15 março 2024|15 mar. 2024"
          u"|15 mar 2024|March 15, 2024|31.12.2024|01.02.03|1/1/29|1/1/30|1/1/49|1/1/50|1/1/100|31/12/9999|1/1/10000"
          u"|3 pm 1/2/2024|1/2/2024 4:5: |15 de março de 2024|segunda-feira, 15 janeiro 2024|2/2024|010224");

std::u16string decimal(int value)
{
    std::u16string text;
    for (const char digit : std::to_string(value))
        text.push_back(static_cast<char16_t>(digit));
    return text;
}

void addReadings(std::vector<Case>& cases, const Texts& texts, Question question)
{
    for (const std::u16string& text : texts)
        for (const Language language : {Language::portuguese, Language::english})
            cases.push_back({.question = question, .language = language, .text = text});
}

void addFormats(std::vector<Case>& cases, Question question, std::span<const double> numbers, const Texts& patterns)
{
    for (const double number : numbers) {
        for (const std::u16string& pattern : patterns)
            for (const Language language : {Language::portuguese, Language::english})
                cases.push_back({question, language, number, {}, pattern});
    }
}

} // namespace

std::vector<Case> chosenCases()
{
    static constexpr double numbers[] = {0,     1,       -1,         0.5,       -0.5,         2.5,   1.005,
                                         0.125, 9.995,   -0.001,     1234567.5, -1234567.891, 0.256, 1e15,
                                         1e20,  1.5e-10, 999999.999, 0.0996,    12345678901};
    static constexpr double serials[] = {0, 0.5, 1, 2.525, -1.25, 45323, 45323.58718, -657434, 2958465.5, 60, 36585};
    std::vector<Case> cases;
    addReadings(cases, numberTexts, Question::readNumber);
    addReadings(cases, numberTexts, Question::readCurrency);
    addReadings(cases, dateTexts, Question::readDate);
    addFormats(cases, Question::formatNumber, numbers, numberPatterns);
    addFormats(cases, Question::formatDate, serials, datePatterns);
    addFormats(cases, Question::formatDate, serials, numberPatterns);
    addFormats(cases, Question::formatNumber, serials, datePatterns);
    for (const std::u16string& text : split(u"|abc|1234,5|-0,00|01/02/2024|12:30|45323|Ação")) {
        for (const Texts* const patterns : {&numberPatterns, &datePatterns, &textPatterns})
            for (const std::u16string& pattern : *patterns)
                cases.push_back({.question = Question::formatText, .text = text, .pattern = pattern});
    }
    for (const double number : numbers) {
        cases.push_back({.question = Question::writeNumber, .number = number});
        cases.push_back({.question = Question::writeDate, .number = number < 2e6 ? number : 0});
        for (const int decimals : {0, 2, 9, 10})
            cases.push_back({.question = Question::fixedDecimals, .number = number, .decimals = decimals});
    }
    return cases;
}

const std::u16string& Generator::oneOf(const std::vector<std::u16string>& texts)
{
    return texts[random_() % texts.size()];
}

int Generator::below(int limit)
{
    return static_cast<int>(random_() % static_cast<unsigned>(limit));
}

double Generator::number()
{
    const double sign = below(3) == 0 ? -1.0 : 1.0;
    const double digits = static_cast<double>(random_() % 1000000007U);
    switch (below(6)) {
    case 0: return sign * below(2000);
    case 1: return sign * digits / std::pow(10.0, below(10));
    case 2: return sign * (digits + 0.5) / std::pow(10.0, below(6));
    case 3: return sign * std::ldexp(static_cast<double>(random_()), below(120) - 80);
    case 4: return sign * std::pow(10.0, below(40) - 20);
    default: return sign * digits * 1000 / std::pow(10.0, below(5));
    }
}

double Generator::serial()
{
    const int day = below(4) == 0 ? below(3615899) - 657434 : below(60000) - 500;
    const double time = below(3) == 0 ? 0 : below(86400) / 86400.0;
    return day < 0 ? day - time : day + time;
}

std::u16string Generator::textFrom(std::u16string_view alphabet, int most)
{
    std::u16string text;
    for (int length = below(most + 1); length > 0; --length)
        text.push_back(alphabet[static_cast<std::size_t>(below(static_cast<int>(alphabet.size())))]);
    return text;
}

std::u16string Generator::numberText()
{
    switch (below(4)) {
    case 0: return textFrom(u"0123456789,.", 24);
    case 1: return textFrom(u"01 5.,-+()", 8);
    case 2: return textFrom(u"019e,.-+d&H$R%", 8);
    default: return textFrom(u"0123456789", 9) + (below(2) == 0 ? u"," : u".") + textFrom(u"0123456789", 6);
    }
}

std::u16string Generator::dateText()
{
    std::u16string text = below(20) == 0 ? u" " : u"";
    for (int field = 0, fields = 1 + below(6); field < fields; ++field) {
        switch (below(12)) {
        case 0: text += oneOf(monthNames); break;
        case 1: text += decimal(1000 + below(1500)); break;
        case 2: text += decimal(below(120)); break;
        default: text += decimal(below(60));
        }
        if (field + 1 < fields || below(8) == 0)
            text += oneOf(dateSeparators);
        if (below(16) == 0)
            text += oneOf(halves);
    }
    return text;
}

// Without commas that divide: the library only groups.
std::u16string Generator::numberPattern()
{
    static constexpr std::u16string_view marks[] = {u"0#,.", u"00##,.%;()-x", u"0#,.%;E+e-\\\"x $("};
    if (below(2) == 0)
        return oneOf(numberPatterns);
    std::u16string pattern = textFrom(marks[below(3)], 14);
    for (std::size_t at = pattern.size(); at-- > 0;) {
        const std::u16string_view behind = std::u16string_view(pattern).substr(at + 1, 1);
        if (pattern[at] == u',' && behind != u"0" && behind != u"#")
            pattern.erase(at, 1);
    }
    return pattern;
}

std::u16string Generator::datePattern()
{
    if (below(2) == 0)
        return oneOf(datePatterns);
    // Months or hours: the library takes an "m" anywhere behind an hour for minutes.
    static const Texts months = split(u"m|mm|mmm|mmmm|M");
    static const Texts hours = split(u"h|hh|H|AM/PM|am/pm|a/p|AMPM");
    static const Texts parts = split(u"d|dd|ddd|dddd|yy|yyyy|n|nn|s|ss|/|:|-| |.|q|y|D|Y|\"de\"|\\d|x|0");
    const Texts& own = below(2) == 0 ? months : hours;
    std::u16string pattern;
    for (int count = below(7); count > 0; --count)
        pattern += oneOf(below(3) == 0 ? own : parts);
    return pattern;
}

std::u16string Generator::textPattern()
{
    return below(2) == 0 ? oneOf(textPatterns) : textFrom(u"@@&&!<>x-\\;", 8);
}

Case Generator::next()
{
    const Language language = below(2) == 0 ? Language::portuguese : Language::english;
    const auto reading = [&](Question question, const std::u16string& text) {
        return Case{.question = question, .language = language, .text = text};
    };
    const auto writing = [&](Question question, double value, const std::u16string& pattern = {}) {
        return Case{.question = question, .language = language, .number = value, .pattern = pattern};
    };
    switch (below(12)) {
    case 0: return reading(Question::readNumber, numberText());
    case 1: return reading(Question::readCurrency, numberText());
    case 2:
    case 3: return reading(Question::readDate, dateText());
    case 4: return writing(Question::writeNumber, number());
    case 5: return writing(Question::writeDate, serial());
    case 6:
    case 7: return writing(Question::formatNumber, number(), numberPattern());
    case 8:
    case 9: return writing(Question::formatDate, serial(), datePattern());
    case 10: {
        Case result = reading(Question::formatText, below(2) == 0 ? numberText() : textFrom(u"bcdWYZ 019", 9));
        result.pattern = below(3) == 0 ? numberPattern() : below(2) == 0 ? datePattern() : textPattern();
        return result;
    }
    default: {
        Case result = writing(Question::fixedDecimals, number());
        result.decimals = below(10);
        return result;
    }
    }
}

} // namespace vela::differential
