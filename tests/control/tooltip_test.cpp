// The tooltip's messages in their order, the edit box's alert and its substitute, and the names of Windows families.
#include "tests/engine/error_of.h"
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
        const int error = engine::errorOf([&] { t.tip.ShowAt(row.x, row.y, {9}); });
        const std::string position(row.position);
        EXPECT_EQ(error, position.empty() ? engine::error_number::overflow : 0) << row.x << " " << row.y;
        EXPECT_EQ(t.log, position.empty() ? "screen of 9" : "screen of 9; at " + position + "; on");
    }
}

TEST(TooltipProperties, ThatShowNothingAreKeptByName)
{
    Tip t;
    const std::pair<const char16_t*, engine::Value> rows[] = {
        {u"Style", std::int32_t{4}}, {u"Centered", true}, {u"PopupOnDemand", true}};
    for (const auto& [name, value] : rows) {
        putTipProperty(t.tip, name, value, engine::ptBr());
        EXPECT_EQ(getTipProperty(t.tip, name), value) << narrow(name);
    }
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

TEST(WindowsFamily, IsNtWhereTheSystemDoesNotSay)
{
    System system;
    EXPECT_EQ(VersaoWindows(system), u"NT");
}

TEST(AboutBox, TheRevisionHasFourDigitsAtLeast)
{
    EXPECT_EQ(aboutText(), u"Vela - Compilação 1.0.0000");
    EXPECT_EQ(aboutText({2, 1, 37}), u"Vela - Compilação 2.1.0037");
    EXPECT_EQ(aboutText({10, 12, 12345}), u"Vela - Compilação 10.12.12345");
}

} // namespace
} // namespace vela::tooltip
