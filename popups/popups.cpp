// The record of a thread's pop-ups: opening, closing, and letting go of closed ones at a safe moment.
#include "popups/popups.h"

#include "engine/scoped_value.h"
#include "engine/trapped.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"
#include "popups/launching.h"

#include <vector>

namespace vela::popups {

namespace {

// At most one loaded form of its kind. A form that closes may be running the very handler that closed it, so it is put
// aside and destroyed at the next opening or with the record.
template <class PopupForm>
class Slot {
public:
    Slot()
    {
        record.closed = [this] { aside_.push_back(std::move(loaded_)); };
    }

    [[nodiscard]] PopupForm* loaded() const noexcept { return loaded_.get(); }

    template <class Make>
    PopupForm& load(Make&& make)
    {
        if (!loaded_) {
            if (record.handlersRunning == 0)
                aside_.clear();
            aside_.reserve(aside_.size() + 1); // closing allocates nothing
            loaded_ = make(record);
        }
        return *loaded_;
    }

    void close()
    {
        if (loaded_ && !opening)
            loaded_->unload();
    }

    // The owner is being destroyed. A closed pop-up may still be running a handler that would use the owner, so closed
    // ones drop it too.
    void forget(const Owner& owner)
    {
        for (const auto& form : aside_)
            drop(*form, owner);
        if (!loaded_)
            return;
        drop(*loaded_, owner);
        discard();
    }

    void discard()
    {
        if (loaded_ && engine::trapped([&] { loaded_->unload(); }) && loaded_)
            loaded_->closed(); // its window failed to close: the record lets go of it anyway
    }

    PopupRecord record;
    bool opening = false; // a change of focus caused by opening does not close it

private:
    static void drop(PopupForm& form, const Owner& owner)
    {
        if (form.owner() == &owner)
            form.setOwner(nullptr);
    }

    std::unique_ptr<PopupForm> loaded_;
    std::vector<std::unique_ptr<PopupForm>> aside_;
};

} // namespace

struct Popups::State {
    platform::Environment& environment;
    platform::FormFactory& forms;
    std::shared_ptr<SharedCalendarColours> colours;
    Slot<CalendarioSDI> calendar;
    Slot<frmCalculadora> calculator;

    State(platform::Environment& machine, platform::FormFactory& factory, std::shared_ptr<SharedCalendarColours> shared)
        : environment(machine), forms(factory), colours(std::move(shared))
    {
    }
};

Popups::Popups(platform::Environment& environment, platform::FormFactory& forms,
               std::shared_ptr<SharedCalendarColours> colours)
    : state_(std::make_unique<State>(environment, forms, std::move(colours)))
{
}

Popups::~Popups() = default;

SharedCalendarColours& Popups::colours() const noexcept
{
    return *state_->colours;
}

void Popups::openCalendar(Owner& owner)
{
    const engine::ScopedFlag opening(state_->calendar.opening, true);
    const auto load = [this]() -> CalendarioSDI& {
        state_->calculator.close();
        return state_->calendar.load([this](PopupRecord& record) {
            return std::make_unique<CalendarioSDI>(state_->environment, state_->forms, *state_->colours, record);
        });
    };
    launchCalendar(state_->environment, owner, {load, [this] { state_->calendar.discard(); }});
}

void Popups::openCalculator(Owner& owner)
{
    const engine::ScopedFlag opening(state_->calculator.opening, true);
    const auto load = [this]() -> frmCalculadora& {
        state_->calendar.close();
        return state_->calculator.load([this](PopupRecord& record) {
            return std::make_unique<frmCalculadora>(state_->environment, state_->forms, record);
        });
    };
    launchCalculator(state_->environment, owner,
                     {load, [this] { return state_->calculator.loaded(); }, [this] { state_->calculator.discard(); }});
}

void Popups::closeAll()
{
    state_->calendar.close();
    state_->calculator.close();
}

void Popups::forget(const Owner& owner)
{
    state_->calendar.forget(owner);
    state_->calculator.forget(owner);
}

bool Popups::isOpenFor(const Owner& owner) const noexcept
{
    const CalendarioSDI* calendar = state_->calendar.loaded();
    const frmCalculadora* calculator = state_->calculator.loaded();
    return (calendar != nullptr && calendar->owner() == &owner) ||
           (calculator != nullptr && calculator->owner() == &owner);
}

CalendarioSDI* Popups::calendar() noexcept
{
    return state_->calendar.loaded();
}

frmCalculadora* Popups::calculator() noexcept
{
    return state_->calculator.loaded();
}

} // namespace vela::popups
