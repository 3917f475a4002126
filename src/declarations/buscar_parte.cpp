#include "declarations/buscar_parte.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <array>

namespace {

constexpr qsizetype MAXIMO_PALABRAS = 20;

// An alternative of the name filter; a wildcard that stands twice stands once.
QString parecido(const QString& patron)
{
    QString uno = patron;
    while (uno.contains(u"%%"))
        uno.replace(QStringLiteral("%%"), QStringLiteral("%"));
    return QStringLiteral(" or ( SPIN_RSOCIAL like '") + uno + QStringLiteral("') ");
}

QString filtro_nombre(FiltroPartes& f)
{
    const QString cabeza = f.criterio == Criterio::contiene || f.criterio == Criterio::termina ? QStringLiteral("%") : QString();
    const QString cola = f.criterio == Criterio::comienza || f.criterio == Criterio::contiene ? QStringLiteral("%") : QString();
    QString sql = QStringLiteral("( SPIN_RSOCIAL like '") + cabeza + toSQL(f.razonSocial) + cola + QStringLiteral("' ");
    f.razonSocial = limpiar_nombre(f.razonSocial);
    QStringList palabras = toSQL(f.razonSocial).split(u' ', Qt::SkipEmptyParts).mid(0, MAXIMO_PALABRAS);
    if (palabras.size() > 1) {
        sql += parecido(cabeza + palabras.join(u'%') + cola);
        std::reverse(palabras.begin(), palabras.end());
        sql += parecido(cabeza + palabras.join(u'%') + cola);
    }
    return sql + QStringLiteral(" )");
}

QString filtro_documento(const FiltroPartes& f, const QString& titulo, Dialogo& dialogo)
{
    if (f.tipoDocTexto != u"CUIT" && f.tipoDocTexto != u"CUIL")
        return QStringLiteral(" P.GTDC_ID=") + QString::number(f.tipoDoc) + QStringLiteral(" and P.SPIN_NRODOC='") + toSQL(f.nroDoc)
            + QStringLiteral("' ");
    bool es_numero = false;
    const QString cuit = f.nroDoc.trimmed();
    (void)cuit.toLongLong(&es_numero);
    if (es_numero)
        return QStringLiteral(" P.SPIN_CUIT=") + cuit;
    dialogo.avisar({QStringLiteral("El valor ingresado para ") + f.tipoDocTexto + QStringLiteral(" no es válido"), titulo, Icono::ninguno});
    return QStringLiteral(" P.SPIN_CUIT=-1");
}

}  // namespace

QString limpiar_nombre(QString nombre)
{
    for (const QChar c : {u',', u';', u')', u'('})
        nombre.replace(c, u' ');
    return compactar_espacios(nombre);
}

QString consulta_partes(FiltroPartes& f, const QString& titulo, Dialogo& dialogo)
{
    QString sql = QStringLiteral(" select distinct SPIN_NRODOC, P.GTDC_ID, TC.GTDC_DESCRIPCION, SPIN_RSOCIAL")
        + QStringLiteral(" from SEL_TB_RTN_INS_PARTES as P inner join GLB_TB_AFIP_TIPOS_DOC as TC  on P.GTDC_ID=TC.GTDC_ID ")
        + QStringLiteral(" where (P.SEDJ_NRO<>'") + f.dj + QStringLiteral("' and P.SEDD_ID<>") + f.renglon + QStringLiteral(") ");
    if (f.tipoSociedad != 0)
        sql += QStringLiteral(" and  (GTSO_ID=") + QString::number(f.tipoSociedad) + QStringLiteral(")");
    if (f.criterio != Criterio::sin_filtro && !f.razonSocial.isEmpty())
        sql += QStringLiteral(" and ") + filtro_nombre(f);
    if (f.tipoDoc != 0 && !f.nroDoc.isEmpty())
        sql += QStringLiteral(" and ") + filtro_documento(f, titulo, dialogo);
    return sql + QStringLiteral(" order by SPIN_NRODOC ");
}

void leer_partes_halladas(const QString& consulta, const std::function<void(std::span<const std::string_view>)>& fila)
{
    for (Recordset rs(cnRtn, consulta); !rs.eof(); rs.siguiente())
        fila(std::array{rs.utf8(1), rs.utf8(2), rs.utf8(0), rs.utf8(3)});
}

std::optional<Parte> parte_con_documento(const QString& tipoDoc, const QString& nroDoc)
{
    return leer_fila<Parte>(cnRtn,
                            QStringLiteral("select * from SEL_TB_RTN_INS_PARTES where GTDC_ID='") + tipoDoc + QStringLiteral("' and SPIN_NRODOC='")
                                + toSQL(nroDoc) + QStringLiteral("'"),
                            columnas_parte());
}
