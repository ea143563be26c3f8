// Binds a page's controls to acts, moves values between controls and properties, and keeps the changed flag.
#include "pages/page_form.h"

#include "engine/error.h"
#include "engine/scoped_value.h"
#include "engine/text/conversions.h"
#include "engine/text/key_codes.h"
#include "pages/spoken_names.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <utility>

namespace vela::pages {

using engine::Colour;
using engine::Value;
using platform::WidgetId;
using platform::WidgetKind;

namespace {

Value colourValue(Colour colour)
{
    return std::bit_cast<std::int32_t>(colour.value);
}

Colour toColour(const Value& value, const engine::Locale& locale)
{
    return Colour{std::bit_cast<std::uint32_t>(engine::toLong(value, locale))};
}

} // namespace

PageForm::PageForm(const platform::FormLayout& layout, const PageServices& services, PageSite& site)
    : layout_(layout), services_(services), site_(site),
      form_(services.forms.make(
          layout, {.clicks = this, .doubleClicks = this, .entries = this, .keysDown = this, .keys = this}))
{
    putSpokenNames(layout, *form_);
    for (const Field& field : services.fields)
        fields_.push_back({field, id(field.control, field.index)});
    for (const Bound& bound : fields_)
        writingOrder_.push_back(&bound);
    std::ranges::sort(writingOrder_, {}, [](const Bound* bound) { return bound->field.written; });
    for (std::size_t i = 0; i < layout.rows.size(); ++i)
        if (const WidgetId widget{static_cast<int>(i)}; isSwatch(widget)) {
            platform::WidgetLook look = form_->look(widget);
            look.border = true;
            form_->putLook(widget, look);
        }
}

// --- bindings

void PageForm::bind(std::u16string_view control, Act act, Action action)
{
    bindings_.push_back({id(control), act, std::move(action)});
}

void PageForm::marksChanged(WidgetId control)
{
    for (const Act act : {Act::click, Act::change})
        bindings_.push_back({control, act, [this] { putChanged(true); }});
}

void PageForm::fieldsMarkChanged()
{
    for (const Bound& bound : fields_)
        if (!isSwatch(bound.control))
            marksChanged(bound.control);
}

void PageForm::onClick(std::u16string_view control, Action action)
{
    bind(control, Act::click, std::move(action));
}

void PageForm::onChange(std::u16string_view control, Action action)
{
    bind(control, Act::change, std::move(action));
}

void PageForm::onGotFocus(std::u16string_view control, Action action)
{
    bind(control, Act::gotFocus, std::move(action));
}

void PageForm::onLostFocus(std::u16string_view control, Action action)
{
    bind(control, Act::lostFocus, std::move(action));
}

void PageForm::filterKeys(std::u16string_view control, KeyFilter accepts)
{
    filters_.push_back({id(control), accepts});
}

void PageForm::help(std::u16string_view button, std::u16string_view text)
{
    onClick(button, [this, text] { inform(text); });
}

void PageForm::run(WidgetId control, Act act)
{
    const auto isBound = [&](const Binding& binding) { return binding.control == control && binding.act == act; };
    if (loading_ || std::ranges::none_of(bindings_, isBound))
        return;
    site_.runAct([&] {
        for (const Binding& binding : bindings_)
            if (isBound(binding))
                binding.action();
    }); // the page may be gone now
}

void PageForm::clicked(WidgetId widget)
{
    run(widget, Act::click);
}

void PageForm::doubleClicked(WidgetId widget)
{
    if (isSwatch(widget))
        site_.runAct([&] { chooseColour(widget); });
}

void PageForm::keyDown(WidgetId widget, int& code, int& shift)
{
    if (shift != 0 || (code != engine::key_code::enter && code != engine::key_code::space) || !isSwatch(widget))
        return;
    code = 0;
    site_.runAct([&] { chooseColour(widget); });
}

bool PageForm::isSwatch(WidgetId widget) const
{
    return widget && layout_.rows[static_cast<std::size_t>(widget.value)].kind == WidgetKind::swatch;
}

void PageForm::changed(WidgetId widget)
{
    run(widget, Act::change);
}

void PageForm::gotFocus(WidgetId widget)
{
    run(widget, Act::gotFocus);
}

void PageForm::lostFocus(WidgetId widget)
{
    run(widget, Act::lostFocus);
}

void PageForm::keyPress(WidgetId widget, int& key)
{
    for (const Filter& filter : filters_)
        if (filter.control == widget && !filter.accepts(key))
            key = 0;
}

void PageForm::chooseColour(WidgetId swatch)
{
    if (const auto colour = services_.colours.choose()) {
        putBackColour(swatch, *colour);
        putChanged(true);
    }
}

// --- the selection

void PageForm::open(std::span<PropertyObject* const> selection, const Action& load)
{
    object_ = selection.empty() ? nullptr : selection.front();
    failedLoad_ = engine::Error{.number = engine::error_number::objectNotSet}; // until the load says otherwise
    try {
        const engine::ScopedFlag loading(loading_, true);
        load();
        failedLoad_.reset();
    } catch (const engine::Error& error) {
        failedLoad_ = error;
        putChanged(false);
        throw;
    } catch (...) {
        putChanged(false);
        throw;
    }
    putChanged(false);
}

void PageForm::requireLoaded() const
{
    if (failedLoad_)
        throw *failedLoad_;
}

PropertyObject& PageForm::object() const
{
    if (!object_)
        engine::raise(engine::error_number::objectNotSet);
    return *object_;
}

Value PageForm::read(Bound& bound)
{
    bound.property = object().find(bound.field.property);
    return object().get(bound.property);
}

void PageForm::load(Bound& bound)
{
    const Value value = read(bound);
    const WidgetId control = bound.control;
    switch (bound.field.mapping) {
    case Mapping::text:
    case Mapping::number: form_->putText(control, engine::toText(value, locale())); break;
    case Mapping::check: form_->check(control, engine::toBoolean(value, locale())); break;
    case Mapping::listIndex: form_->items(control).choose(engine::toLong(value, locale())); break;
    case Mapping::colour: putBackColour(control, toColour(value, locale())); break;
    }
}

Value PageForm::value(const Bound& bound) const
{
    const WidgetId control = bound.control;
    switch (bound.field.mapping) {
    case Mapping::text: return form_->text(control);
    case Mapping::number: return engine::leadingNumber(form_->text(control));
    case Mapping::check: return form_->checked(control);
    case Mapping::listIndex: return std::int32_t{form_->items(control).chosen()};
    case Mapping::colour: return colourValue(form_->look(control).back);
    }
    return {};
}

void PageForm::write(const std::function<Value(const Bound&)>& valueOf)
{
    PropertyObject& target = object();
    for (const Bound* const bound : writingOrder_)
        target.put(bound->property, valueOf(*bound));
}

void PageForm::write()
{
    write([this](const Bound& bound) { return value(bound); });
}

void PageForm::putChanged(bool on)
{
    if (changed_ == on)
        return;
    changed_ = on;
    site_.changed(on);
}

// --- controls by name

WidgetId PageForm::id(std::u16string_view control, int index) const
{
    const WidgetId found = platform::findWidget(layout_, control, index);
    assert(found);
    return found;
}

std::u16string PageForm::text(std::u16string_view control) const
{
    return form_->text(id(control));
}

bool PageForm::checked(std::u16string_view control) const
{
    return form_->checked(id(control));
}

void PageForm::putText(std::u16string_view control, std::u16string_view text)
{
    form_->putText(id(control), text);
}

void PageForm::check(std::u16string_view control, bool on)
{
    form_->check(id(control), on);
}

void PageForm::enable(std::u16string_view control, bool on)
{
    form_->enable(id(control), on);
}

void PageForm::show(std::u16string_view control, bool on)
{
    form_->show(id(control), on);
}

void PageForm::focus(std::u16string_view control)
{
    focusControl(*form_, layout_, id(control));
}

void PageForm::putBackColour(WidgetId control, Colour colour)
{
    platform::WidgetLook look = form_->look(control);
    look.back = colour;
    form_->putLook(control, look);
}

platform::ItemList& PageForm::items(std::u16string_view control)
{
    return form_->items(id(control));
}

void PageForm::inform(std::u16string_view text, std::u16string_view title) const
{
    services_.environment.desktop.messageBox(platform::BoxIcon::information, platform::BoxButtons::ok, title, text);
}

} // namespace vela::pages
