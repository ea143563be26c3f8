// The layout tables: everything in its place, reachable by keyboard, and named as scripts name it.
#include "apps/console/script_line.h"
#include "pages/layouts.h"
#include "pages/spoken_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace vela::pages {
namespace {

using platform::FormLayout;
using platform::WidgetKind;
using platform::WidgetRow;

std::string label(const FormLayout& layout, const WidgetRow& row)
{
    return console::toUtf8(layout.name) + "." + console::toUtf8(row.name) + "(" + std::to_string(row.index) + ")";
}

bool standTogether(const WidgetRow& a, const WidgetRow& b)
{
    return a.parent == b.parent && (a.tab == b.tab || a.tab < 0 || b.tab < 0);
}

bool overlap(const engine::RectTwips& a, const engine::RectTwips& b)
{
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

// The two groups of ppGeral take turns in one place; the tab strip lies under what stands on its tabs.
bool mayOverlap(const WidgetRow& a, const WidgetRow& b)
{
    const auto group = [](const WidgetRow& row) { return row.name == u"fraGotFocus" || row.name == u"fraLostFocus"; };
    const auto strip = [](const WidgetRow& row) { return row.kind == WidgetKind::tabStrip; };
    return (group(a) && group(b)) || (strip(a) && b.tab >= 0) || (strip(b) && a.tab >= 0);
}

char16_t accessKey(const WidgetRow& row)
{
    const char16_t key = row.accessKey;
    return key >= u'A' && key <= u'Z' ? static_cast<char16_t>(key + 32) : key;
}

class Layouts : public testing::TestWithParam<const FormLayout*> {};

TEST_P(Layouts, EveryRowStandsInsideItsContainerAndApartFromOthers)
{
    const FormLayout& layout = *GetParam();
    for (const WidgetRow& row : layout.rows) {
        SCOPED_TRACE(label(layout, row));
        const platform::WidgetId container = platform::findWidget(layout, row.parent);
        const WidgetRow* parent = container ? &layout.rows[static_cast<std::size_t>(container.value)] : nullptr;
        ASSERT_EQ(row.parent.empty(), parent == nullptr);
        if (parent) {
            EXPECT_EQ(parent->kind, WidgetKind::frame);
            EXPECT_LT(parent, &row);
            EXPECT_EQ(parent->tab, row.tab);
        }
        EXPECT_GT(row.place.width, 0);
        EXPECT_GE(row.place.left, parent ? 90 : 0);
        EXPECT_GE(row.place.top, parent ? 225 : 0);
        EXPECT_LE(row.place.left + row.place.width, parent ? parent->place.width - 60 : layout.width);
        EXPECT_LE(row.place.top + row.place.height, parent ? parent->place.height - 60 : layout.height);
        for (const WidgetRow& other : layout.rows)
            if (&row < &other && standTogether(row, other) && !mayOverlap(row, other)) {
                EXPECT_FALSE(overlap(row.place, other.place)) << label(layout, other);
            }
    }
}

TEST_P(Layouts, NamesAreUniqueAndAccessKeysAreUniqueOnATab)
{
    const FormLayout& layout = *GetParam();
    std::set<std::pair<std::u16string_view, int>> names;
    std::map<std::pair<int, char16_t>, std::string> keys;
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const WidgetRow& row = layout.rows[i];
        SCOPED_TRACE(label(layout, row));
        EXPECT_TRUE(names.insert({row.name, row.index}).second);
        EXPECT_EQ(row.caption.find(u'&'), std::u16string_view::npos);
        const char16_t key = accessKey(row);
        if (!key)
            continue;
        EXPECT_NE(row.caption.find(row.accessKey), std::u16string_view::npos);
        for (int tab = row.tab < 0 ? -1 : row.tab; tab <= (row.tab < 0 ? 3 : row.tab); ++tab) {
            const auto [place, added] = keys.insert({{tab, key}, label(layout, row)});
            EXPECT_TRUE(added) << "takes the key of " << place->second;
        }
        if (row.kind == WidgetKind::label) { // it hands the focus to the row behind it
            ASSERT_LT(i + 1, layout.rows.size());
            EXPECT_TRUE(takesFocus(layout.rows[i + 1].kind));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, Layouts,
                         testing::Values(&principalLayout(), &geralLayout(), &errosLayout(), &fonteLayout(),
                                         &calendarioLayout(), &paletaLayout()),
                         [](const auto& layout) { return console::toUtf8(layout.param->name); });

// Its label's text, in a frame's own group; what shows its own words needs none.
TEST_P(Layouts, EveryBoxAndListIsSpokenOf)
{
    const FormLayout& layout = *GetParam();
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const WidgetRow& row = layout.rows[i];
        const bool inPalette = row.name == u"Picture1"; // named by their colours
        if (takesFocus(row.kind) && row.caption.empty() && row.kind != WidgetKind::tabStrip && !inPalette) {
            const std::u16string name = spokenName(layout, platform::WidgetId{static_cast<int>(i)});
            const bool ofLabel = i > 0 && layout.rows[i - 1].kind == WidgetKind::label;
            EXPECT_FALSE(name.empty()) << label(layout, row);
            EXPECT_TRUE(!ofLabel || layout.rows[i - 1].caption.starts_with(name)) << label(layout, row);
        }
    }
}

TEST(PageLayouts, FitTheFrame)
{
    for (const FormLayout* layout :
         {&principalLayout(), &geralLayout(), &errosLayout(), &fonteLayout(), &calendarioLayout()}) {
        EXPECT_LE(layout->width, 5625);  // 250 dialog units of Tahoma 8
        EXPECT_LE(layout->height, 5363); // 220
    }
}

} // namespace
} // namespace vela::pages
