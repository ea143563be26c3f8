// Enumerators of COM over a list fixed when they are made: connection points, connections, formats, verbs.
#pragma once

#include "activex/com/guard.h"
#include "platform/win32/com_object.h"

#include <memory>
#include <vector>

namespace vela::activex {

// `give` writes an element that the caller will own.
template <class Interface, class Given, class Kept, void (*give)(const Kept&, Given&)>
class Enumerator final : public win32::ComObject<Interface> {
public:
    using List = std::shared_ptr<const std::vector<Kept>>;

    [[nodiscard]] static ComPtr<Interface> make(List list, std::size_t next = 0)
    {
        return adopt<Interface>(new Enumerator(std::move(list), next));
    }

    STDMETHODIMP Next(ULONG wanted, Given* into, ULONG* fetched) noexcept override
    {
        if (!into || (!fetched && wanted != 1))
            return E_POINTER;
        ULONG given = 0;
        const HRESULT result = guarded([&] {
            for (; given < wanted && next_ < list_->size(); ++given, ++next_)
                give((*list_)[next_], into[given]);
            return given == wanted ? S_OK : S_FALSE;
        });
        if (fetched)
            *fetched = given;
        return result;
    }
    STDMETHODIMP Skip(ULONG count) noexcept override
    {
        const std::size_t left = list_->size() - next_;
        next_ += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() noexcept override
    {
        next_ = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(Interface** copy) noexcept override
    {
        if (!copy)
            return E_POINTER;
        return guarded([&] { *copy = make(list_, next_).Detach(); });
    }

private:
    Enumerator(List list, std::size_t next) : list_(std::move(list)), next_(next) {}

    List list_;
    std::size_t next_;
};

} // namespace vela::activex
