// The contract of forms: values put report as a person's act does, lists keep their indexes, a form closes once.
#include "stage.h"

#include "tests/support/error_of.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace vela::contract {
namespace {

using engine::errorOf;
using platform::WidgetId;
using platform::WidgetKind;
using Log = std::vector<std::string>;

constexpr std::array<std::u16string_view, 3> colours{u"azul", u"verde", u"vermelho"};
constexpr std::array<platform::WidgetRow, 11> rows{{
    {.kind = WidgetKind::textBox, .name = u"txtNome", .place = {120, 120, 1800, 300}},
    {.kind = WidgetKind::comboBox, .name = u"cboCor", .place = {120, 480, 1800, 315}, .items = colours},
    {.kind = WidgetKind::dropDownList, .name = u"lstCor", .place = {120, 840, 1800, 315}, .items = colours},
    {.kind = WidgetKind::listBox, .name = u"lstCores", .place = {2040, 840, 1200, 900}, .items = colours},
    {.kind = WidgetKind::checkBox,
     .name = u"chkSim",
     .caption = u"Sim",
     .accessKey = u'S',
     .place = {120, 1200, 1800, 255}},
    {.kind = WidgetKind::frame, .name = u"fra", .caption = u"Quadro", .place = {120, 1500, 1800, 900}},
    {.kind = WidgetKind::optionButton, .name = u"optUm", .place = {120, 240, 900, 255}, .parent = u"fra"},
    {.kind = WidgetKind::optionButton, .name = u"optDois", .place = {120, 540, 900, 255}, .parent = u"fra"},
    {.kind = WidgetKind::button, .name = u"cmdOK", .caption = u"OK", .place = {2040, 120, 900, 300}},
    {.kind = WidgetKind::label, .name = u"lblTexto", .caption = u"Texto", .place = {2040, 480, 900, 255}},
    {.kind = WidgetKind::swatch, .name = u"PicCor", .place = {2040, 1800, 600, 285}},
}};
constexpr platform::FormLayout layout{u"frmTeste", u"Teste", 3600, 2700, rows};

constexpr WidgetId id(std::u16string_view name)
{
    return platform::findWidget(layout, name);
}
constexpr WidgetId name = id(u"txtNome"), combo = id(u"cboCor"), list = id(u"lstCor"), many = id(u"lstCores"),
                   yes = id(u"chkSim"), frame = id(u"fra"), one = id(u"optUm"), two = id(u"optDois"), ok = id(u"cmdOK"),
                   label = id(u"lblTexto");

class FormContract : public testing::TestWithParam<bool>,
                     protected platform::ClickEvents,
                     protected platform::DoubleClickEvents,
                     protected platform::EntryEvents,
                     protected platform::KeyPressEvents,
                     protected platform::PopupEvents {
protected:
    // The same rules hold of a form on show and of one that is not shown.
    void SetUp() override
    {
        if (GetParam())
            form->showPopup({40, 300, 240, 180}, stage->field(0).window());
        stage->settle();
        log.clear();
    }
    void clicked(WidgetId widget) override { tell("clicked", widget); }
    void doubleClicked(WidgetId widget) override { tell("double", widget); }
    void changed(WidgetId widget) override { tell("changed", widget); }
    void gotFocus(WidgetId widget) override { focusLog.push_back("got " + nameOf(widget)); }
    void lostFocus(WidgetId widget) override { focusLog.push_back("lost " + nameOf(widget)); }
    void keyPress(WidgetId, int& key) override { key = key == 'x' ? 0 : key; }
    void activated() override { log.push_back("activated"); }
    void deactivated() override { log.push_back("deactivated"); }
    void tick() override {}
    void closed() override { log.push_back("closed"); }

    static std::string nameOf(WidgetId widget)
    {
        const std::u16string_view wide = widget ? rows[static_cast<std::size_t>(widget.value)].name : u"-";
        return {wide.begin(), wide.end()};
    }
    void tell(const std::string& what, WidgetId widget)
    {
        log.push_back(what + " " + nameOf(widget));
        if (onReport)
            onReport();
    }
    Log log;
    Log focusLog;
    platform::FormEvents events{.clicks = this, .doubleClicks = this, .entries = this, .keys = this, .popup = this};
    std::function<void()> onReport;
    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
    std::unique_ptr<platform::Form> form = stage->forms().make(layout, events);
};

INSTANTIATE_TEST_SUITE_P(Forms, FormContract, testing::Bool(),
                         [](const auto& row) { return row.param ? "Shown" : "Hidden"; });

TEST_P(FormContract, PutTextReportsAnotherTextOnce)
{
    for (const WidgetId widget : {name, combo}) {
        log.clear();
        form->putText(widget, u"ção");
        form->putText(widget, u"ção");
        EXPECT_EQ(form->text(widget), u"ção");
        EXPECT_EQ(log, Log{"changed " + nameOf(widget)});
    }
    log.clear();
    form->putText(label, u"Outro");
    EXPECT_EQ(form->text(label), u"Outro");
    EXPECT_TRUE(log.empty());
}

TEST_P(FormContract, ChoosingAlwaysReportsAndAComboShowsTheItem)
{
    for (const WidgetId widget : {combo, list}) {
        log.clear();
        form->items(widget).choose(1);
        form->items(widget).choose(1);
        EXPECT_EQ(form->items(widget).chosen(), 1);
        EXPECT_EQ(form->text(widget), u"verde");
        EXPECT_EQ(log, (Log{"clicked " + nameOf(widget), "clicked " + nameOf(widget)}));
    }
    form->putText(combo, u"roxo");
    EXPECT_EQ(form->items(combo).chosen(), -1);
    form->putText(list, u"azul");
    EXPECT_EQ(form->items(list).chosen(), 0);
    EXPECT_EQ(errorOf([this] { return form->putText(list, u"roxo"), 0; }), 380);
    EXPECT_EQ(errorOf([this] { return form->items(list).choose(3), 0; }), 380);
    EXPECT_EQ(form->items(list).chosen(), 0);
}

TEST_P(FormContract, ListsAddRemoveAndClear)
{
    for (const WidgetId widget : {combo, list, many}) {
        platform::ItemList& items = form->items(widget);
        items.add(u"roxo");
        EXPECT_EQ(items.count(), 4);
        EXPECT_EQ(items.at(3), u"roxo");
        items.choose(2);
        items.remove(0);
        EXPECT_EQ(items.at(0), u"verde");
        EXPECT_EQ(items.chosen(), 1);
        items.remove(1);
        EXPECT_EQ(items.chosen(), -1);
        EXPECT_EQ(errorOf([&] { return items.remove(2), 0; }), 380);
        items.clear();
        EXPECT_EQ(items.count(), 0);
    }
}

TEST_P(FormContract, SeveralItemsAreSelectedSilently)
{
    platform::ItemList& items = form->items(many);
    items.select(0, true);
    items.select(2, true);
    EXPECT_TRUE(items.selected(0) && !items.selected(1) && items.selected(2));
    items.select(0, false);
    EXPECT_FALSE(items.selected(0));
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(errorOf([&] { return items.select(3, true), 0; }), 380);
}

TEST_P(FormContract, ChecksReportWhenTheyChangeAndOptionsExclude)
{
    form->check(yes, true);
    form->check(yes, true);
    EXPECT_EQ(log, Log{"clicked chkSim"});
    form->check(one, true);
    form->check(two, true);
    EXPECT_FALSE(form->checked(one));
    EXPECT_TRUE(form->checked(two));
    EXPECT_EQ(log, (Log{"clicked chkSim", "clicked optUm", "clicked optDois"}));
}

TEST_P(FormContract, WhatStandsInAHiddenFrameIsHidden)
{
    form->show(frame, false);
    EXPECT_FALSE(form->visible(one));
    form->show(frame, true);
    EXPECT_TRUE(form->visible(one));
    form->enable(name, false);
    EXPECT_FALSE(form->enabled(name));
}

TEST_P(FormContract, TheFocusMovesBetweenWidgets)
{
    form->focus(name);
    focusLog.clear();
    form->focus(ok);
    form->focus(ok);
    EXPECT_EQ(form->focused(), ok);
    EXPECT_EQ(focusLog, (Log{"lost txtNome", "got cmdOK"}));
    form->focus(label);
    EXPECT_EQ(form->focused(), ok);
}

TEST_P(FormContract, ClosesOnceAndKeepsItsValues)
{
    form->putText(name, u"fica");
    log.clear();
    form->close();
    form->close();
    EXPECT_EQ(log, Log{"closed"});
    EXPECT_FALSE(form->isShown());
    EXPECT_EQ(form->text(name), u"fica");
}

class ShownForm : public FormContract {};
INSTANTIATE_TEST_SUITE_P(Forms, ShownForm, testing::Values(true));

TEST_P(ShownForm, APersonsActsReportOnce)
{
    EXPECT_TRUE(form->isShown());
    stage->clickWidget(*form, yes);
    stage->clickWidget(*form, two);
    stage->clickWidget(*form, one);
    stage->clickWidget(*form, ok);
    stage->clickWidget(*form, label);
    EXPECT_EQ(log, (Log{"clicked chkSim", "clicked optDois", "clicked optUm", "clicked cmdOK", "clicked lblTexto"}));
    EXPECT_TRUE(form->checked(yes) && form->checked(one) && !form->checked(two));
    log.clear();
    stage->typeInto(*form, name, u'a');
    stage->typeInto(*form, name, u'x');
    EXPECT_EQ(form->text(name), u"a");
    EXPECT_EQ(log, Log{"changed txtNome"});
}

TEST_P(ShownForm, IsActiveAgainWhenTheOneBeforeItCloses)
{
    const platform::Desktop& desktop = stage->environment().desktop;
    const std::unique_ptr<platform::Form> before = stage->forms().make(layout, {});
    before->showPopup({60, 320, 260, 200}, form->window());
    stage->settle();
    EXPECT_EQ(desktop.activeWindow(), before->window());
    before->close();
    stage->settle();
    EXPECT_EQ(desktop.activeWindow(), form->window());
    form->close();
    stage->settle();
    EXPECT_TRUE(desktop.activeWindow());
    EXPECT_NE(desktop.activeWindow(), form->window());
}

TEST_P(ShownForm, MayBeClosedAndReleasedInsideAReport)
{
    onReport = [this] { form->close(); };
    stage->clickWidget(*form, ok);
    EXPECT_EQ(log, (Log{"clicked cmdOK", "closed"}));
    form = stage->forms().make(layout, events);
    onReport = [this] { form.reset(); };
    form->showPopup({40, 300, 240, 180}, stage->field(0).window());
    stage->settle();
    log.clear();
    stage->clickWidget(*form, ok);
    EXPECT_EQ(log, Log{"clicked cmdOK"});
}

} // namespace
} // namespace vela::contract
