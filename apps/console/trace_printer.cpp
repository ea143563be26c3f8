// One line of the transcript for each kind of entry.
#include "apps/console/trace_printer.h"

#include "apps/console/script_line.h"
#include "apps/console/value_text.h"

#include <string>

namespace vela::console {

namespace {

namespace trace = headless::trace;
using headless::TraceCategory;

std::string number(int value)
{
    return " " + std::to_string(value);
}

std::string_view iconName(platform::BoxIcon icon)
{
    switch (icon) {
    case platform::BoxIcon::none: return "none";
    case platform::BoxIcon::information: return "information";
    case platform::BoxIcon::exclamation: return "exclamation";
    case platform::BoxIcon::question: return "question";
    }
    return "none";
}

std::string_view answerName(platform::BoxAnswer answer)
{
    switch (answer) {
    case platform::BoxAnswer::ok: return "ok";
    case platform::BoxAnswer::yes: return "yes";
    case platform::BoxAnswer::no: return "no";
    case platform::BoxAnswer::cancel: return "cancel";
    }
    return "ok";
}

// The names people know the pop-ups by; empty for another form, which is not traced.
std::string_view popupName(std::u16string_view form)
{
    if (form == u"CalendarioSDI")
        return "calendar";
    return form == u"frmCalculadora" ? "calculator" : "";
}

std::string tipMessage(const trace::Tip& tip)
{
    using enum trace::TipMessage;
    switch (tip.message) {
    case create: return "create";
    case destroy: return "destroy";
    case addTool: return "TTM_ADDTOOLA " + quoted(tip.text);
    case setTitle: return "TTM_SETTITLEA" + number(tip.first) + " " + quoted(tip.text);
    case setTextColour: return "TTM_SETTIPTEXTCOLOR " + printed(tip.colour);
    case setBackColour: return "TTM_SETTIPBKCOLOR " + printed(tip.colour);
    case setDelay: return "TTM_SETDELAYTIME" + number(tip.first) + number(tip.second);
    case updateText: return "TTM_UPDATETIPTEXTA " + quoted(tip.text);
    case trackPosition: return "TTM_TRACKPOSITION" + number(tip.first) + number(tip.second);
    case trackActivate: return "TTM_TRACKACTIVATE " + printed(tip.first != 0);
    }
    return {};
}

// An empty line is not printed.
struct Liner {
    std::string operator()(const trace::Event& event) const
    {
        std::string line = "event " + toUtf8(event.element) + " " + toUtf8(event.name);
        if (event.count > 0)
            line += number(event.first);
        if (event.count > 1)
            line += number(event.second);
        return line;
    }
    std::string operator()(const trace::Changed& changed) const
    {
        return "changed " + toUtf8(changed.element) + " " + quoted(changed.property);
    }
    std::string operator()(const trace::MessageBox& box) const
    {
        return "msgbox " + std::string(iconName(box.icon)) + " " + quoted(box.title) + " " + quoted(box.text) + " -> " +
               std::string(answerName(box.answer));
    }
    std::string operator()(const trace::InputBox& box) const
    {
        return "inputbox " + quoted(box.prompt) + " " + quoted(box.title) + " -> " + quoted(box.answer);
    }
    std::string operator()(const trace::Palette& palette) const
    {
        return "palette -> " + (palette.answer ? printed(*palette.answer) : "cancel");
    }
    std::string operator()(const trace::About& about) const { return "about " + quoted(about.text); }
    std::string operator()(const trace::KeysSent& sent) const { return "sendkeys " + quoted(sent.keys); }
    std::string operator()(const trace::KeyInjected& key) const { return "keybd" + number(key.virtualKey) + " down"; }
    std::string operator()(const trace::Logged& logged) const
    {
        return "log " + quoted(logged.path) + number(logged.record->number) + " " + quoted(logged.record->description) +
               " " + quoted(logged.record->label);
    }
    std::string operator()(const trace::Tip& tip) const { return "tip " + toUtf8(tip.element) + " " + tipMessage(tip); }
    std::string operator()(const trace::Balloon& balloon) const
    {
        if (!balloon.shown)
            return "balloon hide";
        return "balloon show" + number(balloon.icon) + " " + quoted(balloon.title) + " " + quoted(balloon.text);
    }
    std::string operator()(const trace::Focus& focus) const
    {
        return "focus " + (focus.element.empty() ? "none" : toUtf8(focus.element));
    }
    std::string operator()(const trace::Opened& opened) const
    {
        const std::string_view name = popupName(opened.form);
        const engine::RectPixels& place = opened.place;
        return name.empty() ? std::string()
                            : "open " + std::string(name) + number(place.left) + number(place.top) +
                                  number(place.width) + number(place.height);
    }
    std::string operator()(const trace::Closed& closed) const
    {
        const std::string_view name = popupName(closed.form);
        return name.empty() ? std::string() : "close " + std::string(name);
    }
};

} // namespace

TracePrinter::TracePrinter(std::function<void(std::string_view)> printLine)
    : printLine_(std::move(printLine)), categories_(categoryBit(TraceCategory::dialogs) |
                                                    categoryBit(TraceCategory::keys) | categoryBit(TraceCategory::log))
{
}

void TracePrinter::trace(const headless::TraceEntry& entry)
{
    if ((categories_ & categoryBit(headless::categoryOf(entry))) == 0)
        return;
    const std::string line = std::visit(Liner{}, entry);
    if (!line.empty())
        printLine_(line);
}

} // namespace vela::console
