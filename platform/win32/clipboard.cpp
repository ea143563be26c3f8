// Reads the clipboard's text.
#include "platform/win32/clipboard.h"

#include "platform/win32/text.h"

namespace vela::win32 {
namespace {

class OpenClipboardFor {
public:
    explicit OpenClipboardFor(HWND owner) noexcept : open_(OpenClipboard(owner) != 0) {}
    OpenClipboardFor(const OpenClipboardFor&) = delete;
    OpenClipboardFor& operator=(const OpenClipboardFor&) = delete;
    ~OpenClipboardFor()
    {
        if (open_)
            CloseClipboard();
    }
    [[nodiscard]] bool isOpen() const noexcept { return open_; }

private:
    bool open_;
};

} // namespace

std::u16string clipboardText(HWND owner)
{
    const OpenClipboardFor clipboard(owner);
    const HANDLE memory = clipboard.isOpen() ? GetClipboardData(CF_UNICODETEXT) : nullptr;
    if (!memory)
        return {};
    std::u16string text;
    if (const auto* units = static_cast<const wchar_t*>(GlobalLock(memory))) {
        // The owner of the text may have left out its end.
        text = utf16({units, wcsnlen(units, GlobalSize(memory) / sizeof(wchar_t))});
        GlobalUnlock(memory);
    }
    return text;
}

} // namespace vela::win32
