// What the parts of one control share: its settings, its edit box, its host, and how they notify, show and log.
#pragma once

#include "control/settings.h"
#include "control/trap.h"
#include "engine/alive.h"
#include "engine/error.h"
#include "engine/field/mask.h"
#include "engine/field/number_display.h"
#include "platform/control_host.h"
#include "platform/control_surface.h"
#include "platform/environment.h"
#include "popups/popups.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace vela::control {

struct Property;

// Those of its members that may call the host raise 91 when the control was destroyed meanwhile; no member may then be
// touched.
class Context {
public:
    class Scratch;

    Context(platform::ControlHost& itsHost, platform::ControlSurface& itsSurface, platform::Environment& itsEnvironment,
            popups::Popups& itsPopups)
        : host(itsHost), surface(itsSurface), environment(itsEnvironment), popups(itsPopups)
    {
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    [[nodiscard]] platform::EditBox& box() const; // the active one; 91 when it is released and after the end
    [[nodiscard]] bool hasBox() const noexcept { return box_ != nullptr; }
    platform::EditBox& activate(bool multiLine);
    void release(bool released) noexcept { released_ = released; } // the box, by LimparMemoria
    [[nodiscard]] bool released() const noexcept { return released_; }
    [[nodiscard]] bool deaf() const noexcept { return released_ || life.ended(); } // the box's events are not heard
    template <class Body>
    void hear(Body&& body); // runs the handler of an event of the box, unless deaf()
    void readText(std::u16string& into) const { box().text(into); }
    template <class T>
    void putTrait(T platform::EditTraits::*trait, const T& value);

    void notify(const Property& property); // that it has been put
    void raise(void (platform::ControlHost::*event)());
    void showBox(platform::BoxIcon icon, std::u16string_view title, std::u16string_view text);
    void log(const engine::Error& error, std::u16string_view label);
    template <class Body>
    void trapToLog(std::u16string_view label, Body body);

    [[nodiscard]] const engine::Locale& locale() const { return environment.locales.locale(); }
    [[nodiscard]] bool masked() const noexcept;     // Data or Mascara
    [[nodiscard]] bool liveNumber() const noexcept; // Numerico with MaskToNumeric
    [[nodiscard]] engine::NumberSettings numberSettings() const;
    [[nodiscard]] engine::MaskSettings maskSettings() const;

    platform::ControlHost& host;
    platform::ControlSurface& surface;
    platform::Environment& environment;
    popups::Popups& popups;
    engine::Life life;
    Settings settings;

private:
    mutable platform::EditBox* box_ = nullptr; // made at its first use
    bool released_ = false;
    std::array<std::unique_ptr<std::u16string>, 4> scratch_; // lent out by Scratch: nothing is allocated for a key
};

// A text buffer that is lent to one routine. It is empty at first and keeps its capacity when it is returned. Routines
// may nest: when no buffer is left, a new one is made.
class Context::Scratch {
public:
    explicit Scratch(Context& context) : context_(context), alive_(context.life), text_(borrow(context)) {}
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    [[nodiscard]] std::u16string& operator*() noexcept { return *text_; }
    [[nodiscard]] std::u16string* operator->() noexcept { return text_.get(); }

private:
    [[nodiscard]] static std::unique_ptr<std::u16string> borrow(Context& context);

    Context& context_;
    engine::Alive alive_;
    std::unique_ptr<std::u16string> text_;
};

template <class T>
void Context::putTrait(T platform::EditTraits::*trait, const T& value)
{
    if (box().traits().*trait == value)
        return;
    platform::EditTraits traits = box().traits();
    traits.*trait = value;
    box().putTraits(traits);
}

template <class Body>
void Context::hear(Body&& body)
{
    if (!deaf())
        whileAlive(life, std::forward<Body>(body));
}

template <class Body>
void Context::trapToLog(std::u16string_view label, Body body)
{
    trap(
        life, [&](int&) { body(); }, [&](const engine::Error& failure) { log(failure, label); });
}

} // namespace vela::control
