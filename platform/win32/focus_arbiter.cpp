// The order of a settled change: the focus goes back, a loan ends, then what had to wait is run.
#include "platform/win32/focus_arbiter.h"

#include "platform/win32/edit_box.h"
#include "platform/win32/guard.h"
#include "platform/win32/thread.h"

#include <algorithm>
#include <utility>

namespace vela::win32 {
namespace {

constexpr UINT settleMessage = WM_APP + 1;

} // namespace

FocusArbiter& FocusArbiter::retain()
{
    ThreadRecord& thread = madeThreadRecord();
    if (!thread.arbiter)
        thread.arbiter = new FocusArbiter;
    ++thread.arbiter->users_;
    return *thread.arbiter;
}

void FocusArbiter::release() noexcept
{
    // Waiting work keeps the arbiter alive until the message loop has run it.
    ThreadRecord* const thread = threadRecord();
    if (FocusArbiter* const arbiter = thread ? thread->arbiter : nullptr;
        arbiter && --arbiter->users_ == 0 && arbiter->later_.empty())
        delete std::exchange(thread->arbiter, nullptr);
}

FocusArbiter* FocusArbiter::ofThread() noexcept
{
    const ThreadRecord* const thread = threadRecord();
    return thread ? thread->arbiter : nullptr;
}

void FocusArbiter::abandon() noexcept
{
    ThreadRecord* const thread = threadRecord();
    if (!thread || !thread->arbiter || thread->arbiter->users_ > 0)
        return;
    thread->arbiter->window_ = nullptr;
    delete std::exchange(thread->arbiter, nullptr);
}

FocusArbiter::~FocusArbiter()
{
    if (window_) {
        unbind(window_);
        DestroyWindow(window_);
    }
}

FocusArbiter::Change::Change(FocusArbiter& arbiter, EditBox* left, bool mayReturn) noexcept
    : arbiter_(arbiter), leftBefore_(std::exchange(arbiter.left_, left)),
      mayReturnBefore_(std::exchange(arbiter.mayReturn_, mayReturn))
{
    ++retain().depth_;
}

FocusArbiter::Change::~Change()
{
    arbiter_.left_ = leftBefore_;
    arbiter_.mayReturn_ = mayReturnBefore_;
    if (--arbiter_.depth_ == 0 && (arbiter_.returning_ || !arbiter_.later_.empty()))
        arbiter_.settleLater();
    release();
}

FocusArbiter::Hold::Hold() noexcept : arbiter_(retain())
{
    ++arbiter_.holds_;
}

FocusArbiter::Hold::~Hold()
{
    if (--arbiter_.holds_ == 0)
        arbiter_.settleLater();
    release();
}

// The box that is being left comes first. Of the others only the last one that asked is remembered.
void FocusArbiter::ask(EditBox& box)
{
    const bool owed = left_ == &box;
    if (!mayReturn_)
        return;
    if (owed || !returning_ || !owed_) {
        returning_ = &box;
        owed_ = owed;
    } else if (returning_ != &box) {
        waiting_ = &box;
    }
}

bool FocusArbiter::suppresses(EditBox& entering) noexcept
{
    if (!returning_ || returning_ == &entering)
        return false;
    waiting_ = &entering;
    return true;
}

void FocusArbiter::entering(EditBox& box)
{
    if (EditBox* lender = std::exchange(lender_, nullptr); lender && lender != &box)
        lender->leave(box.handle());
}

void FocusArbiter::regained(EditBox& box) noexcept
{
    if (lender_ == &box)
        lender_ = nullptr;
}

bool FocusArbiter::borrows(HWND next) const noexcept
{
    if (holds_ > 0)
        return true;
    const HWND topLevel = next ? GetAncestor(next, GA_ROOT) : nullptr;
    return topLevel && std::ranges::find(borrowers_, topLevel) != borrowers_.end();
}

void FocusArbiter::lend(EditBox& box) noexcept
{
    lender_ = &box;
}

void FocusArbiter::addBorrower(HWND topLevel)
{
    if (std::ranges::find(borrowers_, topLevel) == borrowers_.end())
        borrowers_.push_back(topLevel);
}

void FocusArbiter::removeBorrower(HWND topLevel) noexcept
{
    std::erase(borrowers_, topLevel);
    settleLater();
}

// The window is made when it is first needed: most fields come and go without a question about the focus.
void FocusArbiter::settleLater() noexcept
{
    if (!window_)
        window_ = createBound(messageClass(), *this, 0, 0, RECT{0, 0, 0, 0}, HWND_MESSAGE);
    PostMessageW(window_, settleMessage, 0, 0);
}

void FocusArbiter::forget(EditBox& box) noexcept
{
    for (EditBox** const each : {&left_, &returning_, &waiting_, &lender_})
        if (*each == &box)
            *each = nullptr;
}

void FocusArbiter::later(std::function<void()> work)
{
    later_.push_back(std::move(work));
    settleLater();
}

LRESULT FocusArbiter::handle(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message != settleMessage)
        return DefWindowProcW(window, message, first, second);
    static_cast<void>(retain()); // entering a field may destroy the last one
    contained([this] { settle(); });
    release();
    return 0;
}

// Nothing is settled during a change of focus, when a handler runs a message loop: the message posted at the end of the
// change does it.
void FocusArbiter::settle()
{
    if (depth_ > 0)
        return;
    giveBack();
    endLoan();
    runLater();
}

void FocusArbiter::giveBack()
{
    EditBox* const box = std::exchange(returning_, nullptr);
    const bool owed = std::exchange(owed_, false);
    if (box && box->regainFocus()) {
        waiting_ = nullptr;
        return;
    }
    if (box && owed)
        box->goneForGood();
    if (EditBox* const next = std::exchange(waiting_, nullptr))
        next->regainFocus(); // the return failed, so the focus stays where it went
}

void FocusArbiter::endLoan()
{
    const HWND focus = GetFocus();
    if (lender_ && !borrows(focus) && !lender_->ownsWindow(focus))
        std::exchange(lender_, nullptr)->leave(focus);
}

void FocusArbiter::runLater()
{
    for (auto& work : std::exchange(later_, {}))
        contained(work);
}

} // namespace vela::win32
