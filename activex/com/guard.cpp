// Errors of the library as HRESULTs and error information, and failures of hosts as errors of the library.
#include "activex/com/guard.h"

#include <new>

namespace vela::activex {

namespace {

constexpr HRESULT controlFacility = static_cast<HRESULT>(0x800A0000u);

struct Mapping {
    HRESULT failure;
    int number;
};
constexpr Mapping mappings[] = {
    {E_OUTOFMEMORY, engine::error_number::outOfMemory},
    {DISP_E_TYPEMISMATCH, engine::error_number::typeMismatch},
    {DISP_E_BADVARTYPE, engine::error_number::typeMismatch},
    {DISP_E_OVERFLOW, engine::error_number::overflow},
    {E_ACCESSDENIED, engine::error_number::permissionDenied},
    {STG_E_ACCESSDENIED, engine::error_number::permissionDenied},
    {DISP_E_MEMBERNOTFOUND, engine::error_number::unsupportedMember},
    {DISP_E_UNKNOWNNAME, engine::error_number::unsupportedMember},
};

int numberOf(HRESULT failure) noexcept
{
    if ((failure & static_cast<HRESULT>(0xFFFF0000u)) == controlFacility)
        return failure & 0xFFFF;
    for (const Mapping& mapping : mappings)
        if (mapping.failure == failure)
            return mapping.number;
    return engine::error_number::invalidCall;
}

BSTR newText(std::u16string_view text) noexcept
{
    return SysAllocStringLen(wide(text.data()), static_cast<UINT>(text.size()));
}

} // namespace

engine::Error errorFromHresult(HRESULT failure)
{
    const int number = numberOf(failure);
    return {number, std::u16string(engine::errorDescription(number))};
}

engine::Error errorFromHost(HRESULT failure, IUnknown& host, REFIID called)
{
    engine::Error error = errorFromHresult(failure);
    const auto support = query<ISupportErrorInfo>(&host);
    if (!support || support->InterfaceSupportsErrorInfo(called) != S_OK)
        return error;
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, &info) != S_OK)
        return error;
    Bstr text;
    if (SUCCEEDED(info->GetDescription(text.put())) && !text.text().empty())
        error.description = text.text();
    if (SUCCEEDED(info->GetSource(text.put())) && !text.text().empty())
        error.source = text.text();
    return error;
}

engine::Error errorFromException(EXCEPINFO& info)
{
    if (info.pfnDeferredFillIn)
        info.pfnDeferredFillIn(&info);
    Bstr source;
    Bstr description;
    Bstr helpFile;
    *source.put() = info.bstrSource;
    *description.put() = info.bstrDescription;
    *helpFile.put() = info.bstrHelpFile;
    engine::Error error = errorFromHresult(info.wCode ? errorToHresult(info.wCode) : info.scode);
    info = {};
    if (!description.text().empty())
        error.description = description.text();
    if (!source.text().empty())
        error.source = source.text();
    return error;
}

HRESULT reportError(const engine::Error& error) noexcept
{
    ComPtr<ICreateErrorInfo> info;
    if (SUCCEEDED(CreateErrorInfo(&info))) {
        info->SetGUID(GUID_NULL);
        info->SetSource(const_cast<wchar_t*>(wide(error.source.c_str())));
        info->SetDescription(const_cast<wchar_t*>(wide(error.description.c_str())));
        if (const auto shown = query<IErrorInfo>(info.Get()))
            SetErrorInfo(0, shown.Get());
    }
    return errorToHresult(error.number);
}

HRESULT reportCurrentException() noexcept
{
    try {
        throw;
    } catch (const engine::Error& error) {
        return reportError(error);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

HRESULT describeCurrentException(EXCEPINFO* info) noexcept
{
    try {
        throw;
    } catch (const engine::Error& error) {
        if (info) {
            *info = {};
            info->scode = errorToHresult(error.number);
            info->bstrSource = newText(error.source);
            info->bstrDescription = newText(error.description);
        }
        return DISP_E_EXCEPTION;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

} // namespace vela::activex
