// Lines typed by hand, with editing and a history.
#pragma once

#include <string>

namespace vela::console {

// Whether a person types at standard input and reads standard output.
[[nodiscard]] bool typedByHand() noexcept;

class Prompt {
public:
    Prompt();
    Prompt(const Prompt&) = delete;
    Prompt& operator=(const Prompt&) = delete;
    ~Prompt();

    // The next line in UTF-8, without its end; false at the end of input.
    bool read(std::string& line);
};

} // namespace vela::console
