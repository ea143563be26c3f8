// ppPrincipal, the main page: text type, numbers, dates, masks, letters, and the store of masks and profiles.
#pragma once

#include "pages/page_form.h"
#include "pages/store.h"

namespace vela::pages {

class ppPrincipal final : public Page {
public:
    ppPrincipal(const PageServices& services, PageSite& site);

    void open(std::span<PropertyObject* const> selection) override;
    void release() noexcept override { page_.release(); }
    bool apply() override;
    [[nodiscard]] bool changed() const noexcept override { return page_.changed(); }
    [[nodiscard]] platform::Form& form() noexcept override { return page_.form(); }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept override { return page_.layout(); }

private:
    // Acts of the controls.
    void bindHelp();
    void bindPresets();
    void testReturnFormat() const;
    void copyPreset();
    void saveMask();
    void saveProfile();
    void loadProfile();
    void deleteProfile();

    // Loading.
    void load();
    void loadLetters(PageForm::Bound& field);
    void showFailedLoad() const; // its step is the line
    void followFreeTyping();
    void fillMasks();
    void fillProfiles();

    // Applying.
    [[nodiscard]] int textType();
    void checkSymbol();
    [[nodiscard]] bool isDateFormatAccepted() const; // says what is wrong with a character
    [[nodiscard]] bool acceptDateFormat();
    [[nodiscard]] engine::Value valueToWrite(const PageForm::Bound& field);

    // One of the profiles is chosen; else says why not.
    [[nodiscard]] bool hasChosenProfile(std::u16string_view otherwise);

    PageForm page_;
    PresetStore store_;
    std::optional<engine::Error> failedLoad_; // nothing is applied before a load has succeeded
};

} // namespace vela::pages
