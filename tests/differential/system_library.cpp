// Calls into oleaut32.
#include "tests/differential/system_library.h"

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <cmath>

namespace vela::differential {
namespace {

LCID localeOf(Language language)
{
    return language == Language::portuguese ? 0x0416 : 0x0409;
}

class Text {
public:
    Text() = default;
    explicit Text(const std::u16string& text)
        : text_(SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()), static_cast<UINT>(text.size())))
    {
    }
    ~Text() { SysFreeString(text_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    [[nodiscard]] BSTR get() const { return text_; }
    [[nodiscard]] BSTR* put() { return &text_; }
    [[nodiscard]] std::u16string string() const
    {
        return text_ == nullptr ? std::u16string()
                                : std::u16string(reinterpret_cast<char16_t*>(text_), SysStringLen(text_));
    }

private:
    BSTR text_ = nullptr;
};

Refusal refusalOf(HRESULT result)
{
    switch (static_cast<unsigned long>(result)) {
    case 0x80020005UL: return Refusal::typeMismatch;
    case 0x8002000AUL: return Refusal::overflow;
    case 0x80070057UL: return Refusal::invalidArgument;
    default: return Refusal::other;
    }
}

template <typename T, typename U>
Answer<T> answer(HRESULT result, const U& value)
{
    return SUCCEEDED(result) ? Answer<T>{value, Refusal::none} : Answer<T>{std::nullopt, refusalOf(result)};
}

Answer<std::u16string> formatVariant(VARIANT& value, const std::u16string& pattern, Language language)
{
    const Text patternText(pattern);
    std::array<BYTE, 512> tokens{};
    HRESULT result = VarTokenizeFormatString(patternText.get(), tokens.data(), static_cast<int>(tokens.size()), 0, 0,
                                             localeOf(language), nullptr);
    Text text;
    if (SUCCEEDED(result)) {
        result = VarFormatFromTokens(&value, patternText.get(), tokens.data(), 0, text.put(), localeOf(language));
    }
    return answer<std::u16string>(result, text.string());
}

VARIANT variantOf(double number, VARTYPE type)
{
    VARIANT value;
    VariantInit(&value);
    value.vt = type;
    value.dblVal = number;
    return value;
}

} // namespace

Answer<double> systemDouble(const std::u16string& text, Language language)
{
    double number = 0;
    return answer<double>(VarR8FromStr(Text(text).get(), localeOf(language), 0, &number), number);
}

Answer<long long> systemCurrency(const std::u16string& text, Language language)
{
    CY currency{};
    const HRESULT result = VarCyFromStr(Text(text).get(), localeOf(language), 0, &currency);
    return answer<long long>(result, currency.int64);
}

Answer<double> systemDate(const std::u16string& text, Language language)
{
    double serial = 0;
    return answer<double>(VarDateFromStr(Text(text).get(), localeOf(language), 0, &serial), serial);
}

Answer<std::u16string> systemNumberText(double number, Language language)
{
    Text text;
    const HRESULT result = VarBstrFromR8(number, localeOf(language), 0, text.put());
    return answer<std::u16string>(result, text.string());
}

Answer<std::u16string> systemDateText(double serial, Language language)
{
    Text text;
    const HRESULT result = VarBstrFromDate(serial, localeOf(language), 0, text.put());
    return answer<std::u16string>(result, text.string());
}

Answer<std::u16string> systemFormatNumber(double number, const std::u16string& pattern, Language language)
{
    VARIANT value = variantOf(number, VT_R8);
    return formatVariant(value, pattern, language);
}

Answer<std::u16string> systemFormatDate(double serial, const std::u16string& pattern, Language language)
{
    VARIANT value = variantOf(serial, VT_DATE);
    return formatVariant(value, pattern, language);
}

Answer<std::u16string> systemFormatText(const std::u16string& text, const std::u16string& pattern, Language language)
{
    const Text held(text);
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_BSTR;
    value.bstrVal = held.get();
    return formatVariant(value, pattern, language);
}

Answer<std::u16string> systemFixed(double number, int decimals)
{
    VARIANT value = variantOf(number, VT_R8);
    Text text;
    const HRESULT result = VarFormatNumber(&value, decimals, -2, -2, 0, 0, text.put());
    return answer<std::u16string>(result, text.string());
}

bool userIsPortuguese()
{
    return GetUserDefaultLCID() == 0x0416;
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
