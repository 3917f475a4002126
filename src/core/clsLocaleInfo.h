// SPDX-License-Identifier: GPL-3.0-or-later
// Number and date settings of the user's environment.
#pragma once

#include <QLocale>
#include <QString>

/// Answers from the locale that is the program's default when the object is made.
class clsLocaleInfo
{
public:
    explicit clsLocaleInfo(const QLocale& local = QLocale());

    [[nodiscard]] QString NativeLanguage() const { return local_.nativeLanguageName(); }
    [[nodiscard]] QString Language() const { return QLocale::languageToString(local_.language()); }
    [[nodiscard]] QString Thousands() const { return miles_; }
    [[nodiscard]] QString sDecimal() const { return decimal_; }
    [[nodiscard]] QString ShortDateFormat() const { return local_.dateFormat(QLocale::ShortFormat); }
    [[nodiscard]] QString LongDateFormat() const { return local_.dateFormat(QLocale::LongFormat); }
    [[nodiscard]] QString NativeCountryName() const { return local_.nativeTerritoryName(); }
    [[nodiscard]] QString CountryName() const { return QLocale::territoryToString(local_.territory()); }
    /// The locale's number in the published list of Windows language identifiers ([MS-LCID]), for
    /// Spanish and English; 0 for any other.
    [[nodiscard]] int GetLCID() const;
    /// "MDY", "DMY" or "YMD".
    [[nodiscard]] QString LongDateFormatOrder() const { return orden(LongDateFormat()); }
    [[nodiscard]] QString DateFormatOrder() const { return orden(ShortDateFormat()); }

private:
    static QString orden(const QString& patron);

    QLocale local_;
    QString miles_;
    QString decimal_;
};
