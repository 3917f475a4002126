#include "core/arranque.h"

#include "core/modGlobales.h"
#include "core/numero.h"

#include <QDir>
#include <QFile>

namespace {

// The first line as it stands: no trimming, no comments, no key.
bool leer_ruta(const QString& archivo, QString& ruta)
{
    QFile cfg(archivo);
    if (!cfg.open(QIODevice::ReadOnly))
        return false;
    QByteArray linea = cfg.readLine();
    if (linea.isEmpty())
        return false;
    if (linea.endsWith('\n'))
        linea.chop(1);
    if (linea.endsWith('\r'))
        linea.chop(1);
    ruta = QString::fromUtf8(linea);
    return true;
}

QString componer_cadena(const QString& ruta)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Password=") + clave_almacen()
        + QStringLiteral(";Data Source=") + ruta + QStringLiteral(";Persist Security Info=false");
}

void mostrar_error(Dialogo& dialogo, const QString& prefijo, const ErrorAlmacen& e)
{
    dialogo.avisar({prefijo + QString::number(e.numero) + QStringLiteral(": ") + e.descripcion, {}, Icono::ninguno});
}

}  // namespace

QString ruta_abierta()
{
    return QDir(carpeta_programa()).absoluteFilePath(RutaBaseDatos);
}

bool abrir_base(Dialogo& dialogo)
{
    try {
        if (!leer_ruta(carpeta_programa() + QStringLiteral("/vedra_rtn.cfg"), RutaBaseDatos) || RutaBaseDatos.isEmpty())
            throw ErrorAlmacen(0, QStringLiteral("vedra_rtn.cfg"));
        CadenaConexion = componer_cadena(RutaBaseDatos);
        if (!cnRtn.abierta())
            cnRtn.abrir(ruta_abierta(), clave_almacen());
        return true;
    } catch (const ErrorAlmacen&) {
        // The text names another file than the one that is read; it is kept so on purpose.
        dialogo.avisar({QStringLiteral("Error. No se puede obtener la ruta de acceso a la base de datos "
                                       "(ventanilla.cfg). Comuniquese con el administrador del sistema"),
                        QStringLiteral("Error de acceso al sistema"), Icono::informacion});
        return false;
    }
}

void cargar_parametros(Dialogo& dialogo)
{
    BancoNombre = QStringLiteral("DEL MARVEN S.A.");
    BancoId = 83;
    BancoCuenta = 90000440;
    BancoConvenio = 31057;
    UsoSubconcepto = 2;

    const auto a_largo = [](double v) { return qint32(redondear(v, 0)); };
    try {
        for (Recordset rs(cnRtn, QStringLiteral("select * from SEL_TB_PARAMETROS")); !rs.eof(); rs.siguiente()) {
            const QString nombre = rs.texto("SPRM_NOMBRE");
            const auto valor = [&rs] { return numero_de_texto_sql(rs.texto("SPRM_VALOR")); };
            if (nombre == u"PRSE_ALICUOTA_IVA")
                AlicuotaIVA = valor();
            else if (nombre == u"PRSE_MODO_IMPORTE_MINIMO")
                ModoImporteMinimo = a_largo(valor());
            else if (nombre == u"PRSE_MODO_IMPORTE_FIJO")
                ModoImporteFijo = a_largo(valor());
            else if (nombre == u"PRSE_TIPO_REDONDEO")
                TipoRedondeo = a_largo(valor());
        }
    } catch (const ErrorAlmacen& e) {
        mostrar_error(dialogo, QStringLiteral("Error "), e);
    }
}

void cargar_ley_vigente(Dialogo& dialogo)
{
    try {
        const Recordset rs(cnRtn, QStringLiteral("select GLEY_NRO, GLEY_VIGENCIA_DESDE from GLB_TB_LEYES "
                                                 "where GLEY_VIGENCIA_HASTA is null"));
        // Without a law in force nothing is told: the silence is deliberate.
        if (rs.eof())
            return;
        LeyVigente = qint16(rs.entero("GLEY_NRO"));
        LeyVigenciaDesde = rs.fecha("GLEY_VIGENCIA_DESDE");
    } catch (const ErrorAlmacen& e) {
        mostrar_error(dialogo, {}, e);
    }
}
