// The prompt on systems with libedit.
#include "apps/console/main/prompt.h"

#include <cstdlib>
#include <editline/readline.h>
#include <unistd.h>

namespace vela::console {

bool typedByHand() noexcept
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

Prompt::Prompt()
{
    using_history();
}

Prompt::~Prompt() = default;

bool Prompt::read(std::string& line)
{
    char* const typed = ::readline("vela> ");
    if (typed == nullptr)
        return false;
    line = typed;
    std::free(typed);
    if (!line.empty())
        add_history(line.c_str());
    return true;
}

} // namespace vela::console
