// The one guard at the edge: how an error of the library becomes an HRESULT with error information, and back.
#pragma once

#include "activex/com/owners.h"
#include "engine/error.h"
#include "platform/win32/guard.h"

#include <type_traits>

namespace vela::activex {

// 1001 -> 0x800A03E9, which hosts show as error 1001.
[[nodiscard]] constexpr HRESULT errorToHresult(int number) noexcept
{
    return static_cast<HRESULT>(0x800A0000u + static_cast<unsigned>(number & 0xFFFF));
}

// What a host's failure means to the library: 0x800A03E9 -> 1001, DISP_E_OVERFLOW -> 6; anything unknown -> 5.
[[nodiscard]] engine::Error errorFromHresult(HRESULT failure);
inline void check(HRESULT result) // throws what a failure means
{
    if (FAILED(result))
        throw errorFromHresult(result);
}
// errorFromHresult() with the description and source of the thread's error information when the host's object supports
// error information; otherwise that information belongs to an older failure.
[[nodiscard]] engine::Error errorFromHost(HRESULT failure, IUnknown& host, REFIID called);
[[nodiscard]] engine::Error errorFromException(EXCEPINFO& info); // frees the texts of `info`

// Leaves the error as the thread's error information; the HRESULT to return.
HRESULT reportError(const engine::Error& error) noexcept;
// The exception being handled, reported likewise: E_OUTOFMEMORY for want of memory, E_UNEXPECTED for a foreign one.
HRESULT reportCurrentException() noexcept;
// Fills `info` (may be null) and answers DISP_E_EXCEPTION; without memory E_OUTOFMEMORY.
HRESULT describeCurrentException(EXCEPINFO* info) noexcept;

// `call` answers an HRESULT, or nothing for S_OK.
template <class Call>
HRESULT guarded(Call&& call) noexcept
{
    const win32::LibraryCall inside;
    try {
        if constexpr (std::is_same_v<std::invoke_result_t<Call>, HRESULT>) {
            return call();
        } else {
            call();
            return S_OK;
        }
    } catch (...) {
        return reportCurrentException();
    }
}

using win32::contained; // for notifications that have nobody to report to

} // namespace vela::activex
