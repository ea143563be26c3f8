// Fields on a form in memory, and what was seen of them, for the tests of this directory.
#pragma once

#include "control/property_table.h"
#include "control/vela.h"
#include "platform/headless/control_host.h"
#include "platform/headless/control_surface.h"
#include "platform/headless/environment.h"
#include "platform/headless/form_window.h"
#include "platform/headless/property_bag.h"
#include "popups/popups.h"
#include "tests/engine/error_of.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vela::control {

using engine::errorOf;

[[nodiscard]] std::string narrow(std::u16string_view text); // ASCII; others as "?"

class FieldBench : private headless::TraceSink {
public:
    // A control with everything that belongs to it, as a host would own it.
    struct Field {
        std::unique_ptr<headless::ControlSurface> surface;
        std::unique_ptr<headless::ControlHost> host;
        std::unique_ptr<Vela> vela;

        Vela* operator->() const { return vela.get(); }
        [[nodiscard]] headless::HostHandlers& on() const { return host->handlers(); }
        [[nodiscard]] headless::EditBox& box() const { return surface->activeBox(); }
        void put(std::u16string_view property, engine::Value value) const { putProperty(*vela, property, value); }
        void put(std::u16string_view property, int value) const { put(property, engine::Value(value)); }
        void put(std::u16string_view property, const char16_t* value) const
        {
            put(property, engine::Value(std::u16string(value)));
        }
        [[nodiscard]] engine::Value get(std::u16string_view property) const { return getProperty(*vela, property); }
        [[nodiscard]] std::string shows() const; // "ab|c", "a[bc]": the caret or the selection
    };

    FieldBench();
    ~FieldBench() override;

    Field& make(std::u16string name, bool runMode = true); // without settings yet
    Field& add(std::u16string name = u"f");                // a new instance, focus elsewhere
    void destroy(Field& field);                            // as a host does, also inside an event

    void focus(Field& field) { form.focus(*field.surface); }
    void leave() { form.focusNone(); }
    void type(std::u16string_view characters);
    void key(int code) { form.key(headless::namedKey(code)); }
    void typeInto(Field& field, std::u16string_view characters)
    {
        focus(field);
        type(characters);
    }

    // What happened since the last call, joined by "; ": events, boxes, log records, focus.
    [[nodiscard]] std::string seen();
    // The same of change notifications.
    [[nodiscard]] std::string told();

    headless::Machine machine;
    headless::FormWindow form;
    popups::Popups popups;
    bool listening = true;

private:
    void trace(const headless::TraceEntry& entry) override;

    std::vector<std::unique_ptr<Field>> fields_;
    std::string seen_;
    std::string told_;
};

// Makes the field one of a kind.
void plate(FieldBench::Field& field);  // "___-____", three letters and four digits
void date(FieldBench::Field& field);   // "__/__/____"
void number(FieldBench::Field& field); // comma, two decimals, negatives
void amount(FieldBench::Field& field); // the same, typed from the right

} // namespace vela::control
