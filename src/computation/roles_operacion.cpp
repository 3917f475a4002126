// SPDX-License-Identifier: GPL-3.0-or-later

#include "computation/roles_operacion.h"

#include "core/modGlobales.h"
#include "core/numero.h"
#include "tree/modABM_dj.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

// The codes are compared with the words, as in the list of the deed; deliberately so.
QString numero_documento(const Recordset& rs)
{
    const QString tipo = rs.texto("GTDC_ID");
    if (tipo == u"CUIT" || tipo == u"CUIL")
        return rs.logico("SPIN_CUIT_EN_TRAMITE") ? u"En trámite"_s : numero_sql(rs.real("SPIN_CUIT"));
    if (rs.texto("SPIN_NACIONALIDAD") != u"E")
        return rs.texto("SPIN_NRODOC");
    return rs.nulo("CPAI_PAIS")
               ? u"Extranjero"_s
               : u"%1 - %2 (%3)"_s.arg(rs.texto("CPAI_PAIS"), rs.texto("CPAI_PERSONA"), rs.texto("CPAI_CODIGO"));
}

}  // namespace

QList<ParteRol> leer_partes_con_roles(const ClaveOperacion& clave)
{
    QList<ParteRol> partes;
    for (Recordset rs(cnRtn, consulta_partes_renglon(clave.deRenglon())); !rs.eof(); rs.siguiente()) {
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
    for (Recordset rs(cnRtn, u"select RI.SPIN_ID, RI.SROL_ID, RS.SROL_DESCRIPCION, RI.SEDR_OBS"
                             u" from SEL_TB_RTN_INS_ROLES as RI, SEL_TB_ROLES as RS "
                             u" where RI.SROL_ID=RS.SROL_ID and RI.SEDJ_NRO='%1' and RI.SEDD_ID=%2"
                             u" and RI.SEDO_ID=%3"_s.arg(clave.dj, clave.renglon, clave.operacion));
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
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_ROLES%1"_s.arg(clave.donde()));
        for (const ParteRol& p : partes) {
            if (!p.tieneRol())
                continue;
            if (!alta_rol({clave.dj, clave.renglon.toInt(), clave.operacion.toInt(), p.id.toInt(), p.idRol.toLongLong(),
                           p.observaciones},
                          dialogo)) {
                dialogo.avisar({u"Error al guardar los roles"_s, titulo, Icono::ninguno});
                return false;
            }
        }
        return true;
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({u"Error al guardar los roles\n"_s + e.descripcion, titulo, Icono::ninguno, e.motor});
        return false;
    }
}

bool roles_obligatorios(const clsSubconcepto* s, const QList<ParteRol>& partes, QString& texto)
{
    texto = u"Los roles de carga obligatoria son:"_s;
    if (!s)
        return false;
    int requeridos = 0;
    for (const clsRol& rol : s->Roles()) {
        if (!rol.Requerido)
            continue;
        texto += u"\n - "_s + rol.Descripcion;
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
