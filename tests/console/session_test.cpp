// What a transcript cannot hold: huge and broken scripts, what ends a run, printing of values.
#include "apps/console/value_text.h"
#include "tests/support/bench.h"

#include <gtest/gtest.h>

namespace vela::console {
namespace {

using test::Bench;

TEST(Session, hugeTextsGoThrough)
{
    const std::string huge(1'000'000, 'a');
    Bench bench;
    EXPECT_EQ(bench.run("set f Text \"" + huge + "\"\nget f Text\nset f Mask \"" + huge +
                        "\"\nset f Text \"b\"\nget f Text\n"),
              "f.Text = \"" + huge + "\"\nerror 6 \"Vela\" \"Overflow\"\nf.Text = \"b\"\n");
}

TEST(Session, aHugeLineThatIsNoCommandIsOneComplaint)
{
    Bench bench("");
    EXPECT_EQ(bench.run(std::string(3'000'000, 'x') + "\n" + std::string(100'000, '"') + "\nprint \"on\""),
              "line 1: no such command: \"" + std::string(40, 'x') +
                  "...\"\nline 2: no blank behind a closing quote\non\n");
    EXPECT_EQ(bench.session.exitStatus(), 2);
}

TEST(Session, unitsThatAreNoCharacters)
{
    using namespace std::string_literals;
    Bench bench;
    EXPECT_EQ(bench.run("set f Text \"a\0b\"\nget f Text\nset f Text \"a\\u0000b\"\nget f Text\n\0\n"s),
              "f.Text = \"a\\u0000b\"\nf.Text = \"a\\u0000b\"\nline 6: no such command: \"\0\"\n"s);
    EXPECT_EQ(bench.run("set f Text \"\\uD83Dx\\uDE00\"\nget f Text\nprint \"\\uD83D\"\n"),
              "f.Text = \"\\uD83Dx\\uDE00\"\n\xEF\xBF\xBD\n");
}

// A command that is refused has done nothing, not even its first part.
TEST(Session, refusedLinesLeaveNothingBehind)
{
    Bench bench("load f Text=\"x\" nonsense\nnew f\nfocus f\nkeys \"abc{NOKEY}\"\ntrace all nothing\nfocus none\n"
                "answer \"a\" \"b\"\n");
    EXPECT_EQ(bench.run("get f Text\ncall f About\n"), "f.Text = \"\"\nabout \"Vela - Compilação 1.0.0000\"\n");
    EXPECT_EQ(bench.session.exitStatus(), 2);
}

TEST(Session, theEndOfARunPrintsNothing)
{
    std::string output;
    {
        Session session([&](std::string_view bytes) { output += bytes; }, [](std::string_view) {});
        session.runScript("trace all\nnew f\nset f TextType Data\nset f ShowButtonCalendario True\n"
                          "set f ToolTipGotFocus \"tip\"\nfocus f\nbutton f\ntip new\ntip create\n");
        output.clear();
    }
    EXPECT_EQ(output, "");
}

struct PrintedValue {
    engine::Value value;
    std::string text;
};

TEST(Values, printInTheShortestFormThatReadsBack)
{
    const PrintedValue rows[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {-1.5, "-1.5"},
        {1e14, "100000000000000"},
        {999999999999999.9, "999999999999999.9"},
        {1e15, "1e+15"},
        {-1234567890123456.0, "-1.234567890123456e+15"},
        {1e-7, "0.0000001"},
        {5e-324, "0." + std::string(323, '0') + "5"},
        {std::int32_t{-2147483647} - 1, "-2147483648"},
        {engine::Date{0.5}, "#1899-12-30 12:00:00#"},
        {engine::Date{-1.25}, "#1899-12-29 06:00:00#"},
        {std::u16string(u"\x1F\x7F\"\\"), "\"\\u001F\x7F\\\"\\\\\""},
    };
    for (const PrintedValue& row : rows) {
        EXPECT_EQ(printed(row.value), row.text);
        const std::vector<Word> words = splitWords(row.text);
        ASSERT_EQ(words.size(), 1U) << row.text;
        EXPECT_EQ(printed(valueOf(words[0])), row.text);
    }
}

} // namespace
} // namespace vela::console
