// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/arranque.h"

#include "core/cuidado.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/numero.h"
#include "core/version_almacen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

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
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Password="_s + clave_almacen() + u";Data Source="_s
           + ruta + u";Persist Security Info=false"_s;
}

// Nobody else has the store open while this program has.
void abrir_sola(const QString& ruta)
{
    const QFileInfo info(ruta);
    if (info.isFile())
        candadoRtn.tomar(ruta);
    try {
        cnRtn.abrir(ruta, clave_almacen());
        // An older store works as it did, without what its schema lacks; whoever installs brings it up to date.
        rechazar_mas_nueva(cnRtn);
        // Stores used to be made with the umask's mode; one that another user owns keeps it.
        QFile::setPermissions(ruta, QFile::ReadOwner | QFile::WriteOwner);
    } catch (...) {
        cnRtn.cerrar();
        candadoRtn.soltar();
        throw;
    }
}

void mostrar_error(Dialogo& dialogo, const QString& prefijo, const ErrorAlmacen& e)
{
    dialogo.avisar({prefijo + QString::number(e.numero) + u": "_s + e.descripcion, {}, Icono::ninguno, e.motor});
}

}  // namespace

QString ruta_abierta()
{
    return QDir(carpeta_programa()).absoluteFilePath(RutaBaseDatos);
}

void leer_configuracion()
{
    if (!leer_ruta(carpeta_programa() + u"/vedra_rtn.cfg"_s, RutaBaseDatos) || RutaBaseDatos.isEmpty())
        throw ErrorAlmacen(0, u"No se puede leer la ruta de la base de datos en vedra_rtn.cfg."_s);
}

bool abrir_base(Dialogo& dialogo)
{
    try {
        leer_configuracion();
        CadenaConexion = componer_cadena(RutaBaseDatos);
        if (!cnRtn.abierta())
            abrir_sola(ruta_abierta());
        return true;
    } catch (const std::exception& e) {
        const auto* almacen = dynamic_cast<const ErrorAlmacen*>(&e);
        const UltimoSano sano = almacen && almacen->perdido() && QFileInfo(ruta_abierta()).isFile()
                                    ? ultimo_respaldo_sano(ruta_abierta(), dialogo)
                                    : UltimoSano{};
        const Motivo m = motivo_de(e);
        // The text names another file than the one that is read; it is kept so on purpose.
        dialogo.avisar({u"Error. No se puede obtener la ruta de acceso a la base de datos "
                        u"(ventanilla.cfg). Comuniquese con el administrador del sistema"_s,
                        u"Error de acceso al sistema"_s, Icono::informacion,
                        QStringList{m.texto, m.detalles, sano.frase, sano.receta}.join(u'\n').trimmed()});
        return false;
    }
}

void cerrar_base()
{
    cnRtn.cerrar();
    cnTmp.cerrar();
    candadoRtn.soltar();
}

void cargar_parametros(Dialogo& dialogo)
{
    BancoNombre = u"DEL MARVEN S.A."_s;
    BancoId = 83;
    BancoCuenta = 90000440;
    BancoConvenio = 31057;
    UsoSubconcepto = 2;

    const auto a_largo = [](double v) { return qint32(redondear(v, 0)); };
    try {
        for (Recordset rs(cnRtn, u"select * from SEL_TB_PARAMETROS"_s); !rs.eof(); rs.siguiente()) {
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
        mostrar_error(dialogo, u"Error "_s, e);
    }
}

void cargar_ley_vigente(Dialogo& dialogo)
{
    try {
        const Recordset rs(cnRtn, u"select GLEY_NRO, GLEY_VIGENCIA_DESDE from GLB_TB_LEYES "
                                  u"where GLEY_VIGENCIA_HASTA is null"_s);
        // Without a law in force nothing is told: the silence is deliberate.
        if (rs.eof())
            return;
        LeyVigente = qint16(rs.entero("GLEY_NRO"));
        LeyVigenciaDesde = rs.fecha("GLEY_VIGENCIA_DESDE");
    } catch (const ErrorAlmacen& e) {
        mostrar_error(dialogo, {}, e);
    }
}
