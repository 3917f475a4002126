// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/guion_lote.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView RED = u"//";

bool solo_ascii(const QString& texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) { return c.unicode() < 0x80; });
}

}  // namespace

// The quote in front of the command's name makes the first line one name that fails; it does no harm.
GuionLote::GuionLote(QString base, Interprete interprete) : base_(std::move(base)), interprete_(interprete)
{
    const QString borrar = interprete_ == Interprete::cmd ? u"del "_s : u"rm "_s;
    lineas_ = palabra(borrar + nombre(base_ + u"/dj.rar"_s)) + u'\n';
}

void GuionLote::empaquetar(const QString& fichero)
{
    const QString rar = base_ + (interprete_ == Interprete::cmd ? u"/rar.exe"_s : u"/rar"_s);
    lineas_ += palabra(nombre(rar)) + u" a -y "_s + palabra(nombre(base_ + u"/dj.rar"_s)) + u' '
               + palabra(nombre(fichero)) + u'\n';
}

// The shell of Windows reads a batch file in its console's code page; names that need none are not made to wait for it.
QByteArray GuionLote::texto() const
{
    const QString fin = u"\n"_s;
    if (interprete_ == Interprete::sh)
        return (lineas_ + fin).toUtf8();
    const QString pagina = solo_ascii(lineas_) ? QString() : u"@chcp 65001 >nul\n"_s;
    return QString(pagina + lineas_ + fin).replace(u'\n', u"\r\n"_s).toUtf8();
}

// Within the program's folder its own name is not needed, whatever signs are in it; that shell does not work in a folder
// of the network, which goes by its full name.
QString GuionLote::orden(const QString& lote) const
{
    if (interprete_ == Interprete::sh)
        return lote;
    return base_.startsWith(RED) ? u"/d /v:off /s /c \"\"%1\"\""_s.arg(nombre(lote))
                                 : u"/d /v:off /c "_s + nombre(lote);
}

// A word of the shell that stands for exactly this text. Between quotes the one of Windows reads nothing but the per cent
// sign, and no name has a quote there.
QString GuionLote::palabra(const QString& texto) const
{
    if (interprete_ == Interprete::cmd)
        return u'"' + QString(texto).replace(u'%', u"%%"_s) + u'"';
    return u'\'' + QString(texto).replace(u'\'', u"'\\''"_s) + u'\'';
}

QString GuionLote::nombre(const QString& fichero) const
{
    if (interprete_ == Interprete::sh)
        return fichero;
    QString n = fichero;
    if (!base_.startsWith(RED) && n.startsWith(base_ + u'/'))
        n = u'.' + n.mid(base_.size());
    return n.replace(u'/', u'\\');
}
