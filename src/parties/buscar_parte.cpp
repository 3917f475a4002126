// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/buscar_parte.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MAXIMO_PALABRAS = 20;

// An alternative of the name filter; a wildcard that stands twice stands once.
QString parecido(const QString& patron)
{
    QString uno = patron;
    while (uno.contains(u"%%"))
        uno.replace(u"%%"_s, u"%"_s);
    return u" or ( SPIN_RSOCIAL like '"_s + uno + u"') "_s;
}

QString filtro_nombre(FiltroPartes& f)
{
    const QString cabeza = f.criterio == Criterio::contiene || f.criterio == Criterio::termina ? u"%"_s : QString();
    const QString cola = f.criterio == Criterio::comienza || f.criterio == Criterio::contiene ? u"%"_s : QString();
    QString sql = u"( SPIN_RSOCIAL like '"_s + cabeza + toSQL(f.razonSocial) + cola + u"' "_s;
    f.razonSocial = limpiar_nombre(f.razonSocial);
    QStringList palabras = toSQL(f.razonSocial).split(u' ', Qt::SkipEmptyParts).mid(0, MAXIMO_PALABRAS);
    if (palabras.size() > 1) {
        sql += parecido(cabeza + palabras.join(u'%') + cola);
        std::reverse(palabras.begin(), palabras.end());
        sql += parecido(cabeza + palabras.join(u'%') + cola);
    }
    return sql + u" )"_s;
}

QString filtro_documento(const FiltroPartes& f, const QString& titulo, Dialogo& dialogo)
{
    if (f.tipoDocTexto != u"CUIT" && f.tipoDocTexto != u"CUIL")
        return u" P.GTDC_ID="_s + QString::number(f.tipoDoc) + u" and P.SPIN_NRODOC='"_s + toSQL(f.nroDoc) + u"' "_s;
    bool es_numero = false;
    const QString cuit = f.nroDoc.trimmed();
    (void)cuit.toLongLong(&es_numero);
    if (es_numero)
        return u" P.SPIN_CUIT="_s + cuit;
    dialogo.avisar({u"El valor ingresado para "_s + f.tipoDocTexto + u" no es válido"_s, titulo, Icono::ninguno});
    return u" P.SPIN_CUIT=-1"_s;
}

}  // namespace

QString limpiar_nombre(QString nombre)
{
    for (const QChar c : {u',', u';', u')', u'('})
        nombre.replace(c, u' ');
    return compactar_espacios(nombre);
}

QString consulta_busqueda_partes(FiltroPartes& f, const QString& titulo, Dialogo& dialogo)
{
    QString sql = u" select distinct SPIN_NRODOC, P.GTDC_ID, TC.GTDC_DESCRIPCION, SPIN_RSOCIAL"
                  u" from SEL_TB_RTN_INS_PARTES as P inner join GLB_TB_AFIP_TIPOS_DOC as TC  on P.GTDC_ID=TC.GTDC_ID "
                  u" where (P.SEDJ_NRO<>'"_s
                  + f.dj + u"' and P.SEDD_ID<>"_s + f.renglon + u") "_s;
    if (f.tipoSociedad != 0)
        sql += u" and  (GTSO_ID="_s + QString::number(f.tipoSociedad) + u")"_s;
    if (f.criterio != Criterio::sin_filtro && !f.razonSocial.isEmpty())
        sql += u" and "_s + filtro_nombre(f);
    if (f.tipoDoc != 0 && !f.nroDoc.isEmpty())
        sql += u" and "_s + filtro_documento(f, titulo, dialogo);
    return sql + u" order by SPIN_NRODOC "_s;
}

void leer_partes_halladas(const QString& consulta, const AgregarFilaUtf8& fila)
{
    for (Recordset rs(cnRtn, consulta); !rs.eof(); rs.siguiente())
        fila(std::array{rs.utf8(1), rs.utf8(2), rs.utf8(0), rs.utf8(3)});
}

std::optional<Parte> parte_con_documento(const QString& tipoDoc, const QString& nroDoc)
{
    return leer_fila<Parte>(cnRtn,
                            u"select * from SEL_TB_RTN_INS_PARTES where GTDC_ID='"_s + tipoDoc
                                + u"' and SPIN_NRODOC='"_s + toSQL(nroDoc) + u"'"_s,
                            columnas_parte());
}
