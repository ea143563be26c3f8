// Two fields on a form under any settings, keys, pastes and moves of the focus. Throughout: the caret stands in the
// text, a person's keys leave a mask's literals alone, a number's display is shown again as it is, undoing everything
// gives the text that was there, and a field saved, loaded and saved again keeps its settings.
#include "control/property_table.h"
#include "control/vela.h"
#include "platform/headless/control_host.h"
#include "platform/headless/control_surface.h"
#include "platform/headless/environment.h"
#include "platform/headless/property_bag.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace {

using namespace vela;
using engine::Value;

void require(bool holds, const char* rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", rule);
    std::abort();
}

class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : left_(data, size) {}
    [[nodiscard]] bool empty() const { return left_.empty(); }
    std::uint8_t next()
    {
        if (left_.empty())
            return 0;
        const std::uint8_t first = left_.front();
        left_ = left_.subspan(1);
        return first;
    }
    int below(int bound) { return next() % bound; }

private:
    std::span<const std::uint8_t> left_;
};

constexpr std::array<std::u16string_view, 28> texts{u"",
                                                    u"0",
                                                    u"1",
                                                    u"-5",
                                                    u"12,5",
                                                    u"1234567,891",
                                                    u"1.234,5",
                                                    u"1e3",
                                                    u"&HFF",
                                                    u",",
                                                    u"(5)",
                                                    u"R$ ",
                                                    u";%",
                                                    u"R$ ;%",
                                                    u"29/02/2024",
                                                    u"14:05",
                                                    u"__/__/____",
                                                    u"__:__",
                                                    u"___-____",
                                                    u"(__) ____",
                                                    u"@@@-####",
                                                    u"dd/mm/yyyy",
                                                    u"hh:nn",
                                                    u"%date",
                                                    u"_",
                                                    u"ABC",
                                                    u"joão da silva",
                                                    u"\xD83D\xDE00\r\n\t"};

constexpr std::u16string_view typable = u"0123456789,.-/:_ abcXYZç#@+\xD83D\xDE00";
constexpr std::array<int, 10> namedKeys{8, 13, 27, 35, 36, 37, 38, 39, 40, 46};

struct Field {
    headless::ControlSurface surface;
    headless::ControlHost host;
    control::Vela control;

    Field(headless::FormWindow& form, headless::Machine& machine, popups::Popups& popups, std::u16string name,
          int index)
        : surface(form, std::move(name), index), host(surface), control(host, surface, machine.environment, popups)
    {
        surface.connect(control, control);
    }
    headless::EditBox& box() { return surface.activeBox(); }
    [[nodiscard]] std::u16string text() { return box().shownText(); }
};

// Settings that loading sets anew, or that are deliberately not saved.
bool isKept(std::u16string_view key)
{
    constexpr std::array<std::u16string_view, 7> others{
        u"Text", u"ToolTipGotFocusTipo", u"FormatoExibData", u"DateFormat", u"MaxLength", u"Mask", u"ValorPadrao"};
    return std::ranges::find(others, key) == others.end();
}

class Game {
public:
    explicit Game(Bytes bytes) : bytes_(bytes)
    {
        machine_.clock.freeze({45351.5});
        form_.focusArrived = [this] { ++arrivals_; };
        for (int i = 0; i < 2; ++i) {
            fields_[static_cast<std::size_t>(i)] = std::make_unique<Field>(form_, machine_, popups_, u"f", i);
            fields_[static_cast<std::size_t>(i)]->control.initNew();
        }
    }

    void play()
    {
        for (int acts = 0; acts < 400 && !bytes_.empty(); ++acts) {
            try {
                act();
            } catch (const engine::Error&) { // a put that is refused
            }
            for (const auto& field : fields_)
                checkCaret(*field);
        }
    }

private:
    Field& field() { return *fields_[static_cast<std::size_t>(bytes_.below(2))]; }
    std::u16string_view anyText() { return texts[bytes_.next() % texts.size()]; }
    static void set(Field& field, std::u16string_view name, const Value& value)
    {
        control::putProperty(field.control, name, value);
    }

    void act()
    {
        switch (bytes_.below(12)) {
        case 0:
        case 1: putAny(); break;
        case 2:
        case 3:
        case 4: typeAny(); break;
        case 5: form_.key(headless::namedKey(namedKeys[bytes_.next() % namedKeys.size()])); break;
        case 6: form_.placeCaret(bytes_.below(12), bytes_.below(12)); break;
        case 7: form_.paste(anyText()); break;
        case 8: moveFocus(); break;
        case 9: undoAll(); break;
        case 10: saveAndLoad(field()); break;
        case 11: click(); break;
        default: break;
        }
    }

    void putAny()
    {
        Field& target = field();
        const auto rows = control::properties();
        const control::Property& row = rows[bytes_.next() % rows.size()];
        if (row.name == u"Font")
            return;
        if (row.type() == control::PropertyType::text || bytes_.below(8) == 0)
            set(target, row.name, std::u16string(anyText()));
        else
            set(target, row.name, std::int32_t{bytes_.below(5)});
    }

