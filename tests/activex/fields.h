// Fields of each kind, as forms set them.
#pragma once

#include "automation.h"

namespace vela::test {

using Kind = void (*)(const Automation&);

inline void asPlainText(const Automation&) {}

inline void asPlate(const Automation& field)
{
    field.set({{u"PromptChar", u"_"}, {u"Mask", u"___-____"}, {u"TextType", 3}, {u"MaskRules", u"@@@-####"}});
}

inline void asTelephone(const Automation& field)
{
    field.set({{u"PromptChar", u"_"}, {u"Mask", u"(__) ____-____"}, {u"TextType", 3}});
}

inline void asNumber(const Automation& field)
{
    field.set({{u"TextType", 1}, {u"SimbolDecExib", 2}, {u"QtdCasasDec", 2}, {u"ShowButtonCalculadora", true}});
}

inline void asAmount(const Automation& field)
{
    field.set({{u"TextType", 1}, {u"SimbolDecExib", 2}, {u"QtdCasasDec", 2}, {u"MaskToNumeric", true}});
}

inline void asDate(const Automation& field)
{
    field.set({{u"FormatoExibData", u"__/__/____"}, {u"DateFormat", u"dd/mm/yyyy"}, {u"TextType", 2}});
    field.set({{u"ShowButtonCalendario", true}});
}

} // namespace vela::test
