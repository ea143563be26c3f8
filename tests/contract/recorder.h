// Writes down what the platform reports, and lets a test act inside a report.
#pragma once

#include "platform/control_surface.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vela::contract {

class Recorder final : public platform::EditBoxEvents, public platform::SurfaceEvents {
public:
    explicit Recorder(std::vector<std::string>& log, std::string name) : log_(log), name_(std::move(name)) {}

    // Runs inside the named report, after it has been written down.
    void during(const std::string& report, std::function<void()> act) { acts_[report] = std::move(act); }
    std::function<void(int&)> filter; // of key-press
    std::function<void(int&)> keyFilter;
    std::u16string lastPasted;
    std::u16string removed, inserted; // of the last edit, its views read at once
    platform::Edit lastEdit;

    void gotFocus() override { tell("got"); }
    void lostFocus(platform::Leaving) override { tell("lost"); }
    void keyDown(int& code, int&) override
    {
        if (keyFilter)
            keyFilter(code);
        tell("down");
    }
    void keyPress(int& key) override
    {
        if (filter)
            filter(key);
        tell("press");
    }
    void controlPress(int& key) override
    {
        if (filter)
            filter(key);
        tell("control");
    }
    void keyUp(int, int) override { tell("up"); }
    void changed(const platform::Edit& edit) override
    {
        removed = edit.removed;
        inserted = edit.inserted;
        lastEdit = {edit.at, removed, inserted, edit.before, edit.typed};
        tell("changed");
    }
    void clicked() override { tell("clicked"); }
    void doubleClicked() override { tell("double"); }
    void pointerMoved() override { tell("pointer"); }
    void pasted(std::u16string_view text) override
    {
        lastPasted = text;
        tell("pasted");
    }
    void cut() override { tell("cut"); }
    void undo() override { tell("undo"); }
    void redo() override { tell("redo"); }
    // The field's own rule: the surface hands the focus to its box.
    void surfaceGotFocus() override
    {
        if (box)
            box->takeFocus();
    }
    void surfaceLostFocus() override {}
    void resized() override {}
    void buttonClicked() override { tell("button"); }
    void hoverTick() override { tell("tick"); }

    platform::EditBox* box = nullptr;

private:
    void tell(const std::string& report)
    {
        log_.push_back(name_ + " " + report);
        if (const auto act = acts_.find(report); act != acts_.end())
            std::function<void()>(act->second)(); // a copy: the act may destroy this
    }

    std::vector<std::string>& log_;
    std::string name_;
    std::map<std::string, std::function<void()>> acts_;
};

} // namespace vela::contract
