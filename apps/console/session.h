// One run of a script: the machine and the form in memory, the controls on it, the pop-ups, and what is printed.
#pragma once

#include "apps/console/command.h"
#include "apps/console/trace_printer.h"
#include "control/property_table.h"
#include "control/vela.h"
#include "platform/headless/control_host.h"
#include "platform/headless/control_surface.h"
#include "platform/headless/environment.h"
#include "platform/headless/form_window.h"
#include "popups/popups.h"

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::console {

// What a pointer points to; raises 91 for none.
template <class Pointer>
[[nodiscard]] auto& needed(const Pointer& pointer)
{
    if (!pointer)
        engine::raise(engine::error_number::objectNotSet);
    return *pointer;
}

// A control on the form with all that belongs to it.
class Field {
public:
    Field(headless::FormWindow& form, headless::Machine& machine, popups::Popups& popups, std::u16string name,
          int index, bool runMode);
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;
    ~Field();

    [[nodiscard]] const std::u16string& name() const noexcept { return surface.name(); }
    [[nodiscard]] int index() const noexcept { return index_; }

    headless::ControlSurface surface;
    headless::ControlHost host;
    control::Vela control;

private:
    int index_;
};

// How a run is made; a script that is valid prints the same whatever they are, but for `json`.
struct RunOptions {
    bool strict = false;       // the first error that no expect-error behind it expects ends the run
    bool json = false;         // one object a command in place of its lines
    std::string fileName = {}; // named before the line in complaints of a strict run; empty: standard input
};

class Session {
public:
    using Write = std::function<void(std::string_view)>; // of bytes
    Session(Write output, Write errors, RunOptions options = {});
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    // Reads one line (its end may still be on it) and carries it out; counts lines for the messages.
    void runLine(std::string_view line);
    void runScript(std::string_view script); // to its end, which finish() tells
    void finish();                           // an error that nobody has expected ends a strict run here too
    [[nodiscard]] bool ended() const noexcept { return stopped_; } // further lines would do nothing
    // 3: a strict run met an error; 2: a line was no command; 4: an expectation failed; the first that applies.
    [[nodiscard]] int exitStatus() const noexcept;

    // The error that the last command ended with, if any; taking it makes it expected.
    [[nodiscard]] std::optional<engine::Error> takeError();
    void failExpectation(const std::string& expected, const std::string& found);

    void printLine(std::string_view utf8); // and a line end

    // The controls on the form, in order of creation.
    [[nodiscard]] const std::vector<std::unique_ptr<Field>>& fields() const noexcept { return fields_; }
    [[nodiscard]] Field* findField(std::u16string_view name) const noexcept;
    [[nodiscard]] Field& fieldOf(const Word& word) const;                  // NotACommand: no such control
    [[nodiscard]] headless::Element& elementOf(const Word& word) const;    // a control or a plain element
    [[nodiscard]] const std::u16string& freshName(const Word& word) const; // NotACommand: in use, or no name
    Field& addField(const std::u16string& name, bool runMode);             // neither new nor loaded yet
    Field& replaceField(Field& field); // destroys it and makes a fresh one of the same name, place, index and mode
    void destroyField(Field& field);
    // Called while a control still stands that is about to go: pages drop it there.
    std::vector<std::function<void(const Field&)>> beforeDestroy;

    // What a family of commands keeps for the run: made by its first use, destroyed before the controls.
    template <class State>
    State& state();

    headless::Machine& machine() noexcept { return machine_; }
    headless::FormWindow& form() noexcept { return form_; }
    popups::Popups& popups() noexcept { return popups_; }
    TracePrinter& tracePrinter() noexcept { return printer_; }

private:
    [[nodiscard]] bool carryOut(std::string_view line);
    [[nodiscard]] std::vector<Word> readWords(std::string_view line);
    void runWords(Words words);
    void complain(std::string_view why);
    void report(const engine::Error& error);
    void stopAtError();
    void writeRecord(std::string_view line);
    [[nodiscard]] std::string where(long line) const;
    [[nodiscard]] std::exception_ptr end(Field& field);

    Write output_;
    Write errors_;
    TracePrinter printer_;
    headless::Machine machine_;
    headless::FormWindow form_;
    popups::Popups popups_;
    std::vector<std::unique_ptr<Field>> fields_;
    std::map<const void*, std::shared_ptr<void>> states_;
    int nextIndex_ = 0;
    RunOptions options_;
    std::optional<engine::Error> error_; // of the last command
    long errorLine_ = 0;
    std::string errorWord_;             // that command's name
    std::string word_;                  // the name of the command that runs
    std::vector<std::string> lines_;    // printed by the command that runs, kept for its JSON object
    std::optional<engine::Error> told_; // what that object says of an error
    long line_ = 0;
    long badLines_ = 0;
    long failures_ = 0;
    bool stopped_ = false;
};

template <class State>
State& Session::state()
{
    static const char key = 0; // one address a type
    std::shared_ptr<void>& slot = states_[&key];
    if (!slot)
        slot = std::make_shared<State>(*this);
    return *static_cast<State*>(slot.get());
}

} // namespace vela::console
