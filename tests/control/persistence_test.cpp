// Saving and loading: keys, orders, the mismatches that are kept, and bags that fail.
#include "field_bench.h"

#include "control/persistence.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

namespace vela::control {
namespace {

using Field = FieldBench::Field;
using engine::Value;

Value text(const char16_t* value)
{
    return std::u16string(value);
}

// A bag that runs an act before it answers a key.
class ScriptedBag final : public platform::PropertyBag {
public:
    Value read(std::u16string_view key, const Value& defaultValue) override
    {
        asked.push_back(narrow(key));
        if (onKey)
            onKey(key);
        const auto found = values.find(std::u16string(key));
        return found != values.end() ? found->second : defaultValue;
    }
    void write(std::u16string_view key, const Value& value, const std::optional<Value>& defaultValue) override
    {
        asked.push_back(narrow(key));
        if (!defaultValue || value != *defaultValue)
            values[std::u16string(key)] = value;
    }

    std::map<std::u16string, Value> values;
    std::vector<std::string> asked;
    std::function<void(std::u16string_view)> onKey;
};

TEST(Persistence, ReadsAndWritesTheSameKeysInTwoOrders)
{
    FieldBench bench;
    ScriptedBag bag;
    Field& f = bench.make(u"f");
    f->load(bag);
    const std::vector<std::string> read = std::exchange(bag.asked, {});
    f->save(bag);
    EXPECT_EQ(read.size(), 79U);
    EXPECT_EQ(read.front(), "MultLine");
    EXPECT_EQ(read.back(), "FontStrikethru");
    EXPECT_EQ(bag.asked.front(), "EsquemaRetornoAtual");
    EXPECT_EQ(bag.asked.back(), "Calendar_Selected");
    EXPECT_EQ(std::set(read.begin(), read.end()), std::set(bag.asked.begin(), bag.asked.end()));
}

TEST(Persistence, SomeDefaultsReadBackAsOtherValues)
{
    const struct {
        const char* rule;
        const char16_t* property;
        Value put;
        Value reloaded;
    } rows[] = {
        {"no zeros", u"InserirZeros", false, false},
        {"the underline", u"FontUnderline", true, true},
        {"a half size", u"FontSize", 13, 13},
        {"the password character", u"PasswordChar", text(u"*"), text(u"*")},
        {"a type beyond the enumeration", u"TextType", 70000, 70000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rule);
        FieldBench bench;
        Field& f = bench.add();
        f.put(row.property, row.put);
        headless::PropertyBag bag;
        f->save(bag);
        Field& again = bench.make(u"again");
        again->load(bag);
        EXPECT_EQ(again.get(row.property), row.reloaded);
    }
}

TEST(Persistence, AnEmptyBagIsNotANewControl)
{
    FieldBench bench;
    ScriptedBag bag;
    Field& f = bench.make(u"f");
    f->load(bag);
    EXPECT_TRUE(f->InserirZeros());
    EXPECT_FALSE(f->AutoSelect());
    EXPECT_EQ(f->DateFormat(), u"dd/mm/yyyy");
    EXPECT_EQ(bench.told(), ""); // no setter ran
    bag.values[u"FontUnderline"] = true;
    f->load(bag);
    EXPECT_FALSE(f->FontUnderline()); // the key has a capital L
}

// A bag that fails, or holds what does not convert, at each key in turn.
TEST(Loading, ThatFailsLeavesAUsableFieldWithDefaultsForTheRest)
{
    for (const std::u16string_view bad : storedKeys()) {
        SCOPED_TRACE(narrow(bad));
        FieldBench bench;
        const popups::CalendarColours colours = bench.popups.colours().read();
        ScriptedBag bag;
        bag.values = {{u"TextType", 2}, {u"AutoSelect", true}, {u"MaxLength", 4}, {u"NomeCampo", text(u"Data")}};
        bag.onKey = [bad](std::u16string_view key) {
            if (key == bad)
                engine::raise(70);
        };
        Field& f = bench.make(u"f");
        EXPECT_EQ(errorOf([&] { f->load(bag); }), 70);
        EXPECT_EQ(bench.popups.colours().read(), colours);
        bag.onKey = nullptr;
        const bool date = f->TextType() == engine::TipoText::Data;
        EXPECT_EQ(f.shows(), date ? "|__/__/____" : "|");
        f.put(u"TextType", 2);
        bench.typeInto(f, u"29022024");
        EXPECT_EQ(f.shows(), "29/02/2024|");
        bench.leave();
    }
}

// Colours that were not read leave the process's colours as they are, whatever an earlier control has loaded.
TEST(Loading, ThatFailsLeavesTheSharedColoursAlone)
{
    const popups::CalendarColours others{{1}, {2}, {3}, {4}, {5}, {6}, {7}};
    for (const std::u16string_view bad : {u"MultLine", u"TextType", u"Calendar_FormBackcolor"}) {
        SCOPED_TRACE(narrow(bad));
        FieldBench bench;
        bench.popups.colours().put(others);
        ScriptedBag bag;
        bag.values = {{u"Calendar_Selected", 9}, {u"Calendar_FormBackcolor", 9}};
        bag.onKey = [bad](std::u16string_view key) {
            if (key == bad)
                engine::raise(70);
        };
        Field& f = bench.make(u"f");
        EXPECT_EQ(errorOf([&] { f->load(bag); }), 70);
        EXPECT_EQ(bench.popups.colours().read(), others);
    }
}

TEST(Loading, RefusesWhatDoesNotConvert)
{
    const struct {
        const char16_t* key;
        Value value;
        int error;
    } rows[] = {
        {u"TextType", text(u"date"), 13},
        {u"QtdCasasDec", 300, 6},
        {u"MaxLength", 40000, 6},
        {u"MaxLength", -1, 380},
        {u"PasswordChar", text(u"ab"), 380},
        {u"AutoTAB", text(u"perhaps"), 13},
        {u"BackColor", text(u"yellow"), 13},
    };
    for (const auto& row : rows) {
        FieldBench bench;
        ScriptedBag bag;
        bag.values[row.key] = row.value;
        Field& f = bench.make(u"f");
        EXPECT_EQ(errorOf([&] { f->load(bag); }), row.error) << narrow(row.key);
    }
}

TEST(Loading, OverALivingFieldReplacesEverything)
{
    FieldBench bench;
    Field& f = bench.add();
    f.put(u"NomeCampo", u"old");
    f.put(u"PasswordChar", u"*");
    bench.typeInto(f, u"abc");
    ScriptedBag bag;
    f->load(bag);
    EXPECT_EQ(f->NomeCampo(), u"");
    EXPECT_EQ(f->PasswordChar(), u"");
    EXPECT_EQ(f.shows(), "|");
    bench.form.undo();
    EXPECT_EQ(f.shows(), "|");
}

TEST(Saving, ToABagThatFailsLeavesTheFieldAlone)
{
    for (long nth = 1; nth <= 80; ++nth) {
        FieldBench bench;
        Field& f = bench.add();
        f.put(u"Text", u"kept");
        headless::PropertyBag bag(&bench.machine.faults);
        bench.machine.faults.failAt(nth, {70, u"Permission denied"});
        EXPECT_EQ(errorOf([&] { f->save(bag); }), 70) << nth;
        EXPECT_EQ(f.shows(), "|kept");
    }
}

} // namespace
} // namespace vela::control
