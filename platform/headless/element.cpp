// An element is on its form for as long as it lives.
#include "platform/headless/element.h"

#include "platform/headless/form_window.h"

#include <utility>

namespace vela::headless {

Element::Element(FormWindow& form, std::u16string name) : form_(form), name_(std::move(name))
{
    form_.attach(*this);
}

Element::~Element()
{
    form_.detach(*this);
}

} // namespace vela::headless
