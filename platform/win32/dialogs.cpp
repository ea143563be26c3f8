// The input box and the About box as forms from tables.
#include "platform/win32/dialogs.h"

#include "platform/win32/form.h"

#include <array>

namespace vela::win32 {
namespace {

using platform::WidgetKind;
using platform::WidgetRow;

// A dialog that ends with OK or Cancel. `accepted` when it was OK.
class Dialog final : private platform::ClickEvents {
public:
    explicit Dialog(const platform::FormLayout& layout)
        : ok_(platform::findWidget(layout, u"cmdOK")), cancel_(platform::findWidget(layout, u"cmdCancelar")),
          form_(FormFactory().make(layout, {.clicks = this}))
    {
    }
    [[nodiscard]] platform::Form& form() noexcept { return *form_; }
    [[nodiscard]] bool run()
    {
        form_->showModal();
        return accepted_;
    }

private:
    void clicked(platform::WidgetId widget) override
    {
        accepted_ = widget == ok_;
        if (widget == ok_ || widget == cancel_)
            form_->close();
    }

    platform::WidgetId ok_;
    platform::WidgetId cancel_;
    bool accepted_ = false;
    std::unique_ptr<platform::Form> form_;
};

constexpr std::array<WidgetRow, 4> inputRows{{
    {.kind = WidgetKind::textBox, .name = u"txtTexto", .place = {120, 1320, 5160, 315}},
    {.kind = WidgetKind::label, .name = u"lblPergunta", .place = {120, 120, 3900, 1080}},
    {.kind = WidgetKind::button, .name = u"cmdOK", .caption = u"OK", .place = {4200, 120, 1080, 345}},
    {.kind = WidgetKind::button, .name = u"cmdCancelar", .caption = u"Cancelar", .place = {4200, 540, 1080, 345}},
}};

constexpr std::array<WidgetRow, 3> aboutRows{{
    {.kind = WidgetKind::button, .name = u"cmdOK", .caption = u"OK", .place = {1320, 1080, 1080, 345}},
    {.kind = WidgetKind::label,
     .name = u"lblNome",
     .caption = u"Vela",
     .place = {120, 180, 3480, 420},
     .alignment = platform::TextAlignment::center,
     .fontSize = 16,
     .bold = true},
    {.kind = WidgetKind::label,
     .name = u"lblVersao",
     .place = {120, 660, 3480, 255},
     .alignment = platform::TextAlignment::center},
}};

} // namespace

std::u16string askText(std::u16string_view prompt, std::u16string_view title)
{
    const platform::FormLayout layout{u"frmPergunta", title, 5400, 1770, inputRows};
    Dialog dialog(layout);
    dialog.form().putText(platform::findWidget(layout, u"lblPergunta"), prompt);
    const platform::WidgetId box = platform::findWidget(layout, u"txtTexto");
    platform::WidgetLook look = dialog.form().look(box);
    look.spokenName = prompt;
    dialog.form().putLook(box, look);
    const bool accepted = dialog.run();
    return accepted ? dialog.form().text(platform::findWidget(layout, u"txtTexto")) : std::u16string();
}

void showAbout(std::u16string_view version)
{
    constexpr platform::FormLayout layout{u"frmAbout", u"Sobre o Vela", 3720, 1560, aboutRows};
    Dialog dialog(layout);
    dialog.form().putText(platform::findWidget(layout, u"lblVersao"), version);
    static_cast<void>(dialog.run());
}

} // namespace vela::win32
