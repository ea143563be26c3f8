// What happens on the headless platform, told in the order of happening to whoever listens.
#pragma once

#include "engine/geometry.h"
#include "engine/log_record.h"
#include "engine/value.h"
#include "platform/desktop.h"

#include <optional>
#include <string_view>
#include <variant>

namespace vela::headless {

enum class TraceCategory { events, changed, dialogs, keys, log, tooltip, focus, window };

// Every view in an entry lasts until the sink returns.
namespace trace {

struct Event { // an event of a control: "KeyDown" with two arguments, "Change" with none
    std::u16string_view element;
    std::u16string_view name;
    int count = 0; // of arguments
    int first = 0;
    int second = 0;
};
struct Changed { // the host was told that a property changed
    std::u16string_view element;
    std::u16string_view property;
};
struct MessageBox {
    platform::BoxIcon icon = platform::BoxIcon::none;
    std::u16string_view title;
    std::u16string_view text;
    platform::BoxAnswer answer = platform::BoxAnswer::ok;
};
struct InputBox {
    std::u16string_view prompt;
    std::u16string_view title;
    std::u16string_view answer;
};
struct Palette { // the palette dialog was answered; nothing: cancelled
    std::optional<engine::Colour> answer;
};
struct About {
    std::u16string_view text;
};
struct KeysSent { // "{TAB}"
    std::u16string_view keys;
};
struct KeyInjected { // one key-down of this virtual key
    int virtualKey = 0;
};
struct Logged {
    std::u16string_view path;
    const engine::LogRecord* record = nullptr;
};
// One message to a tooltip window. Which fields count: addTool, updateText: text; setTitle: first = icon, text;
// setTextColour, setBackColour: colour; setDelay: first = kind, second = milliseconds; trackPosition: first, second =
// the screen point; trackActivate: first = 0 or 1.
enum class TipMessage {
    create,
    destroy,
    addTool,
    setTitle,
    setTextColour,
    setBackColour,
    setDelay,
    updateText,
    trackPosition,
    trackActivate
};
struct Tip {
    std::u16string_view element; // "*": a free-standing one
    TipMessage message = TipMessage::create;
    std::u16string_view text;
    int first = 0;
    int second = 0;
    engine::Colour colour;
};
struct Balloon { // of an edit box
    bool shown = false;
    int icon = 0;
    std::u16string_view title;
    std::u16string_view text;
};
struct Focus {
    std::u16string_view element; // empty: another window's control
};
struct Opened {               // a pop-up form was shown
    std::u16string_view form; // its layout's name
    engine::RectPixels place;
};
struct Closed { // a pop-up form that was on show closed
    std::u16string_view form;
};

} // namespace trace

using TraceEntry = std::variant<trace::Event, trace::Changed, trace::MessageBox, trace::InputBox, trace::Palette,
                                trace::About, trace::KeysSent, trace::KeyInjected, trace::Logged, trace::Tip,
                                trace::Balloon, trace::Focus, trace::Opened, trace::Closed>;

[[nodiscard]] TraceCategory categoryOf(const TraceEntry& entry) noexcept;

class TraceSink {
public:
    virtual ~TraceSink() = default;
    virtual void trace(const TraceEntry& entry) = 0;
};

[[nodiscard]] TraceSink& noTrace() noexcept; // hears everything, keeps nothing

} // namespace vela::headless
