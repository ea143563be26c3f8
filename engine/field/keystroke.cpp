// The keystroke filter, step by step: Backspace in templates, Enter, the rules of each type, automatic tabbing.
#include "engine/field/keystroke.h"

#include "engine/text/letter_case.h"

namespace vela::engine {
namespace {

constexpr bool isDigit(int key) noexcept
{
    return key >= u'0' && key <= u'9';
}

// One key on its way through the steps.
class Filter {
public:
    Filter(int key, KeystrokeSink& sink) : key_(key), sink_(sink), settings_(sink.settings()) {}

    int run()
    {
        const bool templated = settings_.textType == TipoText::Data || settings_.textType == TipoText::Mascara;
        if (templated && key_ == key_code::backspace)
            return backspaceInTemplate();
        if (key_ == key_code::enter && !passEnter())
            return key_;
        if (byType())
            automaticTab();
        return key_;
    }

private:
    int backspaceInTemplate()
    {
        sink_.validateMask(key_);
        if (!raiseKeyPress())
            return 0;
        return key_;
    }

    // Raises KeyPress for Enter and answers whether the key is handled further.
    // Oddity: Enter in a multi-line box raises KeyPress twice; handlers in use count on the second event.
    bool passEnter()
    {
        if (!raiseKeyPress())
            return false;
        if (settings_.enterAsTab) {
            sink_.tabKeyDown();
            key_ = 0;
            return false;
        }
        if (!settings_.multiLine) {
            key_ = 0;
            return false;
        }
        return true;
    }

    // The rules of the type; false when they end the handling of this key.
    bool byType()
    {
        switch (settings_.textType) {
        case TipoText::TextoNormal: return inFreeText();
        case TipoText::Numerico: return settings_.maskToNumeric ? inFixedPoint() : inNumber();
        case TipoText::Data: return inDate();
        case TipoText::Mascara: sink_.validateMask(key_); return raiseKeyPress();
        }
        return true; // a type beyond the enumeration: no rule, no event
    }

    bool inFreeText()
    {
        if (key_ == key_code::backspace) {
            static_cast<void>(raiseKeyPress());
            return false;
        }
        refuseWhenFull();
        if (settings_.letterCase == tipoTamanhoLetra::Maisculo)
            key_ = upperCase(static_cast<char16_t>(key_));
        else if (settings_.letterCase == tipoTamanhoLetra::Minusculo)
            key_ = lowerCase(static_cast<char16_t>(key_));
        if (!settings_.freeText)
            key_ = allowedKey(key_, settings_);
        return raiseKeyPress();
    }

    // Oddity: Backspace takes nothing away from a live amount; handlers expect no KeyPress for it.
    bool inFixedPoint()
    {
        if (!isDigit(key_)) {
            key_ = 0;
            return false;
        }
        return raiseKeyPress();
    }

    bool inNumber()
    {
        if (key_ == key_code::backspace)
            return false;
        refuseWhenFull();
        try {
            key_ = numericKey(key_, settings_, sink_);
        } catch (const Error& error) {
            key_ = 0;
            sink_.logNumericFailure(error);
        }
        return raiseKeyPress();
    }

    bool inDate()
    {
        if (!isDigit(key_))
            return false; // the box is locked: the key has no effect
        sink_.validateMask(key_);
        return raiseKeyPress();
    }

    void refuseWhenFull()
    {
        const int limit = sink_.maxLength();
        if (limit >= 1 && sink_.selectionLength() == 0 && sink_.textLength() == limit)
            key_ = 0;
    }

    // The host's handler may change the key and the settings. False when it destroyed the control: then nothing may be
    // used any more.
    bool raiseKeyPress()
    {
        auto key = static_cast<std::int16_t>(key_);
        if (!sink_.raiseKeyPress(key)) {
            key_ = 0;
            return false;
        }
        key_ = static_cast<std::uint16_t>(key);
        settings_ = sink_.settings();
        return true;
    }

    // Oddity: a refused key in the last place still moves on with AutoTAB; forms are filled in without the Tab key.
    void automaticTab()
    {
        if (!settings_.autoTab || key_ == key_code::backspace)
            return;
        switch (settings_.textType) {
        case TipoText::TextoNormal:
        case TipoText::Numerico: // the key being typed fills the last place
            if (sink_.caret() == sink_.maxLength() - 1)
                sink_.sendTab();
            return;
        case TipoText::Data:
        case TipoText::Mascara:
            if (!containsIgnoringCase(sink_.text(), settings_.promptChar) && sink_.caret() == sink_.maxLength())
                sink_.sendTab();
            return;
        }
    }

    int key_;
    KeystrokeSink& sink_;
    KeystrokeSettings settings_;
};

// Oddity: without AutoSelect a field that shows "0,00" refuses the comma that is typed; a second symbol would make the
// text no number.
int decimalKey(int key, std::u16string_view text, KeystrokeSink& sink)
{
    const auto symbol = static_cast<char16_t>(key);
    if (sink.selectionLength() == static_cast<int>(text.size())) {
        sink.writeText({&symbol, 1}, 1);
        return 0; // written already
    }
    return text.find(symbol) == std::u16string_view::npos ? key : 0;
}

// The caret has to stand behind the first decimal before a digit is refused.
// Oddity: a third decimal can be typed right behind the decimal symbol; people correct the first decimal that way.
int digitKey(int key, const KeystrokeSettings& settings, std::u16string_view text, const KeystrokeSink& sink)
{
    if (settings.decimal.empty())
        return key;
    const auto symbol = text.find(settings.decimal);
    if (symbol == std::u16string_view::npos)
        return key;
    const bool full = static_cast<int>(text.size() - symbol - 1) >= settings.decimals;
    return full && sink.caret() > static_cast<int>(symbol) + 1 ? 0 : key;
}

} // namespace

int filterKeystroke(int key, KeystrokeSink& sink)
{
    return Filter(key, sink).run();
}

// The text is read for every key, so that a box whose text cannot be read refuses every key.
int numericKey(int key, const KeystrokeSettings& settings, KeystrokeSink& sink)
{
    const auto text = sink.text();
    if (isDigit(key))
        return digitKey(key, settings, text, sink);
    switch (key) {
    case key_code::backspace: return key;
    case key_code::comma: return settings.displayDecimal == Simbolos::Virgula ? decimalKey(key, text, sink) : 0;
    case key_code::point: return settings.displayDecimal == Simbolos::Ponto ? decimalKey(key, text, sink) : 0;
    case key_code::minus:
        return settings.negatives && sink.caret() == 0 && text.find(u'-') == std::u16string_view::npos ? key : 0;
    default: return 0;
    }
}

int allowedKey(int key, const KeystrokeSettings& settings) noexcept
{
    if (key == key_code::enter && !settings.enterAsTab && settings.multiLine)
        return key;
    return settings.allowed.find(static_cast<char16_t>(key)) != std::u16string_view::npos ? key : 0;
}

} // namespace vela::engine
