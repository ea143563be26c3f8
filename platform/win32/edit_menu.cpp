// Builds and shows the context menu of an edit box.
#include "platform/win32/edit_menu.h"

#include "platform/win32/owners.h"

#include <windowsx.h>

namespace vela::win32 {
namespace {

void add(const UniqueMenu& menu, UINT command, const wchar_t* caption, bool enabled)
{
    AppendMenuW(menu.get(), MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED), command, caption);
}

void separate(const UniqueMenu& menu)
{
    AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
}

POINT placeOf(HWND window, LPARAM point)
{
    if (point != -1)
        return {GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    POINT caret{};
    GetCaretPos(&caret);
    ClientToScreen(window, &caret);
    return caret;
}

} // namespace

UINT showEditMenu(HWND window, LPARAM point, EditMenuState state)
{
    const UniqueMenu menu(CreatePopupMenu());
    add(menu, editUndo, L"&Desfazer", true);
    add(menu, editRedo, L"&Refazer", true);
    separate(menu);
    add(menu, editCut, L"Recor&tar", state.marked && !state.password);
    add(menu, editCopy, L"&Copiar", state.marked && !state.password);
    add(menu, editPaste, L"C&olar", IsClipboardFormatAvailable(CF_UNICODETEXT) != 0);
    add(menu, editDelete, L"E&xcluir", state.marked);
    separate(menu);
    add(menu, editSelectAll, L"&Selecionar tudo", state.filled);
    const POINT place = placeOf(window, point);
    return static_cast<UINT>(
        TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, 0, window, nullptr));
}

} // namespace vela::win32
