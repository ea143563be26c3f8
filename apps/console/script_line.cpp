// Reading a line's words.
#include "apps/console/script_line.h"

#include "apps/console/nearest.h"
#include "engine/text/characters.h"

#include <charconv>
#include <optional>

namespace vela::console {

namespace {

constexpr bool isBlank(char16_t unit) noexcept
{
    return unit == u' ' || unit == u'\t';
}

using engine::isDigit;

int hexDigit(char16_t unit) noexcept // -1: none
{
    if (isDigit(unit))
        return unit - u'0';
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return unit >= u'a' && unit <= u'f' ? unit - u'a' + 10 : -1;
}

class Splitter {
public:
    explicit Splitter(std::u16string_view line) : line_(line) {}

    std::vector<Word> words()
    {
        std::vector<Word> words;
        for (skipBlanks(); at_ < line_.size(); skipBlanks()) {
            const std::size_t date = dateLiteralLength();
            if (line_[at_] == u'#' && date == 0)
                break; // a comment
            words.push_back(word(date));
            if (at_ < line_.size() && !isBlank(line_[at_]))
                notACommand("no blank behind a closing quote");
        }
        return words;
    }

private:
    void skipBlanks()
    {
        while (at_ < line_.size() && isBlank(line_[at_]))
            ++at_;
    }

    Word word(std::size_t date)
    {
        Word word;
        take(word.bare, date);
        while (at_ < line_.size() && !isBlank(line_[at_]) && line_[at_] != u'"') {
            const bool valueFollows = line_[at_] == u'=';
            word.bare += line_[at_++];
            if (valueFollows)
                take(word.bare, dateLiteralLength());
        }
        if (at_ == line_.size() || line_[at_] != u'"')
            return word;
        if (!word.bare.empty() && word.bare.back() != u'=')
            notACommand("a quote inside a word");
        word.quoted = true;
        readQuoted(word.text);
        return word;
    }

    void take(std::u16string& into, std::size_t length)
    {
        into += line_.substr(at_, length);
        at_ += length;
    }

    void readQuoted(std::u16string& into)
    {
        for (++at_; at_ < line_.size(); ++at_) {
            if (line_[at_] == u'"') {
                ++at_;
                return;
            }
            into += line_[at_] == u'\\' ? escape() : line_[at_];
        }
        notACommand("a quote is not closed");
    }

    // Stands on the backslash; ends on the escape's last character.
    char16_t escape()
    {
        if (++at_ == line_.size())
            notACommand("a quote is not closed");
        switch (line_[at_]) {
        case u'"': return u'"';
        case u'\\': return u'\\';
        case u'n': return u'\n';
        case u'r': return u'\r';
        case u't': return u'\t';
        case u'u': return unitByNumber();
        default: notACommand("an unknown escape");
        }
    }

    char16_t unitByNumber()
    {
        int unit = 0;
        for (int i = 0; i < 4; ++i) {
            const int digit = ++at_ < line_.size() ? hexDigit(line_[at_]) : -1;
            if (digit < 0)
                notACommand("\\u wants four hexadecimal digits");
            unit = unit * 16 + digit;
        }
        return static_cast<char16_t>(unit);
    }

    // "#2024-02-29#" or "#2024-02-29 14:05:33#" that stands here and ends a word; 0: none.
    [[nodiscard]] std::size_t dateLiteralLength() const
    {
        for (const std::u16string_view picture : {u"#0000-00-00#", u"#0000-00-00 00:00:00#"}) {
            const std::u16string_view here = line_.substr(at_, picture.size());
            const std::size_t end = at_ + picture.size();
            if (matches(here, picture) && (end == line_.size() || isBlank(line_[end])))
                return picture.size();
        }
        return 0;
    }

    static bool matches(std::u16string_view text, std::u16string_view picture)
    {
        if (text.size() != picture.size())
            return false;
        for (std::size_t i = 0; i < text.size(); ++i)
            if (picture[i] == u'0' ? !isDigit(text[i]) : text[i] != picture[i])
                return false;
        return true;
    }

    std::u16string_view line_;
    std::size_t at_ = 0;
};

} // namespace

void notACommand(std::string why)
{
    throw NotACommand{std::move(why)};
}

void notACommand(std::string_view why, const Word& word)
{
    constexpr std::size_t longest = 40;
    const std::u16string_view text = word.quoted && word.bare.empty() ? word.text : word.bare;
    const bool cut = text.size() > longest;
    notACommand(std::string(why) + ": \"" + toUtf8(text.substr(0, longest)) + (cut ? "...\"" : "\""));
}

void notACommand(std::string_view why, const Word& word, const std::vector<std::u16string_view>& known)
{
    const auto meant = word.quoted ? std::nullopt : nearest(word.bare, known);
    if (!meant)
        notACommand(why, word);
    try {
        notACommand(why, word);
    } catch (NotACommand& complaint) {
        complaint.why += "; did you mean \"" + toUtf8(*meant) + "\"?";
        throw;
    }
}

std::vector<Word> splitWords(std::string_view line)
{
    const std::u16string text = fromUtf8(line);
    return Splitter(text).words();
}

const std::u16string& textOf(const Word& word)
{
    if (!word.isText())
        notACommand("a text in quotes is wanted", word);
    return word.text;
}

int integerOf(const Word& word)
{
    const std::string digits = word.quoted ? std::string() : toUtf8(word.bare);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size())
        notACommand("a whole number is wanted", word);
    return number;
}

void requireWords(Words words, std::size_t least, std::size_t most)
{
    if (words.size() < least)
        notACommand("words are missing behind", words.back());
    if (words.size() > most)
        notACommand("too many words", words[most]);
}

std::u16string fromUtf8(std::string_view bytes)
{
    if (auto text = engine::fromUtf8(bytes))
        return *std::move(text);
    notACommand("the line is not UTF-8 (a file in ANSI, Windows-1252, is read with --ansi)");
}

} // namespace vela::console
