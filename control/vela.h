// The control: a text box that knows what kind of data it holds. Platform-neutral; a back end brings the windows.
#pragma once

#include "control/history.h"
#include "control/settings.h"
#include "engine/alive.h"
#include "engine/error.h"
#include "engine/field/date_check.h"
#include "engine/field/field_value.h"
#include "engine/field/keystroke.h"
#include "engine/field/mask.h"
#include "engine/field/number_display.h"
#include "platform/control_host.h"
#include "platform/control_surface.h"
#include "platform/environment.h"
#include "popups/owner.h"
#include "popups/popups.h"
#include "tooltip/balloon_tooltip.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
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

    using Colour = engine::Colour;
    using FontDescription = platform::FontDescription;
    using Text16 = std::u16string;
    using View = std::u16string_view;

    // Properties: their rows (property_table.h) put and get them; these are the ones that code asks for.
    void put(const Property& property, const engine::Value& value); // of the property's own type; notifies the host
    [[nodiscard]] const Settings& settings() const noexcept { return settings_; }
    const FontDescription& Font() const;
    void Font(const FontDescription& value);
    Text16 Text() const;
    void Text(View value);
    engine::Value Value();
    void Value(const engine::Value& value);

    // What the rows call where a property does more than store its value.
    std::int32_t editWindow() const;
    std::int32_t surfaceWindow() const;
    Text16 containerName() const;
    std::int32_t selLength() const;
    std::int16_t selStart() const;
    void putAppearance(Aparencia value);
    void putBackColor(Colour value);
    void putBorderColorLostfocus(Colour value);
    void putBorderStyle(eEstiloBorda value);
    void putCalculatorButton(bool value);
    void putCalendarButton(bool value);
    void putDecimals(std::uint8_t value);
    void putDefault(View value);
    void putEnabled(bool value);
    void putLocked(bool value);
    void putMask(View value);
    void putMaskRules(View value);
    void putMaskSomenteNumeros(bool value);
    void putMaskToNumeric(bool value);
    void putMultLine(bool value);
    void putScheme(eEsquemasRetorno value);
    void putSelLength(std::int32_t value);
    void putSelStart(std::int16_t value);
    void putTextType(TipoText value);

    // EditBoxEvents
    void gotFocus() override;
    void lostFocus(platform::Leaving leaving) override;
    void keyDown(int& code, int& shift) override;
    void keyPress(int& key) override;
    void controlPress(int& key) override;
    void keyUp(int code, int shift) override;
    void changed(const platform::Edit& edit) override;
    void clicked() override;
    void doubleClicked() override;
    void pointerMoved() override;
    void pasted(std::u16string_view text) override;
    void cut() override;
    void undo() override;
    void redo() override;

    // SurfaceEvents
    void surfaceGotFocus() override;
    void surfaceLostFocus() override;
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
    [[nodiscard]] const engine::Locale& locale() const { return environment_.locales.locale(); }

