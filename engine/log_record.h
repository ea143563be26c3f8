// One record of the error log, and its bytes in the log file.
#pragma once

#include <string>

namespace vela::engine {

struct LogRecord {
    int number = 0;
    std::u16string description;
    std::u16string label; // "Procedimento: ValidaMascara"
    friend bool operator==(const LogRecord&, const LogRecord&) = default;
};

// Windows-1252, five lines each ended by CR LF; the first and the last hold one CR. A character outside the
// code page becomes "?".
[[nodiscard]] std::string encode(const LogRecord& record);

} // namespace vela::engine
