// What a command did, as one JSON object.
#pragma once

#include "engine/error.h"

#include <string>
#include <string_view>
#include <vector>

namespace vela::console {

// {"line":3,"command":"get f Text","output":["f.Text = \"a\""],"error":null}; an error is an object of its number,
// source and description. A command that is no UTF-8 is taken for Windows-1252. No line end.
[[nodiscard]] std::string jsonRecord(long line, std::string_view command, const std::vector<std::string>& output,
                                     const engine::Error* error);

} // namespace vela::console
