// ppFonte, captioned "Fonte": the field's font, with a preview.
#pragma once

#include "pages/page_form.h"

#include <string>

namespace vela::pages {

class ppFonte final : public Page {
public:
    ppFonte(const PageServices& services, PageSite& site);

    void open(std::span<PropertyObject* const> selection) override;
    void release() noexcept override { page_.release(); }
    bool apply() override;
    [[nodiscard]] bool changed() const noexcept override { return page_.changed(); }
    [[nodiscard]] platform::Form& form() noexcept override { return page_.form(); }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept override { return page_.layout(); }

private:
    void fontNameActed();
    void showPreview();

    PageForm page_;
    std::u16string fontName_; // as it stood after the last act
};

} // namespace vela::pages
