// The tooltip's messages in their order, the edit box's alert and its substitute, and the names of Windows families.
#include "engine/error.h"
#include "tooltip/about_box.h"
#include "tooltip/balloon_tip.h"
#include "tooltip/balloon_tooltip.h"
#include "tooltip/tooltip_properties.h"
#include "tooltip/windows_version.h"

#include <gtest/gtest.h>

namespace vela::tooltip {
namespace {

std::string narrow(std::u16string_view text)
{
    return {text.begin(), text.end()};
}

// Writes the messages down in a log that outlives it.
class RecordingWindow final : public platform::TooltipWindow {
public:
    explicit RecordingWindow(std::string& log, bool canBeMade = true) : log_(log), canBeMade_(canBeMade) {}

    bool create(platform::WindowId parent) override
    {
        note("create " + std::to_string(parent.value));
        return exists_ = canBeMade_;
    }
    void destroy() override
    {
        note("destroy");
        exists_ = false;
    }
    bool exists() const override { return exists_; }
    void addTool(std::u16string_view text) override { note("add " + narrow(text)); }
    void setTitle(int icon, std::u16string_view title) override
    {
        note("title " + std::to_string(icon) + " " + narrow(title));
    }
    void setTextColour(engine::Colour colour) override { note("fore " + std::to_string(colour.value)); }
    void setBackColour(engine::Colour colour) override { note("back " + std::to_string(colour.value)); }
    void setDelay(int kind, int milliseconds) override
    {
        note("delay " + std::to_string(kind) + " " + std::to_string(milliseconds));
    }
    void updateText(std::u16string_view text) override { note("text " + narrow(text)); }
    void trackPosition(std::int32_t packed) override { note("at " + std::to_string(packed)); }
    void trackActivate(bool active) override { note(active ? "on" : "off"); }
    std::pair<int, int> clientToScreen(platform::WindowId window, int x, int y) const override
    {
        note("screen of " + std::to_string(window.value));
        return {x, y};
    }

private:
    void note(const std::string& what) const { log_ += (log_.empty() ? "" : "; ") + what; }

    std::string& log_;
    bool canBeMade_;
    bool exists_ = false;
};

struct Tip {
    std::string log;
    CBalloonToolTip tip{std::make_unique<RecordingWindow>(log)};

