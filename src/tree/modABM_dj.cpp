// SPDX-License-Identifier: GPL-3.0-or-later

#include "tree/modABM_dj.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

using namespace Qt::StringLiterals;

namespace {

// The maximum of the query's first column plus 1; 1 without rows or with a null.
int proximo_id(const QString& consulta)
{
    const Recordset rs(cnRtn, consulta);
    return rs.eof() || rs.nulo(0) ? 1 : int(rs.entero(0)) + 1;
}

// Inserts; false after an error, which is told: the words of `duplicado` for a key that stands
// already (when there are any), else the engine's.
template <class T>
bool insertar(const char* tabla, std::span<const Columna<T>> columnas, const T& fila, const char* titulo,
              Dialogo& dialogo, const QString& duplicado = {})
{
    static const QString sentencia = sentencia_alta(tabla, columnas);
    try {
        insertar_fila(cnRtn, sentencia, columnas, fila);
        return true;
    } catch (const ErrorAlmacen& e) {
        const bool repetida = e.claveDuplicada() && !duplicado.isEmpty();
        dialogo.avisar({repetida ? duplicado : e.descripcion, QString::fromUtf8(titulo), Icono::informacion, e.motor});
        return false;
    }
}

}  // namespace

bool alta_cabecera_dj(const CabeceraDJ& dj, Dialogo& dialogo)
{
    const QString cual = dj.secuencia == 0 ? u" Original"_s : u" Rectificativa %1"_s.arg(dj.secuencia);
    const QString existe = u"Ya existe la %1 para la posicion %2/%3"_s.arg(cual, con_ceros(dj.mes, 2),
                                                                           QString::number(dj.anio));
    return insertar("SEL_TB_RTN_CABDJ", columnas_cabecera(), dj, "Nueva DJ", dialogo, existe);
}

bool alta_detalle_dj(Escritura& e, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        e.id = proximo_id(u"select max(SEDD_ID) as MAX_SEDD_ID from SEL_TB_RTN_DETDJ  where SEDJ_NRO='%1'"_s.arg(e.dj));
    if (e.id < 0) {
        dialogo.avisar({u"No se puede dar de alta el detalle de la DJ"_s, u"Detalle DJ"_s, Icono::informacion});
        return false;
    }
    return insertar(
        "SEL_TB_RTN_DETDJ", columnas_escritura(), e, "Nuevo detalle DJ", dialogo,
        u"Ya existe otra escritura con el mismo numero y/o el folio ya esta incluido en algun renglon de la DJ"_s);
}

bool alta_inmueble(Inmueble& i, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        i.id = proximo_id(
            u"select max(SEII_ID) as MAX_SEII_ID  from SEL_TB_RTN_INS_INMUEBLES  where SEDJ_NRO='%1' and SEDD_ID=%2"
            u" group by SEDJ_NRO, SEDD_ID"_s.arg(i.dj, QString::number(i.renglon)));
    return insertar("SEL_TB_RTN_INS_INMUEBLES", columnas_inmueble(), i, "Alta inmueble", dialogo);
}

bool alta_parte(Parte& p, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        p.id = proximo_id(
            u"select max(SPIN_ID) as MAX_SPIN_ID  from SEL_TB_RTN_INS_PARTES  where SEDJ_NRO='%1' and SEDD_ID=%2"
            u" group by SEDJ_NRO, SEDD_ID "_s.arg(p.dj, QString::number(p.renglon)));
    if (p.id < 0) {
        dialogo.avisar({u"No se pude guardar el participante"_s, u"Nuevo participante"_s, Icono::informacion});
        return false;
    }
    return insertar("SEL_TB_RTN_INS_PARTES", columnas_parte(), p, "Nuevo participante", dialogo);
}

bool alta_operacion(Operacion& o, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        o.id = proximo_id(u"select max(SEDO_ID) as MAX_SEDO_ID from SEL_TB_RTN_INS_OPERACIONES "
                          u" where SEDJ_NRO='%1' and SEDD_ID=%2"_s.arg(o.dj, QString::number(o.renglon)));
    return insertar("SEL_TB_RTN_INS_OPERACIONES", columnas_operacion(), o, "Nueva operación", dialogo);
}

bool alta_valor_contractual(ValorContractual& v, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        v.id = proximo_id(u"select max(SVCI_ID) as MAX_SVCI_ID from SEL_TB_RTN_INS_VC "
                          u" where SEDJ_NRO='%1' and SEDD_ID=%2 and SEDO_ID=%3"_s.arg(v.dj, QString::number(v.renglon),
                                                                                      QString::number(v.operacion)));
    return insertar("SEL_TB_RTN_INS_VC", columnas_valor(), v, "Nuevo valor contractual parcial", dialogo);
}

bool alta_rol(const RolOperacion& r, Dialogo& dialogo)
{
    return insertar("SEL_TB_RTN_INS_ROLES", columnas_rol(), r, "Alta de rol", dialogo);
}
