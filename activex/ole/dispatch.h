// Automation: names to DISPIDs, and calls by DISPID, from the content's list of members.
#pragma once

#include "activex/com/part.h"
#include "activex/ole/content.h"

namespace vela::activex {

// Null when there is none.
[[nodiscard]] const Member* findMember(std::span<const Member> members, DISPID id) noexcept;
[[nodiscard]] const Member* findMember(std::span<const Member> members, std::u16string_view name) noexcept; // any case

class Dispatch final : public Part<IDispatch> {
public:
    using Part::Part;

    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) noexcept override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) noexcept override;

private:
    HRESULT get(const Member& member, const Arguments& arguments, VARIANT* result);
    HRESULT put(const Member& member, const Arguments& arguments);
    HRESULT call(const Member& member, const Arguments& arguments, VARIANT* result);

    const Member* last_ = nullptr; // of the table, the one invoked last
};

} // namespace vela::activex