    std::string taken() { return std::exchange(log, {}); }
};

constexpr platform::WindowId parent{7};

TEST(BalloonToolTip, SettingsWaitForTheWindow)
{
    Tip t;
    t.tip.TipText(u"tip");
    t.tip.Title(u"title");
    t.tip.Icon(engine::eIconeToolTipText::TTIconWarning);
    t.tip.ForeColor({255});
    t.tip.BackColor({65535});
    t.tip.VisibleTime(9);
    t.tip.DelayTime(8);
    EXPECT_EQ(t.taken(), "");
    t.tip.CreateToolTip(parent);
    EXPECT_EQ(t.taken(), "create 7; add tip; title 2 title; fore 255; back 65535; delay 2 9; delay 3 8");
}

TEST(BalloonToolTip, AnUntouchedOneSendsNoTitleAndNoColours)
{
    Tip t;
    t.tip.CreateToolTip(parent);
    EXPECT_EQ(t.taken(), "create 7; add ; delay 2 5000; delay 3 500");
}

TEST(BalloonToolTip, AnIconAloneIsATitleAtCreationOnly)
{
    Tip t;
    t.tip.Icon(engine::eIconeToolTipText::TTIconError);
    t.tip.CreateToolTip(parent);
    EXPECT_EQ(t.taken(), "create 7; add ; title 3 ; delay 2 5000; delay 3 500");
    t.tip.Icon(engine::eIconeToolTipText::TTIconInfo);
    t.tip.Title(u"");
    EXPECT_EQ(t.taken(), "");
    t.tip.Title(u"now");
    t.tip.Icon(engine::eIconeToolTipText::TTNoIcon);
    EXPECT_EQ(t.taken(), "title 1 now; title 0 now");
}

TEST(BalloonToolTip, ChangesReachTheWindowAtOnce)
{
    Tip t;
    t.tip.CreateToolTip(parent);
    t.taken();
    t.tip.TipText(u"new");
    t.tip.ForeColor({0});
    t.tip.BackColor({0});
    t.tip.VisibleTime(1);
    t.tip.Style(3);
    t.tip.Centered(true);
    EXPECT_EQ(t.taken(), "text new; fore 0; back 0");
}

TEST(BalloonToolTip, OneWindowAtATime)
{
    Tip t;
    t.tip.Destroy();
    EXPECT_EQ(t.taken(), "");
    t.tip.CreateToolTip(parent);
    t.taken();
    t.tip.CreateToolTip({8});
    EXPECT_EQ(t.taken(), "destroy; create 8; add ; delay 2 5000; delay 3 500");
    std::string log;
    {
        CBalloonToolTip dying(std::make_unique<RecordingWindow>(log));
        dying.CreateToolTip(parent);
        log.clear();
    }
    EXPECT_EQ(log, "destroy");
}

TEST(BalloonToolTip, AWindowThatCannotBeMadeTakesItsMessages)
{
    std::string log;
    CBalloonToolTip tip(std::make_unique<RecordingWindow>(log, false));
    tip.Title(u"t");
    tip.CreateToolTip(parent);
    EXPECT_EQ(log, "create 7; add ; title 0 t; delay 2 5000; delay 3 500");
    EXPECT_FALSE(tip.exists());
    log.clear();
    tip.ForeColor({5}); // kept for the next creation
    EXPECT_EQ(log, "");
}

TEST(BalloonToolTip, PointsPackIntoThirtyTwoBits)
{
    struct Row {
        int x;
        int y;
        const char* position; // empty: overflow
    };
    const Row rows[] = {
        {100, 200, "13107300"},
        {-1, 1, "65535"},
        {0, -32768, "-2147483648"},
        {65535, 32767, "2147483647"},
        {65536, 32767, ""},
        {-1, -32768, ""},
        {0, 32768, ""},
        {-65536, 32768, ""},
        {2147483647, 0, "2147483647"},
    };
    for (const auto& row : rows) {
        Tip t;
        int error = 0;
        try {
            t.tip.ShowAt(row.x, row.y, {9});
        } catch (const engine::Error& e) {
            error = e.number;
        }
        const std::string position(row.position);
        EXPECT_EQ(error, position.empty() ? engine::error_number::overflow : 0) << row.x << " " << row.y;
        EXPECT_EQ(t.log, position.empty() ? "screen of 9" : "screen of 9; at " + position + "; on");
    }
}

TEST(TooltipProperties, ByName)
{
    Tip t;
    struct Row {
        const char16_t* name;
        engine::Value put;
        engine::Value got;
    };
    const Row rows[] = {
        {u"VisibleTime", std::u16string(u"1234"), std::int32_t{1234}},
        {u"DelayTime", 2.5, std::int32_t{2}},
        {u"Icon", std::int32_t{2}, std::int32_t{2}},
        {u"ForeColor", std::int32_t{-5}, std::int32_t{-5}},
        {u"Title", true, std::u16string(u"True")},
        {u"PopupOnDemand", std::int32_t{3}, true},
        {u"TipText", std::int32_t{12}, std::u16string(u"12")},
        {u"Style", engine::Empty{}, std::int32_t{0}},
        {u"Centered", std::u16string(u"true"), true},
        {u"BackColor", std::int32_t{0xFF}, std::int32_t{0xFF}},
    };
    ASSERT_EQ(tipProperties().size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(tipProperties()[i].name, rows[i].name);
        putTipProperty(t.tip, rows[i].name, rows[i].put, engine::ptBr());
    }
    for (const auto& row : rows)
        EXPECT_EQ(getTipProperty(t.tip, row.name), row.got) << narrow(row.name);
}

TEST(TooltipProperties, WhatIsRefused)
{
    Tip t;
    const auto errorOf = [&](const char16_t* name, const engine::Value& value) {
        try {
            putTipProperty(t.tip, name, value, engine::ptBr());
        } catch (const engine::Error& error) {
            return error.number;
        }
        return 0;
    };
    EXPECT_EQ(errorOf(u"visibletime", std::int32_t{1}), engine::error_number::unsupportedMember);
    EXPECT_EQ(errorOf(u"VisibleTime", 3e9), engine::error_number::overflow);
    EXPECT_EQ(errorOf(u"VisibleTime", std::u16string(u"soon")), engine::error_number::typeMismatch);
    EXPECT_EQ(t.tip.VisibleTime(), 5000);
}

// A box that shows balloons or not; everything else is out of the question here.
class BalloonBox final : public platform::EditBox {
public:
    BalloonBox(std::string& log, bool balloons) : log_(log), balloons_(balloons) {}

