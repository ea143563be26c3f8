// The frames of a thread's controls that are active in place: their modeless windows rest while a modal box is up.
#pragma once

#include <oleidl.h>

namespace vela::activex {

// Once for each control; told once however many it has.
void addModalFrame(IOleInPlaceFrame* frame);
void removeModalFrame(IOleInPlaceFrame* frame) noexcept;

} // namespace vela::activex
