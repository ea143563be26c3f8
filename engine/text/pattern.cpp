// Values through patterns: which of its three kinds a pattern is decides how a value is read.
#include "engine/text/pattern.h"

#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/date_pattern.h"
#include "engine/text/number_pattern.h"
#include "engine/text/pattern_compiler.h"
#include "engine/text/text_pattern.h"

namespace vela::engine {
namespace {

using Compiled = Pattern::Compiled;

NumberCase caseOf(const Decimal& number) noexcept
{
    return number.isZero() ? NumberCase::zero : number.negative ? NumberCase::negative : NumberCase::positive;
}

void putWithMarks(const Compiled& pattern, double number, const Locale& locale, TextWriter& writer)
{
    const Decimal decimal = decimalOf(number);
    putNumberPattern(pattern, decimal, caseOf(decimal), locale, writer);
}

void requireSections(const Compiled& pattern)
{
    if (pattern.tooManySections)
        raise(error_number::invalidCall);
}

Moment requireMoment(Date date)
{
    const auto moment = momentOf(date);
    if (!moment)
        raise(error_number::overflow);
    return *moment;
}

void putValue(const Compiled& pattern, double number, const Locale& locale, TextWriter& writer)
{
    switch (pattern.kind) {
    case PatternKind::general: return putNumber(number, locale, writer);
    case PatternKind::unknown:
    case PatternKind::number: return putWithMarks(pattern, number, locale, writer);
    case PatternKind::date: return putDatePattern(pattern, requireMoment({number}), locale, writer);
    case PatternKind::text: return putTextPattern(pattern, numberToText(number, locale), writer);
    }
}

void putValue(const Compiled& pattern, Date date, const Locale& locale, TextWriter& writer)
{
    const Moment moment = requireMoment(date);
    switch (pattern.kind) {
    case PatternKind::general:
        return pattern.named == NamedNumber::general ? putNumber(date.serial, locale, writer)
                                                     : putDate(moment, locale, writer);
    case PatternKind::number: return putWithMarks(pattern, date.serial, locale, writer);
    case PatternKind::unknown:
    case PatternKind::date: return putDatePattern(pattern, moment, locale, writer);
    case PatternKind::text: return putTextPattern(pattern, dateToText(date, locale), writer);
    }
}

// The double that a text stands for: a number first where the pattern wants one, a date first where it wants that.
std::optional<double> readText(PatternKind kind, std::u16string_view text, const Locale& locale, Date today) noexcept
{
    const auto number = tryParseDouble(text, locale);
    if (number && kind != PatternKind::date)
        return number;
    const auto date = tryParseDate(text, locale, today);
    return date ? date->serial : number;
}

void putValue(const Compiled& pattern, std::u16string_view text, const Locale& locale, Date today, TextWriter& writer)
{
    if (pattern.kind == PatternKind::text)
        return putTextPattern(pattern, text, writer);
    const bool asItStands = pattern.kind == PatternKind::general && pattern.named == NamedNumber::none;
    const auto number = asItStands ? std::nullopt : readText(pattern.kind, text, locale, today);
    number ? putValue(pattern, *number, locale, writer) : writer.put(text);
}

void putEmpty(const Compiled& pattern, const Locale& locale, TextWriter& writer)
{
    switch (pattern.kind) {
    case PatternKind::general: return;
    case PatternKind::unknown:
    case PatternKind::number: return putNumberPattern(pattern, Decimal{}, NumberCase::none, locale, writer);
    case PatternKind::date: return putValue(pattern, 0.0, locale, writer);
    case PatternKind::text: return putTextPattern(pattern, {}, writer);
    }
}

void putTruth(const Compiled& pattern, bool truth, const Locale& locale, TextWriter& writer)
{
    const std::u16string_view word = truth ? u"True" : u"False";
    switch (pattern.kind) {
    case PatternKind::general: return writer.put(word);
    case PatternKind::text: return putTextPattern(pattern, word, writer);
    default: return putValue(pattern, truth ? -1.0 : 0.0, locale, writer);
    }
}

struct ValueWriter {
    const Compiled& pattern;
    const Locale& locale;
    Date today;
    TextWriter& writer;

    void operator()(Empty) const { putEmpty(pattern, locale, writer); }
    void operator()(bool truth) const { putTruth(pattern, truth, locale, writer); }
    void operator()(std::int32_t whole) const { putValue(pattern, static_cast<double>(whole), locale, writer); }
    void operator()(double number) const { putValue(pattern, number, locale, writer); }
    void operator()(const std::u16string& text) const { putValue(pattern, text, locale, today, writer); }
    void operator()(Date date) const { putValue(pattern, date, locale, writer); }
};

template <typename Value>
void formatInto(const Compiled& pattern, Value value, const Locale& locale, std::u16string& into)
{
    requireSections(pattern);
    TextWriter writer(into);
    putValue(pattern, value, locale, writer);
    writer.flush();
}

} // namespace

Pattern::Pattern() : Pattern(std::u16string_view()) {}
Pattern::Pattern(std::u16string_view text) : compiled_(std::make_unique<Compiled>(compilePattern(text))) {}
Pattern::~Pattern() = default;
Pattern::Pattern(const Pattern& other) : compiled_(std::make_unique<Compiled>(*other.compiled_)) {}
Pattern::Pattern(Pattern&&) noexcept = default;
Pattern& Pattern::operator=(const Pattern& other)
{
    if (this != &other)
        compiled_ = std::make_unique<Compiled>(*other.compiled_);
    return *this;
}
Pattern& Pattern::operator=(Pattern&&) noexcept = default;

std::u16string_view Pattern::text() const noexcept
{
    return compiled_->source;
}

void Pattern::format(double number, const Locale& locale, std::u16string& into) const
{
    formatInto(*compiled_, number, locale, into);
}

void Pattern::format(Date date, const Locale& locale, std::u16string& into) const
{
    formatInto(*compiled_, date, locale, into);
}

std::u16string format(const Value& value, std::u16string_view pattern, const Locale& locale, Date today)
{
    const Compiled compiled = compilePattern(pattern);
    requireSections(compiled);
    std::u16string text;
    TextWriter writer(text);
    std::visit(ValueWriter{compiled, locale, today, writer}, value);
    writer.flush();
    return text;
}

} // namespace vela::engine
