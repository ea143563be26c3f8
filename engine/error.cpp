// Descriptions of the run-time errors.
#include "engine/error.h"

namespace vela::engine {

std::u16string_view errorDescription(int number) noexcept
{
    switch (number) {
    case error_number::invalidCall: return u"Invalid procedure call or argument";
    case error_number::overflow: return u"Overflow";
    case error_number::outOfMemory: return u"Out of memory";
    case error_number::subscriptOutOfRange: return u"Subscript out of range";
    case error_number::typeMismatch: return u"Type mismatch";
    case error_number::permissionDenied: return u"Permission denied";
    case error_number::pathFileAccess: return u"Path/File access error";
    case error_number::pathNotFound: return u"Path not found";
    case error_number::objectNotSet: return u"Object variable or With block variable not set";
    case error_number::invalidPropertyValue: return u"Invalid property value";
    case error_number::unsupportedMember: return u"Object doesn't support this property or method";
    case error_number::emptyMask: return u"Mascara não pode ser vazia";
    case error_number::readOnlyProperty: return u"Propriedade é Read-Only";
    default: return {};
    }
}

void raise(int number)
{
    throw Error{number, std::u16string(errorDescription(number))};
}

} // namespace vela::engine
