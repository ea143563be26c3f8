// Entering the field: colours, tip, edit form, selection; and what clicks and changes do.
#include "control/internal.h"

#include "tooltip/windows_version.h"

namespace vela::control {

void Vela::raise(void (platform::ControlHost::*event)())
{
    const engine::Alive alive(life_);
    (host_.*event)();
    if (!alive)
        engine::raise(engine::error_number::objectNotSet);
}

void Vela::gotFocus()
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        firstClick_ = true;
        trap(
            life_,
            [&](int& step) {
                step = 1;
                enterColours();
                showEntryTip();
                step = 2;
                enterText();
                step = 3;
                enterSelection();
                step = 4;
                popups_.closeAll();
            },
            [&](const engine::Error& failure) {
                showBox(platform::BoxIcon::information, u"Vela.GotFocus", gotFocusFailureText(failure));
            });
    });
}

// When the focus returned because this field's entry is wrong, keep the error colour.
void Vela::enterColours()
{
    box().putColours({held_ ? settings_.errorForeColor : settings_.foreColorGotFocus, settings_.backColorGotFocus});
    surfaceBack_ = settings_.backColorGotFocus;
    border_ = settings_.borderColorGotfocus;
    layOut();
}

void Vela::showEntryTip()
{
    if (settings_.toolTipGotFocus.empty() || returnedFocus_ || tooltip::VersaoWindows(environment_.system) != u"NT")
        return;
    const platform::WindowId window = box().window();
    tooltip::CBalloonToolTip& tip = made(tip_);
    tip.Title(settings_.nomeCampo);
    tip.Icon(settings_.toolTipGotFocusTipo);
    tip.TipText(settings_.toolTipGotFocus);
    tip.CreateToolTip(window);
    tip.ShowAt(0, arrangement().edit.height, window);
}

// Writes the form that is edited ("R$ 1.234,50" -> "1234,50"). In a mask the caret goes before the first prompt.
// Oddity: entering a field with MaskToNumeric leaves the symbol in the text; the live re-format works on the text as it
// stands.
void Vela::enterText()
{
    Scratch text(*this);
    if (masked()) {
        readText(*text);
        if (const auto caret = engine::firstPrompt(*text, settings_.promptChar))
            box().select({*caret, 0});
    } else if (settings_.textType == TipoText::Numerico && !settings_.maskToNumeric) {
        readText(*text);
        if (text->empty())
            return;
        Scratch form(*this);
        engine::entryForm(*text, settings_.simboloMonetario, numberSettings().grouping, *form);
        writeText(*form, Writer::life);
    } else {
        box().select({box().textLength(), 0});
    }
}

// An untouched mask keeps the caret at its first prompt.
void Vela::enterSelection()
{
    if (!settings_.autoSelect || liveNumber())
        return;
    if (masked()) {
        Scratch text(*this);
        readText(*text);
        if (*text != settings_.mask)
            selectAll();
    } else if (settings_.textType == TipoText::TextoNormal || settings_.textType == TipoText::Numerico) {
        selectAll();
    }
}

void Vela::selectAll()
{
    box().select({0, box().textLength()});
}

void Vela::clicked()
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        trap(
            life_,
            [&](int&) {
                placeCaretByClick();
                raise(&platform::ControlHost::raiseClick);
            },
            [&](const engine::Error& failure) {
                showBox(platform::BoxIcon::exclamation, u"Vela.ErrNumber: " + decimalText(failure.number),
                        clickFailureText(failure));
            });
    });
}

// The back end reports both clicks of a double click; the second runs the click handler again.
void Vela::doubleClicked()
{
    clicked();
}

void Vela::placeCaretByClick()
{
    const bool first = std::exchange(firstClick_, false);
    if (masked()) {
        Scratch text(*this);
        readText(*text);
        if (const auto caret = engine::firstPrompt(*text, settings_.promptChar))
            box().select({*caret, 0});
    } else if (first && settings_.autoSelect &&
               (settings_.textType == TipoText::TextoNormal || settings_.textType == TipoText::Numerico)) {
        selectAll();
    }
}

void Vela::changed(const platform::Edit& edit)
{
    if (deaf())
        return;
    whileAlive(life_, [&] {
        const Writer writer = writer_;
        keep(edit);
        trap(
            life_,
            [&](int& step) {
                step = 1;
                raise(&platform::ControlHost::raiseChange);
                step = 2;
                if (!liveNumber() || (writer != Writer::person && writer != Writer::host))
                    return;
                step = 3;
                reformatLive();
            },
            [&](const engine::Error& failure) {
                showBox(platform::BoxIcon::exclamation, u"", changeFailureText(failure));
            });
    });
}

// Re-formats an amount as a cash register does: "0,001" -> "0,01". The caret keeps its distance from the end. The text
// written here is not re-formatted again.
void Vela::reformatLive()
{
    Scratch text(*this);
    Scratch shown(*this);
    readText(*text);
    if (!livePattern_)
        livePattern_ = std::make_unique<engine::LivePattern>();
    const auto caret = engine::liveFormat(*text, box().selection().start, numberSettings(), *livePattern_, *shown);
    if (!caret)
        return;
    writeText(*shown, writer_ == Writer::host ? Writer::life : Writer::reformat);
    box().select({*caret, 0});
}

} // namespace vela::control