private:
    friend struct PropertyAccess;

    // Puts that the control makes itself, notified like a host's.
    void BackColorGotFocus(Colour value);
    void CaractLiberados(View value);
    void InserirZeros(bool value);
    void Mask(View value);
    void MaskRules(View value);
    void SimbolAgrupMilhar(Simbolos value);
    void SimbolDecExib(Simbolos value);
    void SimbolDecRet(Simbolos value);
    void ValorPadrao(View value);

    // Who writes a text. The live re-format runs for what a person or a host writes. The history records a person's
    // edits, a live re-format with the edit before it, and is cleared when a host, loading, entry or exit writes.
    enum class Writer { person, host, life, keys, reformat, history };
    class Scratch;
    struct Draft; // the text that a paste is making (draft.h)

    [[nodiscard]] platform::EditBox& box() const; // the active one; 91 after LimparMemoria and after the end
    [[nodiscard]] bool deaf() const noexcept { return released_ || life_.ended(); } // the box's events are not heard
    [[nodiscard]] bool masked() const noexcept;                                     // Data or Mascara
    [[nodiscard]] bool liveNumber() const noexcept;                                 // Numerico with MaskToNumeric
    void readText(std::u16string& into) const { box().text(into); }
    // Each may call the host. When the control was destroyed meanwhile they raise 91, and no member may be touched.
    void notify(const Property& property); // that it has been put
    void writeText(View text, Writer writer);
    void showBox(platform::BoxIcon icon, View title, View text);
    void openPopup();
    void raise(void (platform::ControlHost::*event)());

    template <class T>
    void putTrait(T platform::EditTraits::*trait, const T& value);
    template <class Body>
    void trapToLog(View label, Body body); // error_log.cpp's record
    void log(const engine::Error& error, View label);

    // Setters (setters.cpp, mask_properties.cpp, value.cpp)
    void showButton(bool& flag, bool value);
    void switchToText();
    void switchToNumber();
    void switchToDate();
    void switchToMask();
    void adoptScheme();
    void applyFormula();
    void putText(View text, Writer writer); // what a put of Text does
    [[nodiscard]] engine::FieldSettings fieldSettings() const;
    [[nodiscard]] engine::NumberSettings numberSettings() const;
    [[nodiscard]] engine::MaskSettings maskSettings() const;
    [[nodiscard]] engine::DateCheckSettings checkSettings() const;
    void correctText(View text); // what the date check puts right, its failure logged

    // Loading (life.cpp)
    void adopt(StoredState&& state);
    void prepareText();
    void applyLoadedDefault();

    // Entry (entry.cpp) and keys (keys.cpp)
    void enterColours();
    void showEntryTip();
    void enterText();
    void enterSelection();
    void placeCaretByClick();
    void selectAll();
    void reformatLive();
    void keyDownByType(int code);
    void sKeyDown(int code);
    [[nodiscard]] engine::KeystrokeSettings keystrokeSettings() const;
    [[nodiscard]] int plainKey(int key) const noexcept;
    [[nodiscard]] int filterKey(int key, Draft* draft = nullptr); // what is left for the box; 0: nothing
    [[nodiscard]] engine::KeyPlan planKey(int key, engine::KeyTurn turn);
    [[nodiscard]] engine::KeyPlan planKey(int key, engine::KeyTurn turn, Draft& draft);
    void logKeyFailure(const engine::Error& failure, bool mask);
    void tabBehind(int key, Draft* draft);
    [[nodiscard]] bool raiseKeyPress(int& key); // false: the control is gone

    // Exit (exit.cpp)
    struct Wrong {
        View title;
        View text;
    };
    void leave(platform::Leaving leaving);
    void leaveColours();
    [[nodiscard]] std::optional<Wrong> leaveByType();
    [[nodiscard]] std::optional<Wrong> leaveNumber();
    [[nodiscard]] std::optional<Wrong> leaveDate();
    void answerWrong(const Wrong& wrong, platform::Leaving leaving);
    void showAlert(const Wrong& wrong);
    using Tip = std::unique_ptr<tooltip::CBalloonToolTip>;
    [[nodiscard]] tooltip::CBalloonToolTip& made(Tip& tip); // at its first use
    void hideTip();
    void hideAlert();

    // History (editing.cpp)
    [[nodiscard]] History& history();
    [[nodiscard]] bool typeInto(Draft& draft, char16_t unit);
    void keep(const platform::Edit& edit);
    void restore(bool backwards);

    void layOut(); // look.cpp
    [[nodiscard]] platform::SurfaceLayout arrangement() const;
    void putForeColour(Colour colour);
    void putBackColours(Colour colour); // of the edit box and of the surface

    platform::ControlHost& host_;
    platform::ControlSurface& surface_;
    platform::Environment& environment_;
    popups::Popups& popups_;
    mutable platform::EditBox* box_ = nullptr;        // made at its first use
    std::unique_ptr<tooltip::CBalloonToolTip> tip_;   // of the entry
    std::unique_ptr<tooltip::CBalloonToolTip> alert_; // where the box has no balloon of its own
    std::unique_ptr<History> history_;                // from the first edit of a person on
    std::unique_ptr<engine::LivePattern> livePattern_;
    engine::Life life_;
    Settings settings_;
    std::u16string formatoRetornoAtual_;
    std::u16string delimitadorAtual_;
    std::array<std::unique_ptr<std::u16string>, 4> scratch_; // lent out by Scratch: nothing is allocated for a key
    Colour border_{0x00FFFFFF};                              // the hover logic's current border colour
    Colour surfaceBack_{0x00FFFFFF};
    Writer writer_ = Writer::person; // of the text being written
    bool released_ = false;          // by LimparMemoria
    bool sunken_ = true;             // the edit box draws a 3D border of its own
    bool buttonVisible_ = false;     // cmdCalendario
    bool returnedFocus_ = false;     // a wrong entry has been given the focus back once
    bool held_ = false;              // the focus returned because this field's entry is wrong
    bool firstClick_ = false;        // no click yet since the focus arrived
    bool keypadDecimal_ = false;     // the next character comes from the keypad's decimal key
};

} // namespace vela::control