    void text(std::u16string&) const override { refuse(); }
    int textLength() const override { return refuse(); }
    void putText(std::u16string_view) override { refuse(); }
    void insert(std::u16string_view) override { refuse(); }
    platform::Selection selection() const override { return {refuse(), 0}; }
    void select(platform::Selection) override { refuse(); }
    platform::EditColours colours() const override { return refuse(), platform::EditColours{}; }
    void putColours(platform::EditColours) override { refuse(); }
    const platform::EditTraits& traits() const override
    {
        refuse();
        return traits_;
    }
    void putTraits(const platform::EditTraits&) override { refuse(); }
    void takeFocus() override { refuse(); }
    bool hasFocus() const override { return refuse() != 0; }
    bool showBalloon(int icon, std::u16string_view title, std::u16string_view text) override
    {
        log_ += "box " + std::to_string(icon) + " " + narrow(title) + " " + narrow(text);
        return balloons_;
    }
    void hideBalloon() override { log_ += "box hide"; }
    platform::WindowId window() const override { return parent; }

private:
    static int refuse() { throw engine::Error{engine::error_number::unsupportedMember, u"", u"", 0}; }

    std::string& log_;
    bool balloons_;
    platform::EditTraits traits_;
};

TEST(BalloonTip, ThroughTheBoxItself)
{
    Tip t;
    BalloonBox box(t.log, true);
    const auto server = ShowBalloonTip(u"text", u"", 3, box, 21, t.tip);
    EXPECT_EQ(t.taken(), "box 3  text");
    HideBalloonTip(box, server, t.tip);
    EXPECT_EQ(t.taken(), "box hide");
}

TEST(BalloonTip, ThroughTheTooltipWhereTheBoxCannot)
{
    Tip t;
    t.tip.CreateToolTip({5});
    t.taken();
    BalloonBox box(t.log, false);
    const auto server = ShowBalloonTip(u"text", u"title", 3, box, 21, t.tip);
    EXPECT_EQ(t.taken(), "box 3 title text; destroy; create 7; add text; title 3 title; delay 2 5000; delay 3 500; "
                         "screen of 7; at 1376256; on"); // 21 * 65536
    HideBalloonTip(box, server, t.tip);
    EXPECT_EQ(t.taken(), "destroy");
}

class System final : public platform::SystemInfo {
public:
    std::optional<platform::WindowsVersion> version;

    std::optional<platform::WindowsVersion> windowsVersion() const override { return version; }
    std::u16string libraryFolder() const override { return {}; }
    std::vector<std::u16string> fontNames() const override { return {}; }
};

TEST(WindowsFamily, Names)
{
    struct Row {
        int platform;
        int minor;
        const char16_t* name;
    };
    System system;
    EXPECT_EQ(VersaoWindows(system), u"NT");
    for (const Row row : {Row{1, 0, u"95"},
                          {1, 10, u"98"},
                          {1, 90, u""},
                          {2, 0, u"NT"},
                          {2, 10, u"NT"},
                          {3, 0, u"DESCONHECIDO"},
                          {0, 10, u"DESCONHECIDO"}}) {
        system.version = platform::WindowsVersion{row.platform, row.minor};
        EXPECT_EQ(VersaoWindows(system), row.name) << row.platform << " " << row.minor;
    }
}

TEST(AboutBox, TheRevisionHasFourDigitsAtLeast)
{
    EXPECT_EQ(aboutText(), u"Vela - Compilação 1.0.0000");
    EXPECT_EQ(aboutText({2, 1, 37}), u"Vela - Compilação 2.1.0037");
    EXPECT_EQ(aboutText({10, 12, 12345}), u"Vela - Compilação 10.12.12345");
}

} // namespace
} // namespace vela::tooltip
