// From rows of the property table to fields of pages.
#include "activex/page_fields.h"

#include "control/property_table.h"

#include <algorithm>
#include <map>
#include <vector>

namespace vela::activex {

namespace {

using control::PropertyType;
using pages::Mapping;

using Fields = std::map<pages::PageKind, std::vector<pages::Field>>;

Mapping mappingOf(PropertyType type)
{
    switch (type) {
    case PropertyType::boolean: return Mapping::check;
    case PropertyType::enumeration: return Mapping::listIndex;
    case PropertyType::colour: return Mapping::colour;
    case PropertyType::byte:
    case PropertyType::integer:
    case PropertyType::longInteger: return Mapping::number;
    case PropertyType::text:
    case PropertyType::font:
    case PropertyType::variant: break;
    }
    return Mapping::text;
}

Fields makeFields()
{
    Fields fields;
    for (const control::Property& property : control::properties())
        if (const auto page = pages::findPageKind(property.page.name))
            fields[*page].push_back({.property = property.name,
                                     .control = property.page.control,
                                     .mapping = mappingOf(property.type()),
                                     .read = property.page.read,
                                     .written = property.page.written,
                                     .index = property.page.index});
    for (auto& [page, ofPage] : fields)
        std::ranges::sort(ofPage, {}, &pages::Field::read);
    return fields;
}

} // namespace

std::span<const pages::Field> pageFields(pages::PageKind page)
{
    static const Fields fields = makeFields();
    return fields.at(page);
}

} // namespace vela::activex
