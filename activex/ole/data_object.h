// The control's picture and text as data, for copying and for hosts that keep a picture of what is not active.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"

#include <objidl.h>

namespace vela::activex {

// CF_METAFILEPICT, CF_ENHMETAFILE, CF_UNICODETEXT and CF_TEXT.
class DataObject final : public Part<IDataObject> {
public:
    using Part::Part;

    void changed() noexcept; // tells those who asked to be told

    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP QueryGetData(FORMATETC* format) noexcept override;
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC* from, FORMATETC* into) noexcept override;
    STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) noexcept override;
    STDMETHODIMP DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* connection) noexcept override;
    STDMETHODIMP DUnadvise(DWORD connection) noexcept override;
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA** connections) noexcept override;

private:
    ComPtr<IDataAdviseHolder> advised_;
};

} // namespace vela::activex
