// The control's picture and text as data, for copying and for hosts that keep a picture of what is not active.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"

#include <objidl.h>

namespace vela::activex {

class Shell;

// CF_METAFILEPICT, CF_ENHMETAFILE, CF_UNICODETEXT and CF_TEXT.
class DataObject final : public Part<IDataObject> {
public:
    explicit DataObject(Shell& shell) noexcept;

    void changed() noexcept; // tells those who asked to be told

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* from, FORMATETC* into) noexcept override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) noexcept override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                      DWORD* connection) noexcept override;
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD connection) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** connections) noexcept override;

private:
    Shell& shell_;
    ComPtr<IDataAdviseHolder> advised_;
};

} // namespace vela::activex
