// Texts through the "@" and "&" marks of a pattern.
#include "engine/text/text_pattern.h"

#include "engine/text/letter_case.h"

namespace vela::engine {
namespace {

class TextPatternWriter {
public:
    TextPatternWriter(const Pattern::Compiled& pattern, const Section& section, std::u16string_view text,
                      TextWriter& writer) noexcept
        : pattern_(pattern), section_(section), text_(text), writer_(writer)
    {
        if (!section.fromLeft && section.characters > text.size())
            missing_ = section.characters - text.size();
    }

    void write()
    {
        for (const Token& token : pattern_.tokensOf(section_))
            if (token.mark == Mark::literal)
                writer_.put(pattern_.literal(token));
            else
                putMarks(token.length, token.mark == Mark::at);
        putCharacters(text_.size() - at_);
    }

private:
    // Marks without a character are the first ones, or with "!" the last; only "@" shows a blank for them.
    void putMarks(std::size_t length, bool blanks)
    {
        if (blanks) {
            const std::size_t before = std::min(length, missing_);
            writer_.repeat(u' ', before);
            missing_ -= before;
            length -= before;
        }
        const std::size_t count = std::min(length, text_.size() - at_);
        putCharacters(count);
        if (blanks)
            writer_.repeat(u' ', length - count);
    }

    void putCharacters(std::size_t count)
    {
        for (; count > 0; --count, ++at_) {
            const char16_t unit = text_[at_];
            writer_.put(section_.lower ? lowerCase(unit) : section_.upper ? upperCase(unit) : unit);
        }
    }

    const Pattern::Compiled& pattern_;
    const Section& section_;
    std::u16string_view text_;
    TextWriter& writer_;
    std::size_t at_ = 0;
    std::size_t missing_ = 0;
};

} // namespace

void putTextPattern(const Pattern::Compiled& pattern, std::u16string_view text, TextWriter& writer)
{
    const Section& forEmpty = pattern.sections[1];
    const Section& section = text.empty() && forEmpty.written ? forEmpty : pattern.sections[0];
    TextPatternWriter(pattern, section, text, writer).write();
}

} // namespace vela::engine
