// Entering the field, clicks in it, and leaving: its look restored, its text checked and formatted, a wrong entry
// answered.
#include "control/visit.h"

#include "control/error_log.h"
#include "engine/field/mask.h"
#include "engine/field/number_display.h"
#include "engine/text/conversions.h"
#include "engine/text/decimal_text.h"
#include "engine/text/letter_case.h"
#include "tooltip/balloon_tip.h"
#include "tooltip/windows_version.h"

#include <utility>

namespace vela::control {

namespace {

constexpr int alertIcon = 3;

} // namespace

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

void Visit::leave(platform::Leaving leaving)
{
    held_ = false;
    trap(
        context_.life, [&](int&) { check(leaving); },
        [&](const engine::Error& failure) {
            if (failure.number != engine::error_number::invalidCall)
                context_.log(failure, label::lostFocus);
        });
}

void Visit::check(platform::Leaving leaving)
{
    hideTip();
    look_.leave();
    Context::Scratch text(context_);
    context_.readText(*text);
    if (text->empty())
        content_.writeText(context_.settings.ifIsEmpty, Writer::life);
    if (const auto wrong = checkByType())
        answerWrong(*wrong, leaving);
    else
        hideTips();
}

std::optional<Visit::Wrong> Visit::checkByType()
{
    switch (context_.settings.textType) {
    case TipoText::TextoNormal:
        if (context_.settings.tipoLetra == tipoTamanhoLetra::ProperCase) {
            Context::Scratch text(context_);
            Context::Scratch cased(context_);
            context_.readText(*text);
            engine::properCase(*text, *cased);
            content_.writeText(*cased, Writer::life);
        }
        break;
    case TipoText::Numerico: return checkNumber();
    case TipoText::Data: return checkDate();
    case TipoText::Mascara: break;
    }
    return std::nullopt;
}

// Formats the number, sets the colour of its sign, then adds the symbol: "1234,5" -> "1.234,50" -> "R$ 1.234,50". When
// the locale does not read the formatted text as a number, this ends with that error, without colour and symbol.
std::optional<Visit::Wrong> Visit::checkNumber()
{
    Context::Scratch text(context_);
    Context::Scratch next(context_);
    context_.readText(*text);
    if (engine::isSymbolAlone(*text, context_.numberSettings().displayDecimal)) {
        look_.putForeColour(context_.settings.errorForeColor);
        return Wrong{engine::wrongNumberTitle, engine::wrongNumberText};
    }
    if (engine::isNumeric(*text, context_.locale())) {
        engine::displayNumber(*text, context_.numberSettings(), *next);
        content_.writeText(*next, Writer::life);
        text->swap(*next);
        if (!text->empty()) {
            switch (engine::currencySign(*text, context_.locale())) {
            case engine::NumberSign::negative: look_.putForeColour(context_.settings.corValorNeg); break;
            case engine::NumberSign::positive: look_.putForeColour(context_.settings.corValorPos); break;
            case engine::NumberSign::zero: look_.putForeColour(context_.settings.foreColorLostFocus); break;
            }
        }
    }
    if (engine::applySymbol(*text, context_.settings.simboloMonetario, *next))
        content_.writeText(*next, Writer::life);
    return std::nullopt;
}

// The untouched template is accepted. A date that is refused for its day or month gets prompts in their place.
// Oddity: a Data field without DateFormat is not checked; forms use such fields for texts that are no dates.
std::optional<Visit::Wrong> Visit::checkDate()
{
    Context::Scratch text(context_);
    context_.readText(*text);
    if (*text == context_.settings.formatoExibData)
        return std::nullopt;
    const bool time = engine::isTimeFormat(context_.settings.dateFormat);
    std::u16string corrected;
    const engine::DateVerdict verdict = time ? engine::checkTime(*text, content_.checkSettings())
                                             : engine::checkDate(*text, content_.checkSettings(), corrected);
    if (verdict.failure)
        context_.log(*verdict.failure, label::date);
    if (verdict.corrected)
        content_.correctText(corrected);
    if (verdict.accepted)
        return std::nullopt;
    look_.putForeColour(context_.settings.errorForeColor);
    return Wrong{engine::wrongDateTitle, time ? engine::wrongTimeText : engine::wrongDateText};
}

// The focus returns to a wrong entry at the first attempt to leave. The next attempt succeeds, unless ErrorFocus keeps
// the focus for good. When the focus goes to another window, or the field is disabled, the alert is shown but the focus
// does not return.
void Visit::answerWrong(const Wrong& wrong, platform::Leaving leaving)
{
    if (context_.settings.errorTextClear)
        content_.putText(u"", Writer::life);
    if (context_.settings.errorAlert && tooltip::VersaoWindows(context_.environment.system) == u"NT")
        showAlert(wrong);
    if (leaving == platform::Leaving::away)
        return;
    returnedFocus_ = !returnedFocus_;
    if (returnedFocus_) {
        held_ = true;
        context_.box().takeFocus();
    } else {
        hideTip();
    }
    if (context_.settings.errorFocus) {
        held_ = true;
        context_.box().takeFocus();
    }
}

// A custom message replaces the alert's text, not its title.
void Visit::showAlert(const Wrong& wrong)
{
    const std::u16string_view text =
        context_.settings.errorMsgCustom ? std::u16string_view(context_.settings.errorTextMessage) : wrong.text;
    if (!text.empty())
        tooltip::ShowBalloonTip(text, wrong.title, alertIcon, context_.box(), look_.arrangement().edit.height,
                                made(alert_));
}

tooltip::CBalloonToolTip& Visit::made(Tip& tip)
{
    if (!tip)
        tip = std::make_unique<tooltip::CBalloonToolTip>(context_.surface.makeTooltip());
    return *tip;
}

void Visit::hideTip()
{
    if (tip_)
        tip_->Destroy();
}

void Visit::hideTips()
{
    hideTip();
    if (alert_)
        alert_->Destroy();
}

void Visit::end()
{
    tip_.reset();
    alert_.reset();
}

} // namespace vela::control
