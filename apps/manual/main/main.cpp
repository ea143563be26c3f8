// Prints the manual's page of members: vela-manual > docs/en/reference.md
#include "apps/manual/members_page.h"

#include <cstdio>
#include <exception>

int main()
{
    try {
        std::fputs(vela::manual::membersPage().c_str(), stdout);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
