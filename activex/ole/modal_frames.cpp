// IOleInPlaceFrame::EnableModeless around each box, for the frames that there were before it.
#include "activex/ole/modal_frames.h"

#include "activex/com/guard.h"
#include "platform/win32/modal.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vela::activex {

namespace {

using Frames = std::vector<ComPtr<IOleInPlaceFrame>>;

bool contains(const Frames& frames, IOleInPlaceFrame* frame) noexcept
{
    return std::any_of(frames.begin(), frames.end(), [&](const auto& one) { return one.Get() == frame; });
}

// Lives while a control is active on its thread, or a box that was told of is up.
class ModalFrames final : public win32::ModalListener {
public:
    void add(IOleInPlaceFrame* frame) { frames_.push_back(ComPtr<IOleInPlaceFrame>(frame)); }
    void remove(IOleInPlaceFrame* frame) noexcept
    {
        const auto found =
            std::find_if(frames_.begin(), frames_.end(), [&](const auto& one) { return one.Get() == frame; });
        if (found == frames_.end())
            return;
        const auto gone = std::move(*found);
        frames_.erase(found);
    }
    [[nodiscard]] bool unused() const noexcept { return frames_.empty() && told_.empty(); }

    void modal(bool up) noexcept override
    {
        contained([&] { up ? begin() : end(); });
        if (unused())
            retire();
    }
    void retire() noexcept
    {
        contained([] { win32::putModalListener(nullptr); });
        delete this;
    }

private:
    void begin()
    {
        Frames once;
        for (const auto& frame : frames_)
            if (!contains(once, frame.Get()))
                once.push_back(frame);
        told_.push_back(std::move(once));
        tell(FALSE);
    }
    void end()
    {
        if (told_.empty()) // there was no control when the box came up
            return;
        tell(TRUE);
        told_.pop_back();
    }
    // A frame may show a box itself meanwhile, or let controls go.
    void tell(BOOL enable) const
    {
        const std::size_t box = told_.size() - 1;
        for (std::size_t i = 0; i < told_[box].size(); ++i)
            ComPtr(told_[box][i])->EnableModeless(enable);
    }

    Frames frames_;
    std::vector<Frames> told_; // by the boxes that are up, the innermost last
};

ModalFrames* ofThread() noexcept
{
    return static_cast<ModalFrames*>(win32::modalListener());
}

} // namespace

void addModalFrame(IOleInPlaceFrame* frame)
{
    if (!frame)
        return;
    if (!ofThread())
        win32::putModalListener(new ModalFrames);
    ofThread()->add(frame);
}

void removeModalFrame(IOleInPlaceFrame* frame) noexcept
{
    ModalFrames* const all = ofThread();
    if (!all || !frame)
        return;
    all->remove(frame);
    if (all->unused())
        all->retire();
}

} // namespace vela::activex
