// Types any keys into any mask: literals never change, the caret stays in the text, and every rule holds throughout.
#include "engine/field/mask.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace vela::engine;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// The input is four lines: mask, rules, prompt, keys.
struct Script {
    std::u16string lines[4];

    Script(const std::uint8_t* data, std::size_t size)
    {
        std::size_t line = 0;
        for (std::size_t i = 0; i < size; ++i)
            if (data[i] == '\n' && line < 3)
                ++line;
            else
                lines[line].push_back(data[i]);
    }
};

bool satisfies(char16_t unit, char16_t rule)
{
    const bool digit = unit >= u'0' && unit <= u'9';
    const bool capital = unit >= u'A' && unit <= u'Z';
    return rule == u'#' ? digit : rule == u'@' ? capital : rule == u'?' && (digit || capital);
}

struct Field {
    MaskSettings settings;
    std::u16string text;
    int caret = 0;

    bool isInput(std::size_t i) const
    {
        return settings.promptChar.size() == 1 && settings.mask[i] == settings.promptChar.front();
    }

    void check() const
    {
        require(text.size() == settings.mask.size());
        require(caret >= 0 && static_cast<std::size_t>(caret) <= text.size());
        for (std::size_t i = 0; i < text.size(); ++i)
            if (!isInput(i))
                require(text[i] == settings.mask[i]);
            else if (text[i] != settings.promptChar.front() && !settings.maskRules.empty())
                require(i < settings.maskRules.size() && satisfies(text[i], settings.maskRules[i]));
    }

    void type(int key)
    {
        const auto before = text;
        const auto step = validateMask(key, caret, settings, text);
        require(step.textWritten || text == before);
        require(!step.textWritten || step.key != 0);
        if (step.textWritten)
            caret = step.caret;
        caret = step.promptCaret.value_or(caret);
    }

    void erase(int key, int length)
    {
        const auto before = text;
        if (const auto put = eraseInMask(key, caret, length, settings, text))
            caret = put->caret;
        else
            require(text == before);
    }

    void press(int key)
    {
        const int length = static_cast<int>(text.size());
        if (key < 8)
            caret = length == 0 ? 0 : key * length / 8;
        else if (key == 8)
            erase(8, 0);
        else if (key < 16)
            erase(key % 2 == 0 ? 46 : 8, length - caret < key - 8 ? length - caret : key - 8);
        else if (key < 24)
            erase(46, 0);
        else if (key < 32)
            caret = nextInputPosition(caret, settings).value_or(caret);
        else
            type(key);
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Script script(data, size);
    Field field{{script.lines[0], script.lines[1], script.lines[2]}, script.lines[0]};
    for (const char16_t key : script.lines[3]) {
        field.press(key);
        field.check();
    }
    require(layIntoMask({}, field.settings) == field.settings.mask);
    const auto value = maskedValue(field.text, field.settings);
    if (!value.empty() && field.settings.mask.size() < 255 && value.front() != u' ')
        require(layIntoMask(value, field.settings) == field.text);
    return 0;
}
