#include "declarations/modABM_dj.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"

namespace {

// The maximum of the query's first column plus 1; 1 without rows or with a null.
int proximo_id(const QString& consulta)
{
    const Recordset rs(cnRtn, consulta);
    return rs.eof() || rs.nulo(0) ? 1 : int(rs.entero(0)) + 1;
}

QString donde(const QString& dj)
{
    return QStringLiteral(" where SEDJ_NRO='") + dj + QStringLiteral("'");
}

QString donde(const QString& dj, int renglon)
{
    return donde(dj) + QStringLiteral(" and SEDD_ID=") + QString::number(renglon);
}

// Inserts; false after an error, which is told: the words of `duplicado` for a key that stands
// already (when there are any), else the engine's.
template <class T>
bool insertar(const char* tabla, std::span<const Columna<T>> columnas, const T& fila, const char* titulo, Dialogo& dialogo,
              const QString& duplicado = {})
{
    static const QString sentencia = sentencia_alta(tabla, columnas);
    try {
        insertar_fila(cnRtn, sentencia, columnas, fila);
        return true;
    } catch (const ErrorAlmacen& e) {
        const bool repetida = e.claveDuplicada() && !duplicado.isEmpty();
        dialogo.avisar({repetida ? duplicado : e.descripcion, QString::fromUtf8(titulo), Icono::informacion});
        return false;
    }
}

}  // namespace

bool alta_cabecera_dj(const CabeceraDJ& dj, Dialogo& dialogo)
{
    const QString existe = QStringLiteral("Ya existe la ")
        + (dj.secuencia == 0 ? QStringLiteral(" Original") : QStringLiteral(" Rectificativa ") + QString::number(dj.secuencia))
        + QStringLiteral(" para la posicion ") + con_ceros(dj.mes, 2) + u'/' + QString::number(dj.anio);
    return insertar("SEL_TB_RTN_CABDJ", columnas_cabecera(), dj, "Nueva DJ", dialogo, existe);
}

bool alta_detalle_dj(Escritura& e, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        e.id = proximo_id(QStringLiteral("select max(SEDD_ID) as MAX_SEDD_ID") + QStringLiteral(" from SEL_TB_RTN_DETDJ ") + donde(e.dj));
    if (e.id < 0) {
        dialogo.avisar({QStringLiteral("No se puede dar de alta el detalle de la DJ"), QStringLiteral("Detalle DJ"), Icono::informacion});
        return false;
    }
    return insertar("SEL_TB_RTN_DETDJ", columnas_escritura(), e, "Nuevo detalle DJ", dialogo,
                    QStringLiteral("Ya existe otra escritura con el mismo numero y/o el folio ya esta incluido en algun renglon de la DJ"));
}

bool alta_inmueble(Inmueble& i, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        i.id = proximo_id(QStringLiteral("select max(SEII_ID) as MAX_SEII_ID ") + QStringLiteral(" from SEL_TB_RTN_INS_INMUEBLES ")
                          + donde(i.dj, i.renglon) + QStringLiteral(" group by SEDJ_NRO, SEDD_ID"));
    return insertar("SEL_TB_RTN_INS_INMUEBLES", columnas_inmueble(), i, "Alta inmueble", dialogo);
}

bool alta_parte(Parte& p, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        p.id = proximo_id(QStringLiteral("select max(SPIN_ID) as MAX_SPIN_ID ") + QStringLiteral(" from SEL_TB_RTN_INS_PARTES ")
                          + donde(p.dj, p.renglon) + QStringLiteral(" group by SEDJ_NRO, SEDD_ID "));
    if (p.id < 0) {
        dialogo.avisar({QStringLiteral("No se pude guardar el participante"), QStringLiteral("Nuevo participante"), Icono::informacion});
        return false;
    }
    return insertar("SEL_TB_RTN_INS_PARTES", columnas_parte(), p, "Nuevo participante", dialogo);
}

bool alta_operacion(Operacion& o, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        o.id = proximo_id(QStringLiteral("select max(SEDO_ID) as MAX_SEDO_ID from SEL_TB_RTN_INS_OPERACIONES ") + donde(o.dj, o.renglon));
    return insertar("SEL_TB_RTN_INS_OPERACIONES", columnas_operacion(), o, "Nueva operación", dialogo);
}

bool alta_valor_contractual(ValorContractual& v, bool generar_id, Dialogo& dialogo)
{
    if (generar_id)
        v.id = proximo_id(QStringLiteral("select max(SVCI_ID) as MAX_SVCI_ID") + QStringLiteral(" from SEL_TB_RTN_INS_VC ")
                          + donde(v.dj, v.renglon) + QStringLiteral(" and SEDO_ID=") + QString::number(v.operacion));
    return insertar("SEL_TB_RTN_INS_VC", columnas_valor(), v, "Nuevo valor contractual parcial", dialogo);
}

bool alta_rol(const RolOperacion& r, Dialogo& dialogo)
{
    return insertar("SEL_TB_RTN_INS_ROLES", columnas_rol(), r, "Alta de rol", dialogo);
}
