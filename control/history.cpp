// Steps of editing, kept, undone and redone.
#include "control/history.h"

#include <algorithm>

namespace vela::control {

namespace {

constexpr std::size_t mostSteps = 512;
constexpr std::size_t mostUnits = 32768;

// Replaces `from` at `at` by `to`; false when the text does not hold it there.
bool replaceAt(std::u16string& text, int at, std::u16string_view from, std::u16string_view to)
{
    const auto position = static_cast<std::size_t>(at);
    if (position > text.size() || text.compare(position, from.size(), from) != 0)
        return false;
    text.replace(position, from.size(), to);
    return true;
}

} // namespace

std::size_t History::unitsOf(const Step& step) noexcept
{
    return static_cast<std::size_t>(step.removed) + static_cast<std::size_t>(step.inserted);
}

void History::add(const platform::Edit& edit, bool joined)
{
    dropUndone();
    const std::size_t units = edit.removed.size() + edit.inserted.size();
    if (units > mostUnits) {
        clear();
        return;
    }
    while (!steps_.empty() && (steps_.size() >= mostSteps || units_.size() + units > mostUnits))
        dropOldest();
    steps_.push_back({edit.at, static_cast<int>(edit.removed.size()), static_cast<int>(edit.inserted.size()),
                      edit.before, joined && !steps_.empty()});
    units_.append(edit.removed).append(edit.inserted);
    done_ = steps_.size();
    doneUnits_ = units_.size();
}

void History::clear() noexcept
{
    steps_.clear();
    units_.clear();
    done_ = 0;
    doneUnits_ = 0;
}

void History::dropUndone()
{
    steps_.resize(done_);
    units_.resize(doneUnits_);
}

// Drops the oldest half at once, so that the steps of a full history are seldom moved. Joined steps stay together.
void History::dropOldest()
{
    std::size_t count = std::max<std::size_t>(1, steps_.size() / 2);
    while (count < steps_.size() && steps_[count].joined)
        ++count;
    std::size_t units = 0;
    for (std::size_t i = 0; i < count; ++i)
        units += unitsOf(steps_[i]);
    steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(count));
    units_.erase(0, units);
}

std::optional<platform::Selection> History::undo(std::u16string& text)
{
    std::optional<platform::Selection> selection;
    bool joined = true;
    while (joined && done_ > 0) {
        const Step& step = steps_[done_ - 1];
        const std::size_t begin = doneUnits_ - unitsOf(step);
        const std::u16string_view units(units_);
        const auto removed = units.substr(begin, static_cast<std::size_t>(step.removed));
        const auto inserted = units.substr(begin + removed.size(), static_cast<std::size_t>(step.inserted));
        if (!replaceAt(text, step.at, inserted, removed)) {
            clear();
            return std::nullopt;
        }
        selection = step.before;
        joined = step.joined;
        --done_;
        doneUnits_ = begin;
    }
    return selection;
}

std::optional<platform::Selection> History::redo(std::u16string& text)
{
    std::optional<platform::Selection> selection;
    while (done_ < steps_.size() && (!selection || steps_[done_].joined)) {
        const Step& step = steps_[done_];
        const std::u16string_view units(units_);
        const auto removed = units.substr(doneUnits_, static_cast<std::size_t>(step.removed));
        const auto inserted = units.substr(doneUnits_ + removed.size(), static_cast<std::size_t>(step.inserted));
        if (!replaceAt(text, step.at, removed, inserted)) {
            clear();
            return std::nullopt;
        }
        selection = platform::Selection{step.at + step.inserted, 0};
        ++done_;
        doneUnits_ += unitsOf(step);
    }
    return selection;
}

} // namespace vela::control
