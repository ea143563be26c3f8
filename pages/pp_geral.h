// ppGeral, captioned "Geral": navigation, automatic selection, focus colours, empty text and the delimiters.
#pragma once

#include "pages/page_form.h"

namespace vela::pages {

class ppGeral final : public Page {
public:
    ppGeral(const PageServices& services, PageSite& site);

    void open(std::span<PropertyObject* const> selection) override;
    void release() noexcept override { page_.release(); }
    bool apply() override;
    void focus(platform::WidgetId control) override;
    [[nodiscard]] bool changed() const noexcept override { return page_.changed(); }
    [[nodiscard]] platform::Form& form() noexcept override { return page_.form(); }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept override { return page_.layout(); }

private:
    void showGroup(bool gotFocus); // of the got-focus settings, else of the lost-focus settings
    void showDelimiterHelp() const;

    PageForm page_;
};

} // namespace vela::pages
