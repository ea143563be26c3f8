// Commands at one free-standing balloon tooltip.
#include "apps/console/session.h"
#include "apps/console/value_text.h"

#include "platform/headless/tooltip_window.h"
#include "tooltip/balloon_tooltip.h"
#include "tooltip/tooltip_properties.h"

#include <memory>

namespace vela::console {

namespace {

using tooltip::CBalloonToolTip;

// The tooltip of a run, and the window it stands by.
class TipDesk {
public:
    explicit TipDesk(Session& session) : form_(session.form()), parent_(form_.makeWindow())
    {
        form_.putOrigin(parent_, {100, 200});
    }

    // The new one is there before the old one goes.
    void makeTip()
    {
        auto fresh = std::make_unique<CBalloonToolTip>(std::make_unique<headless::TooltipWindow>(form_, nullptr));
        tip_.swap(fresh);
    }
    [[nodiscard]] CBalloonToolTip& tip() const { return needed(tip_); }
    [[nodiscard]] platform::WindowId parent() const noexcept { return parent_; }

private:
    headless::FormWindow& form_;
    platform::WindowId parent_;
    std::unique_ptr<CBalloonToolTip> tip_;
};

const std::u16string& propertyOf(const Word& word)
{
    if (word.quoted)
        notACommand("the name of a property is wanted", word);
    return word.bare;
}

void setTip(Session& session, Words words)
{
    requireWords(words, 4, 4);
    const std::u16string& name = propertyOf(words[2]);
    const tooltip::TipProperty* const property = tooltip::findTipProperty(name);
    const engine::Value value = valueOf(words[3], property != nullptr ? property->enumeration : nullptr);
    const engine::Locale& locale = session.machine().locales.locale();
    tooltip::putTipProperty(session.state<TipDesk>().tip(), name, value, locale);
}

void getTip(Session& session, Words words)
{
    requireWords(words, 3, 3);
    const std::u16string& name = propertyOf(words[2]);
    const engine::Value value = tooltip::getTipProperty(session.state<TipDesk>().tip(), name);
    const tooltip::TipProperty* const property = tooltip::findTipProperty(name);
    const auto* const number = std::get_if<std::int32_t>(&value);
    const bool colour = property != nullptr && property->type == tooltip::TipPropertyType::colour && number != nullptr;
    session.printLine("tip." + toUtf8(name) + " = " +
                      (colour ? printed(engine::Colour{static_cast<std::uint32_t>(*number)}) : printed(value)));
}

void showTip(Session& session, Words words)
{
    requireWords(words, 4, 4);
    const int x = integerOf(words[2]);
    const int y = integerOf(words[3]);
    TipDesk& desk = session.state<TipDesk>();
    desk.tip().ShowAt(x, y, desk.parent());
}

void createTip(Session& session, Words words)
{
    requireWords(words, 2, 2);
    TipDesk& desk = session.state<TipDesk>();
    desk.tip().CreateToolTip(desk.parent());
}

void runTip(Session& session, Words words)
{
    const Word& act = words[1];
    if (act.is(u"set"))
        return setTip(session, words);
    if (act.is(u"get"))
        return getTip(session, words);
    if (act.is(u"show"))
        return showTip(session, words);
    if (act.is(u"create"))
        return createTip(session, words);
    if (!act.is(u"new") && !act.is(u"destroy"))
        notACommand("no such act of a tooltip", words[1], {u"new", u"set", u"get", u"create", u"show", u"destroy"});
    requireWords(words, 2, 2);
    TipDesk& desk = session.state<TipDesk>();
    if (act.is(u"new"))
        desk.makeTip();
    else
        desk.tip().Destroy();
}

} // namespace

CommandTable tooltipCommands() noexcept
{
    static constexpr Command commands[] = {{u"tip", 2, 4, runTip,
                                            "tip new|create|destroy\n"
                                            "tip set PROPERTY VALUE\n"
                                            "tip get PROPERTY\n"
                                            "tip show X Y\n"
                                            "  Drives one balloon tooltip that belongs to no control."}};
    return commands;
}

} // namespace vela::console
