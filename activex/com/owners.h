// Owners of what COM hands out: references, texts, variants and task memory. The destructor gives back.
#pragma once

#include "platform/win32/com_object.h"
#include "platform/win32/text.h"

#include <objbase.h>
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

namespace vela::activex {

using win32::adopt;
using win32::asText;
using win32::ComPtr;
using win32::query;
using win32::wide;

class Bstr {
public:
    Bstr() noexcept = default;
    explicit Bstr(std::u16string_view text) // throws std::bad_alloc
        : text_(SysAllocStringLen(wide(text.data()), static_cast<UINT>(text.size())))
    {
        if (!text_)
            throw std::bad_alloc();
    }
    Bstr(Bstr&& other) noexcept : text_(other.release()) {}
    Bstr& operator=(Bstr&&) = delete;
    ~Bstr() { SysFreeString(text_); }

    [[nodiscard]] BSTR get() const noexcept { return text_; }
    [[nodiscard]] BSTR* put() noexcept
    {
        SysFreeString(std::exchange(text_, nullptr));
        return &text_;
    }
    [[nodiscard]] BSTR release() noexcept { return std::exchange(text_, nullptr); }
    [[nodiscard]] std::u16string_view text() const noexcept { return asText({text_, SysStringLen(text_)}); }

private:
    BSTR text_ = nullptr;
};

class Variant {
public:
    Variant() noexcept { VariantInit(&value_); }
    Variant(Variant&& other) noexcept : value_(other.release()) {}
    Variant& operator=(Variant&&) = delete;
    ~Variant() { VariantClear(&value_); }

    [[nodiscard]] const VARIANT& get() const noexcept { return value_; }
    [[nodiscard]] VARIANT& ref() noexcept { return value_; }
    [[nodiscard]] VARIANT* put() noexcept
    {
        VariantClear(&value_);
        return &value_;
    }
    [[nodiscard]] VARIANT release() noexcept
    {
        const VARIANT given = value_;
        VariantInit(&value_);
        return given;
    }

private:
    VARIANT value_;
};

// Memory that the caller of an interface frees with CoTaskMemFree.
template <class Element>
class TaskMemory {
public:
    explicit TaskMemory(std::size_t count) : first_(static_cast<Element*>(CoTaskMemAlloc(count * sizeof(Element))))
    {
        if (!first_)
            throw std::bad_alloc();
    }
    TaskMemory(const TaskMemory&) = delete;
    TaskMemory& operator=(const TaskMemory&) = delete;
    ~TaskMemory() { CoTaskMemFree(first_); }

    [[nodiscard]] Element* get() const noexcept { return first_; }
    [[nodiscard]] Element* release() noexcept { return std::exchange(first_, nullptr); }

private:
    Element* first_ = nullptr;
};

// A text that the caller frees with CoTaskMemFree.
[[nodiscard]] inline wchar_t* newTaskText(std::u16string_view text)
{
    TaskMemory<wchar_t> memory(text.size() + 1);
    text.copy(reinterpret_cast<char16_t*>(memory.get()), text.size());
    memory.get()[text.size()] = 0;
    return memory.release();
}

} // namespace vela::activex
