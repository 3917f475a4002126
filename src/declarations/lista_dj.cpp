// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/lista_dj.h"

#include "core/modGlobales.h"
#include "declarations/numero_dj.h"
#include "filing/carpetas_dj.h"

#include <array>

using namespace Qt::StringLiterals;

QString consulta_dj(const FiltroDJ& filtro)
{
    QString sql = u"select SEDJ_NRO, SRTN_NRO, SEDJ_TITULAR_NOMBRE, SEDJ_ANIO, SEDJ_MES, SEDJ_SECUENCIA, SEDJ_ESTADO, "
                  u"SEDJ_OBSERVACIONES  from SEL_TB_RTN_CABDJ as C "_s;
    QString nexo = u" where "_s;
    // A zero stands for any, as in an empty field.
    const auto condicion = [&](const QString& campo, std::optional<int> valor) {
        if (valor.value_or(0) == 0)
            return;
        sql += nexo + campo + QString::number(*valor);
        nexo = u" and "_s;
    };
    condicion(u" SRTN_NRO="_s, filtro.agente);
    condicion(u" SEDJ_ANIO="_s, filtro.anio);
    condicion(u" SEDJ_MES="_s, filtro.mes);
    return sql + u" order by SRTN_NRO, SEDJ_ANIO desc, SEDJ_MES desc, SEDJ_SECUENCIA desc"_s;
}

void leer_lista_dj(const FiltroDJ& filtro, const AgregarFilaUtf8& fila)
{
    std::array<std::string_view, 8> celdas;
    for (Recordset rs(cnRtn, consulta_dj(filtro)); !rs.eof(); rs.siguiente()) {
        for (int i = 0; i < int(celdas.size()); ++i)
            celdas[size_t(i)] = rs.utf8(i);
        celdas[6] = rs.entero(6) == 0 ? "NORMAL" : "SIN MOVIMIENTOS";
        fila(celdas);
    }
}

void borrar_dj(const QString& nro, Dialogo& dialogo)
{
    try {
        Transaccion t(cnRtn);
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_ROLES where SEDJ_NRO='%1'"_s.arg(nro));
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_CABDJ where SEDJ_NRO='%1'"_s.arg(nro));
        vaciar_testimonios(nro);
        t.confirmar();
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar(
            {e.descripcion + u"No se pudo borrar la DJ seleccionada"_s, u"Borrar DJ"_s, Icono::exclamacion, e.motor});
    }
}

QString dj_a_rectificar(const QString& nro, Dialogo& dialogo)
{
    const NumeroDJ elegida(nro);
    // A number of another length builds no condition, and the query fails.
    const QString condicion = elegida.largoPrefijo() == 0
                                  ? u" where "_s
                                  : u" where mid(SEDJ_NRO,1,%1)='%2'"_s.arg(QString::number(elegida.largoPrefijo()),
                                                                            elegida.prefijo());
    const Recordset rs(cnRtn, u" select max(SEDJ_NRO) as MAX_SEDJ_NRO  from SEL_TB_RTN_CABDJ "_s + condicion);
    const QString maximo = rs.texto(0);
    if (maximo <= nro)
        return maximo;
    const QString secuencia = elegida.secuencia().toInt() == 0 ? u" Original"_s
                                                               : u" Rectificativa "_s + elegida.secuencia();
    const QString pregunta = u"La DJ %1 para la posicion %2/%3 ya fue rectificada\n"
                             u"Desea emitir una nueva rectificativa de la DJ Rectificativa %4 ?"_s.arg(
                                 secuencia, elegida.mes(), elegida.anio(), NumeroDJ(maximo).secuencia());
    return dialogo.preguntar({pregunta, u"Nueva DJ"_s, Icono::informacion}) ? maximo : QString();
}
