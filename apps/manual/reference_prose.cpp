// What the reference says behind its tables: keys, errors, the free-standing calendar.
#include "apps/manual/reference_page.h"

namespace vela::manual {

namespace {

constexpr std::string_view english = R"(
`KeyCode` is the code of the key and `KeyAscii` the code of the character in Windows-1252. `Shift` is the sum of 1 for Shift, 2 for
Control and 4 for Alt. [Keyboard](keyboard.md#events-of-keys) tells the order of the events.

| key | `KeyCode` | | key | `KeyCode` |
|---|---|---|---|---|
| Backspace | 8 | | Left, Up, Right, Down | 37, 38, 39, 40 |
| Tab | 9 | | Delete | 46 |
| Enter | 13 | | 0 to 9 | 48 to 57 |
| Esc | 27 | | A to Z | 65 to 90 |
| Page Up, Page Down | 33, 34 | | keypad 0 to 9 | 96 to 105 |
| End, Home | 35, 36 | | F1 to F12 | 112 to 123 |

## Errors

Errors carry the source "Vela".

| number | description | raised by |
|---|---|---|
| 5 | Invalid procedure call or argument | a call that cannot be |
| 6 | Overflow | a number beyond the property's type |
| 13 | Type mismatch | what cannot be converted to the property's type; a text that is no number or date, written to `Value` |
| 91 | Object variable or With block variable not set | a field that has ended, or after `LimparMemoria` |
| 380 | Invalid property value | `MaxLength`, `SelStart`, `SelLength` below 0; a `PasswordChar` of several characters |
| 438 | Object doesn't support this property or method | an unknown name; writing what is read only |
| 1001 | Mascara não pode ser vazia | an empty `Mask` in a `Mascara` field |
| 1002 | Propriedade é Read-Only | `MultLine` at run time |

## The free-standing calendar

`Vela.cCalendar` has these members of its own. [Calendar and calculator](popups.md#the-free-standing-calendar) tells how it behaves.

| member | kind | DISPID | what it is |
|---|---|---|---|
| `DateInitial` | property, Date, read only | 0 | The selected date, saved with the form. The default member. |
| `IniciaCalendario` | method, `data` | 1 | Selects the date and shows its month. |
| `IncluiDataRealcada` | method, `data` | 2 | Counts a highlighted date. |
| `Click` | event | -600 | A day was picked, or a key has moved it. |
)";

constexpr std::string_view portuguese = R"(
`KeyCode` é o código da tecla e `KeyAscii` o do caractere em Windows-1252. `Shift` é a soma de 1 para Shift, 2 para Control e 4 para
Alt. A página [Teclado](keyboard.md#eventos-de-teclas) conta a ordem dos eventos.

| tecla | `KeyCode` | | tecla | `KeyCode` |
|---|---|---|---|---|
| Backspace | 8 | | esquerda, cima, direita, baixo | 37, 38, 39, 40 |
| Tab | 9 | | Delete | 46 |
| Enter | 13 | | 0 a 9 | 48 a 57 |
| Esc | 27 | | A a Z | 65 a 90 |
| Page Up, Page Down | 33, 34 | | teclado numérico 0 a 9 | 96 a 105 |
| End, Home | 35, 36 | | F1 a F12 | 112 a 123 |

## Erros

Os erros trazem a origem "Vela".

| número | descrição | gerado por |
|---|---|---|
| 5 | Invalid procedure call or argument | uma chamada impossível |
| 6 | Overflow | um número além do tipo da propriedade |
| 13 | Type mismatch | o que não pode ser convertido para o tipo; um texto que não é número nem data, escrito em `Value` |
| 91 | Object variable or With block variable not set | um campo que terminou, ou depois de `LimparMemoria` |
| 380 | Invalid property value | `MaxLength`, `SelStart`, `SelLength` abaixo de 0; `PasswordChar` com vários caracteres |
| 438 | Object doesn't support this property or method | um nome desconhecido; escrever o que é somente leitura |
| 1001 | Mascara não pode ser vazia | `Mask` vazia em um campo `Mascara` |
| 1002 | Propriedade é Read-Only | `MultLine` durante a execução |

## O calendário independente

`Vela.cCalendar` tem estes membros. A página [Calendário e calculadora](popups.md#o-calendário-independente) conta como ele se comporta.

| membro | tipo | DISPID | o que é |
|---|---|---|---|
| `DateInitial` | propriedade, Date, somente leitura | 0 | A data escolhida, salva com o formulário. O membro padrão. |
| `IniciaCalendario` | método, `data` | 1 | Escolhe a data e mostra o mês dela. |
| `IncluiDataRealcada` | método, `data` | 2 | Conta uma data realçada. |
| `Click` | evento | -600 | Um dia foi escolhido, ou uma tecla o moveu. |
)";

} // namespace

std::string_view referenceProse(Language language) noexcept
{
    return language == Language::english ? english : portuguese;
}

} // namespace vela::manual
