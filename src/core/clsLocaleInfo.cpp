// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/clsLocaleInfo.h"

using namespace Qt::StringLiterals;

clsLocaleInfo::clsLocaleInfo(const QLocale& local)
    : local_(local), miles_(local.groupSeparator()), decimal_(local.decimalPoint())
{
}

QString clsLocaleInfo::orden(const QString& patron)
{
    const auto d = patron.indexOf(u'd');
    const auto m = patron.indexOf(u'M');
    const auto y = patron.indexOf(u'y');
    if (y < m && y < d)
        return u"YMD"_s;
    return m < d ? u"MDY"_s : u"DMY"_s;
}
