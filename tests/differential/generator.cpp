// Random numbers, texts and patterns; the limits of each are in the lists of chosen values.
#include "tests/differential/cases.h"

#include <cmath>
#include <vector>

namespace vela::differential {
namespace {

using Text = std::u16string;
using Texts = std::vector<Text>;

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
    split(u"|0|#|0.00|#,##0|#,##0.00|0.0##|#.##|.00|000|0%|0.00%|##0.0e-0|0.0E+0|#,##0;(#,##0)|0.00;-0.00;zero"
          u"|0;;\"nada\"|000\\.000\\.000-00|\"R$ \"#,##0.00|###################0.00|###,###,###,###,###,##0.00"
          u"|Standard|Fixed|percent|Scientific|Currency|0,|#,##0,.0|0,,|.0|0.#####E-#|0.00E+##|0.0#e-00#|0;1;2;3");
const Texts datePatterns =
    split(u"|dd/mm/yyyy|d/m/yy|yyyy-mm-dd|dd.MM.yyyy|hh:nn|hh:nn:ss|h:nn AM/PM|h:n am/pm|hh a/p|d mmm yy"
          u"|dddd, d mmmm yyyy|ddd d mmm|dd/mm/yyyy hh:mm|mm/dd/yyyy|q y|yyy|d \"de\" mmmm|\\dd|hh:nn:ss AM/PM"
          u"|h \\h m, d/m|hh:mm dd/mm|Short Time|w");
const Texts ownDatePatterns = split(u"ddddd|h AMPM|Short Date|Medium Time|General Date|dddd, mmmm d, yyyy");
const Texts textPatterns = split(u"@|@@@@@|(@@) @@@@-@@@@|&&&&|<|>|@@&&|@;\"vazio\"|\\x@\\x&|>@@@|<&&");
const Texts words = split(u"|abc|ABC|Ação|ÉDEN|São João|ção|Öl|straße|b9|x y z|Ñandú");
const Texts limits = split(u"922337203685477,5807|922337203685477,5808|-922337203685477,5808|-922337203685477,5809"
                           u"|999999999999999|1000000000000000|0,0001|0,00006|0|-0|0,00|-0,00|00012|,5|5,");
const Texts limitDates =
    split(u"1/1/100|31/12/9999|29/02/2024|29/02/2023|28/02/1900|29/02/1900|1/1/29|1/1/30|1/1/49|1/1/50|23:59:59|24:00"
          u"|0:00|12:00 am|12:00 pm|11:59 pm|0.0|31/12/1899|31/04/2024|30/04/2024|31.12.2024");
constexpr double limitNumbers[] = {
    0,         1,     -1,     0.5,        -0.5,      2.5,        1.005,   0.125,    9.995,
    -0.001,    0.256, 0.0996, 999999.999, 1234567.5, 1e14,       1e15,    1e-4,     1e-5,
    0.05,      0.005, 0.0005, 0.045,      99999.5,   0.99999999, 1.0 / 3, 1.0 / 12, 999999999999999,
    5.6789e-05};
constexpr double limitSerials[] = {0,        0.5,       1,       2.525,    -1.25,   45323, 45323.58718,
                                   -657434,  2958465.5, 60,      36585.25, 0.99998, 1.5,   -0.75,
                                   29221.75, -657435,   2958466, 1e10,     -1e300};

// A section of fractions alone, whose whole digits the library loses: only fractions are formatted with it.
bool lacksWhole(std::u16string_view pattern)
{
    for (; !pattern.empty(); pattern.remove_prefix(std::min(pattern.find(u';'), pattern.size() - 1) + 1)) {
        const std::size_t mark = pattern.find_first_of(u"0#.;");
        if (mark != std::u16string_view::npos && pattern[mark] == u'.')
            return true;
    }
    return false;
}

Text decimal(int value)
{
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

class Shapes {
public:
    Shapes(LocaleIndex index, Random& random) : random_(random), index_(index), locale_(localeOf(index)) {}

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool once(int in) { return below(in) == 0; }
    Text oneOf(const Texts& texts) { return texts[random_() % texts.size()]; }

    Text digits(int least, int most)
    {
        Text text;
        for (int count = least + below(most - least + 1); count > 0; --count)
            text.push_back(static_cast<char16_t>(u'0' + below(10)));
        return text;
    }

    // Of every size between two powers of ten, with 1 to 15 digits.
    double number(int leastPower, int mostPower)
    {
        if (once(4))
            return limitNumbers[random_() % std::size(limitNumbers)];
        double value = 1 + below(9);
        int power = leastPower + below(mostPower - leastPower + 1);
        for (int more = below(13); more > 0 && power > leastPower; --more, --power)
            value = value * 10 + below(10);
        value = power < 0 ? value / std::pow(10.0, -power) : value * std::pow(10.0, std::min(power, 3));
        return once(3) ? -value : value;
    }

    // Without an exponent in the library's text of it.
    double plainNumber()
    {
        for (;;) {
            const double value = number(-4, 14), magnitude = std::fabs(value);
            if (value == 0 || (magnitude >= 1e-4 && magnitude < 1e15))
                return value;
        }
    }

    double serial()
    {
        if (once(4))
            return limitSerials[random_() % (std::size(limitSerials) - 4)]; // the last are beyond the calendar
        const int day = once(4) ? below(3615899) - 657434 : below(60000) - 500;
        const double time = once(3) ? 0 : below(86400) / 86400.0;
        return day < 0 ? day - time : day + time;
    }

    Text amount(int decimals)
    {
        Text text = oneOf(limits);
        if (once(8)) {
            const std::size_t comma = text.find(u',');
            return comma == Text::npos ? text : text.replace(comma, 1, locale_.decimal);
        }
        const Text whole = digits(1, 11);
        const bool grouped = once(3);
        text.clear();
        for (std::size_t i = 0; i < whole.size(); ++i)
            text += (grouped && i > 0 && (whole.size() - i) % 3 == 0 ? locale_.grouping : Text()) + whole[i];
        return once(3) ? text : text + locale_.decimal + digits(0, decimals);
    }

    // One sign or parentheses, before or behind; the currency symbol; blanks.
    Text numberText()
    {
        const Text text = amount(4), symbol = locale_.currencySymbol, sign = locale_.negativeSign;
        switch (text.front() == u'-' ? 9 : below(9)) {
        case 0: return sign + text;
        case 1: return text + sign;
        case 2: return u"(" + text + u")";
        case 3: return u"+" + text;
        case 4: return symbol + (once(2) ? u" " : u"") + text;
        case 5: return sign + symbol + text;
        case 6: return text + symbol;
        case 7: return u" " + text;
        default: return text;
        }
    }

    // A character in a place that makes it no number and no date.
    Text spoilt(Text text)
    {
        const auto place = static_cast<std::size_t>(below(static_cast<int>(text.size()) + 1));
        return text.insert(place, 1, u"x;%_*=!?[BCK"[below(12)]);
    }

    Text leadingText()
    {
        static const Texts tails = split(u"||| kg|,5|.|/2|-|R$|e|z9| 1 2"), signs = split(u"|||-|+|- | ");
        static const Texts radixes = split(u"&H|&h|&O|&o|& H");
        if (once(4)) {
            Text text = oneOf(radixes);
            const bool octal = (text.back() | 0x20) == u'o';
            for (int count = below(octal ? 11 : 9); count > 0; --count)
                text.push_back(u"01234567"
                               u"89ABCDEFabcdef"[below(octal ? 8 : 22)]);
            return text + (once(3) ? u"&" : once(3) ? u" Z" : u"");
        }
        Text text = oneOf(signs) + digits(once(6) ? 0 : 1, 12);
        if (once(2))
            text += u"." + digits(0, 8);
        if (once(4))
            text += (once(2) ? u"e" : u"d") + Text(once(2) ? u"-" : once(2) ? u"+" : u"") + digits(1, 2);
        if (once(5))
            text.insert(static_cast<std::size_t>(below(static_cast<int>(text.size()) + 1)), once(2) ? u" " : u"\t");
        return text + oneOf(tails);
    }

    Text timeText()
    {
        static const Texts halves = split(u" am| pm|am|PM");
        const Text text =
            decimal(below(25)) + u":" + decimal(below(61)) + (once(2) ? u":" + decimal(below(61)) : Text());
        return once(3) ? text + oneOf(halves) : text;
    }

    // With points where the locale writes them: elsewhere the library takes them for a time's.
    Text dateText()
    {
        static const Texts separators = split(u"/|/|-| |.");
        if (once(8))
            return oneOf(limitDates);
        if (once(5))
            return timeText();
        const Text separator = locale_.dateSeparator.starts_with(u'.') ? oneOf(separators) : separators[random_() % 4];
        const Text year = decimal(once(3) ? below(100) : once(10) ? 100 + below(9900) : 1900 + below(200));
        Text day = decimal(1 + below(31)), month = decimal(1 + below(12));
        if (once(5) && locale_.months[0][0] > u'9')
            month = (once(2) ? locale_.months : locale_.shortMonths)[random_() % 12];
        if (once(2))
            std::swap(day, month);
        const Text text = once(6)   ? year + separator + day + separator + month
                          : once(6) ? day + separator + month
                                    : day + separator + month + separator + year;
        return once(3) ? text + u" " + timeText() : text;
    }

    // Digit marks as they are written for fields: "#" before "0" in the whole part, "0" before "#" behind the point.
    Text section(bool exponents)
    {
        static const Texts wholes = split(u"0|#|##0|000|#,##0|#,###|#,##0|###,##0|00");
        static const Texts fractions = split(u"||.0|.00|.000|.0#|.##|.#|.00##");
        static const Texts exponentMarks = split(u"E+0|E-0|e+00|e-00|E+000|E-#|E+##|e-0#");
        if (exponents)
            return (once(2) ? u"0.0#" : u"00.0#") + oneOf(exponentMarks);
        const Text fraction = oneOf(fractions), whole = once(8) && fraction.size() > 1 ? u"" : oneOf(wholes);
        return whole + (once(8) && !whole.empty() ? once(3) ? u",," : u"," : u"") + fraction;
    }

    // Nothing behind an exponent: the library runs literals together across it.
    Text numberPattern()
    {
        static const Texts before = split(u"||||\"R$ \"|$|(|x |\\-"), behind = split(u"|||%| kg|)|\" m\"");
        if (once(3))
            return oneOf(numberPatterns);
        const bool exponents = once(5);
        Text text = oneOf(before) + section(exponents);
        if (exponents)
            return text;
        const Text ending = oneOf(behind);
        text += ending == u"%" && lacksWhole(text) ? u"" : ending;
        return once(4) ? text + u";(" + section(false) + u")" + (once(2) ? u";\"zero\"" : u"") : text;
    }

    // At most one mark of hours; a half of the day right behind it and at the end.
    Text datePattern()
    {
        static const Texts parts = split(u"d|dd|ddd|dddd|yy|yyyy|n|nn|s|ss|m|mm|mmm|mmmm|q|y|D|M|w");
        static const Texts separators = split(u"/|-| |.|:|, | \"de\" |\\h"), hours = split(u"h|hh|H");
        static const Texts halves = split(u" AM/PM| am/pm| a/p");
        if (once(3))
            return oneOf(datePatterns);
        if (index_ < 2 && once(4))
            return oneOf(ownDatePatterns);
        Text pattern;
        for (int count = 1 + below(4), hour = below(2 * count); count > 0; --count)
            pattern += (count == hour ? oneOf(hours) + u":nn " : Text()) + oneOf(parts) +
                       (count > 1 ? oneOf(separators) : Text());
        const bool hasHours = pattern.find(u"nn ") != Text::npos;
        return !hasHours && once(2) ? pattern + u" " + oneOf(hours) + u":nn" + oneOf(halves) : pattern;
    }

    void fillFormatText(Case& asked)
    {
        if (once(3)) {
            asked.text = oneOf(words);
            asked.pattern = oneOf(textPatterns);
        } else if (once(3)) {
            asked.text = decimal(1 + below(28)) + u"/" + decimal(1 + below(12)) + u"/" + decimal(1930 + below(100));
            asked.pattern = datePattern();
        } else {
            asked.text =
                once(4) ? oneOf(words) : decimal(1 + below(99999)) + locale_.decimal + decimal(1 + below(9999));
            do
                asked.pattern = numberPattern();
            while (lacksWhole(asked.pattern));
        }
    }

    void fillFormatNumber(Case& asked)
    {
        if (once(12)) {
            asked.pattern = datePattern();
            asked.number = once(4) ? limitSerials[random_() % 4 + std::size(limitSerials) - 4] : serial();
            return;
        }
        asked.pattern = once(12) ? oneOf(textPatterns) : numberPattern();
        asked.number = locale_.decimal == u"." || locale_.grouping == u"." ? number(-12, 18) : plainNumber();
        if (asked.number == 0 && asked.pattern.find_first_of(u"eE") != Text::npos)
            asked.number = 7;
        if (lacksWhole(asked.pattern))
            asked.number = (below(8001) - 4000) / 10000.0;
    }

private:
    Random& random_;
    LocaleIndex index_;
    const engine::Locale& locale_;
};

} // namespace

Case randomCase(Question question, Random& random)
{
    Case asked{.question = question};
    asked.locale = random() % 2 == 0 ? random() % 2 : random() % localeNames.size();
    Shapes shapes(asked.locale, random);
    switch (question) {
    case Question::readNumber:
        asked.text = shapes.once(12)  ? u"&H" + shapes.digits(1, 7)
                     : shapes.once(6) ? shapes.amount(6) + (shapes.once(2) ? u"e" : u"E-") + shapes.digits(1, 2)
                                      : shapes.numberText();
        break;
    case Question::readCurrency: asked.text = shapes.numberText(); break;
    case Question::readDate: asked.text = shapes.dateText(); break;
    case Question::leadingNumber: asked.text = shapes.leadingText(); break;
    case Question::writeNumber: asked.number = shapes.number(-25, 25); break;
    case Question::writeDate:
        asked.locale %= 2;
        asked.number = shapes.serial();
        break;
    case Question::formatNumber: shapes.fillFormatNumber(asked); break;
    case Question::formatDate:
        asked.number = shapes.serial();
        asked.pattern = shapes.datePattern();
        break;
    case Question::formatText: shapes.fillFormatText(asked); break;
    case Question::fixedDecimals:
        asked.number = shapes.plainNumber();
        asked.decimals = shapes.below(10);
        break;
    }
    if (question <= Question::readDate && shapes.once(8))
        asked.text = shapes.spoilt(asked.text);
    return asked;
}

} // namespace vela::differential
