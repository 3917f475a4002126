// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/archivo_dj.h"

#include "core/archivos_disco.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "filing/carpetas_dj.h"
#include "filing/escribir_registro.h"
#include "filing/salida_archivo.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The rows of one record type; false when there are none.
bool escribir_tipo(const Registro& registro, const QString& nro, SalidaArchivo& salida)
{
    Recordset rs(cnRtn, registro.consulta(nro));
    if (rs.eof())
        return false;
    const EscritorRegistro escritor(registro, rs.nativa());
    for (; !rs.eof(); rs.siguiente()) {
        escritor.escribir(salida.empezarRegistro());
        salida.terminarRegistro(registro.saltoEnCodigo);
    }
    return true;
}

void escribir_registros(const QString& nro, SalidaArchivo& salida)
{
    for (const Registro& registro : registros()) {
        const bool habia = escribir_tipo(registro, nro, salida);
        // Without a header, or without deeds, nothing follows.
        if (!habia && (registro.tipo == '1' || registro.tipo == '2'))
            return;
    }
}

QString numero_escritura(const QString& nro, int renglon)
{
    const Recordset rs(cnRtn,
                       u"select SEDD_ESCRITURA_NRO from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1' and SEDD_ID=%2"_s.arg(
                           nro, QString::number(renglon)));
    return rs.eof() ? QString() : rs.texto(0);
}

// The code of the records; the new file stands aside, whole and on the disk.
QString escribir_archivo(const QString& nro, ArchivoNuevo& nuevo)
{
    SalidaArchivo salida(nuevo);
    try {
        escribir_registros(nro, salida);
    } catch (const ErrorRegistro& e) {
        const QString escritura = e.renglon == 0 ? QString() : u", escritura Nº "_s + numero_escritura(nro, e.renglon);
        throw ErrorTarea(e.registro + escritura + e.detalle);
    }
    return salida.cerrar();
}

// The file takes its place within the transaction that stores its code: both count, or neither.
void guardar_con_codigo(const QString& nro, const QString& codigo, const ArchivoNuevo& nuevo, const QString& archivo)
{
    Transaccion t(cnRtn);
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ  set SEDJ_MD5='%1'  where SEDJ_NRO='%2'"_s.arg(codigo, nro));
    Sustitucion sustitucion(nuevo.aparte(), archivo);
    t.confirmar();
    sustitucion.confirmar();
}

}  // namespace

EmisionArchivo generar_archivo_dj(const QString& nro)
{
    EmisionArchivo emision;
    emision.archivo = u"%1/SRTN%2.txt"_s.arg(carpeta_dj(nro), nro);
    std::optional<ArchivoNuevo> nuevo;
    try {
        hacer_carpeta_dj(nro);
        nuevo.emplace(emision.archivo);
    } catch (const ErrorDisco& e) {
        emision.motivo = e.texto;
        return emision;
    }
    const QString codigo = escribir_archivo(nro, *nuevo);
    guardar_con_codigo(nro, codigo, *nuevo, emision.archivo);
    emision.codigo = codigo;
    return emision;
}
