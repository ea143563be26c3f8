// Modal boxes and dialogs of the library, and who is to know of them.
#pragma once

namespace vela::win32 {

class ModalListener {
public:
    // Before a box or dialog comes up on this thread, and after it has gone; in pairs, which may stand in each other.
    virtual void modal(bool up) noexcept = 0;

protected:
    ~ModalListener() = default;
};

void putModalListener(ModalListener* listener); // of this thread; null when there is none any more
[[nodiscard]] ModalListener* modalListener() noexcept;

// Stands while a box or dialog is up.
class Modal {
public:
    Modal() noexcept { tell(true); }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal() { tell(false); }

private:
    static void tell(bool up) noexcept
    {
        if (ModalListener* const listener = modalListener())
            listener->modal(up);
    }
};

} // namespace vela::win32
