// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/verificacion.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString INCOMPLETA = u"La declaración jurada está incompleta."_s;

// A mistyped number may leave hundreds of millions of them missing: then their count has to do.
constexpr qint64 MAXIMO_LISTADO = 100'000;

// Without the blanks around it; other white space is part of a name.
QString sin_blancos(QString nombre)
{
    while (nombre.startsWith(u' '))
        nombre.remove(0, 1);
    while (nombre.endsWith(u' '))
        nombre.chop(1);
    return nombre;
}

// What is missing in the numbers between the first deed and the last; empty when nothing is.
QString huecos(const QString& nro)
{
    QStringList faltan;
    qint64 cuantas = 0;
    Recordset rs(cnRtn, u" select SEDD_ESCRITURA_NRO from SEL_TB_RTN_DETDJ  where SEDJ_NRO='%1'"
                        u"  and SEDD_ESTADO<>'E'  order by SEDD_ESCRITURA_NRO"_s.arg(nro));
    if (rs.eof())
        return {};
    for (qint64 anterior = rs.entero(0); !rs.eof(); rs.siguiente()) {
        const qint64 actual = rs.entero(0);
        cuantas += std::max<qint64>(0, actual - anterior - 1);
        for (qint64 n = anterior + 1; n < actual && cuantas <= MAXIMO_LISTADO; ++n)
            faltan << QString::number(n);
        anterior = actual;
    }
    if (cuantas == 0)
        return {};
    return INCOMPLETA + u"\nFaltan declarar las escrituras Nº: "_s
           + (cuantas <= MAXIMO_LISTADO ? faltan.join(u", "_s) : u"son %1 números"_s.arg(cuantas));
}

QString sin_operacion(const QString& nro)
{
    const Recordset rs(cnRtn, u" select * from SEL_TB_RTN_DETDJ as D  where  SEDJ_NRO='%1'"
                              u"  and SEDD_ALCANZADO='S' and SEDD_ESTADO='P' "
                              u" and not exists ( select * from SEL_TB_RTN_INS_OPERACIONES as O "
                              u" where D.SEDJ_NRO=O.SEDJ_NRO and D.SEDD_ID=O.SEDD_ID) "_s.arg(nro));
    return rs.eof()
               ? QString()
               : INCOMPLETA + u"\nHay escrituras alcanzadas no anuladas a las cuales les falta cargar la operación."_s;
}

QString sin_testimonio(const QString& nro)
{
    Recordset rs(cnRtn, u" select SEDD_ID, SEDD_ESCRITURA_NRO, SEDD_FNAME_TESTIMONIO, REQUIERE_TESTIMONIO"
                        u" from SEL_VW_DJ_DETALLE   where SEDJ_NRO='%1'"
                        u"  and  SEDD_ESTADO='P'   order by SEDD_ESCRITURA_NRO "_s.arg(nro));
    QStringList sin_archivo;
    QStringList no_existe;
    // The deed with the lowest number is never looked at; the skip is deliberate.
    if (!rs.eof())
        rs.siguiente();
    for (; !rs.eof(); rs.siguiente()) {
        if (rs.entero(3) == 0)
            continue;
        const QString archivo = fromSQL(sin_blancos(rs.texto(2)));
        if (archivo.isEmpty())
            sin_archivo << rs.texto(1);
        else if (!QFileInfo(archivo).isFile())
            no_existe << rs.texto(1);
    }
    if (sin_archivo.isEmpty() && no_existe.isEmpty())
        return {};
    const QString coma = u", "_s;
    return INCOMPLETA + u" Faltan testimonios\n\n"_s
           + (sin_archivo.isEmpty() ? QString()
                                    : u"Escrituras que no tienen archivo: "_s + sin_archivo.join(coma) + u"\n\n"_s)
           + (no_existe.isEmpty() ? QString() : u"Escrituras cuyo archivo no existe: "_s + no_existe.join(coma));
}

}  // namespace

bool verificar_dj_completa(const QString& nro, const QString& tituloVentana, Dialogo& dialogo)
{
    try {
        for (QString (*revisar)(const QString&) : {huecos, sin_operacion, sin_testimonio}) {
            const QString falta = revisar(nro);
            if (falta.isEmpty())
                continue;
            dialogo.avisar({falta, tituloVentana + u" - DJ incompleta"_s, Icono::informacion});
            return false;
        }
    } catch (const ErrorAlmacen& e) {
        // The emission deliberately goes on after an error.
        dialogo.avisar({e.descripcion, u"Verificar DJ completa"_s, Icono::informacion, e.motor});
    }
    return true;
}
