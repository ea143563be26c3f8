// A page on a headless machine with an object that records how it is read and written.
#pragma once

#include "apps/console/script_line.h"
#include "pages/page.h"
#include "platform/headless/environment.h"
#include "tests/support/error_of.h"
#include "tests/support/recorder.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vela::pages {

using engine::errorOf;
constexpr auto utf8 = console::toUtf8;

[[nodiscard]] std::u16string utf16(std::string_view ascii);
[[nodiscard]] std::string joined(const std::vector<std::u16string>& names); // by blanks

// Has every property of the pages at first; one that was erased is unknown.
class RecordingObject final : public PropertyObject {
public:
    RecordingObject();

    [[nodiscard]] int find(std::u16string_view name) override;
    [[nodiscard]] engine::Value get(int property) override;
    void put(int property, const engine::Value& value) override;

    void makeAllDifferent(); // no two properties of one type hold the same value, as far as the type allows

    std::map<std::u16string, engine::Value, std::less<>> properties;
    std::vector<std::u16string> read;
    std::vector<std::u16string> written;
    std::optional<std::size_t> failWriteAt; // the write with this place in `written` raises 380

private:
    std::vector<std::u16string> found_;
};

class PageBench final : private PageSite, private ColourChooser {
public:
    explicit PageBench(PageKind kind, platform::SettingsStore* store = nullptr); // null: the machine's
    PageBench(const PageBench&) = delete;
    PageBench& operator=(const PageBench&) = delete;

    void open(const std::vector<PropertyObject*>& selection);
    void open() { open({&object}); }
    void remake(); // a fresh page of the same kind

    // Acts of a person.
    void click(std::u16string_view control) { headlessForm().click(id(control)); }
    void put(std::u16string_view control, std::u16string_view text) { headlessForm().enterText(id(control), text); }
    void choose(std::u16string_view control, int index) { headlessForm().choose(id(control), index); }
    void act(std::u16string_view control); // whatever is usual with a control of its kind, so that its value changes
    void edit();                           // the first control of the page that is edited by a person

    // What stands there.
    [[nodiscard]] platform::WidgetId id(std::u16string_view control, int index = -1);
    [[nodiscard]] std::u16string text(std::u16string_view control) { return form().text(id(control)); }
    [[nodiscard]] engine::Colour back(std::u16string_view control) { return form().look(id(control)).back; }

    void answerText(std::u16string text) { machine_.desktop.queueAnswer(std::move(text)); }
    // Those since the last call, as transcripts tell them.
    std::string takeBoxes()
    {
        std::string boxes;
        for (const std::string& line : std::exchange(recorder_.lines, {}))
            boxes += line;
        return boxes;
    }

    [[nodiscard]] platform::Form& form() { return page->form(); }
    [[nodiscard]] headless::WidgetForm& headlessForm() { return static_cast<headless::WidgetForm&>(page->form()); }
    [[nodiscard]] platform::Desktop& desktop() { return machine_.desktop; }
    [[nodiscard]] headless::WidgetForms& forms() { return machine_.forms; }
    [[nodiscard]] headless::SettingsStore& settings() { return machine_.settings; }

    RecordingObject object;
    std::optional<engine::Colour> colour; // what the palette answers
    bool marked = false;                  // what the site heard last

private:
    void changed(bool dirty) override { marked = dirty; }
    void runAct(const std::function<void()>& act) override { act(); }
    [[nodiscard]] std::optional<engine::Colour> choose() override { return colour; }

    PageKind kind_;
    test::Recorder recorder_;
    headless::Machine machine_{recorder_};
    platform::SettingsStore& store_;

public:
    std::unique_ptr<Page> page;
};

} // namespace vela::pages
