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

template <typename T>
Outcome outcome(HRESULT result, const T& value)
{
    return SUCCEEDED(result) ? Outcome(value) : Outcome(refusalOf(result));
}

Outcome outcome(HRESULT result, const Text& text)
{
    return outcome(result, text.string());
}

VARIANT variantOf(double number, VARTYPE type)
{
    VARIANT value;
    VariantInit(&value);
    value.vt = type;
    value.dblVal = number;
    return value;
}

Outcome formatted(VARIANT value, const Case& asked)
{
    const LCID locale = localeOf(asked.language);
    const Text pattern(asked.pattern);
    std::array<BYTE, 512> tokens{};
    HRESULT result =
        VarTokenizeFormatString(pattern.get(), tokens.data(), static_cast<int>(tokens.size()), 0, 0, locale, nullptr);
    Text written;
    if (SUCCEEDED(result))
        result = VarFormatFromTokens(&value, pattern.get(), tokens.data(), 0, written.put(), locale);
    return outcome(result, written);
}

} // namespace

Outcome systemOutcome(const Case& asked)
{
    const LCID locale = localeOf(asked.language);
    const Text text(asked.text);
    VARIANT value = variantOf(asked.number, asked.question == Question::formatDate ? VT_DATE : VT_R8);
    Text written;
    double number = 0;
    CY currency{};
    switch (asked.question) {
    case Question::readNumber: return outcome(VarR8FromStr(text.get(), locale, 0, &number), number);
    case Question::readCurrency: return outcome(VarCyFromStr(text.get(), locale, 0, &currency), currency.int64);
    case Question::readDate: return outcome(VarDateFromStr(text.get(), locale, 0, &number), number);
    case Question::writeNumber: return outcome(VarBstrFromR8(asked.number, locale, 0, written.put()), written);
    case Question::writeDate: return outcome(VarBstrFromDate(asked.number, locale, 0, written.put()), written);
    case Question::formatNumber:
    case Question::formatDate: return formatted(value, asked);
    case Question::formatText:
        value.vt = VT_BSTR;
        value.bstrVal = text.get();
        return formatted(value, asked);
    case Question::fixedDecimals:
        return outcome(VarFormatNumber(&value, asked.decimals, -2, -2, 0, 0, written.put()), written);
    }
    return Refusal::other;
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
