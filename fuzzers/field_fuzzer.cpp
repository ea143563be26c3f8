// Any text through what a field does with it: display, entry, live re-format, checks, `Value`, case and log.
#include "engine/field/date_check.h"
#include "engine/field/field_value.h"
#include "engine/field/number_display.h"
#include "engine/log_record.h"
#include "engine/text/letter_case.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vela::engine;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// Four bytes of choices, then UTF-16 units.
struct Input {
    std::uint8_t choices[4] = {};
    std::u16string text;

    Input(const std::uint8_t* data, std::size_t size)
    {
        const std::size_t head = std::min<std::size_t>(size, sizeof choices);
        if (head != 0)
            std::memcpy(choices, data, head);
        for (std::size_t i = sizeof choices; i + 1 < size; i += 2)
            text.push_back(static_cast<char16_t>(data[i] | data[i + 1] << 8));
    }

    const Locale& locale() const { return choices[0] % 2 == 0 ? ptBr() : enUs(); }
    std::u16string_view symbol(int which) const
    {
        constexpr std::u16string_view symbols[]{u"", u".", u",", u","};
        return symbols[choices[0] >> (1 + 2 * which) & 3];
    }
};

void number(const Input& input)
{
    const NumberSettings settings{input.symbol(0), input.symbol(1), input.choices[1], input.choices[2] % 2 == 0,
                                  input.locale()};
    std::u16string shown;
    displayNumber(input.text, settings, shown);
    try {
        static_cast<void>(currencySign(shown, settings.locale));
    } catch (const Error& error) {
        require(error.number == error_number::typeMismatch || error.number == error_number::overflow);
    }
    std::u16string decorated;
    if (applySymbol(shown, u"R$ ;%", decorated)) {
        std::u16string entered;
        entryForm(decorated, u"R$ ;%", {}, entered);
        require(entered == shown);
    }
    LivePattern patterns;
    std::u16string live;
    const int length = static_cast<int>(input.text.size());
    if (const auto caret = liveFormat(input.text, std::min<int>(input.choices[3], length), settings, patterns, live))
        require(*caret >= 0 && *caret <= static_cast<int>(live.size()) && live != input.text);
}

void date(const Input& input)
{
    const DateCheckSettings settings{u"__/__/____", input.choices[1] % 2 == 0 ? u"dd/mm/yyyy" : u"mdyyyymmdddd", u"_",
                                     input.locale()};
    std::u16string corrected;
    const auto verdict = checkDate(input.text, settings, corrected);
    require(verdict.accepted == verdict.message.empty());
    require(!verdict.failure || !verdict.accepted);
    if (verdict.corrected) // what it corrects is incomplete from then on, or begins with the prompt
        require(corrected.find(u'_') != std::u16string::npos && corrected.size() >= input.text.size());
    static_cast<void>(checkTime(input.text, {u"__:__", u"hh:nn:ss", u"_", input.locale()}));
}

void value(const Input& input)
{
    FieldSettings settings{.locale = input.locale()};
    settings.textType = static_cast<TipoText>(input.choices[2] % 5);
    settings.displayDecimal = input.symbol(0);
    settings.grouping = input.symbol(1);
    settings.returnDecimal = input.symbol(2);
    settings.qtdCasasDec = input.choices[1];
    settings.dateFormat = input.choices[3] % 2 == 0 ? u"dd/mm/yyyy" : u"hh:nn";
    settings.formatoRetornoData = u"yyyy-mm-dd";
    settings.mask = u"__/__/____";
    settings.promptChar = u"_";
    std::u16string corrected;
    static_cast<void>(readValue(input.text, settings, corrected));
    try {
        static_cast<void>(textForText(input.text, settings));
        static_cast<void>(textForValue(Value(input.text), settings));
    } catch (const Error& error) {
        require(error.number == error_number::typeMismatch || error.number == error_number::overflow);
    }
}

void letters(const Input& input)
{
    const auto proper = properCase(input.text);
    require(lowerCase(proper) == lowerCase(input.text));
    require(properCase(proper) == proper);
    const auto bytes = encode({1, input.text, {}});
    require(bytes.size() == input.text.size() + encode({1, {}, {}}).size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Input input(data, size);
    number(input);
    date(input);
    value(input);
    letters(input);
    return 0;
}
