// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/valores_largos.h"

#include "core/modGlobales.h"
#include "filing/escribir_registro.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// What the screens call a column; the name's end says it for the rest.
struct Rotulo
{
    const char* columna;
    const char* rotulo;
};
constexpr Rotulo ROTULOS[] = {
    {"SEDJ_TITULAR_NOMBRE", "Nombre del titular"},
    {"SEDJ_DOMICILIO", "Domicilio del agente"},
    {"SEDJ_CODPOSTAL", "Cód. Postal del agente"},
    {"SEDJ_TELEFONO", "Telefono"},
    {"SEDJ_EMAIL", "e-mail"},
    {"SEDJ_ADSCRIPTO1_NOMBRE", "Adscripto 1"},
    {"SEDJ_ADSCRIPTO2_NOMBRE", "Adscripto 2"},
    {"SEDD_FOLIO", "Folio"},
    {"SEDD_OBSERVACIONES", "Observac."},
    {"NOA_DESC", "Motivo"},
    {"GTDC_ID", "Tipo de documento"},
    {"SPIN_NRODOC", "Nº de documento"},
    {"SPIN_RSOCIAL", "Denominación"},
    {"SPIN_DOMICILIO", "Domicilio"},
    {"SPIN_CODPOSTAL", "Cód. Postal"},
    {"SPIN_OBS", "Observaciones"},
    {"SEII_PARTIDA", "Partida Nº"},
    {"SEII_OBSERVACIONES", "Observaciones"},
    {"SEII_UBIC_LOTE", "Lote (ubicación)"},
    {"SEII_UBIC_MANZANA", "Manzana (ubicación)"},
    {"SEII_UBIC_UFUNCIONAL", "Unidad funcional"},
    {"SEII_UBIC_CIRCULACION", "Circulación"},
    {"SEII_UBIC_PISO", "Piso"},
    {"SEII_UBIC_DPTO", "Dpto"},
    {"SEII_UBIC_CALLE", "Calle"},
    {"SEII_UBIC_NRO", "Nro"},
    {"SEII_UBIC_BARRIO", "Barrio"},
    {"SEII_UBIC_CIUDAD", "Localidad"},
    {"SEII_UBIC_DEPARTAMENTO", "Departamento"},
    {"SEII_UBIC_PROVINCIA", "Provincia"},
    {"SEII_NCAT_SECCION", "Sección"},
    {"SEII_NCAT_FRACCION", "Fracción"},
    {"SEII_NCAT_LOTE", "Lote (nomenclatura)"},
    {"SEII_NCAT_EJIDO", "Ejido"},
    {"SEII_NCAT_CIRCUNSCRIPCION", "Circunscripción"},
    {"SEII_NCAT_SECTOR", "Sector"},
    {"SEII_NCAT_MANZANA", "Manzana (nomenclatura)"},
    {"SEII_NCAT_PARCELA", "Parcela"},
    {"SINS_OBLIG_ACCESORIA_POLIZA", "Póliza"},
    {"SINS_OBS", "Observaciones"},
    {"SEDR_OBS", "Observaciones del rol"},
    {"GMON_ID", "Moneda"},
};

QString rotulo_de(const char* columna)
{
    const auto* r = std::find_if(std::begin(ROTULOS), std::end(ROTULOS),
                                 [columna](const Rotulo& uno) { return qstrcmp(uno.columna, columna) == 0; });
    return r == std::end(ROTULOS) ? QString::fromLatin1(columna) : QString::fromUtf8(r->rotulo);
}

QHash<int, QString> numeros_de_escritura(const QString& nro)
{
    QHash<int, QString> numeros;
    for (Recordset rs(cnRtn,
                      u"select SEDD_ID, SEDD_ESCRITURA_NRO from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1'"_s.arg(nro));
         !rs.eof(); rs.siguiente())
        numeros.insert(int(rs.entero(0)), rs.texto(1));
    return numeros;
}

// Whose value it is: the header, a deed, or what hangs from one, as the lists of the screens name it.
QString de_quien(const Registro& registro, const Recordset& rs, const QHash<int, QString>& numeros)
{
    if (registro.tipo == '1')
        return u"Cabecera"_s;
    const QString escritura = u"Escritura Nº %1"_s.arg(numeros.value(int(rs.entero("SEDD_ID"))));
    switch (registro.tipo) {
    case '3': return u"%1, parte %2 %3"_s.arg(escritura, rs.texto("SPIN_ID"), rs.texto("SPIN_RSOCIAL").left(40));
    case '4': return u"%1, inmueble %2 %3"_s.arg(escritura, rs.texto("SEII_ID"), rs.texto("SEII_PARTIDA").left(40));
    case '5': return u"%1, operación %2"_s.arg(escritura, rs.texto("SEDO_ID"));
    case '6': return u"%1, operación %2, parte %3"_s.arg(escritura, rs.texto("SEDO_ID"), rs.texto("SPIN_ID"));
    case '7': return u"%1, valor contractual %2"_s.arg(escritura, rs.texto("SVCI_ID"));
    default: return escritura;
    }
}

}  // namespace

QStringList valores_que_no_entran(const QString& nro)
{
    const QHash<int, QString> numeros = numeros_de_escritura(nro);
    QStringList lineas;
    for (const Registro& registro : registros()) {
        Recordset rs(cnRtn, registro.consulta(nro));
        const EscritorRegistro escritor(registro, rs.nativa());
        for (; !rs.eof(); rs.siguiente())
            for (const ValorQueNoEntra& v : escritor.revisar())
                lineas << u"%1: %2 %3"_s.arg(de_quien(registro, rs, numeros).trimmed(), rotulo_de(v.campo),
                                             v.largo == 0 ? u"no tiene valor"_s
                                                          : u"tiene %1 caracteres, y entran %2"_s.arg(
                                                              QString::number(v.largo), QString::number(v.ancho)));
    }
    return lineas;
}
