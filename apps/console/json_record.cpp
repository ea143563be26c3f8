// JSON texts: quotes, backslashes and control characters escaped, all else as it is.
#include "apps/console/json_record.h"

#include "apps/console/ansi.h"
#include "engine/text/utf8.h"

#include <cstdio>

namespace vela::console {

namespace {

std::string jsonText(std::string_view utf8)
{
    std::string text = "\"";
    for (const char byte : utf8) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            text += '\\';
            text += byte;
        } else if (code < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(code));
            text += escape;
        } else {
            text += byte;
        }
    }
    return text + '"';
}

std::string jsonError(const engine::Error* error)
{
    if (error == nullptr)
        return "null";
    return "{\"number\":" + std::to_string(error->number) + ",\"source\":" + jsonText(engine::toUtf8(error->source)) +
           ",\"description\":" + jsonText(engine::toUtf8(error->description)) + "}";
}

} // namespace

std::string jsonRecord(long line, std::string_view command, const std::vector<std::string>& output,
                       const engine::Error* error)
{
    std::string record = "{\"line\":" + std::to_string(line) + ",\"command\":" +
                         jsonText(engine::fromUtf8(command) ? std::string(command) : utf8FromAnsi(command)) +
                         ",\"output\":[";
    for (const std::string& printed : output)
        record += (&printed == output.data() ? "" : ",") + jsonText(printed);
    return record + "],\"error\":" + jsonError(error) + "}";
}

} // namespace vela::console
