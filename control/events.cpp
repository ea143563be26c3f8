// What the edit box and the surface report: each event is given to the part that answers it.
#include "control/vela.h"
#include "engine/text/conversions.h"

namespace vela::control {

void Vela::gotFocus()
{
    if (!deaf())
        whileAlive(context_.life, [&] { visit_.enter(); });
}

void Vela::lostFocus(platform::Leaving leaving)
{
    if (!deaf())
        whileAlive(context_.life, [&] { visit_.leave(leaving); });
}

void Vela::clicked()
{
    if (!deaf())
        whileAlive(context_.life, [&] { visit_.click(); });
}

// The back end reports both clicks of a double click; the second runs the click handler again.
void Vela::doubleClicked()
{
    clicked();
}

void Vela::pointerMoved()
{
    if (!deaf())
        whileAlive(context_.life, [&] { look_.pointerMoved(); });
}

void Vela::hoverTick()
{
    if (!context_.life.ended())
        whileAlive(context_.life, [&] { look_.hoverTick(); });
}

void Vela::surfaceGotFocus()
{
    if (!deaf() && box().traits().enabled)
        box().takeFocus();
}

void Vela::resized()
{
    if (!context_.life.ended())
        whileAlive(context_.life, [&] { look_.layOut(); });
}

void Vela::buttonClicked()
{
    if (!context_.life.ended())
        whileAlive(context_.life, [&] { typing_.openPopup(); });
}

std::u16string Vela::popupText()
{
    return Text();
}

void Vela::putPopupText(const engine::Value& value)
{
    Text(engine::toText(value, context_.locale()));
    if (!box().hasFocus())
        return;
    visit_.enterText();
    visit_.enterSelection();
}

void Vela::hideEntryTip()
{
    visit_.hideTip();
}

void Vela::takePopupFocus()
{
    box().takeFocus();
}

engine::RectPixels Vela::popupAnchor()
{
    return context_.surface.screenRect();
}

platform::ParentForm Vela::popupParent()
{
    return context_.host.parentForm();
}

} // namespace vela::control
