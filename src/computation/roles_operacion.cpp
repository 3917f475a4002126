// Which party plays which role in an operation.

#include "computation/operacion.h"
#include "core/modGlobales.h"
#include "core/numero.h"
#include "declarations/modABM_dj.h"

#include <QSet>

namespace {

// The codes are compared with the words, as in the list of the deed; deliberately so.
QString numero_documento(const Recordset& rs)
{
    const QString tipo = rs.texto("GTDC_ID");
    if (tipo == u"CUIT" || tipo == u"CUIL")
        return rs.logico("SPIN_CUIT_EN_TRAMITE") ? QStringLiteral("En trámite") : numero_sql(rs.real("SPIN_CUIT"));
    if (rs.texto("SPIN_NACIONALIDAD") != u"E")
        return rs.texto("SPIN_NRODOC");
    return rs.nulo("CPAI_PAIS") ? QStringLiteral("Extranjero")
                                : rs.texto("CPAI_PAIS") + QStringLiteral(" - ") + rs.texto("CPAI_PERSONA") + QStringLiteral(" (")
            + rs.texto("CPAI_CODIGO") + QStringLiteral(")");
}

}  // namespace

QList<ParteRol> leer_partes_con_roles(const ClaveOperacion& clave)
{
    QList<ParteRol> partes;
    for (Recordset rs(cnRtn, consulta_partes({clave.dj, clave.renglon})); !rs.eof(); rs.siguiente()) {
        ParteRol p;
        p.id = rs.texto("SPIN_ID");
        p.tipoDoc = rs.texto("GTDC_DESCRIPCION");
        p.nroDoc = numero_documento(rs);
        p.denominacion = rs.texto("SPIN_RSOCIAL");
        if (!rs.nulo("SPIN_PORCEXENTO"))
            p.porcExento = rs.real("SPIN_PORCEXENTO");
        partes << p;
    }
    if (clave.operacion.isEmpty())
        return partes;
    for (Recordset rs(cnRtn, QStringLiteral("select RI.SPIN_ID, RI.SROL_ID, RS.SROL_DESCRIPCION, RI.SEDR_OBS")
                                 + QStringLiteral(" from SEL_TB_RTN_INS_ROLES as RI, SEL_TB_ROLES as RS ") + QStringLiteral(" where RI.SROL_ID=RS.SROL_ID")
                                 + QStringLiteral(" and RI.SEDJ_NRO='") + clave.dj + QStringLiteral("'") + QStringLiteral(" and RI.SEDD_ID=")
                                 + clave.renglon + QStringLiteral(" and RI.SEDO_ID=") + clave.operacion);
         !rs.eof(); rs.siguiente())
        for (ParteRol& p : partes)
            if (p.id == rs.texto("SPIN_ID")) {
                p.idRol = rs.texto("SROL_ID");
                p.rol = rs.texto("SROL_DESCRIPCION");
                p.observaciones = rs.texto("SEDR_OBS");
            }
    return partes;
}

bool guardar_roles(const ClaveOperacion& clave, const QList<ParteRol>& partes, const QString& titulo, Dialogo& dialogo)
{
    try {
        cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_ROLES") + clave.donde());
        for (const ParteRol& p : partes) {
            if (p.idRol.isEmpty() || p.idRol == u"0")
                continue;
            if (!alta_rol({clave.dj, clave.renglon.toInt(), clave.operacion.toInt(), p.id.toInt(), p.idRol.toLongLong(), p.observaciones}, dialogo)) {
                dialogo.avisar({QStringLiteral("Error al guardar los roles"), titulo, Icono::ninguno});
                return false;
            }
        }
        return true;
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({QStringLiteral("Error al guardar los roles\n") + e.descripcion, titulo, Icono::ninguno});
        return false;
    }
}

bool roles_obligatorios(const clsSubconcepto* s, const QList<ParteRol>& partes, QString& texto)
{
    texto = QStringLiteral("Los roles de carga obligatoria son:");
    if (!s)
        return false;
    int requeridos = 0;
    for (const clsRol& rol : s->Roles()) {
        if (!rol.Requerido)
            continue;
        texto += QStringLiteral("\n - ") + rol.Descripcion;
        ++requeridos;
    }
    // A role held by two parties counts once.
    QSet<qint64> vistos;
    int hallados = 0;
    for (const clsRol& rol : s->Roles())
        for (const ParteRol& p : partes)
            if (p.rol == rol.Descripcion && !vistos.contains(rol.IdRol)) {
                vistos.insert(rol.IdRol);
                hallados += rol.Requerido;
            }
    return requeridos == hallados;
}
