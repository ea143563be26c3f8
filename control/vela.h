// The control: a text box that knows what kind of data it holds. Platform-neutral; a back end brings the windows.
#pragma once

#include "control/content.h"
#include "control/context.h"
#include "control/look.h"
#include "control/text_kind.h"
#include "control/typing.h"
#include "control/visit.h"
#include "popups/owner.h"

#include <string>
#include <string_view>

namespace vela::control {

struct Property;
struct StoredState;

// A host may destroy or terminate the control inside any event that it raises, any notification and any box that it
// shows. The routine that was running then ends with error 91 to a caller that is the host, silently otherwise.
class Vela final : public platform::EditBoxEvents, public platform::SurfaceEvents, public popups::Owner {
public:
    // Initialise. All references outlive the control. Nothing of the surface is used before initNew() or load().
    Vela(platform::ControlHost& host, platform::ControlSurface& surface, platform::Environment& environment,
         popups::Popups& popups);
    ~Vela(); // terminates when terminate() has not run
    Vela(const Vela&) = delete;
    Vela& operator=(const Vela&) = delete;
    // Life, called by the host.
    void initNew();                        // new-instance settings
    void load(platform::PropertyBag& bag); // may raise; the control stays usable
    void save(platform::PropertyBag& bag);
    void terminate(); // once; later calls do nothing

    // Methods.
    void About();
    void DestruirToolTip();
    void LimparMemoria();

    // Properties: their rows (property_table.h) put and get them; these are the ones that code asks for.
    using View = std::u16string_view;
    void put(const Property& property, const engine::Value& value); // of the property's own type; notifies the host
    [[nodiscard]] const Settings& settings() const noexcept { return context_.settings; }
    const platform::FontDescription& Font() const { return box().traits().font; }
    void Font(const platform::FontDescription& value);
    std::u16string Text() const { return content_.text(); }
    void Text(View value) { content_.putText(value, Writer::host); }
    // Those that the control itself puts, notified like a host's.
    void BackColorGotFocus(engine::Colour value);
    void CaractLiberados(View value);
    void InserirZeros(bool value);
    void Mask(View value);
    void MaskRules(View value);
    void SimbolAgrupMilhar(Simbolos value);
    void SimbolDecExib(Simbolos value);
    void SimbolDecRet(Simbolos value);
    void ValorPadrao(View value);

    // EditBoxEvents
    void gotFocus() override;
    void lostFocus(platform::Leaving leaving) override;
    void keyDown(int& code, int& shift) override { typing_.keyDown(code, shift); }
    void keyPress(int& key) override { typing_.keyPress(key); }
    void controlPress(int& key) override { typing_.controlPress(key); }
    void keyUp(int code, int shift) override { typing_.keyUp(code, shift); }
    void changed(const platform::Edit& edit) override { typing_.changed(edit); }
    void clicked() override;
    void doubleClicked() override;
    void pointerMoved() override;
    void pasted(View text) override { typing_.paste(text); }
    void cut() override { typing_.cut(); }
    void undo() override { typing_.restore(true); }
    void redo() override { typing_.restore(false); }

    // SurfaceEvents
    void surfaceGotFocus() override;
    void surfaceLostFocus() override { look_.leaveSurface(); }
    void resized() override;
    void buttonClicked() override;
    void hoverTick() override;

    // popups::Owner
    [[nodiscard]] std::u16string popupText() override;
    void putPopupText(const engine::Value& value) override;
    void hideEntryTip() override;
    void takePopupFocus() override;
    [[nodiscard]] engine::RectPixels popupAnchor() override;
    [[nodiscard]] platform::ParentForm popupParent() override;
    [[nodiscard]] const engine::Locale& locale() const { return context_.locale(); }

private:
    friend struct PropertyAccess;

    [[nodiscard]] platform::EditBox& box() const { return context_.box(); }
    [[nodiscard]] bool deaf() const noexcept { return context_.deaf(); }
    void adopt(StoredState&& state);

    Context context_;
    Content content_{context_};
    Look look_{context_};
    Visit visit_{context_, content_, look_};
    TextKind kind_{*this, context_, content_, look_};
    Typing typing_{context_, content_, *this};
};

} // namespace vela::control
