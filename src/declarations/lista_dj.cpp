// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/lista_dj.h"

#include "core/modGlobales.h"
#include "declarations/numero_dj.h"

#include <QDir>

#include <array>

using namespace Qt::StringLiterals;

QString consulta_dj(const FiltroDJ& filtro)
{
    QString sql = u"select SEDJ_NRO, SRTN_NRO, SEDJ_TITULAR_NOMBRE, SEDJ_ANIO, SEDJ_MES, SEDJ_SECUENCIA, SEDJ_ESTADO, "
                  u"SEDJ_OBSERVACIONES  from SEL_TB_RTN_CABDJ as C "_s;
    QString nexo = u" where "_s;
    const auto condicion = [&](const char* campo, int valor) {
        if (valor == 0)
            return;
        sql += nexo + QLatin1StringView(campo) + QString::number(valor);
        nexo = u" and "_s;
    };
    condicion(" SRTN_NRO=", filtro.agente);
    condicion(" SEDJ_ANIO=", filtro.anio);
    condicion(" SEDJ_MES=", filtro.mes);
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

namespace {

void vaciar_carpeta(const QString& carpeta)
{
    const QDir dir(carpeta);
    if (!dir.exists())
        return;
    const auto archivos = dir.entryInfoList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QFileInfo& archivo : archivos) {
        QFile f(archivo.filePath());
        f.setPermissions(f.permissions() | QFile::WriteOwner);
        f.remove();
    }
}

}  // namespace

void borrar_dj(const QString& nro, Dialogo& dialogo)
{
    try {
        Transaccion t(cnRtn);
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_INS_ROLES where SEDJ_NRO='"_s + nro + u"'"_s);
        cnRtn.ejecutar(u"delete from SEL_TB_RTN_CABDJ where SEDJ_NRO='"_s + nro + u"'"_s);
        vaciar_carpeta(carpeta_programa() + u"/data/"_s + nro + u"/testimonios"_s);
        t.confirmar();
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({e.descripcion + u"No se pudo borrar la DJ seleccionada"_s, u"Borrar DJ"_s, Icono::exclamacion});
    }
}

QString dj_a_rectificar(const QString& nro, Dialogo& dialogo)
{
    const NumeroDJ elegida(nro);
    // A number of another length builds no condition, and the query fails.
    const QString condicion = elegida.largoPrefijo() == 0
                                  ? u" where "_s
                                  : u" where mid(SEDJ_NRO,1,"_s + QString::number(elegida.largoPrefijo()) + u")='"_s
                                        + elegida.prefijo() + u"'"_s;
    const Recordset rs(cnRtn, u" select max(SEDJ_NRO) as MAX_SEDJ_NRO  from SEL_TB_RTN_CABDJ "_s + condicion);
    const QString maximo = rs.texto(0);
    if (maximo <= nro)
        return maximo;
    const QString pregunta = u"La DJ "_s
                             + (elegida.secuencia().toInt() == 0 ? u" Original"_s
                                                                 : u" Rectificativa "_s + elegida.secuencia())
                             + u" para la posicion "_s + elegida.mes() + u'/' + elegida.anio()
                             + u" ya fue rectificada\nDesea emitir una nueva rectificativa de la DJ Rectificativa "_s
                             + NumeroDJ(maximo).secuencia() + u" ?"_s;
    return dialogo.preguntar({pregunta, u"Nueva DJ"_s, Icono::informacion}) ? maximo : QString();
}
