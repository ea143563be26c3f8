// The manual's page of members is the one the property table gives.
#include "apps/manual/members_page.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

TEST(Manual, MembersPageIsUpToDate)
{
    std::ifstream stream(std::filesystem::path(VELA_TEST_DIR) / ".." / ".." / "docs" / "en" / "reference.md", std::ios::binary);
    const std::string kept{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    EXPECT_EQ(kept, vela::manual::membersPage()) << "run vela-manual > docs/en/reference.md";
}
