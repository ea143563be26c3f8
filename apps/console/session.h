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
#include <string>
#include <string_view>
#include <vector>

namespace vela::console {

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

class Session {
public:
    using Write = std::function<void(std::string_view)>; // of bytes
    Session(Write output, Write errors);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    // Reads one line (its end may still be on it) and carries it out; counts lines for the messages.
    void runLine(std::string_view line);
    void runScript(std::string_view script);
    [[nodiscard]] int exitStatus() const noexcept { return badLines_ == 0 ? 0 : 2; }

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
    void carryOut(std::string_view line);
    void runWords(Words words);
    void complain(std::string_view why);
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
    long line_ = 0;
    long badLines_ = 0;
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
