// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/buscar_parte.h"

#include "core/funciones_sql.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "parties/listas_parte.h"

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
    return u" or ( sin_tildes(SPIN_RSOCIAL) like '%1') "_s.arg(uno);
}

QString filtro_nombre(FiltroPartes& f)
{
    const QString cabeza = f.criterio == Criterio::contiene || f.criterio == Criterio::termina ? u"%"_s : QString();
    const QString cola = f.criterio == Criterio::comienza || f.criterio == Criterio::contiene ? u"%"_s : QString();
    // Names were typed with accents and without.
    QString sql = u"( sin_tildes(SPIN_RSOCIAL) like '%1' "_s.arg(cabeza + sin_tildes(toSQL(f.razonSocial)) + cola);
    f.razonSocial = limpiar_nombre(f.razonSocial);
    QStringList palabras = sin_tildes(toSQL(f.razonSocial)).split(u' ', Qt::SkipEmptyParts).mid(0, MAXIMO_PALABRAS);
    if (palabras.size() > 1) {
        sql += parecido(cabeza + palabras.join(u'%') + cola);
        std::reverse(palabras.begin(), palabras.end());
        sql += parecido(cabeza + palabras.join(u'%') + cola);
    }
    return sql + u" )"_s;
}

QString filtro_documento(const FiltroPartes& f, const QString& titulo, Dialogo& dialogo)
{
    if (!es_cuit_o_cuil(f.tipoDocTexto))
        return u" P.GTDC_ID=%1 and P.SPIN_NRODOC='%2' "_s.arg(QString::number(*f.tipoDoc), toSQL(f.nroDoc));
    bool es_numero = false;
    const QString cuit = f.nroDoc.trimmed();
    (void)cuit.toLongLong(&es_numero);
    if (es_numero)
        return u" P.SPIN_CUIT=%1"_s.arg(cuit);
    dialogo.avisar({u"El valor ingresado para %1 no es válido"_s.arg(f.tipoDocTexto), titulo, Icono::ninguno});
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
                  u" where (P.SEDJ_NRO<>'%1' and P.SEDD_ID<>%2) "_s.arg(f.dj, f.renglon);
    if (f.tipoSociedad)
        sql += u" and  (GTSO_ID=%1)"_s.arg(*f.tipoSociedad);
    if (f.criterio != Criterio::sin_filtro && !f.razonSocial.isEmpty())
        sql += u" and "_s + filtro_nombre(f);
    if (f.tipoDoc && !f.nroDoc.isEmpty())
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
    return leer_fila<Parte>(
        cnRtn,
        u"select * from SEL_TB_RTN_INS_PARTES where GTDC_ID='%1' and SPIN_NRODOC='%2'"_s.arg(tipoDoc, toSQL(nroDoc)),
        columnas_parte());
}