    // Keys never touch the literals of a mask that stood whole.
    void typeAny()
    {
        const char16_t unit = typable[bytes_.next() % typable.size()];
        auto* const focused = static_cast<headless::ControlSurface*>(form_.focused());
        if (focused == nullptr)
            return;
        Field& target = focused == &fields_[0]->surface ? *fields_[0] : *fields_[1];
        const std::u16string before = target.text();
        form_.key(headless::keyOf(unit));
        const bool masked = static_cast<int>(target.control.settings().textType) == 2 ||
                            static_cast<int>(target.control.settings().textType) == 3;
        const std::u16string& mask = target.control.settings().mask;
        if (!masked || before.size() != mask.size() || form_.focused() != focused || !target.box().traits().locked)
            return;
        const std::u16string after = target.text();
        require(after.size() == before.size(), "a key keeps a mask's length");
        for (std::size_t i = 0; i < mask.size(); ++i)
            require(target.control.settings().promptChar == std::u16string_view(mask).substr(i, 1) ||
                        after[i] == before[i],
                    "a key keeps a mask's literals");
    }

    // Left, entered and left again, a number shows the same.
    void moveFocus()
    {
        Field& target = field();
        form_.focus(target.surface);
        form_.focusNone();
        form_.focusNone();
        if (!showsAgain(target.control))
            return;
        const std::u16string shown = target.text();
        form_.focus(target.surface);
        form_.focusNone();
        require(target.text() == shown, "a display is shown again as it is");
        form_.focus(field().surface);
    }

    // Settings under which a display reads back as the number it shows.
    static bool showsAgain(const control::Vela& control)
    {
        return control.settings().textType == engine::TipoText::Numerico && !control.settings().maskToNumeric &&
               control.settings().simbolDecExib == engine::Simbolos::Virgula &&
               (control.settings().simbolAgrupMilhar == engine::Simbolos::Ponto) &&
               control.settings().simboloMonetario.empty();
    }

    void undoAll()
    {
        auto* const focused = static_cast<headless::ControlSurface*>(form_.focused());
        if (focused == nullptr)
            return;
        Field& target = focused == &fields_[0]->surface ? *fields_[0] : *fields_[1];
        const std::u16string start = target.text();
        const platform::Selection selection = target.box().selection();
        target.control.Text(start); // a host's write starts a new history
        const auto type = static_cast<int>(target.control.settings().textType);
        if (target.text() != start || type < 0 || type > 3) // a put of another type writes nothing
            return;
        target.box().placeCaret(selection.start, selection.length);
        const int edits = bytes_.below(24);
        arrivals_ = 0; // a wrong entry that keeps the focus was left all the same, and what leaving wrote stays
        for (int i = 0; i < edits && form_.focused() == focused; ++i)
            if (bytes_.below(4) == 0)
                form_.key(headless::namedKey(namedKeys[bytes_.next() % namedKeys.size()]));
            else
                form_.key(headless::keyOf(typable[bytes_.next() % typable.size()]));
        if (form_.focused() != focused || arrivals_ > 0)
            return;
        for (int i = 0; i < 100; ++i)
            form_.undo();
        require(target.text() == start, "undoing everything gives the start");
    }

    static headless::PropertyBag saved(Field& field)
    {
        headless::PropertyBag bag;
        field.control.save(bag);
        return bag;
    }

    static bool holds(const headless::PropertyBag& bag, const std::u16string& key, const Value& value)
    {
        return std::ranges::find(bag.entries(), std::pair(key, value)) != bag.entries().end();
    }

    void saveAndLoad(Field& source)
    {
        headless::PropertyBag first = saved(source);
        Field copy(form_, machine_, popups_, u"copy", 2);
        copy.control.load(first);
        const headless::PropertyBag second = saved(copy);
        for (const auto& [key, value] : first.entries())
            if (isKept(key))
                require(holds(second, key, value), "settings survive saving and loading");
        for (const auto& [key, value] : second.entries())
            if (isKept(key))
                require(holds(first, key, value), "loading invents no settings");
    }

    void click()
    {
        Field& target = field();
        form_.pointTo(target.surface);
        form_.click(target.surface);
        target.surface.clickButton();
        form_.pointAway();
        form_.tick();
        machine_.forms.tick();
    }

    void checkCaret(Field& field)
    {
        const platform::Selection selection = field.box().selection();
        const auto length = static_cast<int>(field.text().size());
        require(selection.start >= 0 && selection.length >= 0 && selection.start + selection.length <= length,
                "the caret stands in the text");
    }

    Bytes bytes_;
    int arrivals_ = 0; // of the focus
    headless::Machine machine_;
    headless::FormWindow form_{machine_.desktop, machine_.trace, machine_.faults};
    popups::Popups popups_{machine_.environment, machine_.forms};
    std::array<std::unique_ptr<Field>, 2> fields_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > 2048)
        return -1;
    Game(Bytes(data, size)).play();
    return 0;
}
