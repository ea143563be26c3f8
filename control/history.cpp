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

void History::add(int at, std::u16string_view removed, std::u16string_view inserted, platform::Selection before,
                  bool joined)
{
    dropUndone();
    if (removed.size() + inserted.size() > mostUnits) {
        clear();
        return;
    }
    while (!steps_.empty() &&
           (steps_.size() >= mostSteps || units_.size() + removed.size() + inserted.size() > mostUnits))
        dropOldest();
    steps_.push_back(
        {at, static_cast<int>(removed.size()), static_cast<int>(inserted.size()), before, joined && !steps_.empty()});
    units_.append(removed).append(inserted);
    done_ = steps_.size();
    doneUnits_ = units_.size();
}

void History::addDifference(std::u16string_view from, std::u16string_view to, platform::Selection before, bool joined)
{
    if (from == to)
        return;
    const auto same = static_cast<std::size_t>(std::ranges::mismatch(from, to).in1 - from.begin());
    from.remove_prefix(same);
    to.remove_prefix(same);
    while (!from.empty() && !to.empty() && from.back() == to.back()) {
        from.remove_suffix(1);
        to.remove_suffix(1);
    }
    add(static_cast<int>(same), from, to, before, joined);
}

void History::clear() noexcept
{
    steps_.clear();
    units_.clear();
    done_ = 0;
    doneUnits_ = 0;
    expecting = false;
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
    expecting = false;
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
    expecting = false;
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
