// What a property page knows of the controls it edits and of the frame that shows it.
#pragma once

#include "engine/value.h"

#include <functional>
#include <optional>
#include <string_view>

namespace vela::pages {

// An object whose properties are found by name, once, and read and written by the number that find() gives.
class PropertyObject {
public:
    [[nodiscard]] virtual int find(std::u16string_view name) = 0; // raises 438 for an unknown name
    [[nodiscard]] virtual engine::Value get(int property) = 0;
    virtual void put(int property, const engine::Value& value) = 0;

protected:
    ~PropertyObject() = default;
};

class PageSite {
public:
    virtual void changed(bool dirty) = 0; // the page's changed flag was set or cleared
    // Calls `act`, something a person did on the page, once. A host that drops the page meanwhile keeps it alive until
    // this returns. An error of the act goes to the caller or is shown to the person. Acts may nest.
    virtual void runAct(const std::function<void()>& act) = 0;

protected:
    ~PageSite() = default;
};

// Shows frmPaleta modally; nothing when it was cancelled.
class ColourChooser {
public:
    [[nodiscard]] virtual std::optional<engine::Colour> choose() = 0;

protected:
    ~ColourChooser() = default;
};

} // namespace vela::pages
