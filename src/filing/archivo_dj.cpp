// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/archivo_dj.h"

#include "core/modGlobales.h"
#include "filing/escribir_registro.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t BLOQUE = 1 << 16;

// Takes records one by one: the bytes go to the file and the digest in blocks.
class Salida
{
public:
    explicit Salida(const QString& ruta) : archivo_(ruta), resumen_(QCryptographicHash::Md5) {}

    [[nodiscard]] bool crear() { return archivo_.open(QIODevice::WriteOnly | QIODevice::Truncate); }

    /// Where the next record is appended.
    Piezas& empezarRegistro()
    {
        inicioArchivo_ = bloque_.archivo.size();
        inicioCodigo_ = bloque_.codigo.size();
        return bloque_;
    }
    /// Takes back what was appended of a record that can't be ended.
    void descartarRegistro()
    {
        bloque_.archivo.resize(inicioArchivo_);
        bloque_.codigo.resize(inicioCodigo_);
    }
    /// Ends the record that was appended to the block.
    void terminarRegistro(bool saltoEnCodigo)
    {
        bloque_.archivo.append("\r\n");
        if (saltoEnCodigo)
            bloque_.codigo.append("\r\n");
        if (bloque_.archivo.size() >= BLOQUE)
            volcar();
    }
    void volcar()
    {
        if (archivo_.write(bloque_.archivo.data(), qint64(bloque_.archivo.size())) != qint64(bloque_.archivo.size()))
            fallar();
        resumen_.addData(QByteArrayView(bloque_.codigo.data(), qsizetype(bloque_.codigo.size())));
        bloque_.limpiar();
    }
    QString cerrar()
    {
        volcar();
        if (!archivo_.flush())
            fallar();
        archivo_.close();
        return QString::fromLatin1(resumen_.result().toHex()).toUpper();
    }

private:
    [[noreturn]] void fallar() const
    {
        throw std::runtime_error((u"No se pudo escribir el archivo "_s + QDir::toNativeSeparators(archivo_.fileName())
                                  + u": "_s + archivo_.errorString())
                                     .toStdString());
    }

    QFile archivo_;
    QCryptographicHash resumen_;
    Piezas bloque_;
    size_t inicioArchivo_ = 0;
    size_t inicioCodigo_ = 0;
};

// The rows of one record type; false when there are none.
bool escribir_tipo(const Registro& registro, const QString& nro, Salida& salida)
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

void escribir_registros(const QString& nro, Salida& salida)
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
    const Recordset rs(cnRtn, u"select SEDD_ESCRITURA_NRO from SEL_TB_RTN_DETDJ where SEDJ_NRO='"_s + nro
                                  + u"' and SEDD_ID="_s + QString::number(renglon));
    return rs.eof() ? QString() : rs.texto(0);
}

}  // namespace

QString carpeta_dj(const QString& nro)
{
    return carpeta_programa() + u"/data/"_s + nro;
}

EmisionArchivo generar_archivo_dj(const QString& nro)
{
    EmisionArchivo emision;
    emision.archivo = carpeta_dj(nro) + u"/SRTN"_s + nro + u".txt"_s;
    Salida salida(emision.archivo);
    if (!QDir().mkpath(carpeta_dj(nro)) || !salida.crear())
        return emision;
    QString codigo;
    try {
        escribir_registros(nro, salida);
        codigo = salida.cerrar();
    } catch (const ErrorRegistro& e) {
        salida.descartarRegistro();
        salida.volcar();
        const QString escritura = e.renglon == 0 ? QString() : u", escritura Nº "_s + numero_escritura(nro, e.renglon);
        throw std::runtime_error((e.registro + escritura + e.detalle).toStdString());
    }
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ  set SEDJ_MD5='"_s + codigo + u"'  where SEDJ_NRO='"_s + nro + u"'"_s);
    emision.codigo = codigo;
    return emision;
}
