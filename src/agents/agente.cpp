// SPDX-License-Identifier: GPL-3.0-or-later

#include "agents/agente.h"

#include "core/asignaciones.h"
#include "core/cuit.h"
#include "core/modGlobales.h"
#include "core/motivos.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

namespace {

struct FilaAgente
{
    int nro = 0;
    int registro = 0;
    QString titular;
    std::optional<qint64> cuit;
    QString domicilio, codPostal, telefono;
    std::optional<int> localidad;
    QString email, adscripto1;
    std::optional<qint64> adscripto1Cuit;
    QString adscripto2;
    std::optional<qint64> adscripto2Cuit;
};

const Columna<FilaAgente> COLUMNAS[] = {
    {"SRTN_NRO", &FilaAgente::nro},
    {"SRTN_NRO_REGNOTARIAL", &FilaAgente::registro},
    {"SRTN_TITULAR_NOMBRE", &FilaAgente::titular, 50},
    {"SRTN_TITULAR_CUIT", &FilaAgente::cuit},
    {"SRTN_DOMICILIO", &FilaAgente::domicilio, 100},
    {"SRTN_CODPOSTAL", &FilaAgente::codPostal, 10},
    {"SRTN_TELEFONO", &FilaAgente::telefono, 20},
    {"GLOC_ID", &FilaAgente::localidad},
    {"SRTN_EMAIL", &FilaAgente::email, 50},
    {"SRTN_ADSCRIPTO1_NOMBRE", &FilaAgente::adscripto1, 50},
    {"SRTN_ADSCRIPTO1_CUIT", &FilaAgente::adscripto1Cuit},
    {"SRTN_ADSCRIPTO2_NOMBRE", &FilaAgente::adscripto2, 50},
    {"SRTN_ADSCRIPTO2_CUIT", &FilaAgente::adscripto2Cuit},
};

template <class F>
bool guardar(const QString& titulo, Dialogo& dialogo, F escribir)
{
    try {
        escribir();
        return true;
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({e.descripcion, titulo, Icono::informacion, e.motor});
        return false;
    }
}

}  // namespace

bool agregar_agente(const Agente& a, const QString& titulo, Dialogo& dialogo)
{
    static const QString sentencia = sentencia_alta<FilaAgente>("SEL_TB_RTN_PADRON", COLUMNAS);
    return guardar(titulo, dialogo, [&] {
        const FilaAgente f{a.nroRegNotarial,
                           a.nroRegNotarial,
                           a.titular,
                           cuit_numero(a.cuit),
                           a.domicilio,
                           a.codPostal,
                           a.telefono,
                           a.localidad,
                           a.email,
                           a.adscripto1,
                           cuit_numero(a.adscripto1Cuit),
                           a.adscripto2,
                           cuit_numero(a.adscripto2Cuit)};
        insertar_fila<FilaAgente>(cnRtn, sentencia, COLUMNAS, f);
    });
}

bool modificar_agente(const Agente& a, int nro, const QString& titulo, Dialogo& dialogo)
{
    return guardar(titulo, dialogo, [&] {
        cnRtn.ejecutar(u"update SEL_TB_RTN_PADRON set  %1 where SRTN_NRO=%2"_s.arg(
            asignar_sql({
                {"SRTN_TITULAR_NOMBRE", entre_comillas(toSQL(a.titular))},
                {"SRTN_TITULAR_CUIT", cuit_sql(a.cuit)},
                {"SRTN_DOMICILIO", texto_o_null(toSQL(a.domicilio))},
                {"SRTN_TELEFONO", texto_o_null(toSQL(a.telefono))},
                {"GLOC_ID", QString::number(a.localidad.value_or(0))},
                {"SRTN_CODPOSTAL", entre_comillas(toSQL(a.codPostal))},
                {"SRTN_EMAIL", texto_o_null(toSQL(a.email))},
                {"SRTN_ADSCRIPTO1_NOMBRE", texto_o_null(toSQL(a.adscripto1))},
                {"SRTN_ADSCRIPTO1_CUIT", cuit_sql(a.adscripto1Cuit)},
                {"SRTN_ADSCRIPTO2_NOMBRE", texto_o_null(toSQL(a.adscripto2))},
                {"SRTN_ADSCRIPTO2_CUIT", cuit_sql(a.adscripto2Cuit)},
            }),
            QString::number(nro)));
    });
}

