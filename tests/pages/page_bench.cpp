// The bench of the page tests.
#include "page_bench.h"

#include "activex/page_fields.h"
#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"

#include <algorithm>

namespace vela::pages {

using engine::Value;
using platform::WidgetId;
using platform::WidgetKind;

std::u16string utf16(std::string_view ascii)
{
    return {ascii.begin(), ascii.end()};
}

std::string joined(const std::vector<std::u16string>& names)
{
    std::string out;
    for (const std::u16string& name : names)
        out += (out.empty() ? "" : " ") + utf8(name);
    return out;
}

// --- the object

RecordingObject::RecordingObject()
{
    for (const PageKind page : pageKinds())
        for (const Field& field : activex::pageFields(page)) {
            Value& value = properties[std::u16string(field.property)];
            switch (field.mapping) {
            case Mapping::text: value = std::u16string(); break;
            case Mapping::check: value = false; break;
            case Mapping::number:
            case Mapping::listIndex:
            case Mapping::colour: value = std::int32_t{0}; break;
            }
        }
    properties[u"TextoLivre"] = true;
    properties[u"DateFormat"] = std::u16string(u"dd/mm/yyyy");
    properties[u"FormatoExibData"] = std::u16string(u"__/__/____");
    properties[u"PromptChar"] = std::u16string(u"_");
    properties[u"FontName"] = std::u16string(u"MS Sans Serif");
    properties[u"FontSize"] = std::int32_t{8};
}

int RecordingObject::find(std::u16string_view name)
{
    if (!properties.contains(name))
        engine::raise(engine::error_number::unsupportedMember);
    found_.emplace_back(name);
    return static_cast<int>(found_.size()) - 1;
}

Value RecordingObject::get(int property)
{
    return properties[read.emplace_back(found_.at(static_cast<std::size_t>(property)))];
}

void RecordingObject::put(int property, const Value& value)
{
    if (failWriteAt == written.size())
        engine::raise(engine::error_number::invalidPropertyValue);
    properties[written.emplace_back(found_.at(static_cast<std::size_t>(property)))] = value;
}

void RecordingObject::makeAllDifferent()
{
    std::int32_t next = 0;
    bool flag = false;
    for (auto& [name, value] : properties) {
        ++next;
        if (std::holds_alternative<std::u16string>(value))
            value = u"text " + utf16(std::to_string(next));
        else if (std::holds_alternative<bool>(value))
            value = flag = !flag;
        else
            value = next;
    }
    // Values within their lists. Free typing is off, so that the allowed characters are kept.
    properties[u"TextType"] = std::int32_t{3};
    properties[u"SimbolDecExib"] = std::int32_t{2};
    properties[u"SimbolDecRet"] = std::int32_t{1};
    properties[u"SimbolAgrupMilhar"] = std::int32_t{0};
    properties[u"tipoLetra"] = std::int32_t{2};
    properties[u"TextoLivre"] = false;
    properties[u"CaractLiberados"] = std::u16string(u"09Az");
    properties[u"ErrorAlert"] = true;
    properties[u"ErrorMsgCustom"] = true;
    properties[u"ErrorTextClear"] = false;
    properties[u"ErrorFocus"] = true;
}

// --- the bench

PageBench::PageBench(PageKind kind, platform::SettingsStore* store)
    : kind_(kind), store_(store ? *store : machine_.settings)
{
    machine_.clock.freeze(engine::makeDate({2024, 2, 29}, {14, 5, 33}));
    remake();
}

void PageBench::remake()
{
    page.reset();
    page = makePage(kind_, {machine_.environment, store_, machine_.forms, *this, activex::pageFields(kind_)}, *this);
}

void PageBench::open(const std::vector<PropertyObject*>& selection)
{
    page->open(selection);
}

void PageBench::act(std::u16string_view control)
{
    const WidgetId widget = id(control);
    switch (page->layout().rows[static_cast<std::size_t>(widget.value)].kind) {
    case WidgetKind::textBox: headlessForm().type(widget, headless::keyOf(u'9')); break;
    case WidgetKind::comboBox:
    case WidgetKind::dropDownList: choose(control, form().items(widget).chosen() == 1 ? 0 : 1); break;
    case WidgetKind::swatch: headlessForm().doubleClick(widget); break;
    default: click(control); break;
    }
}

void PageBench::edit()
{
    switch (kind_) {
    case PageKind::ppPrincipal: act(u"chkInserirZeros"); break;
    case PageKind::ppGeral: act(u"chkSendTab"); break;
    case PageKind::ppErros: act(u"chkExibirAlertaPadrao"); break;
    case PageKind::ppFonte: act(u"Negrito"); break;
    case PageKind::ppCalendario:
        colour = engine::Colour{0x00010203};
        headlessForm().doubleClick(id(u"PicCorCalendario", 0));
        break;
    }
}

WidgetId PageBench::id(std::u16string_view control, int index)
{
    const WidgetId found = platform::findWidget(page->layout(), control, index);
    if (!found)
        throw std::out_of_range("no control " + utf8(control));
    return found;
}

} // namespace vela::pages
