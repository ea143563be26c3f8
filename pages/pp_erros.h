// ppErros, captioned "Erros": how a field reacts to an entry found wrong when it is left.
#pragma once

#include "pages/page_form.h"

namespace vela::pages {

class ppErros final : public Page {
public:
    ppErros(const PageServices& services, PageSite& site);

    void open(std::span<PropertyObject* const> selection) override;
    void release() noexcept override { page_.release(); }
    bool apply() override;
    [[nodiscard]] bool changed() const noexcept override { return page_.changed(); }
    [[nodiscard]] platform::Form& form() noexcept override { return page_.form(); }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept override { return page_.layout(); }

private:
    // The rules of the dependent controls.
    void followAlert();
    void followCustomMessage();
    void followClearField();

    PageForm page_;
};

} // namespace vela::pages
