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

    // Properties, in the order of the interface: one line each.
    using Colour = engine::Colour;
    using FontDescription = platform::FontDescription;
    using Text16 = std::u16string;
    using View = std::u16string_view;
    // clang-format off
    bool AceitaNegativos() const { return settings_.aceitaNegativos; }  void AceitaNegativos(bool value);
    Alinhamento Alignment() const;  void Alignment(Alinhamento value);
    Aparencia Appearance() const { return settings_.appearance; }  void Appearance(Aparencia value);
    bool AutoSelect() const { return settings_.autoSelect; }  void AutoSelect(bool value);
    bool AutoTAB() const { return settings_.autoTab; }  void AutoTAB(bool value);
    Colour BackColor() const;  void BackColor(Colour value);
    Colour BackColor_MouseMove() const { return settings_.backColorMouseMove; }  void BackColor_MouseMove(Colour value);
    Colour BackColorGotFocus() const { return settings_.backColorGotFocus; }  void BackColorGotFocus(Colour value);
    Colour BackColorLostFocus() const { return settings_.backColorLostFocus; }  void BackColorLostFocus(Colour value);
    Colour BorderColor_MouseMove() const { return settings_.borderColorMouseMove; }  void BorderColor_MouseMove(Colour);
    Colour BorderColorGotfocus() const { return settings_.borderColorGotfocus; }  void BorderColorGotfocus(Colour);
    Colour BorderColorLostfocus() const { return settings_.borderColorLostfocus; }  void BorderColorLostfocus(Colour);
    eEstiloBorda BorderStyle() const { return settings_.borderStyle; }  void BorderStyle(eEstiloBorda value);
    Colour Calendar_BackColor() const;  void Calendar_BackColor(Colour value);
    Colour Calendar_ColorWeekDay() const;  void Calendar_ColorWeekDay(Colour value);
    Colour Calendar_ComboBackColor() const;  void Calendar_ComboBackColor(Colour value);
    Colour Calendar_DayActive() const;  void Calendar_DayActive(Colour value);
    Colour Calendar_DayInactive() const;  void Calendar_DayInactive(Colour value);
    Colour Calendar_FormBackcolor() const;  void Calendar_FormBackcolor(Colour value);
    Colour Calendar_Selected() const;  void Calendar_Selected(Colour value);
    bool CampoRequerido() const { return settings_.campoRequerido; }  void CampoRequerido(bool value);
    const Text16& CaractLiberados() const { return settings_.caractLiberados; }  void CaractLiberados(View value);
    Colour CorValorNeg() const { return settings_.corValorNeg; }  void CorValorNeg(Colour value);
    Colour CorValorPos() const { return settings_.corValorPos; }  void CorValorPos(Colour value);
    const Text16& DateFormat() const { return settings_.dateFormat; }  void DateFormat(View value);
    const Text16& Delimitador() const { return settings_.delimiters[0]; }  void Delimitador(View value);
    const Text16& Delimitador02() const { return settings_.delimiters[1]; }  void Delimitador02(View value);
    const Text16& Delimitador03() const { return settings_.delimiters[2]; }  void Delimitador03(View value);
    const Text16& Delimitador04() const { return settings_.delimiters[3]; }  void Delimitador04(View value);
    bool Enabled() const;  void Enabled(bool value);
    bool EnterAsTab() const { return settings_.enterAsTab; }  void EnterAsTab(bool value);
    Colour Error_ForeColor() const { return settings_.errorForeColor; }  void Error_ForeColor(Colour value);
    bool ErrorAlert() const { return settings_.errorAlert; }  void ErrorAlert(bool value);
    bool ErrorFocus() const { return settings_.errorFocus; }  void ErrorFocus(bool value);
    bool ErrorMsgCustom() const { return settings_.errorMsgCustom; }  void ErrorMsgCustom(bool value);
    bool ErrorTextClear() const { return settings_.errorTextClear; }  void ErrorTextClear(bool value);
    const Text16& ErrorTextMessage() const { return settings_.errorTextMessage; }  void ErrorTextMessage(View value);
    const FontDescription& Font() const;  void Font(const FontDescription& value);
    bool FontBold() const;  void FontBold(bool value);
    bool FontItalic() const;  void FontItalic(bool value);
    const Text16& FontName() const;  void FontName(View value);
    std::uint8_t FontSize() const;  void FontSize(std::uint8_t value);
    bool FontStrikethru() const;  void FontStrikethru(bool value);
    bool FontUnderline() const;  void FontUnderline(bool value);
    Colour ForeColor_GotFocus() const { return settings_.foreColorGotFocus; }  void ForeColor_GotFocus(Colour value);
    Colour ForeColor_LostFocus() const { return settings_.foreColorLostFocus; }  void ForeColor_LostFocus(Colour value);
    const Text16& FormatoExibData() const { return settings_.formatoExibData; }  void FormatoExibData(View value);
    const Text16& FormatoRetornoData() const { return settings_.returnFormats[0]; }  void FormatoRetornoData(View);
    const Text16& FormatoRetornoData02() const { return settings_.returnFormats[1]; }  void FormatoRetornoData02(View);
    const Text16& FormatoRetornoData03() const { return settings_.returnFormats[2]; }  void FormatoRetornoData03(View);
    const Text16& FormatoRetornoData04() const { return settings_.returnFormats[3]; }  void FormatoRetornoData04(View);
    std::int32_t hwnd() const;
    std::int32_t HwndCtl() const;
    const Text16& IF_IsEmpty() const { return settings_.ifIsEmpty; }  void IF_IsEmpty(View value);
    bool InserirZeros() const { return settings_.inserirZeros; }  void InserirZeros(bool value);
    bool Locked() const { return settings_.locked; }  void Locked(bool value);
    const Text16& NomeCampo() const { return settings_.nomeCampo; }  void NomeCampo(View value);
    const Text16& Mask() const { return settings_.mask; }  void Mask(View value);
    const Text16& MaskRules() const { return settings_.maskRules; }  void MaskRules(View value);
    bool MaskSomenteNumeros() const { return settings_.maskSomenteNumeros; }  void MaskSomenteNumeros(bool value);
    bool MaskToNumeric() const { return settings_.maskToNumeric; }  void MaskToNumeric(bool value);
    std::int16_t MaxLength() const;  void MaxLength(std::int16_t value);
    const Text16& MsgRequerido() const { return settings_.msgRequerido; }  void MsgRequerido(View value);
    bool MultLine() const { return settings_.multLine; }  void MultLine(bool value);
    Text16 nomeContainer() const;
    Text16 PasswordChar() const;  void PasswordChar(View value);
    const Text16& PromptChar() const { return settings_.promptChar; }  void PromptChar(View value);
    std::uint8_t QtdCasasDec() const { return settings_.qtdCasasDec; }  void QtdCasasDec(std::uint8_t value);
    std::int32_t SelLength() const;  void SelLength(std::int32_t value);
    std::int16_t SelStart() const;  void SelStart(std::int16_t value);
    bool ShowButtonCalendario() const { return settings_.showButtonCalendario; }  void ShowButtonCalendario(bool value);
    bool ShowButtonCalculadora() const { return settings_.showButtonCalculadora; }  void ShowButtonCalculadora(bool);
    Simbolos SimbolAgrupMilhar() const { return settings_.simbolAgrupMilhar; }  void SimbolAgrupMilhar(Simbolos value);
    Simbolos SimbolDecExib() const { return settings_.simbolDecExib; }  void SimbolDecExib(Simbolos value);
    Simbolos SimbolDecRet() const { return settings_.simbolDecRet; }  void SimbolDecRet(Simbolos value);
    const Text16& SimboloMonetario() const { return settings_.simboloMonetario; }  void SimboloMonetario(View value);
    Text16 Text() const;  void Text(View value);
    bool TextoLivre() const { return settings_.textoLivre; }  void TextoLivre(bool value);
    TipoText TextType() const { return settings_.textType; }  void TextType(TipoText value);
    tipoTamanhoLetra tipoLetra() const { return settings_.tipoLetra; }  void tipoLetra(tipoTamanhoLetra value);
    const Text16& ToolTipGotFocus() const { return settings_.toolTipGotFocus; }  void ToolTipGotFocus(View value);
    eIconeToolTipText ToolTipGotFocusTipo() const { return settings_.toolTipGotFocusTipo; }
    void ToolTipGotFocusTipo(eIconeToolTipText);
    bool UpTAB() const { return settings_.upTab; }  void UpTAB(bool value);
    const Text16& ValorPadrao() const { return settings_.valorPadrao; }  void ValorPadrao(View value);
    engine::Value Value();  void Value(const engine::Value& value);
    eEsquemasRetorno EsquemaRetornoAtual() const { return settings_.esquemaRetornoAtual; }
    void EsquemaRetornoAtual(eEsquemasRetorno);
    // clang-format on

    // EditBoxEvents
    void gotFocus() override;
    void lostFocus(platform::Leaving leaving) override;
    void keyDown(int& code, int& shift) override;
    void keyPress(int& key) override;
    void controlPress(int& key) override;
    void keyUp(int code, int shift) override;
    [[nodiscard]] bool laysOutTyping() const override { return liveNumber(); }
    void changed() override;
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
    // Who writes a text. The live re-format runs for what a person or a host writes. The history records a person's
    // edits and is cleared when a host, loading, entry or exit writes.
    enum class Writer { person, host, life, keys, history };
    class Scratch;
    struct Draft; // the text that a paste is making (draft.h)

    [[nodiscard]] platform::EditBox& box() const; // the active one; 91 after LimparMemoria and after the end
    [[nodiscard]] bool deaf() const noexcept { return released_ || life_.ended(); } // the box's events are not heard
    [[nodiscard]] bool masked() const noexcept;                                     // Data or Mascara
    [[nodiscard]] bool liveNumber() const noexcept;                                 // Numerico with MaskToNumeric
    void readText(std::u16string& into) const { box().text(into); }
    // Each may call the host. When the control was destroyed meanwhile they raise 91, and no member may be touched.
    void markChanged(View name);
    void writeText(View text, Writer writer);
    void showBox(platform::BoxIcon icon, View title, View text);
    void openPopup();
    void raise(void (platform::ControlHost::*event)());

    template <class T, class U>
    void store(T& field, const U& value, View name);
    void storeColour(Colour popups::CalendarColours::*which, Colour value, View name);
    template <class T>
    void putTrait(T platform::EditTraits::*trait, const T& value);
    template <class T>
    void putFontPart(T FontDescription::*part, const T& value);
    template <class Body>
    void trapToLog(View label, Body body); // error_log.cpp's record
    void log(const engine::Error& error, View label);

    // Setters (setters.cpp, mask_properties.cpp, value.cpp)
    void showButton(bool& flag, bool value);
    void putSymbol(Simbolos& stored, char16_t& derived, Simbolos value, View name);
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
    void expectTyping(int key);
    void expectErasing(bool backwards);
    template <class Describe>
    void expectEdit(Describe describe);
    void keepTyped();
    [[nodiscard]] bool typeInto(Draft& draft, char16_t unit);
    void keepWritten(View before, View after, platform::Selection selection, bool joined);
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
