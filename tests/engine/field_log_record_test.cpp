// The bytes of a log record.
#include "engine/log_record.h"

#include <gtest/gtest.h>

namespace vela::engine {
namespace {

TEST(LogRecord, FiveLines)
{
    EXPECT_EQ(encode({5, u"Invalid procedure call or argument", u"Procedimento: Vela.Timer "}),
              "\r\r\n"
              "Erro n\xB0: 5\r\n"
              "Motivo: Invalid procedure call or argument\r\n"
              "Procedimento: Vela.Timer \r\n"
              "\r\r\n");
}

TEST(LogRecord, CodePage)
{
    struct Row {
        char16_t unit;
        unsigned char byte;
    };
    for (const Row row : {Row{u'á', 0xE1},
                          {u'€', 0x80},
                          {u'\x201C', 0x93},
                          {u'\x178', 0x9F},
                          {u'\x81', 0x81},
                          {u'\x80', '?'},
                          {u'\x3A9', '?'},
                          {u'\xD83D', '?'},
                          {u'\0', 0}}) {
        const std::string bytes = encode({-7, std::u16string(1, row.unit), u""});
        const std::string expected =
            "\r\r\nErro n\xB0: -7\r\nMotivo: " + std::string(1, static_cast<char>(row.byte)) + "\r\n\r\n\r\r\n";
        EXPECT_EQ(bytes, expected) << std::hex << int{row.unit};
    }
}

} // namespace
} // namespace vela::engine
