// ppCalendario, captioned "Calendário": the seven colours of the pop-up calendar.
#pragma once

#include "pages/page_form.h"

namespace vela::pages {

class ppCalendario final : public Page {
public:
    ppCalendario(const PageServices& services, PageSite& site);

    void open(std::span<PropertyObject* const> selection) override;
    void release() noexcept override { page_.release(); }
    bool apply() override;
    [[nodiscard]] bool changed() const noexcept override { return page_.changed(); }
    [[nodiscard]] platform::Form& form() noexcept override { return page_.form(); }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept override { return page_.layout(); }

private:
    PageForm page_;
};

} // namespace vela::pages
