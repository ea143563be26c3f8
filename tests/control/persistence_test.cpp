// Loading from bags that fail in the middle, and the orders of the keys.
#include "control/persistence.h"
#include "tests/support/bench.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace vela::test {
namespace {

using engine::Value;

// A bag that runs an act before it answers a key.
class ScriptedBag final : public platform::PropertyBag {
public:
    Value read(std::u16string_view key, const Value& defaultValue) override
    {
        asked.push_back(toUtf8(key));
        if (onKey)
            onKey(key);
        const auto found = values.find(std::u16string(key));
        return found != values.end() ? found->second : defaultValue;
    }
    void write(std::u16string_view key, const Value&, const std::optional<Value>&) override
    {
        asked.push_back(toUtf8(key));
    }

    std::map<std::u16string, Value> values;
    std::vector<std::string> asked;
    std::function<void(std::u16string_view)> onKey;
};

TEST(Persistence, ReadsAndWritesTheSameKeysInTwoOrders)
{
    Bench bench("");
    ScriptedBag bag;
    Field& f = bench.session.addField(u"f", true);
    f.control.load(bag);
    const std::vector<std::string> read = std::exchange(bag.asked, {});
    f.control.save(bag);
    ASSERT_GE(read.size(), 79U);
    EXPECT_EQ(read.front(), "MultLine");
    EXPECT_EQ(read[78], "FontStrikethru");
    EXPECT_EQ(bag.asked.front(), "EsquemaRetornoAtual");
    EXPECT_EQ(bag.asked[78], "Calendar_Selected");
    EXPECT_EQ(std::set(read.begin(), read.end()), std::set(bag.asked.begin(), bag.asked.end()));
}

// At each key in turn: the field is usable, and colours that were not read leave those of the process as they are,
// whatever an earlier control has loaded.
TEST(Loading, ThatFailsLeavesAUsableFieldWithDefaultsForTheRest)
{
    const popups::CalendarColours colours{{1}, {2}, {3}, {4}, {5}, {6}, {7}};
    bool someWereRead = false;
    for (const control::Property* const property : control::readingOrder()) {
        const std::u16string_view bad = property->key();
        SCOPED_TRACE(toUtf8(bad));
        Bench bench("");
        bench.session.popups().colours().put(colours);
        ScriptedBag bag;
        bag.values = {{u"TextType", 2}, {u"AutoSelect", true}, {u"MaxLength", 4}, {u"Calendar_Selected", 9}};
        bag.onKey = [bad](std::u16string_view key) {
            if (key == bad)
                engine::raise(70);
        };
        Field& f = bench.session.addField(u"f", true);
        EXPECT_EQ(errorOf([&] {
                      f.control.load(bag);
                      return 0;
                  }),
                  70);
        EXPECT_TRUE(someWereRead || bench.session.popups().colours().read() == colours);
        someWereRead = someWereRead || bad.starts_with(u"Calendar_");
        const bool isDate = control::getProperty(f.control, u"TextType") == Value(2);
        EXPECT_EQ(bench.shows(), isDate ? "|__/__/____" : "|");
        bench.run("set f TextType Data\nfocus f\nkeys \"29022024\"\n");
        EXPECT_EQ(bench.shows(), "29/02/2024|");
    }
}

} // namespace
} // namespace vela::test
