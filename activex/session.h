// What the controls of one thread share: the machine's services, the forms, and the pop-ups.
#pragma once

#include "platform/win32/desktop.h"
#include "platform/win32/environment.h"
#include "platform/win32/form.h"
#include "platform/win32/settings_store.h"
#include "popups/popups.h"

#include <memory>

namespace vela::activex {

class Session {
public:
    // The calling thread's; it lives as long as somebody holds it.
    [[nodiscard]] static std::shared_ptr<Session> current();

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() = default;

private:
    Session();

    win32::Clock clock_;
    win32::LogFile log_;
    win32::Desktop desktop_;
    win32::SystemInfo system_;

public:
    win32::LocaleSource locales;
    win32::FormFactory forms;
    win32::SettingsStore settings;
    platform::Environment environment;
    popups::Popups popups;
};

} // namespace vela::activex
