// The distance between words, and the nearest of several.
#include "apps/console/nearest.h"

#include "engine/text/letter_case.h"

#include <algorithm>
#include <array>

namespace vela::console {

namespace {

constexpr std::size_t longest = 40; // longer words are no slips of the fingers
using Row = std::array<std::size_t, longest + 1>;

bool same(char16_t a, char16_t b) noexcept
{
    return engine::lowerCase(a) == engine::lowerCase(b);
}

// Insertions, removals, replacements and swaps of neighbours that turn one word into the other.
std::size_t distance(std::u16string_view a, std::u16string_view b)
{
    std::array<Row, longest + 1> cost{};
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = i + j;
                continue;
            }
            const std::size_t replaced = cost[i - 1][j - 1] + (same(a[i - 1], b[j - 1]) ? 0 : 1);
            cost[i][j] = std::min({cost[i - 1][j] + 1, cost[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && same(a[i - 1], b[j - 2]) && same(a[i - 2], b[j - 1]))
                cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
        }
    }
    return cost[a.size()][b.size()];
}

} // namespace

std::optional<std::u16string_view> nearest(std::u16string_view word, const std::vector<std::u16string_view>& known)
{
    std::optional<std::u16string_view> best;
    if (word.size() > longest)
        return best;
    std::size_t least = word.size() / 3 + 1;
    for (const std::u16string_view candidate : known) {
        if (candidate.size() > longest || candidate == word)
            continue;
        const std::size_t changes = distance(word, candidate);
        if (changes < least) {
            least = changes;
            best = candidate;
        }
    }
    return best;
}

} // namespace vela::console
