// The kind of text that the field holds: the puts of its type, its mask, its lock and its lines.
#pragma once

#include "control/content.h"
#include "control/look.h"

#include <cstdint>
#include <string_view>

namespace vela::control {

class Vela;

class TextKind {
public:
    TextKind(Vela& control, Context& context, Content& content, Look& look)
        : control_(control), context_(context), content_(content), look_(look)
    {
    }

    void putQtdCasasDec(std::uint8_t value);
    void putLocked(bool value);
    void putMask(std::u16string_view value);
    void putMaskRules(std::u16string_view value);
    void putMaskSomenteNumeros(bool value);
    void putMaskToNumeric(bool value);
    void putMultLine(bool value);
    void putTextType(TipoText value);

private:
    void switchToText();
    void switchToNumber();
    void switchToDate();
    void switchToMask();
    void align(platform::TextAlignment alignment);
    void lockBox(bool locked);

    Vela& control_; // for properties that are put like a host's, notified
    Context& context_;
    Content& content_;
    Look& look_;
};

} // namespace vela::control
