// The two fixed locales.
#include "engine/text/locale.h"

namespace vela::engine {
namespace {

Locale makePtBr()
{
    Locale locale;
    locale.name = u"pt-BR";
    locale.decimal = u",";
    locale.grouping = u".";
    locale.currencySymbol = u"R$";
    locale.currencyPositive = 2;
    locale.currencyNegative = 9;
    locale.dateOrder = DateOrder::dayMonthYear;
    locale.shortDate = u"dd/mm/yyyy";
    locale.longDate = u"dddd, d 'de' mmmm 'de' yyyy";
    locale.longTime = u"hh:nn:ss";
    locale.shortTime = u"hh:nn";
    locale.months = {u"janeiro", u"fevereiro", u"março",    u"abril",   u"maio",     u"junho",
                     u"julho",   u"agosto",    u"setembro", u"outubro", u"novembro", u"dezembro"};
    locale.shortMonths = {u"jan", u"fev", u"mar", u"abr", u"mai", u"jun",
                          u"jul", u"ago", u"set", u"out", u"nov", u"dez"};
    locale.days = {u"domingo",      u"segunda-feira", u"terça-feira", u"quarta-feira",
                   u"quinta-feira", u"sexta-feira",   u"sábado"};
    locale.shortDays = {u"dom", u"seg", u"ter", u"qua", u"qui", u"sex", u"sáb"};
    locale.trueText = u"Verdadeiro";
    locale.falseText = u"Falso";
    locale.yesText = u"Sim";
    locale.noText = u"Não";
    locale.onText = u"Ligado";
    locale.offText = u"Desligado";
    return locale;
}

Locale makeEnUs()
{
    Locale locale;
    locale.name = u"en-US";
    locale.decimal = u".";
    locale.grouping = u",";
    locale.currencySymbol = u"$";
    locale.currencyPositive = 0;
    locale.currencyNegative = 0;
    locale.dateOrder = DateOrder::monthDayYear;
    locale.shortDate = u"m/d/yyyy";
    locale.longDate = u"dddd, mmmm d, yyyy";
    locale.longTime = u"h:nn:ss AM/PM";
    locale.shortTime = u"h:nn AM/PM";
    locale.months = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                     u"July",    u"August",   u"September", u"October", u"November", u"December"};
    locale.shortMonths = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                          u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    locale.days = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
    locale.shortDays = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    locale.trueText = u"True";
    locale.falseText = u"False";
    locale.yesText = u"Yes";
    locale.noText = u"No";
    locale.onText = u"On";
    locale.offText = u"Off";
    return locale;
}

} // namespace

const Locale& ptBr()
{
    static const Locale locale = makePtBr();
    return locale;
}

const Locale& enUs()
{
    static const Locale locale = makeEnUs();
    return locale;
}

} // namespace vela::engine
