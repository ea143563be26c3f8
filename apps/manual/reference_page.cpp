// Writes the members: types, defaults as a control answers them, pages and what is saved as the tables know them.
#include "apps/manual/reference_page.h"

#include "apps/console/session.h"
#include "control/property_table.h"
#include "pages/page.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace vela::manual {

namespace {

using console::toUtf8;
using control::Access;
using control::Browsable;
using control::Property;
using control::PropertyType;

struct Words {
    std::string_view title, introduction, properties, headings, all, yes, no, readOnly, hidden, loaded, errors, example;
    std::string_view methods, events, enumerations;
    std::string_view pages[5];
};

constexpr Words english{
    "# Every property, method, event and error\n\n",
    "This page is written by `vela-manual` from the tables of the control; a test keeps it so.\n\n"
    "**Default** is the value of a field that is newly placed or created; where a field that a form loads without that "
    "setting\n"
    "[starts differently](saving.md), both are given. **For** names the text types for which the property means "
    "something.\n"
    "**Saved** tells whether the host keeps it with the form. **Page** is the [property page](property-pages.md) that "
    "edits it.\n"
    "Members marked as hidden are not listed by object browsers. Colours are `&H00BBGGRR`, or `&H80000000` plus the "
    "index of a\n"
    "system colour. What cannot be converted to the type raises error 13, a number beyond the type error 6.\n\n",
    "## Properties\n\n",
    "| property | type | default | for | saved | page | what it is |\n|---|---|---|---|---|---|---|\n",
    "all",
    "yes",
    "no",
    "read only",
    "hidden",
    "loaded",
    "Error ",
    "Example: ",
    "## Methods\n\n| method | DISPID | what it does |\n|---|---|---|\n",
    "## Events\n\n| event | DISPID | parameters (Integer, by reference) | raised when |\n|---|---|---|---|\n",
    "## Enumerations\n\n| enumeration | members |\n|---|---|\n",
    {"main", "Geral", "Erros", "font", "Calendário"},
};

constexpr Words portuguese{
    "# Todas as propriedades, métodos, eventos e erros\n\n",
    "Esta página é escrita por `vela-manual` a partir das tabelas do controle; um teste garante isso.\n\n"
    "**Padrão** é o valor de um campo recém-colocado ou criado; onde um campo que o formulário carrega sem essa "
    "propriedade\n"
    "[começa diferente](saving.md), os dois são dados. **Para** nomeia os tipos de texto em que a propriedade tem "
    "efeito.\n"
    "**Salva** diz se o programa a guarda com o formulário. **Página** é a [página de propriedades](property-pages.md) "
    "que a edita.\n"
    "Membros marcados como ocultos não aparecem em navegadores de objetos. As cores são `&H00BBGGRR`, ou `&H80000000` "
    "mais o índice\n"
    "de uma cor do sistema. O que não pode ser convertido para o tipo gera o erro 13; um número além do tipo, o erro "
    "6.\n\n",
    "## Propriedades\n\n",
    "| propriedade | tipo | padrão | para | salva | página | o que é |\n|---|---|---|---|---|---|---|\n",
    "todos",
    "sim",
    "não",
    "somente leitura",
    "oculta",
    "carregado",
    "Erro ",
    "Exemplo: ",
    "## Métodos\n\n| método | DISPID | o que faz |\n|---|---|---|\n",
    "## Eventos\n\n| evento | DISPID | parâmetros (Integer, por referência) | quando acontece |\n|---|---|---|---|\n",
    "## Enumerações\n\n| enumeração | membros |\n|---|---|\n",
    {"principal", "Geral", "Erros", "fonte", "Calendário"},
};

const Words& wordsOf(Language language)
{
    return language == Language::english ? english : portuguese;
}

// What a member is for; without a Portuguese sentence its help text says it.
std::string sentence(Language language, std::string_view inEnglish, std::string_view inPortuguese,
                     std::u16string_view help)
{
    if (language == Language::english)
        return std::string(inEnglish);
    return inPortuguese.empty() ? toUtf8(help) + "." : std::string(inPortuguese);
}

std::string typeName(Language language, const Property& property)
{
    const bool inEnglish = language == Language::english;
    switch (property.type()) {
    case PropertyType::boolean: return "Boolean";
    case PropertyType::byte: return "Byte";
    case PropertyType::integer: return "Integer";
    case PropertyType::longInteger: return "Long";
    case PropertyType::colour: return inEnglish ? "colour" : "cor";
    case PropertyType::enumeration: return "`" + toUtf8(control::enumerationOf(property)->name) + "`";
    case PropertyType::text: return "String";
    case PropertyType::font: return inEnglish ? "font object" : "objeto fonte";
    case PropertyType::variant: return "Variant";
    }
    return {};
}

// What a field answers for each property in a process of its own: the calendar's colours are the process's.
std::vector<std::string> answers(std::string_view made)
{
    std::string output;
    const auto write = [&](std::string_view bytes) { output += bytes; };
    console::Session session(write, write);
    session.runLine(made);
    std::vector<std::string> texts;
    for (const Property& property : control::properties()) {
        output.clear();
        session.runLine("get f " + toUtf8(property.name));
        const std::size_t equals = output.find(" = ");
        texts.push_back(equals == std::string::npos ? "" : output.substr(equals + 3, output.size() - equals - 4));
    }
    return texts;
}

// As a new field answers and, where that is another value, as one loaded from no settings does.
std::string defaultOf(const Words& words, const Property& property, const std::string& fresh, const std::string& loaded)
{
    if (property.access() == Access::read)
        return {};
    const std::string text = "`" + fresh + "`";
    return loaded == fresh ? text : text + ", " + std::string(words.loaded) + " `" + loaded + "`";
}

std::string typesOf(const Words& words, std::string_view letters)
{
    if (letters == "TNDM")
        return std::string(words.all);
    std::string text;
    for (const char letter : letters) {
        const char* const name = letter == 'T'   ? "TextoNormal"
                                 : letter == 'N' ? "Numerico"
                                 : letter == 'D' ? "Data"
                                                 : "Mascara";
        text += (text.empty() ? "`" : ", `") + std::string(name) + "`";
    }
    return text;
}

void addProperties(Language language, std::string& page)
{
    const Words& words = wordsOf(language);
    const std::vector<std::string> fresh = answers("new f");
    const std::vector<std::string> loaded = answers("load f");
    page += std::string(words.properties) + std::string(words.headings);
    for (const Property& property : control::properties()) {
        const control::ManualText& about = property.manual;
        const auto row = static_cast<std::size_t>(&property - control::properties().data());
        const auto onPage = pages::findPageKind(property.page.name);
        page += "| `" + toUtf8(property.name) + "` | " + typeName(language, property);
        if (property.access() == Access::read)
            page += ", " + std::string(words.readOnly);
        if (property.browsable == Browsable::hidden)
            page += ", " + std::string(words.hidden);
        page +=
            " | " + defaultOf(words, property, fresh[row], loaded[row]) + " | " + typesOf(words, about.types) + " | ";
        page += std::string(property.saved.read > 0 ? words.yes : words.no) + " | ";
        page += std::string(onPage ? words.pages[static_cast<std::size_t>(*onPage)] : "") + " | ";
        page += sentence(language, about.english, about.portuguese, property.help);
        if (!about.errors.empty())
            page += " " + std::string(words.errors) + std::string(about.errors) + ".";
        if (!about.example.empty())
            page += " " + std::string(words.example) + "`." + toUtf8(property.name) + " = " +
                    std::string(about.example) + "`";
        page += " |\n";
    }
}

void addEnumerations(Language language, std::string& page)
{
    page += "\n" + std::string(wordsOf(language).enumerations);
    for (const engine::Enumeration& enumeration : engine::enumerations()) {
        page += "| `" + toUtf8(enumeration.name) + "` | ";
        for (const engine::Enumerator& member : enumeration.members) {
            const EnumeratorText* const text = findEnumeratorText(member.name);
            if (!text)
                throw std::runtime_error("no description of " + toUtf8(member.name));
            page += (&member == enumeration.members.data() ? "`" : "; `") + toUtf8(member.name) +
                    "` = " + std::to_string(member.value) + ", " +
                    std::string(language == Language::english ? text->english : text->portuguese);
        }
        page += " |\n";
    }
}

} // namespace

std::string referencePage(Language language)
{
    const Words& words = wordsOf(language);
    std::string page = std::string(words.title) + std::string(words.introduction);
    addProperties(language, page);
    page += "\n" + std::string(words.methods);
    for (const control::Method& method : control::methods())
        page += "| `" + toUtf8(method.name) + "` | " + std::to_string(method.dispid) + " | " +
                sentence(language, method.english, {}, method.help) + " |\n";
    page += "\n" + std::string(words.events);
    for (const control::Event& event : control::events()) {
        page += "| `" + toUtf8(event.name) + "` | " + std::to_string(event.dispid) + " | ";
        for (std::size_t i = 0; i < event.parameters.size(); ++i)
            page += (i == 0 ? "`" : ", `") + toUtf8(event.parameters[i].name) + "`";
        page += " | " + sentence(language, event.english, {}, event.help) + " |\n";
    }
    page += std::string(referenceProse(language));
    addEnumerations(language, page);
    return page;
}

} // namespace vela::manual
