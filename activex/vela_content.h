// The Vela control in its shell: the neutral control on a real surface, with a host behind a client site.
#pragma once

#include "activex/font_object.h"
#include "activex/ole/shell.h"
#include "activex/session.h"
#include "control/vela.h"
#include "platform/win32/control_surface.h"
#include "platform/win32/owners.h"

namespace vela::activex {

[[nodiscard]] const ClassFacts& velaFacts() noexcept;

class VelaContent final : public Content, private platform::ControlHost, private win32::SurfaceListener {
public:
    explicit VelaContent(Shell& shell);
    ~VelaContent() override;

    [[nodiscard]] std::span<const Member> members() const noexcept override;
    [[nodiscard]] Variant get(const Member& member) override;
    void put(const Member& member, const VARIANT& value) override;
    [[nodiscard]] Variant call(const Member& member, const Arguments& arguments) override;

    void initNew() override;
    void load(platform::PropertyBag& bag) override;
    void save(platform::PropertyBag& bag) override { vela_.save(bag); }
    void terminate() noexcept override;

    [[nodiscard]] HWND window() const noexcept override { return surface_.handle(); }
    void attach(HWND parent, const RECT& place) override;
    void detach() noexcept override;
    void place(const RECT& place) override;
    void clip(const RECT* shown) override;
    void show(bool visible) override { surface_.show(visible); }
    [[nodiscard]] FieldSize size() override;
    void resize(FieldSize size) override { surface_.place({0, 0, size.width, size.height}); }
    void takeFocus() override { surface_.edit().takeFocus(); }
    [[nodiscard]] bool wantsKey(const MSG& message) const override;
    [[nodiscard]] bool eatsReturn() const override { return vela_.settings().enterAsTab || vela_.settings().multLine; }
    [[nodiscard]] int dpi() override { return surface_.dpi(); }
    void ambientChanged(DISPID id) override;

    void draw(HDC dc, const RECT& bounds) override;
    [[nodiscard]] std::u16string plainText() override;

private:
    // platform::ControlHost
    void propertyChanged(std::u16string_view name, int dispid) override;
    [[nodiscard]] bool runMode() const override;
    [[nodiscard]] std::u16string containerName() const override;
    [[nodiscard]] platform::ParentForm parentForm() const override;
    void raiseChange() override;
    void raiseClick() override;
    void raiseKeyPress(std::int16_t& key) override;
    void raiseKeyDown(std::int16_t& code, std::int16_t& shift) override;
    void raiseKeyUp(std::int16_t& code, std::int16_t& shift) override;
    void raiseMouseOut() override;

    // win32::SurfaceListener
    void focusEntered() override { shell_.focusMoved(true); }
    void focusLeft() override { shell_.focusMoved(false); }
    void windowDestroyed() override { shell_.windowLost(); }
    bool tabUnused(MSG& message) override;
    [[nodiscard]] bool eatsEnter(WPARAM key) const override;
    [[nodiscard]] std::u16string fieldName() const override { return vela_.settings().nomeCampo; }

    // Notifies the host and screen readers, at the end of a scope, of what has changed for them in it.
    class Told {
    public:
        explicit Told(VelaContent& content) noexcept : hold_(content.shell_), content_(content) {}
        Told(const Told&) = delete;
        Told& operator=(const Told&) = delete;
        ~Told();

    private:
        const Shell::Hold hold_;
        VelaContent& content_;
    };

    void takeAmbientFont();
    void fontChanged() noexcept; // the object handed out shows it
    void takeAmbientGround();
    void needWindow();

    Shell& shell_;
    std::shared_ptr<Session> session_;
    win32::UniqueWindow parking_; // the surface's parent while a host has none, from the first need of a window
    win32::ControlSurface surface_;
    control::Vela vela_;
    FontObject font_;
    bool eatsTold_ = false; // of eatsReturn(), to the host
};

} // namespace vela::activex
