// The frames of a thread's controls that are active in place: while a modal box is up they disable their modeless
// windows.
#pragma once

#include <oleidl.h>

namespace vela::activex {

// Once for each control; told once however many it has.
void addModalFrame(IOleInPlaceFrame* frame);
void removeModalFrame(IOleInPlaceFrame* frame) noexcept;

} // namespace vela::activex
