// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/roles_catalogo.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/reloj.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString texto(const QString& t)
{
    return texto_o_null(toSQL(t));
}

// A name in brackets that is no table of the store is an error of the engine, whatever it holds.
bool existe_tabla(const QString& nombre)
{
    try {
        const Recordset rs(cnRtn, u"select * from [%1] where 1=0"_s.arg(nombre));
        return true;
    } catch (const ErrorAlmacen&) {
        return false;
    }
}

// All columns but the identifier, in the order of the statements.
Asignaciones columnas_de(const clsRol& rol, qint32 subconcepto)
{
    return {{"SROL_DESCRIPCION", texto(rol.Descripcion)},
            {"SROL_REQUERIDO", logico_sql(rol.Requerido)},
            {"SSUB_ID", QString::number(subconcepto)},
            {"SROL_PARTICIPA_IMPUESTO", logico_sql(rol.ParicipaImpuesto)},
            {"SROL_SM_CARGA_OBLIG", logico_sql(rol.CargaOblig_SM)},
            {"SROL_SSUB_ATRIBUTO", texto(rol.SSUBAtributo)},
            {"SROL_SSUB_ATRIBUTO_VALOR", texto(rol.SSUBAtributo_valor)},
            {"SROL_SSUB_ATRIBUTO_TABLA", texto(rol.SSUBAtributo_tabla)},
            {"SROL_PERMITE_CUIT_EN_TRAMITE", logico_sql(rol.Permite_CuitEnTramite)},
            {"AUSU_ID", u"'ZQ'"_s},
            {"SROL_FULTMOD", fecha_sql(hoy())}};
}

}  // namespace

QList<clsRol> roles_de(qint32 subconcepto)
{
    QList<clsRol> lista;
    for (Recordset rs(cnRtn, u"select SROL_ID , SSUB_ID, SROL_DESCRIPCION,"
                             u" SROL_REQUERIDO, IIf([SROL_REQUERIDO],'Siempre','Esporádico') AS EXP_REQUERIDO,"
                             u" SROL_PARTICIPA_IMPUESTO, IIf([SROL_PARTICIPA_IMPUESTO],'Si','No')"
                             u" AS EXP_PARTICIPA_IMPUESTO,"
                             u" SROL_SM_CARGA_OBLIG, IIf([SROL_SM_CARGA_OBLIG],'Si','No') AS EXP_SM_CARGA_OBLIG,"
                             u" SROL_SSUB_ATRIBUTO, SROL_SSUB_ATRIBUTO_VALOR, SROL_SSUB_ATRIBUTO_TABLA,"
                             u" SROL_PERMITE_CUIT_EN_TRAMITE FROM SEL_TB_ROLES  where SSUB_ID=%1"
                             u" order by SROL_PARTICIPA_IMPUESTO,"
                             u" SROL_DESCRIPCION collate ESPANOL"_s.arg(QString::number(subconcepto)));
         !rs.eof(); rs.siguiente())
        lista << leer_rol(rs);
    return lista;
}

QStringList atributos_subconcepto()
{
    const Recordset rs(cnRtn, u"select * from SEL_TB_SUBCONCEPTOS where SSUB_ID=-1"_s);
    QStringList nombres;
    for (int i = 0; i < rs.columnas(); ++i)
        nombres << rs.nombre(i);
    return nombres;
}

qint64 proximo_rol(qint32 subconcepto)
{
    const Recordset rs(cnRtn, u"select max(SROL_ID)+1 as MAX_SROL_ID from SEL_TB_ROLES"
                              u" where int(SROL_ID/1000)=%1"_s.arg(QString::number(subconcepto)));
    return rs.nulo(0) ? qint64(subconcepto) * 1000 + 1 : rs.entero(0);
}

std::optional<Falla> validar_rol(clsRol& rol, bool depende)
{
    for (QString* t : {&rol.Descripcion, &rol.SSUBAtributo_valor, &rol.SSUBAtributo_tabla})
        *t = t->trimmed();
    if (auto falla = primera_falla({
            {rol.Descripcion.isEmpty(), "Ingrese la descripción del rol", "txtDescripcion"},
            {depende && rol.SSUBAtributo.isEmpty(), "Ingrese el atributo del subconcepto del cual depende este rol",
             "cboSSUBAtributos"},
        }))
        return falla;
    if (depende && rol.SSUBAtributo_valor.isEmpty())
        return Falla{.mensaje = u"Ingrese el valor para el atributo "_s + rol.SSUBAtributo
                                + u" para el cual será exigible este rol"_s,
                     .control = u"txtSSUBAtributoValor"_s,
                     .titulo = {}};
    if (!rol.SSUBAtributo_tabla.isEmpty() && !existe_tabla(rol.SSUBAtributo_tabla))
        return Falla{.mensaje = u"La tabla "_s + rol.SSUBAtributo_tabla + u" no existe"_s,
                     .control = u"txtSSUBAtributoTabla"_s,
                     .titulo = u"Error: tabla "_s + rol.SSUBAtributo_tabla};
    return {};
}

void alta_rol(const clsRol& rol, qint32 subconcepto)
{
    const Asignaciones fila = Asignaciones{{"SROL_ID", QString::number(rol.IdRol)}} + columnas_de(rol, subconcepto);
    cnRtn.ejecutar(u"insert into SEL_TB_ROLES (%1  ) values (%2)"_s.arg(columnas_sql(fila, ",  "), valores_sql(fila)));
}

void modificar_rol(const clsRol& rol, qint32 subconcepto)
{
    cnRtn.ejecutar(u"update SEL_TB_ROLES set %1 where SROL_ID=%2"_s.arg(asignar_sql(columnas_de(rol, subconcepto)),
                                                                        QString::number(rol.IdRol)));
}

void borrar_rol(qint64 id)
{
    cnRtn.ejecutar(u"delete from SEL_TB_ROLES where SROL_ID=%1"_s.arg(QString::number(id)));
}
