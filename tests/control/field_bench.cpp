// Makes the fields and writes down what was seen of them.
#include "field_bench.h"

#include <type_traits>
#include <utility>
#include <variant>

namespace vela::control {

namespace trace = headless::trace;

namespace {

std::string numbers(const trace::Event& event)
{
    std::string text;
    if (event.count > 0)
        text += " " + std::to_string(event.first);
    if (event.count > 1)
        text += " " + std::to_string(event.second);
    return text;
}

std::string describe(const headless::TraceEntry& entry)
{
    return std::visit(
        [](const auto& what) -> std::string {
            using What = std::decay_t<decltype(what)>;
            if constexpr (std::is_same_v<What, trace::Event>)
                return narrow(what.name) + numbers(what);
            else if constexpr (std::is_same_v<What, trace::MessageBox>)
                return "box <" + narrow(what.title) + "> " + narrow(what.text);
            else if constexpr (std::is_same_v<What, trace::Logged>)
                return "log " + std::to_string(what.record->number) + " " + narrow(what.record->label);
            else if constexpr (std::is_same_v<What, trace::Focus>)
                return "focus " + (what.element.empty() ? "none" : narrow(what.element));
            else if constexpr (std::is_same_v<What, trace::KeysSent>)
                return "send " + narrow(what.keys);
            else if constexpr (std::is_same_v<What, trace::Balloon>)
                return what.shown ? "balloon " + narrow(what.text) : "balloon hidden";
            else
                return {};
        },
        entry);
}

void append(std::string& list, const std::string& item)
{
    if (!item.empty())
        list += (list.empty() ? "" : "; ") + item;
}

} // namespace

std::string narrow(std::u16string_view text)
{
    std::string result;
    for (const char16_t unit : text)
        result += unit < 128 ? static_cast<char>(unit) : '?';
    return result;
}

std::string FieldBench::Field::shows() const
{
    std::string text = narrow(box().shownText());
    const platform::Selection selection = box().selection();
    const auto start = static_cast<std::size_t>(selection.start);
    if (selection.length == 0)
        return text.insert(start, "|");
    text.insert(start + static_cast<std::size_t>(selection.length), "]");
    return text.insert(start, "[");
}

FieldBench::FieldBench()
    : machine(*this), form(machine.desktop, *this, machine.faults), popups(machine.environment, machine.forms)
{
}

FieldBench::~FieldBench()
{
    for (const auto& field : fields_)
        destroy(*field);
}

FieldBench::Field& FieldBench::make(std::u16string name, bool runMode)
{
    Field& field = *fields_.emplace_back(std::make_unique<Field>());
    field.surface = std::make_unique<headless::ControlSurface>(form, std::move(name), static_cast<int>(fields_.size()));
    field.host = std::make_unique<headless::ControlHost>(*field.surface, runMode);
    field.vela = std::make_unique<Vela>(*field.host, *field.surface, machine.environment, popups);
    field.surface->connect(*field.vela, *field.vela);
    return field;
}

FieldBench::Field& FieldBench::add(std::u16string name)
{
    Field& field = make(std::move(name));
    field->initNew();
    static_cast<void>(seen());
    static_cast<void>(told());
    return field;
}

void FieldBench::destroy(Field& field)
{
    if (!field.vela)
        return;
    field.surface->disconnect();
    field.vela.reset();
    field.surface.reset();
    field.host.reset();
}

void FieldBench::type(std::u16string_view characters)
{
    for (const char16_t character : characters)
        form.key(headless::keyOf(character));
}

std::string FieldBench::seen()
{
    return std::exchange(seen_, {});
}

std::string FieldBench::told()
{
    return std::exchange(told_, {});
}

void FieldBench::trace(const headless::TraceEntry& entry)
{
    if (!listening)
        return;
    if (const auto* changed = std::get_if<trace::Changed>(&entry))
        append(told_, narrow(changed->property));
    else
        append(seen_, describe(entry));
}

void plate(FieldBench::Field& field)
{
    field.put(u"Mask", u"___-____");
    field.put(u"TextType", 3);
    field.put(u"MaskRules", u"@@@-####");
}

void date(FieldBench::Field& field)
{
    field.put(u"TextType", 2);
    field.put(u"DateFormat", u"dd/mm/yyyy");
}

void number(FieldBench::Field& field)
{
    field.put(u"TextType", 1);
    field.put(u"SimbolDecExib", 2);
    field.put(u"QtdCasasDec", 2);
    field.put(u"AceitaNegativos", 1);
}

void amount(FieldBench::Field& field)
{
    number(field);
    field.put(u"MaskToNumeric", 1);
}

} // namespace vela::control
