// IPerPropertyBrowsing and ICategorizeProperties of the shell.
#include "activex/ole/browsing.h"

#include "activex/ole/shell.h"

#include <olectl.h>

#include <memory>
#include <vector>

namespace vela::activex {

namespace {

const engine::Enumeration* enumerationOf(Shell& shell, DISPID id)
{
    const Member* const member = shell.member(id);
    return member ? member->enumeration : nullptr;
}

// Texts for a counted array; those made so far go with it unless it is given away.
class TaskTexts {
public:
    explicit TaskTexts(std::size_t count) : texts_(count) {}
    TaskTexts(const TaskTexts&) = delete;
    TaskTexts& operator=(const TaskTexts&) = delete;
    ~TaskTexts()
    {
        if (texts_.get())
            for (std::size_t i = 0; i < made_; ++i)
                CoTaskMemFree(texts_.get()[i]);
    }
    void add(std::u16string_view text)
    {
        texts_.get()[made_] = newTaskText(text);
        ++made_;
    }
    [[nodiscard]] LPOLESTR* release() noexcept { return texts_.release(); }

private:
    TaskMemory<LPOLESTR> texts_;
    std::size_t made_ = 0;
};

} // namespace

HRESULT Browsing::GetDisplayString(DISPID id, BSTR* text) noexcept
{
    if (!text)
        return E_POINTER;
    *text = nullptr;
    return shell_.guarded([&]() -> HRESULT {
        const auto* const enumeration = enumerationOf(shell_, id);
        if (!enumeration)
            return S_FALSE; // the host converts the value itself
        const auto value = valueFromVariant(shell_.content().get(*shell_.member(id)).get());
        for (const engine::Enumerator& member : enumeration->members)
            if (value == engine::Value(member.value)) {
                *text = Bstr(member.name).release();
                return S_OK;
            }
        return S_FALSE;
    });
}

HRESULT Browsing::MapPropertyToPage(DISPID id, CLSID* page) noexcept
{
    if (!page)
        return E_POINTER;
    *page = CLSID_NULL;
    return shell_.guarded([&]() -> HRESULT {
        const Member* const member = shell_.member(id);
        if (!member)
            return DISP_E_MEMBERNOTFOUND;
        if (!member->page)
            return PERPROP_E_NOPAGEAVAILABLE;
        *page = *member->page;
        return S_OK;
    });
}

HRESULT Browsing::GetPredefinedStrings(DISPID id, CALPOLESTR* texts, CADWORD* cookies) noexcept
{
    if (!texts || !cookies)
        return E_POINTER;
    *texts = {};
    *cookies = {};
    return shell_.guarded([&]() -> HRESULT {
        const auto* const enumeration = enumerationOf(shell_, id);
        if (!enumeration)
            return S_FALSE;
        const std::size_t count = enumeration->members.size();
        TaskTexts names(count);
        TaskMemory<DWORD> values(count);
        for (std::size_t i = 0; i < count; ++i) {
            names.add(enumeration->members[i].name);
            values.get()[i] = static_cast<DWORD>(enumeration->members[i].value);
        }
        *texts = {static_cast<ULONG>(count), names.release()};
        *cookies = {static_cast<ULONG>(count), values.release()};
        return S_OK;
    });
}

HRESULT Browsing::GetPredefinedValue(DISPID id, DWORD cookie, VARIANT* value) noexcept
{
    if (!value)
        return E_POINTER;
    VariantInit(value);
    return shell_.guarded([&]() -> HRESULT {
        const auto* const enumeration = enumerationOf(shell_, id);
        if (!enumeration)
            return E_INVALIDARG;
        for (const engine::Enumerator& member : enumeration->members)
            if (static_cast<DWORD>(member.value) == cookie) {
                value->vt = VT_I4;
                value->lVal = member.value;
                return S_OK;
            }
        return E_INVALIDARG;
    });
}

HRESULT Categories::MapPropertyToCategory(DISPID id, int* found) noexcept
{
    if (!found)
        return E_POINTER;
    *found = 0;
    return shell_.guarded([&]() -> HRESULT {
        const Member* const member = shell_.member(id);
        if (!member)
            return E_FAIL;
        *found = member->category;
        return S_OK;
    });
}

HRESULT Categories::GetCategoryName(int number, LCID, BSTR* name) noexcept
{
    if (!name)
        return E_POINTER;
    *name = nullptr;
    return shell_.guarded([&]() -> HRESULT {
        const auto own = shell_.facts().categories;
        if (number < 1 || static_cast<std::size_t>(number) > own.size())
            return S_FALSE; // the hosts have names of their own for theirs
        *name = Bstr(own[static_cast<std::size_t>(number) - 1]).release();
        return S_OK;
    });
}

} // namespace vela::activex
