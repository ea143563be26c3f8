// Owners of what COM hands out: references, texts, variants and task memory. Move-only; the destructor gives back.
#pragma once

#include <objbase.h>
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

namespace vela::activex {

// UTF-16 as the library holds it and as the system spells it: one representation, two names.
inline std::u16string_view asText(const wchar_t* text, std::size_t length) noexcept
{
    return {reinterpret_cast<const char16_t*>(text), length};
}
inline const wchar_t* asWide(const char16_t* text) noexcept
{
    return reinterpret_cast<const wchar_t*>(text);
}
inline const wchar_t* asWide(const std::u16string& text) noexcept
{
    return asWide(text.c_str());
}

template <class Interface>
class ComPtr {
public:
    ComPtr() noexcept = default;
    ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
    ComPtr& operator=(ComPtr&& other) noexcept
    {
        ComPtr moved(std::move(other));
        std::swap(pointer_, moved.pointer_);
        return *this;
    }
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr() { reset(); }

    [[nodiscard]] static ComPtr adopt(Interface* pointer) noexcept
    {
        ComPtr owner;
        owner.pointer_ = pointer;
        return owner;
    }
    [[nodiscard]] static ComPtr share(Interface* pointer) noexcept
    {
        if (pointer)
            pointer->AddRef();
        return adopt(pointer);
    }
    // The interface of another object; empty when the object is null or does not offer it.
    [[nodiscard]] static ComPtr from(IUnknown* object, REFIID iid = __uuidof(Interface)) noexcept
    {
        ComPtr found;
        if (object && FAILED(object->QueryInterface(iid, reinterpret_cast<void**>(&found.pointer_))))
            found.pointer_ = nullptr;
        return found;
    }

    [[nodiscard]] Interface* get() const noexcept { return pointer_; }
    [[nodiscard]] ComPtr shared() const noexcept { return share(pointer_); }
    [[nodiscard]] Interface** put() noexcept
    {
        reset();
        return &pointer_;
    }
    [[nodiscard]] void** putVoid() noexcept { return reinterpret_cast<void**>(put()); }
    [[nodiscard]] Interface* release() noexcept { return std::exchange(pointer_, nullptr); }
    void reset() noexcept // the pointer is empty before the object hears of it: it may call back
    {
        if (Interface* old = std::exchange(pointer_, nullptr))
            old->Release();
    }
    Interface* operator->() const noexcept { return pointer_; }
    explicit operator bool() const noexcept { return pointer_ != nullptr; }

private:
    Interface* pointer_ = nullptr;
};

class Bstr {
public:
    Bstr() noexcept = default;
    explicit Bstr(std::u16string_view text) // throws std::bad_alloc
        : text_(SysAllocStringLen(asWide(text.data()), static_cast<UINT>(text.size())))
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
    [[nodiscard]] std::u16string_view text() const noexcept { return asText(text_, SysStringLen(text_)); }

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
