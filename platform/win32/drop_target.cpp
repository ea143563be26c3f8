// An OLE drop target that takes text only.
#include "platform/win32/drop_target.h"

#include "platform/win32/com_object.h"
#include "platform/win32/edit_box.h"
#include "platform/win32/guard.h"
#include "platform/win32/text.h"

#include <ole2.h>

#include <string>

namespace vela::win32 {
namespace {

constexpr FORMATETC unicodeText{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};

std::u16string textIn(IDataObject& data)
{
    FORMATETC wanted = unicodeText;
    STGMEDIUM medium{};
    if (FAILED(data.GetData(&wanted, &medium)))
        return {};
    std::u16string text;
    if (const auto* units = static_cast<const wchar_t*>(GlobalLock(medium.hGlobal))) {
        text = utf16({units, wcsnlen(units, GlobalSize(medium.hGlobal) / sizeof(wchar_t))});
        GlobalUnlock(medium.hGlobal);
    }
    ReleaseStgMedium(&medium);
    return text;
}

} // namespace

// Registered with the box's window and revoked when that goes, so the box outlives its use.
class EditDropTarget final : public ComObject<IDropTarget> {
public:
    explicit EditDropTarget(EditBox& box) noexcept : box_(box) {}

    STDMETHODIMP DragEnter(IDataObject* data, DWORD, POINTL, DWORD* effect) noexcept override
    {
        FORMATETC wanted = unicodeText;
        acceptable_ = data && data->QueryGetData(&wanted) == S_OK && IsWindowEnabled(box_.handle());
        return answer(effect);
    }
    STDMETHODIMP DragOver(DWORD, POINTL, DWORD* effect) noexcept override { return answer(effect); }
    STDMETHODIMP DragLeave() noexcept override { return S_OK; }
    STDMETHODIMP Drop(IDataObject* data, DWORD, POINTL point, DWORD* effect) noexcept override
    {
        return contained(
            [&]() -> HRESULT {
                const HRESULT result = answer(effect);
                if (acceptable_ && data)
                    if (const std::u16string text = textIn(*data); !text.empty())
                        box_.dropped(text, POINT{point.x, point.y});
                return result;
            },
            HRESULT{E_UNEXPECTED});
    }

private:
    HRESULT answer(DWORD* effect) const noexcept
    {
        if (!effect)
            return E_POINTER;
        *effect = acceptable_ ? *effect & DROPEFFECT_COPY : DROPEFFECT_NONE;
        return S_OK;
    }

    EditBox& box_;
    bool acceptable_ = false;
};

void registerDropTarget(EditBox& box, bool& registered)
{
    if (registered)
        return;
    registered = true; // also when it fails: it would fail at every painting
    auto* target = new EditDropTarget(box);
    RegisterDragDrop(box.handle(), target);
    target->Release();
}

void revokeDropTarget(HWND window, bool& registered) noexcept
{
    if (registered)
        RevokeDragDrop(window);
    registered = false;
}

} // namespace vela::win32
