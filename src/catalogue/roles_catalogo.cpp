#include "catalogue/roles_catalogo.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/reloj.h"

#include <QStringList>

namespace {

QString texto(const QString& t)
{
    return texto_o_null(toSQL(t));
}

// A name in brackets that is no table of the store is an error of the engine, whatever it holds.
bool existe_tabla(const QString& nombre)
{
    try {
        const Recordset rs(cnRtn, QStringLiteral("select * from [") + nombre + QStringLiteral("] where 1=0"));
        return true;
    } catch (const ErrorAlmacen&) {
        return false;
    }
}

}  // namespace

QList<clsRol> roles_de(qint32 subconcepto)
{
    QList<clsRol> lista;
    for (Recordset rs(cnRtn, QStringLiteral("select SROL_ID ")
                                 + QStringLiteral(", SSUB_ID, SROL_DESCRIPCION, SROL_REQUERIDO, IIf([SROL_REQUERIDO],'Siempre','Esporádico') AS EXP_REQUERIDO"
                                                  ", SROL_PARTICIPA_IMPUESTO, IIf([SROL_PARTICIPA_IMPUESTO],'Si','No') AS EXP_PARTICIPA_IMPUESTO"
                                                  ", SROL_SM_CARGA_OBLIG, IIf([SROL_SM_CARGA_OBLIG],'Si','No') AS EXP_SM_CARGA_OBLIG"
                                                  ", SROL_SSUB_ATRIBUTO, SROL_SSUB_ATRIBUTO_VALOR, SROL_SSUB_ATRIBUTO_TABLA, SROL_PERMITE_CUIT_EN_TRAMITE")
                                 + QStringLiteral(" FROM SEL_TB_ROLES ") + QStringLiteral(" where SSUB_ID=") + QString::number(subconcepto)
                                 + QStringLiteral(" order by SROL_PARTICIPA_IMPUESTO, SROL_DESCRIPCION collate ESPANOL"));
         !rs.eof(); rs.siguiente())
        lista << leer_rol(rs);
    return lista;
}

QStringList atributos_subconcepto()
{
    const Recordset rs(cnRtn, QStringLiteral("select * from SEL_TB_SUBCONCEPTOS where SSUB_ID=-1"));
    QStringList nombres;
    for (int i = 0; i < rs.columnas(); ++i)
        nombres << rs.nombre(i);
    return nombres;
}

qint64 proximo_rol(qint32 subconcepto)
{
    const Recordset rs(cnRtn, QStringLiteral("select max(SROL_ID)+1 as MAX_SROL_ID from SEL_TB_ROLES where int(SROL_ID/1000)=") + QString::number(subconcepto));
    return rs.nulo(0) ? qint64(subconcepto) * 1000 + 1 : rs.entero(0);
}

std::optional<Falla> validar_rol(clsRol& rol, bool depende)
{
    for (QString* t : {&rol.Descripcion, &rol.SSUBAtributo_valor, &rol.SSUBAtributo_tabla})
        *t = t->trimmed();
    if (auto falla = primera_falla({
            {rol.Descripcion.isEmpty(), "Ingrese la descripción del rol", "txtDescripcion"},
            {depende && rol.SSUBAtributo.isEmpty(), "Ingrese el atributo del subconcepto del cual depende este rol", "cboSSUBAtributos"},
        }))
        return falla;
    if (depende && rol.SSUBAtributo_valor.isEmpty())
        return Falla{.mensaje = QStringLiteral("Ingrese el valor para el atributo ") + rol.SSUBAtributo + QStringLiteral(" para el cual será exigible este rol"),
                     .control = QStringLiteral("txtSSUBAtributoValor"),
                     .titulo = {}};
    if (!rol.SSUBAtributo_tabla.isEmpty() && !existe_tabla(rol.SSUBAtributo_tabla))
        return Falla{.mensaje = QStringLiteral("La tabla ") + rol.SSUBAtributo_tabla + QStringLiteral(" no existe"),
                     .control = QStringLiteral("txtSSUBAtributoTabla"),
                     .titulo = QStringLiteral("Error: tabla ") + rol.SSUBAtributo_tabla};
    return {};
}

void alta_rol(const clsRol& rol, qint32 subconcepto)
{
    cnRtn.ejecutar(QStringLiteral("insert into SEL_TB_ROLES ") + QStringLiteral("(SROL_ID, ") + QStringLiteral(" SROL_DESCRIPCION, ") + QStringLiteral(" SROL_REQUERIDO, ")
                   + QStringLiteral(" SSUB_ID, ") + QStringLiteral(" SROL_PARTICIPA_IMPUESTO, ") + QStringLiteral(" SROL_SM_CARGA_OBLIG, ")
                   + QStringLiteral(" SROL_SSUB_ATRIBUTO, ") + QStringLiteral(" SROL_SSUB_ATRIBUTO_VALOR, ") + QStringLiteral(" SROL_SSUB_ATRIBUTO_TABLA, ")
                   + QStringLiteral(" SROL_PERMITE_CUIT_EN_TRAMITE, ") + QStringLiteral(" AUSU_ID, ") + QStringLiteral(" SROL_FULTMOD ") + QStringLiteral(" ) values (")
                   + QString::number(rol.IdRol) + QStringLiteral(", ") + texto(rol.Descripcion) + QStringLiteral(", ") + logico_sql(rol.Requerido) + QStringLiteral(", ")
                   + QString::number(subconcepto) + QStringLiteral(", ") + logico_sql(rol.ParicipaImpuesto) + QStringLiteral(", ") + logico_sql(rol.CargaOblig_SM)
                   + QStringLiteral(", ") + texto(rol.SSUBAtributo) + QStringLiteral(", ") + texto(rol.SSUBAtributo_valor) + QStringLiteral(", ")
                   + texto(rol.SSUBAtributo_tabla) + QStringLiteral(", ") + logico_sql(rol.Permite_CuitEnTramite) + QStringLiteral(", 'ZQ'") + QStringLiteral(", ")
                   + fecha_sql(hoy()) + QStringLiteral(")"));
}

void modificar_rol(const clsRol& rol, qint32 subconcepto)
{
    cnRtn.ejecutar(QStringLiteral("update SEL_TB_ROLES set ") + QStringLiteral("SROL_DESCRIPCION=") + texto(rol.Descripcion) + QStringLiteral(", SROL_REQUERIDO=")
                   + logico_sql(rol.Requerido) + QStringLiteral(", SSUB_ID=") + QString::number(subconcepto) + QStringLiteral(", SROL_PARTICIPA_IMPUESTO=")
                   + logico_sql(rol.ParicipaImpuesto) + QStringLiteral(", SROL_SM_CARGA_OBLIG=") + logico_sql(rol.CargaOblig_SM) + QStringLiteral(", SROL_SSUB_ATRIBUTO=")
                   + texto(rol.SSUBAtributo) + QStringLiteral(", SROL_SSUB_ATRIBUTO_VALOR=") + texto(rol.SSUBAtributo_valor)
                   + QStringLiteral(", SROL_SSUB_ATRIBUTO_TABLA=") + texto(rol.SSUBAtributo_tabla) + QStringLiteral(", SROL_PERMITE_CUIT_EN_TRAMITE=")
                   + logico_sql(rol.Permite_CuitEnTramite) + QStringLiteral(", AUSU_ID='ZQ'") + QStringLiteral(", SROL_FULTMOD=") + fecha_sql(hoy())
                   + QStringLiteral(" where SROL_ID=") + QString::number(rol.IdRol));
}

void borrar_rol(qint64 id)
{
    cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_ROLES where SROL_ID=") + QString::number(id));
}
