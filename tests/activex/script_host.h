// A small host of the system's script engine, whose procedures NAME_Event take a control's events.
#pragma once

#include "com_object.h"

#include <memory>
#include <string>
#include <string_view>

namespace vela::test {

class ScriptHost {
public:
    // `object` is known to the script as `name`; its events go to the procedures of that prefix.
    ScriptHost(std::wstring_view code, const wchar_t* name, IUnknown* object);
    ScriptHost(const ScriptHost&) = delete;
    ScriptHost& operator=(const ScriptHost&) = delete;
    ~ScriptHost();

    [[nodiscard]] bool running() const noexcept;
    // "" or "1234 Source: description" of the last run-time error of the script.
    [[nodiscard]] const std::u16string& failure() const noexcept;
    [[nodiscard]] Variant variable(const wchar_t* name) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace vela::test
