// Leaving the field: its look restored, its text checked and formatted, a wrong entry answered.
#include "control/internal.h"

#include "engine/text/conversions.h"
#include "engine/text/letter_case.h"
#include "tooltip/balloon_tip.h"
#include "tooltip/windows_version.h"

namespace vela::control {

namespace {

constexpr int alertIcon = 3;

} // namespace

void Vela::lostFocus(platform::Leaving leaving)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        held_ = false;
        trap(
            life_, [&](int&) { leave(leaving); },
            [&](const engine::Error& failure) {
                if (failure.number != engine::error_number::invalidCall)
                    log(failure, label::lostFocus);
            });
    });
}

void Vela::leave(platform::Leaving leaving)
{
    hideTip();
    leaveColours();
    Scratch text(*this);
    readText(*text);
    if (text->empty())
        writeText(settings_.ifIsEmpty, Writer::life);
    if (const auto wrong = leaveByType())
        answerWrong(*wrong, leaving);
    else {
        hideTip();
        hideAlert();
    }
}

void Vela::leaveColours()
{
    putBackColours(settings_.backColorLostFocus);
    border_ = settings_.borderColorLostfocus;
    putForeColour(settings_.foreColorLostFocus);
    layOut();
    if (settings_.appearance == Aparencia::cFlat && settings_.borderStyle != eEstiloBorda::XP) {
        surface_.clear();
        surface_.drawRectangle(settings_.borderColorLostfocus, 1);
    }
}

std::optional<Vela::Wrong> Vela::leaveByType()
{
    switch (settings_.textType) {
    case TipoText::TextoNormal:
        if (settings_.tipoLetra == tipoTamanhoLetra::ProperCase) {
            Scratch text(*this);
            Scratch cased(*this);
            readText(*text);
            engine::properCase(*text, *cased);
            writeText(*cased, Writer::life);
        }
        break;
    case TipoText::Numerico: return leaveNumber();
    case TipoText::Data: return leaveDate();
    case TipoText::Mascara: break;
    }
    return std::nullopt;
}

// Formats the number, sets the colour of its sign, then adds the symbol: "1234,5" -> "1.234,50" -> "R$ 1.234,50". When
// the locale does not read the formatted text as a number, this ends with that error, without colour and symbol.
std::optional<Vela::Wrong> Vela::leaveNumber()
{
    Scratch text(*this);
    Scratch next(*this);
    readText(*text);
    if (engine::isSymbolAlone(*text, numberSettings().decimal)) {
        putForeColour(settings_.errorForeColor);
        return Wrong{engine::wrongNumberTitle, engine::wrongNumberText};
    }
    if (engine::isNumeric(*text, locale())) {
        engine::displayNumber(*text, numberSettings(), *next);
        writeText(*next, Writer::life);
        text->swap(*next);
        if (!text->empty()) {
            switch (engine::currencySign(*text, locale())) {
            case engine::NumberSign::negative: putForeColour(settings_.corValorNeg); break;
            case engine::NumberSign::positive: putForeColour(settings_.corValorPos); break;
            case engine::NumberSign::zero: putForeColour(settings_.foreColorLostFocus); break;
            }
        }
    }
    if (engine::applySymbol(*text, settings_.simboloMonetario, *next))
        writeText(*next, Writer::life);
    return std::nullopt;
}

// The untouched template is accepted. A date that is refused for its day or month gets prompts in their place.
// Oddity: a Data field without DateFormat is not checked; forms use such fields for texts that are no dates.
std::optional<Vela::Wrong> Vela::leaveDate()
{
    Scratch text(*this);
    readText(*text);
    if (*text == settings_.formatoExibData)
        return std::nullopt;
    const bool time = engine::isTimeFormat(settings_.dateFormat);
    Text16 corrected;
    const engine::DateVerdict verdict =
        time ? engine::checkTime(*text, checkSettings()) : engine::checkDate(*text, checkSettings(), corrected);
    if (verdict.failure)
        log(*verdict.failure, label::date);
    if (verdict.corrected)
        correctText(corrected);
    if (verdict.accepted)
        return std::nullopt;
    putForeColour(settings_.errorForeColor);
    return Wrong{engine::wrongDateTitle, time ? engine::wrongTimeText : engine::wrongDateText};
}

// The focus returns to a wrong entry at the first attempt to leave. The next attempt succeeds, unless ErrorFocus keeps
// the focus for good. When the focus goes to another window, or the field is disabled, the alert is shown but the focus
// does not return.
void Vela::answerWrong(const Wrong& wrong, platform::Leaving leaving)
{
    if (settings_.errorTextClear)
        putText(u"", Writer::life);
    if (settings_.errorAlert && tooltip::VersaoWindows(environment_.system) == u"NT")
        showAlert(wrong);
    if (leaving == platform::Leaving::away)
        return;
    returnedFocus_ = !returnedFocus_;
    if (returnedFocus_) {
        held_ = true;
        box().takeFocus();
    } else {
        hideTip();
    }
    if (settings_.errorFocus) {
        held_ = true;
        box().takeFocus();
    }
}

// A custom message replaces the alert's text, not its title.
void Vela::showAlert(const Wrong& wrong)
{
    const View text = settings_.errorMsgCustom ? View(settings_.errorTextMessage) : wrong.text;
    if (!text.empty())
        tooltip::ShowBalloonTip(text, wrong.title, alertIcon, box(), arrangement().edit.height, made(alert_));
}

tooltip::CBalloonToolTip& Vela::made(Tip& tip)
{
    if (!tip)
        tip = std::make_unique<tooltip::CBalloonToolTip>(surface_.makeTooltip());
    return *tip;
}

void Vela::hideTip()
{
    if (tip_)
        tip_->Destroy();
}

void Vela::hideAlert()
{
    if (alert_)
        alert_->Destroy();
}

} // namespace vela::control
