// IDispatch of the shell.
#include "activex/ole/dispatch.h"

#include "activex/com/guard.h"
#include "activex/com/type_library.h"
#include "activex/ole/shell.h"
#include "engine/text/characters.h"

#include <algorithm>

namespace vela::activex {

namespace {

constexpr WORD puts = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

// The public names are of ASCII letters, digits and "_".
} // namespace

const Member* findMember(std::span<const Member> members, DISPID id) noexcept
{
    const auto found = std::lower_bound(members.begin(), members.end(), id,
                                        [](const Member& member, DISPID wanted) { return member.id < wanted; });
    return found != members.end() && found->id == id ? &*found : nullptr;
}

const Member* findMember(std::span<const Member> members, std::u16string_view name) noexcept
{
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const Member& member) { return engine::equalIgnoringCase(member.name, name); });
    return found != members.end() ? &*found : nullptr;
}

HRESULT Dispatch::GetTypeInfoCount(UINT* count) noexcept
{
    if (!count)
        return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT Dispatch::GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    return index == 0 ? loadTypeInfo(shell_.facts().members, info) : DISP_E_BADINDEX;
}

// A method's parameter is named after it, and its DISPID is its number. The interface named is reserved and is not
// looked at: some callers name the one that they hold.
HRESULT Dispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept
{
    if (!names || !ids || count == 0)
        return E_INVALIDARG;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    return shell_.guarded([&]() -> HRESULT {
        const std::wstring_view name(names[0] ? names[0] : L"");
        const Member* const member = findMember(shell_.content().members(), asText(name));
        if (!member)
            return DISP_E_UNKNOWNNAME;
        ids[0] = member->id;
        bool known = true;
        for (UINT i = 1; i < count; ++i) {
            const std::wstring_view parameter(names[i] ? names[i] : L"");
            if (!parameter.empty() && engine::equalIgnoringCase(member->parameter, asText(parameter)))
                ids[i] = 0;
            else
                known = false;
        }
        return known ? S_OK : DISP_E_UNKNOWNNAME;
    });
}

HRESULT Dispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                         EXCEPINFO* exception, UINT* argument) noexcept
{
    if (!parameters)
        return E_INVALIDARG;
    if (result)
        VariantInit(result);
    if (argument)
        *argument = 0;
    const Shell::Hold hold(shell_);
    try {
        if (!last_ || last_->id != id) // loops ask for one property again and again
            last_ = shell_.member(id);
        const Member* const member = last_;
        if (!member || (member->access & flags) == 0)
            return DISP_E_MEMBERNOTFOUND;
        const Arguments arguments(*parameters);
        if (arguments.named()) {
            if (member->parameters == 0)
                return DISP_E_NONAMEDARGS;
            if (const int wrong = arguments.misnamed(member->parameters); wrong >= 0) {
                if (argument)
                    *argument = static_cast<UINT>(wrong);
                return DISP_E_PARAMNOTFOUND;
            }
        }
        if (flags & member->access & puts)
            return put(*member, arguments);
        return member->access & DISPATCH_METHOD ? call(*member, arguments, result) : get(*member, arguments, result);
    } catch (...) {
        return exception ? describeCurrentException(exception) : reportCurrentException();
    }
}

HRESULT Dispatch::get(const Member& member, const Arguments& arguments, VARIANT* result)
{
    if (arguments.count() != 0)
        return DISP_E_BADPARAMCOUNT;
    Variant value = shell_.content().get(member);
    if (result)
        *result = value.release();
    return S_OK;
}

HRESULT Dispatch::put(const Member& member, const Arguments& arguments)
{
    if (arguments.count() != 1)
        return DISP_E_BADPARAMCOUNT;
    if (member.bindable)
        shell_.requestEdit(member);
    shell_.content().put(member, arguments[0]);
    return S_OK;
}

HRESULT Dispatch::call(const Member& member, const Arguments& arguments, VARIANT* result)
{
    if (arguments.count() != static_cast<std::size_t>(member.parameters))
        return DISP_E_BADPARAMCOUNT;
    Variant value = shell_.content().call(member, arguments);
    if (result)
        *result = value.release();
    return S_OK;
}

} // namespace vela::activex
