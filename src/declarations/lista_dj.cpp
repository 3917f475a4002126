#include "declarations/lista_dj.h"

#include "core/modGlobales.h"
#include "declarations/numero_dj.h"

#include <QDir>

#include <array>

QString consulta_dj(const FiltroDJ& filtro)
{
    QString sql = QStringLiteral("select SEDJ_NRO, SRTN_NRO, SEDJ_TITULAR_NOMBRE, SEDJ_ANIO, SEDJ_MES, SEDJ_SECUENCIA, SEDJ_ESTADO, "
                                 "SEDJ_OBSERVACIONES ")
        + QStringLiteral(" from SEL_TB_RTN_CABDJ as C ");
    QString nexo = QStringLiteral(" where ");
    const auto condicion = [&](const char* campo, int valor) {
        if (valor == 0)
            return;
        sql += nexo + QLatin1StringView(campo) + QString::number(valor);
        nexo = QStringLiteral(" and ");
    };
    condicion(" SRTN_NRO=", filtro.agente);
    condicion(" SEDJ_ANIO=", filtro.anio);
    condicion(" SEDJ_MES=", filtro.mes);
    return sql + QStringLiteral(" order by SRTN_NRO, SEDJ_ANIO desc, SEDJ_MES desc, SEDJ_SECUENCIA desc");
}

void leer_lista_dj(const FiltroDJ& filtro, const std::function<void(std::span<const std::string_view>)>& fila)
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
        cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_INS_ROLES where SEDJ_NRO='") + nro + QStringLiteral("'"));
        cnRtn.ejecutar(QStringLiteral("delete from SEL_TB_RTN_CABDJ where SEDJ_NRO='") + nro + QStringLiteral("'"));
        vaciar_carpeta(carpeta_programa() + QStringLiteral("/data/") + nro + QStringLiteral("/testimonios"));
        t.confirmar();
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({e.descripcion + QStringLiteral("No se pudo borrar la DJ seleccionada"), QStringLiteral("Borrar DJ"), Icono::exclamacion});
    }
}

QString dj_a_rectificar(const QString& nro, Dialogo& dialogo)
{
    const NumeroDJ elegida(nro);
    // A number of another length builds no condition, and the query fails.
    const QString condicion = elegida.largoPrefijo() == 0
        ? QStringLiteral(" where ")
        : QStringLiteral(" where mid(SEDJ_NRO,1,") + QString::number(elegida.largoPrefijo()) + QStringLiteral(")='") + elegida.prefijo()
            + QStringLiteral("'");
    const Recordset rs(cnRtn, QStringLiteral(" select max(SEDJ_NRO) as MAX_SEDJ_NRO ") + QStringLiteral(" from SEL_TB_RTN_CABDJ ") + condicion);
    const QString maximo = rs.texto(0);
    if (maximo <= nro)
        return maximo;
    const QString pregunta = QStringLiteral("La DJ ")
        + (elegida.secuencia().toInt() == 0 ? QStringLiteral(" Original") : QStringLiteral(" Rectificativa ") + elegida.secuencia())
        + QStringLiteral(" para la posicion ") + elegida.mes() + u'/' + elegida.anio() + QStringLiteral(" ya fue rectificada\n")
        + QStringLiteral("Desea emitir una nueva rectificativa de la DJ Rectificativa ") + NumeroDJ(maximo).secuencia() + QStringLiteral(" ?");
    return dialogo.preguntar({pregunta, QStringLiteral("Nueva DJ"), Icono::informacion}) ? maximo : QString();
}
