// The run itself: lines to commands, errors to lines, controls by name.
#include "apps/console/session.h"

#include "apps/console/json_record.h"
#include "apps/console/value_text.h"

#include <algorithm>
#include <exception>
#include <new>
#include <stdexcept>
#include <utility>

namespace vela::console {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

engine::Error outOfMemory()
{
    constexpr int number = engine::error_number::outOfMemory;
    return {number, std::u16string(engine::errorDescription(number))};
}

std::vector<std::u16string_view> elementNames(const headless::FormWindow& form)
{
    std::vector<std::u16string_view> names;
    for (const headless::Element* element : form.elements())
        names.push_back(element->name());
    return names;
}

} // namespace

CommandTable allCommands()
{
    static const std::vector<Command> all = [] {
        std::vector<Command> rows;
        for (const CommandTable table :
             {formCommands(), userCommands(), runCommands(), engineCommands(), tooltipCommands(), popupCommands(),
              pageCommands(), checkCommands(), helpCommands()})
            rows.insert(rows.end(), table.begin(), table.end());
        return rows;
    }();
    return all;
}

const Command* findCommand(std::u16string_view name)
{
    const auto found = std::ranges::find(allCommands(), name, &Command::name);
    return found != allCommands().end() ? &*found : nullptr;
}

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

Session::Session(Write output, Write errors, RunOptions options)
    : output_(std::move(output)), errors_(std::move(errors)),
      printer_([this](std::string_view line) { printLine(line); }), machine_(printer_),
      form_(machine_.desktop, printer_, machine_.faults), popups_(machine_.environment, machine_.forms),
      options_(std::move(options))
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
    if (options_.json) {
        lines_.emplace_back(utf8);
        return;
    }
    output_(utf8);
    output_("\n");
}

// "line 3" or, in a strict run, "form.vela:3".
std::string Session::where(long line) const
{
    if (!options_.strict)
        return "line " + std::to_string(line);
    return (options_.fileName.empty() ? "-" : options_.fileName) + ":" + std::to_string(line);
}

void Session::complain(std::string_view why)
{
    ++badLines_;
    told_ = engine::Error{0, fromUtf8(why), u"vela-console"};
    errors_(where(line_) + ": " + std::string(why) + "\n");
}

void Session::failExpectation(const std::string& expected, const std::string& found)
{
    ++failures_;
    const std::string what = "expected " + expected + ", found " + found;
    told_ = engine::Error{0, fromUtf8(what), u"vela-console"};
    errors_(where(line_) + ": " + what + "\n");
}

void Session::report(const engine::Error& error)
{
    error_ = told_ = error;
    errorLine_ = line_;
    errorWord_ = word_;
    if (!options_.json)
        printLine(printed(error));
}

std::optional<engine::Error> Session::takeError()
{
    return std::exchange(error_, std::nullopt);
}

void Session::stopAtError()
{
    stopped_ = true;
    errors_(where(errorLine_) + ": " + errorWord_ + ": " + printed(*error_) + "\n");
}

void Session::finish()
{
    if (options_.strict && error_ && !stopped_)
        stopAtError();
}

int Session::exitStatus() const noexcept
{
    if (stopped_)
        return 3;
    if (badLines_ > 0)
        return 2;
    return failures_ > 0 ? 4 : 0;
}

void Session::runScript(std::string_view script)
{
    while (!script.empty()) {
        const std::size_t end = std::min(script.find('\n'), script.size() - 1) + 1;
        runLine(script.substr(0, end));
        script.remove_prefix(end);
    }
    finish();
}

void Session::runLine(std::string_view line)
{
    if (++line_ == 1 && line.starts_with(byteOrderMark))
        line.remove_prefix(byteOrderMark.size());
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (stopped_)
        return;
    bool command = true;
    try {
        command = carryOut(line);
    } catch (const std::bad_alloc&) {
        report(outOfMemory());
    } catch (const std::length_error&) {
        report(outOfMemory());
    }
    if (options_.json && command)
        writeRecord(line);
}

// False for a line without a command, and for one before which a strict run has ended.
bool Session::carryOut(std::string_view line)
{
    try {
        const std::vector<Word> words = readWords(line);
        if (stopped_ || words.empty())
            return false;
        runWords(words);
    } catch (const NotACommand& fault) {
        complain(fault.why);
    } catch (const engine::Error& error) {
        report(error);
    }
    return !stopped_;
}

// The error that the line before ended with is judged by an expect-error here, or ends a strict run.
std::vector<Word> Session::readWords(std::string_view line)
{
    const auto forgetError = [this] {
        finish();
        error_.reset();
    };
    try {
        std::vector<Word> words = splitWords(line);
        if (!words.empty() && !words[0].is(u"expect-error")) {
            forgetError();
            word_ = toUtf8(words[0].bare);
        }
        return words;
    } catch (const NotACommand&) {
        forgetError();
        if (stopped_)
            return {};
        throw;
    }
}

void Session::writeRecord(std::string_view line)
{
    output_(jsonRecord(line_, line, lines_, told_ ? &*told_ : nullptr) + "\n");
    lines_.clear();
    told_.reset();
}

void Session::runWords(Words words)
{
    const Command* const command = words[0].quoted ? nullptr : findCommand(words[0].bare);
    if (command == nullptr)
        notACommand("no such command", words[0], namesOf(allCommands()));
    requireWords(words, command->least, command->most);
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
        notACommand("no such control", word, elementNames(form_));
    return *field;
}

headless::Element& Session::elementOf(const Word& word) const
{
    headless::Element* const element = word.quoted ? nullptr : form_.find(word.bare);
    if (element == nullptr)
        notACommand("no such element", word, elementNames(form_));
    return *element;
}

const std::u16string& Session::freshName(const Word& word) const
{
    if (word.quoted || word.bare == u"none")
        notACommand("no name of an element", word);
    if (form_.find(word.bare) != nullptr)
        notACommand("the name is in use", word);
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

// The control is destroyed even when terminating it raises an error.
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
