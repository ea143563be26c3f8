// Text dropped on an edit box from another window.
#pragma once

#include <windows.h>

namespace vela::win32 {

class EditBox;

// Once a box, at its first painting (registering is dear); nothing on a thread that has not initialised OLE.
void registerDropTarget(EditBox& box, bool& registered);
void revokeDropTarget(HWND window, bool& registered) noexcept;

} // namespace vela::win32
