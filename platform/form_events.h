// What happens to a form, by the roles its logic may play: it implements those it lives by.
#pragma once

#include "platform/form_layout.h"

namespace vela::platform {

class ClickEvents {
public:
    virtual void clicked(WidgetId widget) = 0;

protected:
    ~ClickEvents() = default;
};

class DoubleClickEvents {
public:
    virtual void doubleClicked(WidgetId widget) = 0;

protected:
    ~DoubleClickEvents() = default;
};

class EntryEvents {
public:
    virtual void changed(WidgetId widget) = 0;
    virtual void gotFocus(WidgetId widget) = 0;
    virtual void lostFocus(WidgetId widget) = 0;

protected:
    ~EntryEvents() = default;
};

// A code or key that is put to 0 goes no further.
class KeyDownEvents {
public:
    virtual void keyDown(WidgetId widget, int& code, int& shift) = 0;

protected:
    ~KeyDownEvents() = default;
};

class KeyPressEvents {
public:
    virtual void keyPress(WidgetId widget, int& key) = 0;

protected:
    ~KeyPressEvents() = default;
};

class PopupEvents {
public:
    virtual void activated() = 0;
    virtual void deactivated() = 0; // another window became active
    virtual void tick() = 0;        // the form's timer
    virtual void closed() = 0;      // its close command or close(); last call

protected:
    ~PopupEvents() = default;
};

// Whom a form notifies. A role that is null interests nobody. Any of these calls may destroy the form.
struct FormEvents {
    ClickEvents* clicks = nullptr;
    DoubleClickEvents* doubleClicks = nullptr;
    EntryEvents* entries = nullptr;
    KeyDownEvents* keysDown = nullptr;
    KeyPressEvents* keys = nullptr;
    PopupEvents* popup = nullptr;

    void clicked(WidgetId widget) const
    {
        if (clicks)
            clicks->clicked(widget);
    }
    void doubleClicked(WidgetId widget) const
    {
        if (doubleClicks)
            doubleClicks->doubleClicked(widget);
    }
    void changed(WidgetId widget) const
    {
        if (entries)
            entries->changed(widget);
    }
    void gotFocus(WidgetId widget) const
    {
        if (entries)
            entries->gotFocus(widget);
    }
    void lostFocus(WidgetId widget) const
    {
        if (entries)
            entries->lostFocus(widget);
    }
    void keyDown(WidgetId widget, int& code, int& shift) const
    {
        if (keysDown)
            keysDown->keyDown(widget, code, shift);
    }
    void keyPress(WidgetId widget, int& key) const
    {
        if (keys)
            keys->keyPress(widget, key);
    }
};

} // namespace vela::platform
