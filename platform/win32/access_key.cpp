// Reads and marks access keys in captions.
#include "platform/win32/access_key.h"

namespace vela::win32 {

char16_t accessKeyOf(const platform::Widget& widget) noexcept
{
    if (widget.list || platform::isTyped(widget.kind()))
        return 0;
    if (widget.row->accessKey)
        return widget.row->accessKey;
    const std::u16string_view caption = widget.text;
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return caption[i + 1];
        ++i;
    }
    return 0;
}

std::u16string markedCaption(const platform::Widget& widget)
{
    std::u16string marked = widget.text;
    const char16_t key = widget.row->accessKey;
    if (!key || platform::isTyped(widget.kind()))
        return marked;
    std::size_t place = marked.find(key);
    for (std::size_t i = place; i < marked.size(); ++i)
        if (marked[i] == key && (i == 0 || marked[i - 1] == u' ')) {
            place = i;
            break;
        }
    if (place < marked.size())
        marked.insert(place, 1, u'&');
    return marked;
}

std::u16string withoutAccessKey(std::u16string_view caption)
{
    std::u16string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i;
        plain += caption[i];
    }
    return plain;
}

} // namespace vela::win32
