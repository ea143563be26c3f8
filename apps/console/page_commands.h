// The property page and the palette that a script drives, with the controls that the page edits.
#pragma once

#include "apps/console/session.h"
#include "pages/frm_paleta.h"
#include "pages/page.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace vela::console {

// A control as its page knows it; raises 91 once it has gone.
class SelectedField final : public pages::PropertyObject {
public:
    explicit SelectedField(Field& field) noexcept : field_(&field) {}

    [[nodiscard]] int find(std::u16string_view name) override;
    [[nodiscard]] engine::Value get(int property) override { return control::getProperty(alive(), rowOf(property)); }
    void put(int property, const engine::Value& value) override
    {
        control::putProperty(alive(), rowOf(property), value);
    }
    void forget(const Field& field) noexcept
    {
        if (field_ == &field)
            field_ = nullptr;
    }

private:
    [[nodiscard]] control::Vela& alive() const;
    [[nodiscard]] static const control::Property& rowOf(int property)
    {
        return control::properties()[static_cast<std::size_t>(property)];
    }

    Field* field_;
};

// At most one page and one palette are open at a time.
class PageDesk final : private pages::PageSite, private pages::ColourChooser {
public:
    explicit PageDesk(Session& session);
    PageDesk(const PageDesk&) = delete;
    PageDesk& operator=(const PageDesk&) = delete;

    void openPage(pages::PageKind kind, std::span<Field* const> fields); // a failing load leaves it open
    void closePage();
    [[nodiscard]] bool hasPage() const noexcept { return page_ != nullptr; }
    [[nodiscard]] pages::Page& page() const; // raises 91 when none is open
    [[nodiscard]] headless::WidgetForm& pageForm() const;

    void openPalette();
    void dropPalette() noexcept { palette_.reset(); }
    [[nodiscard]] bool hasPalette() const noexcept { return palette_ != nullptr; }
    [[nodiscard]] pages::frmPaleta& palette() const; // raises 91
    [[nodiscard]] headless::WidgetForm& paletteForm() const;

private:
    using Selection = std::vector<std::unique_ptr<SelectedField>>;

    void changed(bool) override {}
    void runAct(const std::function<void()>& act) override { act(); } // what it raises is the command's error
    [[nodiscard]] std::optional<engine::Colour> choose() override;

    Session& session_;
    std::shared_ptr<Selection> selection_ = std::make_shared<Selection>();
    std::unique_ptr<pages::Page> page_;
    std::unique_ptr<pages::frmPaleta> palette_;
};

} // namespace vela::console
