// What property lists show of single properties: values by name, the page that edits one, categories.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class Browsing final : public Part<IPerPropertyBrowsing> {
public:
    using Part::Part;

    STDMETHODIMP GetDisplayString(DISPID id, BSTR* text) noexcept override;
    STDMETHODIMP MapPropertyToPage(DISPID id, CLSID* page) noexcept override;
    STDMETHODIMP GetPredefinedStrings(DISPID id, CALPOLESTR* texts, CADWORD* cookies) noexcept override;
    STDMETHODIMP GetPredefinedValue(DISPID id, DWORD cookie, VARIANT* value) noexcept override;
};

// The system's headers here do not declare it.
struct ICategorizeProperties : public IUnknown {
    virtual STDMETHODIMP MapPropertyToCategory(DISPID id, int* category) noexcept = 0;
    virtual STDMETHODIMP GetCategoryName(int category, LCID locale, BSTR* name) noexcept = 0;
};
// {4D07FC10-F931-11CE-B001-00AA006884E5}
inline constexpr IID categorizePropertiesId{
    0x4d07fc10, 0xf931, 0x11ce, {0xb0, 0x01, 0x00, 0xaa, 0x00, 0x68, 0x84, 0xe5}};

// The hosts' own categories; those of a class count from 1.
namespace category {
inline constexpr int misc = -2;
inline constexpr int font = -3;
inline constexpr int appearance = -5;
inline constexpr int behaviour = -6;
inline constexpr int data = -7;
inline constexpr int text = -9;
} // namespace category

class Categories final : public Part<ICategorizeProperties> {
public:
    using Part::Part;

    STDMETHODIMP MapPropertyToCategory(DISPID id, int* category) noexcept override;
    STDMETHODIMP GetCategoryName(int category, LCID locale, BSTR* name) noexcept override;
};

} // namespace vela::activex
