// Settles the focus among the fields of one thread: returns, suppressed visits, and focus lent to the fields' own
// boxes.
#pragma once

#include "platform/win32/window.h"

#include <windows.h>

#include <functional>
#include <vector>

namespace vela::win32 {

class EditBox;

// A field that is being left may ask for the focus back. The change of focus first runs to its end; then a posted
// message gives the focus back. The field that had the focus in between reports neither gotFocus() nor lostFocus().
// When another field asks for the focus meanwhile it waits, and gets it only when the first field cannot have it.
// A pop-up or box of a field borrows the focus: the field has not been left until the focus goes elsewhere.
class FocusArbiter final : private WindowHandler {
public:
    // Lives as long as anything of the thread holds it.
    [[nodiscard]] static FocusArbiter& retain();
    static void release() noexcept;
    [[nodiscard]] static FocusArbiter* ofThread() noexcept; // null when nobody holds it
    // Called when the thread ends: waiting work is dropped, and the system destroys the window.
    static void abandon() noexcept;

    // Marks, for a scope, that a focus notification is running.
    class Change {
    public:
        // `left`: the box that is being left; null while one is entered.
        Change(FocusArbiter& arbiter, EditBox* left, bool mayReturn) noexcept;
        Change(const Change&) = delete;
        Change& operator=(const Change&) = delete;
        ~Change();

    private:
        FocusArbiter& arbiter_;
        EditBox* leftBefore_;
        bool mayReturnBefore_;
    };
    // Marks, for a scope, that the focus goes to a message box of this library.
    class Hold {
    public:
        Hold() noexcept;
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold();

    private:
        FocusArbiter& arbiter_;
    };

    [[nodiscard]] bool changing() const noexcept { return depth_ > 0 || returning_ != nullptr; }
    void ask(EditBox& box); // while changing()
    [[nodiscard]] bool returnsTo(const EditBox& box) const noexcept { return returning_ == &box; }
    [[nodiscard]] bool suppresses(EditBox& entering) noexcept; // reports gotFocus() later when the return fails
    void entering(EditBox& box);                               // another lender reports lostFocus() first
    void regained(EditBox& box) noexcept;
    [[nodiscard]] bool borrows(HWND next) const noexcept;
    void lend(EditBox& box) noexcept;
    [[nodiscard]] bool holding() const noexcept { return holds_ > 0; }
    void addBorrower(HWND topLevel);
    void removeBorrower(HWND topLevel) noexcept;
    void settleLater() noexcept;
    void forget(EditBox& box) noexcept;
    // Has the message loop run the work, after the current change of focus and its return.
    void later(std::function<void()> work);

private:
    FocusArbiter() = default;
    ~FocusArbiter();

    LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) override;
    void unbound() override { window_ = nullptr; }
    void settle();
    void giveBack();
    void endLoan();
    void runLater();

    HWND window_ = nullptr;
    EditBox* left_ = nullptr;      // being left
    EditBox* returning_ = nullptr; // gets the focus when the change has settled
    EditBox* waiting_ = nullptr;   // the last other one that wanted it since
    EditBox* lender_ = nullptr;
    std::vector<HWND> borrowers_;
    std::vector<std::function<void()>> later_;
    int users_ = 0;
    int depth_ = 0;
    int holds_ = 0;
    bool mayReturn_ = true;
    bool owed_ = false; // returning_ had the focus and asked for it back
};

} // namespace vela::win32
