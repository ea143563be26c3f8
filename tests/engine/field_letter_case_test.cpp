// The case mapping and the proper case of names.
#include "engine/text/letter_case.h"

#include <gtest/gtest.h>

namespace vela::engine {
namespace {

TEST(LetterCase, Units)
{
    struct Row {
        char16_t small;
        char16_t capital;
    };
    for (const Row row : {Row{u'a', u'A'},
                          {0xE0, 0xC0},
                          {0xFF, 0x178},
                          {0x13A, 0x139},
                          {0x3AC, 0x386},
                          {0x44F, 0x42F},
                          {0x451, 0x401}}) {
        EXPECT_EQ(upperCase(row.small), row.capital) << std::hex << int{row.small};
        EXPECT_EQ(lowerCase(row.capital), row.small) << std::hex << int{row.small};
        EXPECT_EQ(upperCase(row.capital), row.capital) << std::hex << int{row.capital};
        EXPECT_EQ(lowerCase(row.small), row.small) << std::hex << int{row.small};
    }
    for (const char16_t unit :
         {u'0', u'@', u'[', u'`', u'{', u'\xD7', u'\xF7', u'\xDF', u'\xB5', u'\x138', u'\xD800'}) {
        EXPECT_EQ(upperCase(unit), unit) << std::hex << int{unit};
        EXPECT_EQ(lowerCase(unit), unit) << std::hex << int{unit};
    }
}

TEST(LetterCase, NoUnitHasTwoCapitals)
{
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const auto from = static_cast<char16_t>(unit);
        ASSERT_EQ(upperCase(upperCase(from)), upperCase(from)) << std::hex << unit;
        if (upperCase(from) != from) {
            ASSERT_EQ(lowerCase(upperCase(from)), from) << std::hex << unit;
        }
    }
}

TEST(LetterCase, ContainsIgnoringCase)
{
    EXPECT_TRUE(containsIgnoringCase(u"abÇd", u"çD"));
    EXPECT_FALSE(containsIgnoringCase(u"abcd", u"ac"));
    EXPECT_TRUE(containsIgnoringCase(u"", u""));
    EXPECT_FALSE(containsIgnoringCase(u"", u"_"));
}

TEST(ProperCase, Names)
{
    struct Row {
        const char* rule;
        std::u16string_view text;
        std::u16string_view proper;
    };
    const Row rows[] = {
        {"particles are small", u"JOÃO DA SILVA", u"João da Silva"},
        {"none at the end", u"pedro de o", u"Pedro de O"},
        {"none at either end", u"da silva da", u"Da Silva Da"},
        {"two blanks", u"ana  da  costa", u"Ana  da  Costa"},
        {"neighbours share their blank", u"a e o u de da um em do x", u"A e o u de da um em do X"},
        {"every particle", u"x di de da do du ou com das dos a e o i u um em x",
         u"X di de da do du ou com das dos a e o i u um em X"},
        {"near misses", u"x dus uns coma an di, de. x", u"X Dus Uns Coma An Di, De. X"},
        {"a tab is no blank", u"x\tde\tx", u"X\tDe\tX"},
        {"words begin behind anything", u"maria-clara d'ávila 3a", u"Maria-Clara D'Ávila 3A"},
        {"the division sign is a letter", u"÷a x÷a", u"÷a X÷a"},
        {"y acute, thorn and y diaeresis separate", u"ÝAþaÿa", u"ýAþAÿA"},
        {"ü is the last letter", u"ÜBER Üa", u"Über Üa"},
        {"another alphabet separates", u"жaЖa", u"жAжA"},
        {"a lone surrogate", u"\xD800x", u"\xD800X"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(properCase(row.text), row.proper) << row.rule;
}

} // namespace
} // namespace vela::engine
