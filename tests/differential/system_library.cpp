// Calls into oleaut32.
#include "tests/differential/cases.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace vela::differential {
namespace {

LCID systemLocaleOf(LocaleIndex index)
{
    static const auto all = [] {
        std::array<LCID, localeNames.size()> ids{};
        for (std::size_t i = 0; i < ids.size(); ++i)
            ids[i] = LocaleNameToLCID(reinterpret_cast<const wchar_t*>(localeNames[i].data()), 0);
        return ids;
    }();
    return all[index];
}

// The library has no such conversion: what the C library reads of a text whose blanks have gone.
Outcome leadingNumber(const std::u16string& text)
{
    std::string plain;
    for (const char16_t unit : text)
        if (unit != u' ' && unit != u'\t' && unit != u'\n')
            plain.push_back(unit > 0x7E ? '?' : static_cast<char>(unit));
    const std::string_view start = std::string_view(plain).substr(0, 2);
    const bool hexadecimal = start == "&H" || start == "&h";
    if (hexadecimal || start == "&O" || start == "&o") {
        char* end = nullptr;
        const unsigned long long value = std::strtoull(plain.c_str() + 2, &end, hexadecimal ? 16 : 8);
        if (value > 0xFFFFFFFF)
            return Refusal::overflow;
        return static_cast<double>(value <= 0xFFFF && *end != '&' ? static_cast<short>(value)
                                                                  : static_cast<int>(value));
    }
    std::ranges::replace(plain, 'd', 'e');
    const double value = std::strtod(plain.c_str(), nullptr);
    return std::isfinite(value) ? Outcome(value) : Outcome(Refusal::overflow);
}

using Text = std::unique_ptr<OLECHAR, decltype(&SysFreeString)>;

Text textOf(const std::u16string& text)
{
    return {SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()), static_cast<UINT>(text.size())),
            SysFreeString};
}

Refusal refusalOf(HRESULT result)
{
    switch (static_cast<unsigned long>(result)) {
    case 0x80020005UL: return Refusal::typeMismatch;
    case 0x8002000AUL: return Refusal::overflow;
    case 0x80070057UL: return Refusal::invalidArgument;
    default: return Refusal::other;
    }
}

template <typename T>
Outcome outcome(HRESULT result, const T& value)
{
    return SUCCEEDED(result) ? Outcome(value) : Outcome(refusalOf(result));
}

Outcome outcome(HRESULT result, const BSTR& written)
{
    const Text owner(written, SysFreeString);
    return outcome(result, written ? std::u16string(reinterpret_cast<char16_t*>(written), SysStringLen(written))
                                   : std::u16string());
}

Outcome formatted(VARIANT value, const Case& asked)
{
    const LCID locale = systemLocaleOf(asked.locale);
    const Text pattern = textOf(asked.pattern);
    std::array<BYTE, 512> tokens{};
    HRESULT result =
        VarTokenizeFormatString(pattern.get(), tokens.data(), static_cast<int>(tokens.size()), 1, 1, locale, nullptr);
    BSTR written = nullptr;
    if (SUCCEEDED(result))
        result = VarFormatFromTokens(&value, pattern.get(), tokens.data(), 0, &written, locale);
    return outcome(result, written);
}

} // namespace

Outcome systemOutcome(const Case& asked)
{
    const LCID locale = systemLocaleOf(asked.locale);
    const Text text = textOf(asked.text);
    VARIANT value{};
    value.vt = asked.question == Question::formatDate ? VT_DATE : VT_R8;
    value.dblVal = asked.number;
    BSTR written = nullptr;
    double number = 0;
    CY currency{};
    switch (asked.question) {
    case Question::readNumber: return outcome(VarR8FromStr(text.get(), locale, 0, &number), number);
    case Question::readCurrency: return outcome(VarCyFromStr(text.get(), locale, 0, &currency), currency.int64);
    case Question::readDate: return outcome(VarDateFromStr(text.get(), locale, 0, &number), number);
    case Question::leadingNumber: return leadingNumber(asked.text);
    case Question::writeNumber: return outcome(VarBstrFromR8(asked.number, locale, 0, &written), written);
    case Question::writeDate: return outcome(VarBstrFromDate(asked.number, locale, 0, &written), written);
    case Question::formatNumber:
    case Question::formatDate: return formatted(value, asked);
    case Question::formatText:
        value.vt = VT_BSTR;
        value.bstrVal = text.get();
        return formatted(value, asked);
    case Question::fixedDecimals:
        return outcome(VarFormatNumber(&value, asked.decimals, -2, -2, 0, 0, &written), written);
    }
    return Refusal::other;
}

LocaleIndex userLocale()
{
    for (LocaleIndex index = 0; index < localeNames.size(); ++index)
        if (systemLocaleOf(index) == GetUserDefaultLCID())
            return index;
    return 0;
}

double systemToday()
{
    SYSTEMTIME now;
    GetSystemTime(&now);
    double serial = 0;
    SystemTimeToVariantTime(&now, &serial);
    return std::floor(serial);
}

} // namespace vela::differential
