// The commands page, palette and store.
#include "apps/console/page_commands.h"

#include "apps/console/key_text.h"
#include "apps/console/value_text.h"
#include "engine/error.h"
#include "engine/text/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace vela::console {

using platform::FormLayout;
using platform::WidgetId;
using platform::WidgetKind;
using platform::WidgetRow;

namespace {

constexpr std::array typingNames{
    KeyName{u"{BACKSPACE}", headless::namedKey(headless::virtual_key::backspace)},
};

PageDesk& desk(Session& session)
{
    return session.state<PageDesk>();
}

// --- controls by name

struct ControlName {
    std::u16string name;
    int index = -1;
};

// "PicCorCalendario(3)" -> name and index; a word of another shape names nothing.
ControlName controlName(const Word& word)
{
    if (word.quoted || word.bare.empty())
        notACommand("a control is named by a bare word", word);
    const std::size_t open = word.bare.find(u'(');
    if (open == std::u16string::npos)
        return {word.bare};
    const std::string digits = toUtf8(std::u16string_view(word.bare).substr(open + 1));
    ControlName control{word.bare.substr(0, open), 0};
    const char* const end = digits.data() + digits.size();
    const auto [rest, fault] = std::from_chars(digits.data(), end, control.index);
    if (fault != std::errc() || control.index < 0 || std::string_view(rest, end) != ")")
        notACommand("no such control", word);
    return control;
}

using Kinds = std::initializer_list<WidgetKind>;
constexpr Kinds inputs = {WidgetKind::comboBox,     WidgetKind::dropDownList, WidgetKind::listBox, WidgetKind::checkBox,
                          WidgetKind::optionButton, WidgetKind::textBox,      WidgetKind::swatch};
constexpr Kinds focusable = {WidgetKind::comboBox, WidgetKind::dropDownList, WidgetKind::listBox,
                             WidgetKind::checkBox, WidgetKind::optionButton, WidgetKind::textBox,
                             WidgetKind::swatch,   WidgetKind::button};
constexpr Kinds settable = {WidgetKind::comboBox, WidgetKind::dropDownList, WidgetKind::listBox,
                            WidgetKind::checkBox, WidgetKind::optionButton, WidgetKind::textBox};
constexpr Kinds lists = {WidgetKind::comboBox, WidgetKind::dropDownList, WidgetKind::listBox};
constexpr Kinds typed = {WidgetKind::comboBox, WidgetKind::textBox};
constexpr Kinds clickable = {WidgetKind::button, WidgetKind::checkBox, WidgetKind::optionButton};
constexpr Kinds doubleClickable = {WidgetKind::swatch};

bool isOne(WidgetKind kind, Kinds of)
{
    return std::ranges::find(of, kind) != of.end();
}

const WidgetRow& rowOf(const FormLayout& layout, WidgetId widget)
{
    return layout.rows[static_cast<std::size_t>(widget.value)];
}

WidgetId findControl(const FormLayout& layout, const ControlName& control, Kinds kinds)
{
    const WidgetId widget = platform::findWidget(layout, control.name, control.index);
    const bool fits = widget && isOne(rowOf(layout, widget).kind, kinds);
    return fits ? widget : WidgetId{};
}

// The control of the open page. A name that fits no page is no command; one of another page than the open one neither.
WidgetId control(Session& session, const Word& word, Kinds kinds)
{
    const ControlName name = controlName(word);
    const auto onPage = [&](pages::PageKind kind) {
        return static_cast<bool>(findControl(pages::pageLayout(kind), name, kinds));
    };
    const PageDesk& pageDesk = desk(session);
    const WidgetId widget = pageDesk.hasPage() ? findControl(pageDesk.page().layout(), name, kinds) : WidgetId{};
    if (!widget && (pageDesk.hasPage() || std::ranges::none_of(pages::pageKinds(), onPage)))
        notACommand("no such control here", word,
                    pageDesk.hasPage() ? namesOf(pageDesk.page().layout().rows) : std::vector<std::u16string_view>{});
    static_cast<void>(pageDesk.page()); // 91 when none is open
    return widget;
}

// --- printing

std::string nameOf(const WidgetRow& row)
{
    return toUtf8(row.name) + (row.index < 0 ? std::string() : "(" + std::to_string(row.index) + ")");
}

std::u16string selectedItems(const platform::ItemList& list)
{
    std::u16string items;
    for (int i = 0; i < list.count(); ++i)
        if (list.selected(i))
            items += list.at(i);
    return items;
}

std::string valueOf(headless::WidgetForm& form, WidgetId widget)
{
    switch (rowOf(form.layout(), widget).kind) {
    case WidgetKind::checkBox:
    case WidgetKind::optionButton: return printed(form.checked(widget));
    case WidgetKind::swatch: return printed(form.look(widget).back);
    case WidgetKind::listBox: return quoted(selectedItems(form.items(widget)));
    default: return quoted(form.text(widget));
    }
}

void printControl(Session& session, headless::WidgetForm& form, WidgetId widget)
{
    session.printLine(nameOf(rowOf(form.layout(), widget)) + " = " + valueOf(form, widget) +
                      (form.enabled(widget) ? "" : " disabled") + (form.visible(widget) ? "" : " hidden"));
}

void printPage(Session& session)
{
    PageDesk& pageDesk = desk(session);
    if (!pageDesk.hasPage()) {
        session.printLine("page closed");
        return;
    }
    const FormLayout& layout = pageDesk.page().layout();
    session.printLine("page " + toUtf8(layout.name) + " changed=" + printed(pageDesk.page().changed()));
    for (std::size_t i = 0; i < layout.rows.size(); ++i)
        if (isOne(layout.rows[i].kind, inputs))
            printControl(session, pageDesk.pageForm(), WidgetId{static_cast<int>(i)});
}

// --- acts on a page

void openPage(Session& session, Words words)
{
    requireWords(words, 4, anyNumber);
    const auto kind = words[2].quoted ? std::nullopt : pages::findPageKind(words[2].bare);
    if (!kind)
        notACommand("no such page", words[2], {u"ppPrincipal", u"ppGeral", u"ppErros", u"ppFonte", u"ppCalendario"});
    std::vector<Field*> fields;
    for (const Word& word : words.subspan(3))
        fields.push_back(&session.fieldOf(word));
    desk(session).openPage(*kind, fields);
}

int indexOf(const platform::ItemList& list, std::u16string_view item)
{
    for (int i = 0; i < list.count(); ++i)
        if (list.at(i) == item)
            return i;
    return -1;
}

// An item; a combo takes other texts too.
void setText(headless::WidgetForm& form, WidgetId widget, std::u16string_view text)
{
    if (const int item = indexOf(form.items(widget), text); item >= 0)
        form.choose(widget, item);
    else if (rowOf(form.layout(), widget).kind == WidgetKind::comboBox)
        form.enterText(widget, text);
    else
        engine::raise(engine::error_number::invalidPropertyValue);
}

void setLetters(headless::WidgetForm& form, WidgetId widget, std::u16string_view letters)
{
    const platform::ItemList& list = form.items(widget);
    for (int i = 0; i < list.count(); ++i)
        form.turnItem(widget, i, letters.find(list.at(i)) != std::u16string_view::npos);
}

// Nobody can take an option button's choice away but by choosing another.
void setValue(Session& session, WidgetId widget, const engine::Value& value)
{
    headless::WidgetForm& form = desk(session).pageForm();
    if (!form.acts(widget))
        return;
    const engine::Locale& locale = session.machine().locales.locale();
    switch (rowOf(form.layout(), widget).kind) {
    case WidgetKind::checkBox:
        if (engine::toBoolean(value, locale) != form.checked(widget))
            form.click(widget);
        break;
    case WidgetKind::optionButton:
        if (engine::toBoolean(value, locale) && !form.checked(widget))
            form.click(widget);
        break;
    case WidgetKind::listBox: setLetters(form, widget, engine::toText(value, locale)); break;
    case WidgetKind::dropDownList:
    case WidgetKind::comboBox: setText(form, widget, engine::toText(value, locale)); break;
    default: form.enterText(widget, engine::toText(value, locale)); break;
    }
}

void typeAt(headless::WidgetForm& form, WidgetId widget, std::span<const headless::Key> keys)
{
    for (const headless::Key key : keys)
        form.type(widget, key);
}

struct PageAct {
    std::u16string_view name;
    std::size_t words; // of the whole line
    void (*run)(Session& session, Words words);
};

void getControl(Session& session, Words words)
{
    const WidgetId widget = control(session, words[2], inputs);
    printControl(session, desk(session).pageForm(), widget);
}

void printItems(Session& session, Words words)
{
    const WidgetId widget = control(session, words[2], lists);
    const platform::ItemList& list = desk(session).pageForm().items(widget);
    for (int i = 0; i < list.count(); ++i)
        session.printLine(quoted(list.at(i)));
}

void setControl(Session& session, Words words)
{
    const engine::Value value = console::valueOf(words[3]);
    setValue(session, control(session, words[2], settable), value);
}

void typeAtControl(Session& session, Words words)
{
    const auto keys = keysOf(textOf(words[3]), typingNames);
    const WidgetId widget = control(session, words[2], typed);
    typeAt(desk(session).pageForm(), widget, keys);
}

constexpr std::array<PageAct, 9> pageActs{{
    {u"get", 3, getControl},
    {u"items", 3, printItems},
    {u"set", 4, setControl},
    {u"keys", 4, typeAtControl},
    {u"click", 3,
     [](Session& session, Words words) {
         const WidgetId widget = control(session, words[2], clickable);
         desk(session).pageForm().click(widget);
     }},
    {u"dblclick", 3,
     [](Session& session, Words words) {
         const WidgetId widget = control(session, words[2], doubleClickable);
         desk(session).pageForm().doubleClick(widget);
     }},
    {u"focus", 3,
     [](Session& session, Words words) {
         const WidgetId widget = control(session, words[2], focusable);
         desk(session).pageForm().moveFocus(widget);
     }},
    {u"apply", 2, [](Session& session, Words) { desk(session).page().apply(); }},
    {u"close", 2,
     [](Session& session, Words) {
         static_cast<void>(desk(session).page());
         desk(session).closePage();
     }},
}};

void runAct(Session& session, Words words, std::span<const PageAct> acts)
{
    const auto act = std::ranges::find_if(acts, [&](const PageAct& entry) { return words[1].is(entry.name); });
    if (act == acts.end())
        notACommand("no such act of " + toUtf8(words[0].bare), words[1], namesOf(acts));
    requireWords(words, act->words, act->words);
    act->run(session, words);
}

void page(Session& session, Words words)
{
    if (words.size() == 1)
        printPage(session);
    else if (words[1].is(u"open"))
        openPage(session, words);
    else
        runAct(session, words, pageActs);
}

// --- the palette

void printPalette(Session& session)
{
    PageDesk& pageDesk = desk(session);
    if (!pageDesk.hasPalette()) {
        session.printLine("palette closed");
        return;
    }
    const headless::WidgetForm& form = pageDesk.paletteForm();
    const auto box = [&](std::u16string_view name) { return quoted(form.text(form.find(name))); };
    session.printLine("palette colour=" + printed(pageDesk.palette().chosenColour()) +
                      " preview=" + printed(pageDesk.palette().preview()) + " R=" + box(u"txtR") +
                      " G=" + box(u"txtG") + " B=" + box(u"txtB"));
}

void endPalette(Session& session, void (*act)(headless::WidgetForm&))
{
    PageDesk& pageDesk = desk(session);
    act(pageDesk.paletteForm());
    session.printLine("palette colour=" + printed(pageDesk.palette().chosenColour()) +
                      " cancelled=" + printed(pageDesk.palette().cancelled()));
    pageDesk.dropPalette();
}

// Typing puts the focus into the box first.
void typeAtPalette(Session& session, Words words)
{
    const auto keys = keysOf(textOf(words[3]), typingNames);
    if (!words[2].is(u"txtR") && !words[2].is(u"txtG") && !words[2].is(u"txtB"))
        notACommand("no such text box", words[2], {u"txtR", u"txtG", u"txtB"});
    headless::WidgetForm& form = desk(session).paletteForm();
    const WidgetId box = form.find(words[2].bare);
    form.moveFocus(box);
    typeAt(form, box, keys);
}

void focusSwatch(Session& session, Words words)
{
    const int index = integerOf(words[2]);
    headless::WidgetForm& form = desk(session).paletteForm();
    const WidgetId swatch = form.find(u"Picture1", index);
    if (!swatch)
        engine::raise(engine::error_number::subscriptOutOfRange);
    form.moveFocus(swatch);
}

constexpr std::array<PageAct, 6> paletteActs{{
    {u"open", 2, [](Session& session, Words) { desk(session).openPalette(); }},
    {u"focus", 3, focusSwatch},
    {u"keys", 4, typeAtPalette},
    {u"ok", 2,
     [](Session& session, Words) {
         endPalette(session, [](headless::WidgetForm& form) { form.click(form.find(u"cmdOK")); });
     }},
    {u"cancel", 2,
     [](Session& session, Words) {
         endPalette(session, [](headless::WidgetForm& form) { form.click(form.find(u"cmdCancel")); });
     }},
    {u"close", 2,
     [](Session& session, Words) { endPalette(session, [](headless::WidgetForm& form) { form.close(); }); }},
}};

void palette(Session& session, Words words)
{
    if (words.size() == 1)
        printPalette(session);
    else
        runAct(session, words, paletteActs);
}

// --- the store

void store(Session& session, Words)
{
    for (const headless::SettingsStore::Row& row : session.machine().settings.rows())
        session.printLine("store " + quoted(row.application) + " " + quoted(row.section) + " " + quoted(row.key) +
                          " = " + quoted(row.value));
}

constexpr std::array<Command, 3> commands{
    {{u"page", 1, anyNumber, page,
      "page\n"
      "page open PAGE NAME...\n"
      "page get|items|click|dblclick|focus CONTROL\n"
      "page set CONTROL VALUE\n"
      "page keys CONTROL \"TEXT\"\n"
      "page apply|close\n"
      "  Opens ppPrincipal, ppGeral, ppErros, ppFonte or ppCalendario for these controls; prints it, acts in it."},
     {u"palette", 1, anyNumber, palette,
      "palette\n"
      "palette open|ok|cancel|close\n"
      "palette focus INDEX\n"
      "palette keys CONTROL \"TEXT\"\n"
      "  Drives one colour palette."},
     {u"store", 1, 1, store,
      "store\n"
      "  Prints the settings that are kept for the user: masks and profiles."}}};

} // namespace

CommandTable pageCommands() noexcept
{
    return commands;
}

} // namespace vela::console
