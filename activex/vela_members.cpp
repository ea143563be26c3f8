// From rows of the property table to members of the automation interface.
#include "activex/vela_members.h"

#include "activex/ole/browsing.h"
#include "activex/page_map.h"

#include <olectl.h>

#include <algorithm>
#include <vector>

namespace vela::activex {

namespace {

using control::PropertyType;

constexpr std::u16string_view ownCategories[] = {u"Calendário", u"Data e hora", u"Erros", u"Máscara", u"Número"};
enum OwnCategory { calendar = 1, date, errors, mask, number };

int categoryOf(control::Category which)
{
    using control::Category;
    switch (which) {
    case Category::behaviour: return category::behaviour;
    case Category::appearance: return category::appearance;
    case Category::font: return category::font;
    case Category::text: return category::text;
    case Category::data: return category::data;
    case Category::calendar: return calendar;
    case Category::date: return date;
    case Category::errors: return errors;
    case Category::mask: return mask;
    case Category::number: break;
    }
    return number;
}

WORD accessOf(const control::Property& property)
{
    switch (property.access()) {
    case control::Access::read: return DISPATCH_PROPERTYGET;
    case control::Access::readWrite: return DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT;
    case control::Access::readWriteReference: break;
    }
    return DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
}

// Colours and the font go to the system's pages; what is chosen from a list needs none.
const CLSID* pageOf(const control::Property& property)
{
    switch (property.type()) {
    case PropertyType::colour: return &CLSID_CColorPropPage;
    case PropertyType::font: return &CLSID_CFontPropPage;
    case PropertyType::enumeration:
    case PropertyType::boolean: return nullptr;
    default: break;
    }
    const auto page = pages::findPageKind(property.page.name);
    return page ? &pageClass(*page) : nullptr;
}

Member memberOf(const control::Property& property, std::size_t row)
{
    return {.name = property.name,
            .id = property.dispid,
            .access = accessOf(property),
            .bindable = property.bindable,
            .enumeration = control::enumerationOf(property),
            .page = pageOf(property),
            .category = categoryOf(property.category),
            .row = row};
}

std::vector<Member> makeMembers()
{
    std::vector<Member> members;
    for (std::size_t row = 0; row < control::properties().size(); ++row)
        members.push_back(memberOf(control::properties()[row], row));
    for (std::size_t row = 0; row < control::methods().size(); ++row)
        members.push_back({.name = control::methods()[row].name,
                           .id = control::methods()[row].dispid,
                           .access = DISPATCH_METHOD,
                           .row = row});
    std::ranges::sort(members, {}, &Member::id);
    return members;
}

} // namespace

std::span<const Member> velaMembers()
{
    static const std::vector<Member> members = makeMembers();
    return members;
}

Variant propertyVariant(const control::Property& property, const engine::Value& value)
{
    Variant result = variantFromValue(value);
    const LONG whole = result.get().vt == VT_I4 ? result.get().lVal : 0;
    if (property.type() == PropertyType::byte) {
        result.ref().vt = VT_UI1;
        result.ref().bVal = static_cast<BYTE>(whole);
    } else if (property.type() == PropertyType::integer) {
        result.ref().vt = VT_I2;
        result.ref().iVal = static_cast<SHORT>(whole);
    }
    return result;
}

std::span<const std::u16string_view> velaCategories() noexcept
{
    return ownCategories;
}

DISPID eventId(std::u16string_view name) noexcept
{
    for (const control::Event& event : control::events())
        if (event.name == name)
            return event.dispid;
    return DISPID_UNKNOWN;
}

} // namespace vela::activex
