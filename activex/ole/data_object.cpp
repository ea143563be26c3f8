// IDataObject of the shell.
#include "activex/ole/data_object.h"

#include "activex/com/enumerator.h"
#include "activex/ole/shell.h"
#include "platform/win32/owners.h"

#include <cstring>
#include <iterator>
#include <optional>

namespace vela::activex {

namespace {

constexpr FORMATETC formats[] = {
    {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT},
    {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
    {CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL},
    {CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL},
};

void give(const FORMATETC& from, FORMATETC& into)
{
    into = from;
}
using FormatEnumerator = Enumerator<IEnumFORMATETC, FORMATETC, FORMATETC, give>;

// A metafile under construction: its device context, until the recording is closed.
struct MetafileTraits {
    using Handle = HDC;
    static void close(HDC dc) noexcept { DeleteMetaFile(CloseMetaFile(dc)); }
};
struct EnhancedMetafileTraits {
    using Handle = HDC;
    static void close(HDC dc) noexcept { DeleteEnhMetaFile(CloseEnhMetaFile(dc)); }
};

HGLOBAL newBlock(const void* from, std::size_t size)
{
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    void* const into = block ? GlobalLock(block) : nullptr;
    if (!into)
        throw std::bad_alloc();
    std::memcpy(into, from, size);
    GlobalUnlock(block);
    return block;
}

// The picture is drawn in the field's pixels; the viewport, or whoever plays the metafile, scales them.
void drawScaled(Shell& shell, HDC dc, std::optional<SIZE> viewport = {})
{
    const FieldSize size = shell.content().size();
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    SetWindowExtEx(dc, size.width, size.height, nullptr);
    if (viewport)
        SetViewportExtEx(dc, viewport->cx, viewport->cy, nullptr);
    shell.content().draw(dc, {0, 0, size.width, size.height});
}

// The pixels of the recording device that this many HIMETRIC cover: by its real size, not by its logical dots per inch.
SIZE pixelsOf(SIZEL himetric, HDC dc) noexcept
{
    constexpr int himetricPerMillimetre = 100;
    return {MulDiv(himetric.cx, GetDeviceCaps(dc, HORZRES), GetDeviceCaps(dc, HORZSIZE) * himetricPerMillimetre),
            MulDiv(himetric.cy, GetDeviceCaps(dc, VERTRES), GetDeviceCaps(dc, VERTSIZE) * himetricPerMillimetre)};
}

HRESULT giveMetafile(Shell& shell, STGMEDIUM& medium)
{
    win32::Unique<MetafileTraits> dc(CreateMetaFileW(nullptr));
    if (!dc)
        return E_OUTOFMEMORY;
    drawScaled(shell, dc.get());
    const SIZEL extent = shell.extent();
    METAFILEPICT picture{MM_ANISOTROPIC, extent.cx, extent.cy, CloseMetaFile(dc.release())};
    medium.hMetaFilePict = newBlock(&picture, sizeof picture);
    return S_OK;
}

HRESULT giveEnhancedMetafile(Shell& shell, STGMEDIUM& medium)
{
    const SIZEL extent = shell.extent();
    const RECT frame{0, 0, extent.cx, extent.cy};
    win32::Unique<EnhancedMetafileTraits> dc(CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr));
    if (!dc)
        return E_OUTOFMEMORY;
    drawScaled(shell, dc.get(), pixelsOf(extent, dc.get()));
    medium.hEnhMetaFile = CloseEnhMetaFile(dc.release());
    return S_OK;
}

HRESULT giveText(Shell& shell, STGMEDIUM& medium)
{
    const std::u16string text = shell.content().plainText();
    medium.hGlobal = newBlock(text.c_str(), (text.size() + 1) * sizeof(char16_t));
    return S_OK;
}

HRESULT giveNarrowText(Shell& shell, STGMEDIUM& medium)
{
    const std::string narrow = win32::narrow(shell.content().plainText());
    medium.hGlobal = newBlock(narrow.c_str(), narrow.size() + 1);
    return S_OK;
}

HRESULT give(Shell& shell, const FORMATETC& format, STGMEDIUM& medium)
{
    switch (format.cfFormat) {
    case CF_METAFILEPICT: return giveMetafile(shell, medium);
    case CF_ENHMETAFILE: return giveEnhancedMetafile(shell, medium);
    case CF_UNICODETEXT: return giveText(shell, medium);
    default: return giveNarrowText(shell, medium);
    }
}

const FORMATETC* find(const FORMATETC& wanted) noexcept
{
    for (const FORMATETC& format : formats)
        if (format.cfFormat == wanted.cfFormat && (format.tymed & wanted.tymed))
            return &format;
    return nullptr;
}

} // namespace

void DataObject::changed() noexcept
{
    if (const auto advised = advised_)
        advised->SendOnDataChange(this, 0, 0);
}

HRESULT DataObject::GetData(FORMATETC* format, STGMEDIUM* medium) noexcept
{
    if (!format || !medium)
        return E_POINTER;
    *medium = {};
    if (const HRESULT has = QueryGetData(format); has != S_OK)
        return has;
    return shell_.guarded([&] {
        const FORMATETC& found = *find(*format);
        const HRESULT given = give(shell_, found, *medium);
        if (SUCCEEDED(given))
            medium->tymed = found.tymed;
        return given;
    });
}

HRESULT DataObject::QueryGetData(FORMATETC* format) noexcept
{
    if (!format)
        return E_POINTER;
    if (format->dwAspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT; // but any part number: the picture is whole
    return find(*format) ? S_OK : DV_E_FORMATETC;
}

HRESULT DataObject::GetCanonicalFormatEtc(FORMATETC* from, FORMATETC* into) noexcept
{
    if (!from || !into)
        return E_POINTER;
    *into = *from;
    into->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
}

HRESULT DataObject::EnumFormatEtc(DWORD direction, IEnumFORMATETC** list) noexcept
{
    if (!list)
        return E_POINTER;
    *list = nullptr;
    if (direction != DATADIR_GET)
        return E_NOTIMPL;
    return shell_.guarded([&] {
        *list = FormatEnumerator::make(std::make_shared<std::vector<FORMATETC>>(std::begin(formats), std::end(formats)))
                    .Detach();
    });
}

HRESULT DataObject::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* connection) noexcept
{
    const Shell::Hold hold(shell_);
    if (!advised_)
        if (const HRESULT made = CreateDataAdviseHolder(&advised_); FAILED(made))
            return made;
    return advised_->Advise(this, format, flags, sink, connection);
}

HRESULT DataObject::DUnadvise(DWORD connection) noexcept
{
    const Shell::Hold hold(shell_);
    return advised_ ? advised_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT DataObject::EnumDAdvise(IEnumSTATDATA** connections) noexcept
{
    if (!connections)
        return E_POINTER;
    *connections = nullptr;
    return advised_ ? advised_->EnumAdvise(connections) : S_OK;
}

} // namespace vela::activex