std::optional<Agente> cargar_agente(int nro)
{
    const Recordset rs(cnRtn, u"select * from SEL_TB_RTN_PADRON where SRTN_NRO=%1"_s.arg(nro));
    if (rs.eof())
        return {};
    const auto texto = [&rs](const char* c) { return fromSQL(rs.texto(c)); };
    return Agente{int(rs.entero("SRTN_NRO")),
                  texto("SRTN_TITULAR_NOMBRE"),
                  texto("SRTN_TITULAR_CUIT"),
                  texto("SRTN_DOMICILIO"),
                  rs.nulo("GLOC_ID") ? std::optional<int>() : int(rs.entero("GLOC_ID")),
                  texto("SRTN_CODPOSTAL"),
                  texto("SRTN_TELEFONO"),
                  texto("SRTN_EMAIL"),
                  texto("SRTN_ADSCRIPTO1_NOMBRE"),
                  texto("SRTN_ADSCRIPTO1_CUIT"),
                  texto("SRTN_ADSCRIPTO2_NOMBRE"),
                  texto("SRTN_ADSCRIPTO2_CUIT")};
}

int borrar_agente(int nro)
{
    return cnRtn.ejecutar(u"delete from SEL_TB_RTN_PADRON where SRTN_NRO=%1"_s.arg(nro));
}

void leer_padron(const AgregarFila& fila)
{
    for (Recordset rs(cnRtn, u"select * from SEL_TB_RTN_PADRON order by SRTN_TITULAR_NOMBRE collate ESPANOL"_s);
         !rs.eof(); rs.siguiente())
        fila({rs.texto("SRTN_NRO"), rs.texto("SRTN_TITULAR_NOMBRE"), rs.texto("SRTN_TITULAR_CUIT")});
}

std::optional<DatosAgenteDJ> datos_agente_dj(int nro)
{
    const Recordset rs(cnRtn, u"select P.*, L.GLOC_DESCRIPCION from SEL_TB_RTN_PADRON P, GLB_TB_LOCALIDADES L"
                              u" where p.SRTN_NRO = %1 and P.GLOC_ID=L.GLOC_ID"_s.arg(nro));
    if (rs.eof())
        return {};
    return DatosAgenteDJ{int(rs.entero("SRTN_NRO")),         rs.texto("SRTN_TITULAR_NOMBRE"),
                         rs.texto("SRTN_TITULAR_CUIT"),      rs.texto("SRTN_DOMICILIO"),
                         rs.texto("SRTN_CODPOSTAL"),         rs.texto("SRTN_TELEFONO"),
                         rs.texto("GLOC_DESCRIPCION"),       rs.texto("SRTN_EMAIL"),
                         rs.texto("SRTN_ADSCRIPTO1_NOMBRE"), rs.texto("SRTN_ADSCRIPTO1_CUIT"),
                         rs.texto("SRTN_ADSCRIPTO2_NOMBRE"), rs.texto("SRTN_ADSCRIPTO2_CUIT"),
                         int(rs.entero("GLOC_ID"))};
}

Entradas agentes_por_nombre(Dialogo& dialogo)
{
    try {
        return leer_entradas(u"select AR.SRTN_NRO, AR.SRTN_TITULAR_NOMBRE  from SEL_TB_RTN_PADRON as AR"
                             u" order by AR.SRTN_TITULAR_NOMBRE collate ESPANOL "_s,
                             "SRTN_TITULAR_NOMBRE", "SRTN_NRO");
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({u"Error al cargar los agentes de retención"_s, {}, Icono::ninguno, detalles_de(e)});
        return {};
    }
}
