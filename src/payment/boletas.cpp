// SPDX-License-Identifier: GPL-3.0-or-later

#include "payment/boletas.h"

#include "core/modComunes.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int TIPO_MENSUAL = 0;
constexpr int LARGO_SIN_SECUENCIA = 20;

// Under a mask of `ancho` zeros; what does not fit is longer, and so is what has a sign.
QString en_centavos(const Numero& n, int ancho)
{
    const QString cifras = formato_decimal(n.Value() * 100, 0);
    const qsizetype signo = cifras.startsWith(u'-') ? 1 : 0;
    return cifras.left(signo) + cifras.mid(signo).rightJustified(ancho, u'0');
}

struct ValorColumna
{
    const char* columna;
    QString sql;
};

// Rows inserted.
int insertar(const QString& tabla, std::span<const ValorColumna> columnas)
{
    QStringList nombres;
    QStringList valores;
    for (const auto& [columna, sql] : columnas) {
        nombres << QString::fromLatin1(columna);
        valores << sql;
    }
    return cnRtn.ejecutar(
        u"insert into %1 (%2) values (%3)"_s.arg(tabla, nombres.join(u", "_s), valores.join(u", "_s)));
}

}  // namespace

QString proximo_nro_boleta(const QString& dj)
{
    const Recordset rs(cnRtn, u"select max(SBDI_NROBOLETA) as MAX_SBDI_NROBOLETA  from SEL_TB_RTN_BOLDEP "
                              u" where SEDJ_NRO='%1' and SBDI_TIPO_BOLETA=%2"_s.arg(dj, QString::number(TIPO_MENSUAL)));
    if (rs.eof() || rs.nulo(0))
        return u"202"_s + dj + u"00"_s;
    // The places are those of a DJ of 17 characters; the number of a shorter one grows by them.
    const QString maximo = rs.texto(0);
    return maximo.left(LARGO_SIN_SECUENCIA) + con_ceros(maximo.mid(LARGO_SIN_SECUENCIA, 2).toInt() + 1, 2);
}

QString codigo_barras_boleta(const QString& nroBoleta, const ControlesBoleta& c)
{
    const QString sin_digito = con_ceros(BancoConvenio, 6) + u"020"_s + nroBoleta.leftJustified(30, u'0')
                               + c.vencimiento.toString(u"yyyyMMdd"_s) + en_centavos(c.impuesto, 12) + QString(10, u'0')
                               + en_centavos(c.interes, 10);
    return sin_digito + QString::number(digito_verificador(sin_digito));
}

QString insertar_boleta(const ControlesBoleta& c)
{
    const QString nro = proximo_nro_boleta(c.dj);
    const QString posicion = c.anio + con_ceros(c.mes, 2) + con_ceros(c.secuencia, 2);
    const ValorColumna columnas[] = {
        {"SBDI_NROBOLETA", entre_comillas(nro)},
        {"SBDI_FECHA_EMISION", fecha_sql(c.emision)},
        {"SBDI_FECHA_VENC", fecha_sql(c.vencimiento)},
        {"SBDI_RTN_NRO", c.agenteNro},
        {"SBDI_RTN_NOMBRE", entre_comillas(toSQL(c.agenteNombre))},
        {"SEDJ_NRO", entre_comillas(c.dj)},
        {"SBDI_POSICION", entre_comillas(posicion)},
        {"GBAN_ID", QString::number(BancoId)},
        {"GBAN_DESCRIPCION", entre_comillas(BancoNombre)},
        {"SBDI_CUENTA", entre_comillas(QString::number(BancoCuenta))},
        {"SBDI_IMPORTE", sql_o_cero(c.impuesto)},
        {"SBDI_INTERES", sql_o_cero(c.interes)},
        {"SBDI_MULTA", u"0"_s},
        {"SBDI_TOTAL", sql_o_cero(c.totalDepositar)},
        {"SBDI_ANULADA", u"null"_s},
        {"SSUB_FILIAL_BANCO", texto_o_null(toSQL(c.filial.trimmed()))},
        {"SBDI_FORMAS_PAGO", u"0"_s},
        {"SBDI_EFECTIVO", sql_o_cero(c.efectivo)},
        {"SBDI_CHEQUE1_NRO", texto_o_null(toSQL(c.cheques[0].nro))},
        {"SBDI_CHEQUE1_BANCO", texto_o_null(toSQL(c.cheques[0].banco))},
        {"SBDI_CHEQUE1_MONTO", sql_o_cero(c.cheques[0].monto)},
        {"SBDI_CHEQUE2_NRO", texto_o_null(toSQL(c.cheques[1].nro))},
        {"SBDI_CHEQUE2_BANCO", texto_o_null(toSQL(c.cheques[1].banco))},
        {"SBDI_CHEQUE2_MONTO", sql_o_cero(c.cheques[1].monto)},
        {"SBDI_TIPO_BOLETA", QString::number(TIPO_MENSUAL)},
    };
    Transaccion t(cnRtn);
    if (insertar(u"SEL_TB_RTN_BOLDEP"_s, columnas) != 1)
        return {};
    // The row of just now alone: past sequence 99 an earlier slip may have the same number and its own code.
    cnRtn.ejecutar(
        u"update SEL_TB_RTN_BOLDEP set SBDI_CODIGO_BARRAS='%1' where SBDI_NROBOLETA='%2' and SBDI_ID=last_insert_rowid()"_s
            .arg(codigo_barras_boleta(nro, c), nro));
    t.confirmar();
    return nro;
}

int borrar_boleta(const QString& nro)
{
    return cnRtn.ejecutar(u"delete from  SEL_TB_RTN_BOLDEP where SBDI_NROBOLETA='%1'"_s.arg(nro));
}

void leer_boletas(const QString& dj, const AgregarFila& fila)
{
    Recordset rs(cnRtn, u"select * from  SEL_TB_RTN_BOLDEP  where SEDJ_NRO='%1'"_s.arg(dj));
    for (; !rs.eof(); rs.siguiente())
        fila({rs.texto("SBDI_NROBOLETA"), importe_llano(rs.real("SBDI_TOTAL"))});
}
