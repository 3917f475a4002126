// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/clsLocaleInfo.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

struct Identificador
{
    QLocale::Language idioma;
    QLocale::Territory territorio;
    int lcid;
};

constexpr Identificador IDENTIFICADORES[] = {
    {QLocale::Spanish, QLocale::Mexico, 0x080a},       {QLocale::Spanish, QLocale::Spain, 0x0c0a},
    {QLocale::Spanish, QLocale::Guatemala, 0x100a},    {QLocale::Spanish, QLocale::CostaRica, 0x140a},
    {QLocale::Spanish, QLocale::Panama, 0x180a},       {QLocale::Spanish, QLocale::DominicanRepublic, 0x1c0a},
    {QLocale::Spanish, QLocale::Venezuela, 0x200a},    {QLocale::Spanish, QLocale::Colombia, 0x240a},
    {QLocale::Spanish, QLocale::Peru, 0x280a},         {QLocale::Spanish, QLocale::Argentina, 0x2c0a},
    {QLocale::Spanish, QLocale::Ecuador, 0x300a},      {QLocale::Spanish, QLocale::Chile, 0x340a},
    {QLocale::Spanish, QLocale::Uruguay, 0x380a},      {QLocale::Spanish, QLocale::Paraguay, 0x3c0a},
    {QLocale::Spanish, QLocale::Bolivia, 0x400a},      {QLocale::Spanish, QLocale::ElSalvador, 0x440a},
    {QLocale::Spanish, QLocale::Honduras, 0x480a},     {QLocale::Spanish, QLocale::Nicaragua, 0x4c0a},
    {QLocale::Spanish, QLocale::PuertoRico, 0x500a},   {QLocale::Spanish, QLocale::UnitedStates, 0x540a},
    {QLocale::English, QLocale::UnitedStates, 0x0409}, {QLocale::English, QLocale::UnitedKingdom, 0x0809},
};

}  // namespace

clsLocaleInfo::clsLocaleInfo(const QLocale& local)
    : local_(local), miles_(local.groupSeparator()), decimal_(local.decimalPoint())
{
}

int clsLocaleInfo::GetLCID() const
{
    for (const Identificador& i : IDENTIFICADORES)
        if (i.idioma == local_.language() && i.territorio == local_.territory())
            return i.lcid;
    return 0;
}

// Three letters "d" and more are the weekday, and what stands between apostrophes is no part of the date.
QString clsLocaleInfo::orden(const QString& patron)
{
    static const QRegularExpression AJENO(u"'[^']*'|d{3,}"_s);
    const QString fecha = QString(patron).remove(AJENO);
    const auto d = fecha.indexOf(u'd');
    const auto m = fecha.indexOf(u'M');
    const auto y = fecha.indexOf(u'y');
    if (y < m && y < d)
        return u"YMD"_s;
    return m < d ? u"MDY"_s : u"DMY"_s;
}
