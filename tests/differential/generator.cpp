// Random numbers, texts and patterns of the shapes that fields meet, with a share of nonsense.
#include "tests/differential/generator.h"

#include <array>
#include <cmath>
#include <span>

namespace vela::differential {
namespace {

using Texts = std::span<const std::u16string_view>;

constexpr std::u16string_view numberPatterns[] = {
    u"",
    u"0",
    u"#",
    u"0.00",
    u"#,##0",
    u"#,##0.00",
    u"0.0##",
    u"#.##",
    u".00",
    u"000",
    u"0%",
    u"0.00%",
    u"0.00E+00",
    u"##0.0e-0",
    u"0.0E+0",
    u"#,##0;(#,##0)",
    u"0.00;-0.00;zero",
    u"0;;\"nada\"",
    u"(00) 0000-0000",
    u"000\\.000\\.000-00",
    u"\"R$ \"#,##0.00",
    u"0,.0",
    u"#,##0,",
    u"0.0,,",
    u"###################0.00",
    u"###,###,###,###,###,##0.00",
    u"###.###.###.###.###.##0,00",
    u"###.###.###.###.###.##0.00",
    u"###################0,00",
    u"Standard",
    u"Fixed",
    u"percent",
    u"Scientific",
    u"Currency",
    u"Yes/No",
    u"True/False",
    u"On/Off",
    u"General Number",
    u"0;1;2;3",
    u"0;1;2;3;4",
};

// The library reads behind the end of a pattern with a "c" in its last characters: only as a whole pattern.
constexpr std::u16string_view datePatterns[] = {
    u"",           u"dd/mm/yyyy",       u"d/m/yy",      u"yyyy-mm-dd",   u"dd.MM.yyyy", u"hh:nn",
    u"hh:nn:ss",   u"h:nn AM/PM",       u"h:n am/pm",   u"hh a/p",       u"h AMPM",     u"dddd, d mmmm yyyy",
    u"ddd d mmm",  u"dd/mm/yyyy hh:mm", u"mm/dd/yyyy",  u"q y",          u"w",          u"ww",
    u"ddddd",      u"dddddd",           u"ttttt",       u"General Date", u"Long Date",  u"Medium Date",
    u"Short Date", u"Long Time",        u"Medium Time", u"Short Time",   u"yyy",        u"d \"de\" mmmm",
    u"\\dd",
};

constexpr std::u16string_view textPatterns[] = {u"@", u"@@@@@", u"(@@) @@@@-@@@@", u"&&&&",        u"!@@@@@",
                                                u"<", u">",     u"@@&&",           u"@;\"vazio\"", u"\\x@\\x&"};

constexpr std::array<std::u16string_view, 12> monthNames{u"janeiro", u"fevereiro", u"março", u"dez", u"jan", u"mai",
                                                         u"January", u"march",     u"Dec",   u"May", u"sep", u"agosto"};
constexpr std::array<std::u16string_view, 6> halves{u"am", u"pm", u"AM", u"PM", u"a", u"p"};
constexpr std::array<std::u16string_view, 8> dateSeparators{u"/", u"-", u":", u".", u" ", u", ", u"/", u"/"};

std::u16string decimal(int value)
{
    std::u16string text;
    for (const char digit : std::to_string(value)) {
        text.push_back(static_cast<char16_t>(digit));
    }
    return text;
}

void addReadings(std::vector<Case>& cases)
{
    for (const std::u16string_view text : {u"",
                                           u" ",
                                           u"0",
                                           u"12",
                                           u"-12,5",
                                           u"1.234,5",
                                           u"1,234.5",
                                           u"1d3",
                                           u"1e3",
                                           u"1e--3",
                                           u"1e",
                                           u"(5)",
                                           u"(-5",
                                           u"(5",
                                           u"5-",
                                           u"5+-",
                                           u"+-5",
                                           u"- 5",
                                           u"R$ 1.234,50",
                                           u"$1,234.50",
                                           u"5 R$",
                                           u"&HFF",
                                           u"&HFFFFFFFF",
                                           u"-&HFF",
                                           u"&O17",
                                           u"&O8",
                                           u"1e400",
                                           u"1e-400",
                                           u",5",
                                           u".5",
                                           u",",
                                           u".",
                                           u"0,000",
                                           u"1.2.3,4",
                                           u"123456789012345678901234567890",
                                           u"922337203685477,5807",
                                           u"922337203685477,5808",
                                           u"1,00005",
                                           u"1,00015",
                                           u"10%",
                                           u"True"}) {
        for (const Language language : {Language::portuguese, Language::english}) {
            cases.push_back({.question = Question::readNumber, .language = language, .text = std::u16string(text)});
            cases.push_back({.question = Question::readCurrency, .language = language, .text = std::u16string(text)});
        }
    }
    for (const std::u16string_view text : {u"",
                                           u"12",
                                           u"01/02/2024",
                                           u"12/31/1999",
                                           u"1/2",
                                           u"29/02/2023",
                                           u"2024-02-29",
                                           u"15:30",
                                           u"25:00",
                                           u"12:30 pm",
                                           u"15 março 2024",
                                           u"15 mar. 2024",
                                           u"15 mar 2024",
                                           u"March 15, 2024",
                                           u"31.12.2024",
                                           u"01.02.03",
                                           u"1/1/29",
                                           u"1/1/30",
                                           u"1/1/49",
                                           u"1/1/50",
                                           u"1/1/100",
                                           u"31/12/9999",
                                           u"1/1/10000",
                                           u"3 pm 1/2/2024",
                                           u"1/2/2024 4:5: ",
                                           u"15 de março de 2024",
                                           u"segunda-feira, 15 janeiro 2024",
                                           u"2/2024",
                                           u"3a",
                                           u"010224"}) {
        for (const Language language : {Language::portuguese, Language::english}) {
            cases.push_back({.question = Question::readDate, .language = language, .text = std::u16string(text)});
        }
    }
}

void addFormats(std::vector<Case>& cases, Question question, std::span<const double> numbers, Texts patterns)
{
    for (const double number : numbers) {
        for (const std::u16string_view pattern : patterns) {
            for (const Language language : {Language::portuguese, Language::english}) {
                cases.push_back({question, language, number, {}, std::u16string(pattern)});
            }
        }
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
    addReadings(cases);
    addFormats(cases, Question::formatNumber, numbers, numberPatterns);
    addFormats(cases, Question::formatDate, serials, datePatterns);
    addFormats(cases, Question::formatDate, serials, numberPatterns);
    addFormats(cases, Question::formatNumber, serials, datePatterns);
    for (const std::u16string_view text :
         {u"", u"abc", u"1234,5", u"-0,00", u"01/02/2024", u"12:30", u"45323", u"Ação"}) {
        for (const Texts patterns : {Texts(numberPatterns), Texts(datePatterns), Texts(textPatterns)}) {
            for (const std::u16string_view pattern : patterns) {
                cases.push_back({.question = Question::formatText,
                                 .text = std::u16string(text),
                                 .pattern = std::u16string(pattern)});
            }
        }
    }
    for (const double number : numbers) {
        cases.push_back({.question = Question::writeNumber, .number = number});
        cases.push_back({.question = Question::writeDate, .number = number < 2e6 ? number : 0});
        for (const int decimals : {0, 2, 9, 10}) {
            cases.push_back({.question = Question::fixedDecimals, .number = number, .decimals = decimals});
        }
    }
    return cases;
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
    for (int length = below(most + 1); length > 0; --length) {
        text.push_back(alphabet[static_cast<std::size_t>(below(static_cast<int>(alphabet.size())))]);
    }
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
        case 0: text += monthNames[static_cast<std::size_t>(below(12))]; break;
        case 1: text += decimal(1000 + below(1500)); break;
        case 2: text += decimal(below(120)); break;
        default: text += decimal(below(60));
        }
        if (field + 1 < fields || below(8) == 0) {
            text += dateSeparators[static_cast<std::size_t>(below(8))];
        }
        if (below(16) == 0) {
            text += halves[static_cast<std::size_t>(below(6))];
        }
    }
    return text;
}

std::u16string Generator::numberPattern()
{
    if (below(2) == 0) {
        return std::u16string(numberPatterns[static_cast<std::size_t>(below(std::size(numberPatterns)))]);
    }
    switch (below(3)) {
    case 0: return textFrom(u"0#,.", 12);
    case 1: return textFrom(u"00##,.%;()-x", 12);
    default: return textFrom(u"0#,.%;E+e-\\\"x $(", 14);
    }
}

std::u16string Generator::datePattern()
{
    if (below(2) == 0) {
        return std::u16string(datePatterns[static_cast<std::size_t>(below(std::size(datePatterns)))]);
    }
    std::u16string pattern;
    static constexpr std::u16string_view parts[] = {
        u"d", u"dd", u"ddd", u"dddd", u"m", u"mm", u"mmm",    u"mmmm",  u"yy",  u"yyyy", u"h", u"hh",
        u"n", u"nn", u"s",   u"ss",   u"/", u":",  u"AM/PM",  u"am/pm", u"-",   u" ",    u".", u"q",
        u"y", u"w",  u"D",   u"M",    u"Y", u"H",  u"\"de\"", u"\\d",   u"a/p", u"AMPM", u"x", u"0"};
    for (int count = below(7); count > 0; --count) {
        pattern += parts[static_cast<std::size_t>(below(std::size(parts)))];
    }
    return pattern;
}

std::u16string Generator::textPattern()
{
    return below(2) == 0 ? std::u16string(textPatterns[static_cast<std::size_t>(below(std::size(textPatterns)))])
                         : textFrom(u"@@&&!<>x-\\;", 8);
}

Case Generator::next()
{
    Case result;
    result.language = below(2) == 0 ? Language::portuguese : Language::english;
    switch (below(12)) {
    case 0:
        result.question = Question::readNumber;
        result.text = numberText();
        break;
    case 1:
        result.question = Question::readCurrency;
        result.text = numberText();
        break;
    case 2:
    case 3:
        result.question = Question::readDate;
        result.text = dateText();
        break;
    case 4:
        result.question = Question::writeNumber;
        result.number = number();
        break;
    case 5:
        result.question = Question::writeDate;
        result.number = serial();
        break;
    case 6:
    case 7:
        result.question = Question::formatNumber;
        result.number = number();
        result.pattern = numberPattern();
        break;
    case 8:
    case 9:
        result.question = Question::formatDate;
        result.number = serial();
        result.pattern = datePattern();
        break;
    case 10:
        result.question = Question::formatText;
        result.text = below(2) == 0 ? numberText() : textFrom(u"abcWYZ 019", 9);
        result.pattern = below(3) == 0 ? numberPattern() : below(2) == 0 ? datePattern() : textPattern();
        break;
    default:
        result.question = Question::fixedDecimals;
        result.number = number();
        result.decimals = below(10);
        break;
    }
    return result;
}

} // namespace vela::differential
