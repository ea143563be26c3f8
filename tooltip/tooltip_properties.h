// The tooltip's properties by name, for those who configure it in words.
#pragma once

#include "engine/field/property_types.h"
#include "engine/text/locale.h"
#include "engine/value.h"
#include "tooltip/balloon_tooltip.h"

#include <span>
#include <string_view>

namespace vela::tooltip {

enum class TipPropertyType { longInteger, enumeration, colour, boolean, text };

struct TipProperty {
    std::u16string_view name;
    TipPropertyType type = TipPropertyType::longInteger;
    const engine::Enumeration* enumeration = nullptr;              // of type enumeration
    engine::Value (*get)(const CBalloonToolTip&) = nullptr;        // colours and enumerators as whole numbers
    void (*put)(CBalloonToolTip&, const engine::Value&) = nullptr; // takes a value of the property's own type
};

// The nine settings in their order, then BackColor.
[[nodiscard]] std::span<const TipProperty> tipProperties() noexcept;
[[nodiscard]] const TipProperty* findTipProperty(std::u16string_view name) noexcept; // case-sensitive

// Converts to the property's type and puts: 6 beyond its range, 13 for what does not convert, 438 for an unknown name.
void putTipProperty(CBalloonToolTip& tip, std::u16string_view name, const engine::Value& value,
                    const engine::Locale& locale);
[[nodiscard]] engine::Value getTipProperty(const CBalloonToolTip& tip, std::u16string_view name);

} // namespace vela::tooltip
