// Entering the field, and clicks in it.
#include "control/visit.h"

#include "control/error_log.h"
#include "engine/field/mask.h"
#include "engine/text/decimal_text.h"
#include "tooltip/windows_version.h"

#include <utility>

namespace vela::control {

void Visit::enter()
{
    firstClick_ = true;
    trap(
        context_.life,
        [&](int& step) {
            step = 1;
            look_.enter(held_); // the error colour stays when the focus returned because this field's entry is wrong
            showEntryTip();
            step = 2;
            enterText();
            step = 3;
            enterSelection();
            step = 4;
            context_.popups.closeAll();
        },
        [&](const engine::Error& failure) {
            context_.showBox(platform::BoxIcon::information, u"Vela.GotFocus", gotFocusFailureText(failure));
        });
}

void Visit::showEntryTip()
{
    if (context_.settings.toolTipGotFocus.empty() || returnedFocus_ ||
        tooltip::VersaoWindows(context_.environment.system) != u"NT")
        return;
    const platform::WindowId window = context_.box().window();
    tooltip::CBalloonToolTip& tip = made(tip_);
    tip.Title(context_.settings.nomeCampo);
    tip.Icon(context_.settings.toolTipGotFocusTipo);
    tip.TipText(context_.settings.toolTipGotFocus);
    tip.CreateToolTip(window);
    tip.ShowAt(0, look_.arrangement().edit.height, window);
}

// Writes the form that is edited ("R$ 1.234,50" -> "1234,50"). In a mask the caret goes before the first prompt.
// Oddity: entering a field with MaskToNumeric leaves the symbol in the text; the live re-format works on the text as it
// stands.
void Visit::enterText()
{
    Context::Scratch text(context_);
    if (context_.masked()) {
        context_.readText(*text);
        if (const auto caret = engine::firstPrompt(*text, context_.settings.promptChar))
            context_.box().select({*caret, 0});
    } else if (context_.settings.textType == TipoText::Numerico && !context_.settings.maskToNumeric) {
        context_.readText(*text);
        if (text->empty())
            return;
        Context::Scratch form(context_);
        engine::entryForm(*text, context_.settings.simboloMonetario, context_.numberSettings().grouping, *form);
        content_.writeText(*form, Writer::life);
    } else {
        context_.box().select({context_.box().textLength(), 0});
    }
}

// An untouched mask keeps the caret at its first prompt.
void Visit::enterSelection()
{
    if (!context_.settings.autoSelect || context_.liveNumber())
        return;
    if (context_.masked()) {
        Context::Scratch text(context_);
        context_.readText(*text);
        if (*text != context_.settings.mask)
            selectAll();
    } else if (context_.settings.textType == TipoText::TextoNormal ||
               context_.settings.textType == TipoText::Numerico) {
        selectAll();
    }
}

void Visit::selectAll()
{
    context_.box().select({0, context_.box().textLength()});
}

void Visit::click()
{
    trap(
        context_.life,
        [&](int&) {
            placeCaretByClick();
            context_.raise(&platform::ControlHost::raiseClick);
        },
        [&](const engine::Error& failure) {
            context_.showBox(platform::BoxIcon::exclamation, u"Vela.ErrNumber: " + engine::decimalText(failure.number),
                             clickFailureText(failure));
        });
}

void Visit::placeCaretByClick()
{
    const bool first = std::exchange(firstClick_, false);
    if (context_.masked()) {
        Context::Scratch text(context_);
        context_.readText(*text);
        if (const auto caret = engine::firstPrompt(*text, context_.settings.promptChar))
            context_.box().select({*caret, 0});
    } else if (first && context_.settings.autoSelect &&
               (context_.settings.textType == TipoText::TextoNormal ||
                context_.settings.textType == TipoText::Numerico)) {
        selectAll();
    }
}

} // namespace vela::control
