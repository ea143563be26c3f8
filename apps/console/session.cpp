// The run itself: lines to commands, errors to lines, controls by name.
#include "apps/console/session.h"

#include "apps/console/value_text.h"

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <stdexcept>
#include <utility>

namespace vela::console {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

const Command* findCommand(std::u16string_view name)
{
    for (const CommandTable table : {formCommands(), userCommands(), runCommands(), engineCommands(), tooltipCommands(),
                                     popupCommands(), pageCommands()})
        for (const Command& command : table)
            if (command.name == name)
                return &command;
    return nullptr;
}

std::string errorLine(const engine::Error& error)
{
    return "error " + std::to_string(error.number) + " " + quoted(error.source) + " " + quoted(error.description);
}

std::string errorLine(int number)
{
    return errorLine(engine::Error{number, std::u16string(engine::errorDescription(number))});
}

} // namespace

Field::Field(headless::FormWindow& form, headless::Machine& machine, popups::Popups& popups, std::u16string name,
             int index, bool runMode)
    : surface(form, std::move(name), index), host(surface, runMode),
      control(host, surface, machine.environment, popups), index_(index)
{
    surface.connect(control, control);
}

Field::~Field()
{
    surface.disconnect();
}

Session::Session(Write output, Write errors)
    : output_(std::move(output)), errors_(std::move(errors)),
      printer_([this](std::string_view line) { printLine(line); }), machine_(printer_),
      form_(machine_.desktop, printer_, machine_.faults), popups_(machine_.environment, machine_.forms)
{
    form_.focusArrived = [this] { popups_.closeAll(); };
}

// The end of a run is no event of the form: nothing more is printed.
Session::~Session()
{
    printer_.show(0);
    form_.focusArrived = nullptr;
    states_.clear();
    fields_.clear();
}

void Session::printLine(std::string_view utf8)
{
    output_(utf8);
    output_("\n");
}

void Session::complain(std::string_view why)
{
    ++badLines_;
    errors_("line " + std::to_string(line_) + ": " + std::string(why) + "\n");
}

void Session::runScript(std::string_view script)
{
    while (!script.empty()) {
        const std::size_t end = std::min(script.find('\n'), script.size() - 1) + 1;
        runLine(script.substr(0, end));
        script.remove_prefix(end);
    }
}

void Session::runLine(std::string_view line)
{
    if (++line_ == 1 && line.starts_with(byteOrderMark))
        line.remove_prefix(byteOrderMark.size());
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    try {
        carryOut(line);
    } catch (const std::bad_alloc&) {
        printLine(errorLine(engine::error_number::outOfMemory));
    } catch (const std::length_error&) {
        printLine(errorLine(engine::error_number::outOfMemory));
    }
}

void Session::carryOut(std::string_view line)
{
    try {
        const std::vector<Word> words = splitWords(line);
        if (!words.empty())
            runWords(words);
    } catch (const NotACommand& fault) {
        complain(fault.why);
    } catch (const engine::Error& error) {
        printLine(errorLine(error));
    }
}

void Session::runWords(Words words)
{
    const Command* const command = words[0].quoted ? nullptr : findCommand(words[0].bare);
    if (command == nullptr)
        notACommand("no such command");
    command->run(*this, words);
}

Field* Session::findField(std::u16string_view name) const noexcept
{
    const auto found = std::ranges::find_if(fields_, [&](const auto& field) { return field->name() == name; });
    return found != fields_.end() ? found->get() : nullptr;
}

Field& Session::fieldOf(const Word& word) const
{
    Field* const field = word.quoted ? nullptr : findField(word.bare);
    if (field == nullptr)
        notACommand("no such control");
    return *field;
}

headless::Element& Session::elementOf(const Word& word) const
{
    headless::Element* const element = word.quoted ? nullptr : form_.find(word.bare);
    if (element == nullptr)
        notACommand("no such element");
    return *element;
}

const std::u16string& Session::freshName(const Word& word) const
{
    if (word.quoted || word.bare == u"none")
        notACommand("no name of an element");
    if (form_.find(word.bare) != nullptr)
        notACommand("the name is in use");
    return word.bare;
}

Field& Session::addField(const std::u16string& name, bool runMode)
{
    return *fields_.emplace_back(std::make_unique<Field>(form_, machine_, popups_, name, nextIndex_++, runMode));
}

Field& Session::replaceField(Field& field)
{
    const std::u16string name = field.name();
    const int index = field.index();
    const bool runMode = field.host.runMode();
    const auto at = std::ranges::find_if(fields_, [&](const auto& other) { return other.get() == &field; });
    const std::size_t place = form_.placeOf(field.surface);
    std::exception_ptr failure = end(field);
    at->reset();
    form_.reserveNextPlace(place);
    try {
        *at = std::make_unique<Field>(form_, machine_, popups_, name, index, runMode);
    } catch (...) {
        fields_.erase(at);
        throw;
    }
    if (failure)
        std::rethrow_exception(failure);
    return **at;
}

void Session::destroyField(Field& field)
{
    std::exception_ptr failure = end(field);
    std::erase_if(fields_, [&](const auto& other) { return other.get() == &field; });
    if (failure)
        std::rethrow_exception(failure);
}

// A control goes whatever its end raises.
std::exception_ptr Session::end(Field& field)
{
    for (const auto& hook : beforeDestroy)
        hook(field);
    try {
        field.control.terminate();
    } catch (const engine::Error&) {
        return std::current_exception();
    }
    return nullptr;
}

} // namespace vela::console
