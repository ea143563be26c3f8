// The context menu of an edit box.
#pragma once

#include <windows.h>

namespace vela::win32 {

enum EditCommand : UINT { editUndo = 1, editRedo, editCut, editCopy, editPaste, editDelete, editSelectAll };

struct EditMenuState {
    bool marked = false;   // something is selected
    bool password = false; // never copied
    bool filled = false;
};

// At this point of the screen, or, by the keyboard (-1), in the window. 0: nothing was chosen.
[[nodiscard]] UINT showEditMenu(HWND window, LPARAM point, EditMenuState state);

} // namespace vela::win32
