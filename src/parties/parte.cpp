// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/parte.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "tree/renglon.h"

using namespace Qt::StringLiterals;

namespace {

QString id_o_null(std::optional<int> id)
{
    return id ? QString::number(*id) : u"null"_s;
}

// The document's number and the CUIT as the update takes them; they hang on the type.
struct DocumentoSQL
{
    QString nroDoc;
    QString cuit = u"null"_s;
};
DocumentoSQL documento_sql(const ControlesParte& c)
{
    if (c.es(tipo_documento::CUIT) && c.enTramite)
        return {u"null"_s};
    if (c.esPasaporte())
        return {entre_comillas(toSQL(c.pasaporte))};
    if (c.esCuitOCuil())
        return {c.nroDoc.toSQL(), c.nroDoc.toSQL()};
    if (c.es(tipo_documento::SIN_IDENTIFICAR))
        return {u"NULL"_s};
    return {entre_comillas(c.nroDoc.toSQL())};
}

QString exencion_sql(const ControlesParte& c)
{
    return c.exento ? sql_o_cero(c.exencionPorc) : u"null"_s;
}

}  // namespace

bool cuit_valido(const Numero& nro)
{
    QString texto = nro.toSQL();
    return cuit_valido(texto);
}

Parte parte_de(const ControlesParte& c)
{
    Parte p;
    p.id = c.id;
    p.dj = c.dj;
    p.renglon = c.renglon.toInt();
    if (c.tipoDoc)
        p.tipoDoc = QString::number(*c.tipoDoc);
    if (!(c.es(tipo_documento::CUIT) && c.enTramite))
        p.nroDoc = c.numero();
    if (c.esCuitOCuil() && !p.nroDoc.isEmpty())
        p.cuit = c.nroDoc.Value();
    p.cuitEnTramite = c.enTramite;
    p.razonSocial = c.razonSocial;
    if (c.exento)
        p.porcExento = c.exencionPorc.Value();
    p.observaciones = c.observaciones;
    p.tipoSociedad = c.tipoSociedad;
    p.domicilio = c.domicilio;
    p.codPostal = c.codPostal;
    p.localidad = c.localidad;
    p.provincia = c.provincia;
    p.nacionalidad = c.extranjera ? u"E"_s : u"A"_s;
    if (c.extranjera)
        p.codigoPais = codigo_pais(c.paisTexto);
    return p;
}

void modificar_parte(const ControlesParte& c)
{
    const QString id = QString::number(c.id);
    const DocumentoSQL documento = documento_sql(c);
    const QString columnas = asignar_sql({
        {"SPIN_ID", id},
        {"SEDJ_NRO", entre_comillas(c.dj)},
        {"SEDD_ID", c.renglon},
        {"GTDC_ID", c.tipoDoc ? entre_comillas(QString::number(*c.tipoDoc)) : u"null"_s},
        {"SPIN_NRODOC", documento.nroDoc},
        {"SPIN_CUIT", documento.cuit},
        {"SPIN_CUIT_EN_TRAMITE", logico_sql(c.enTramite)},
        {"SPIN_RSOCIAL", texto_o_null(toSQL(c.razonSocial))},
        {"SPIN_PORCEXENTO", exencion_sql(c)},
        {"SPIN_OBS", texto_o_null(toSQL(c.observaciones))},
        {"GTSO_ID", id_o_null(c.tipoSociedad)},
        {"SPIN_DOMICILIO", texto_o_null(toSQL(c.domicilio))},
        {"SPIN_CODPOSTAL", texto_o_null(toSQL(c.codPostal))},
        {"GLOC_ID", id_o_null(c.localidad)},
        {"GPRO_ID", id_o_null(c.provincia)},
        {"SPIN_NACIONALIDAD", c.extranjera ? u"'E'"_s : u"'A'"_s},
        {"CPAI_CODIGO", c.extranjera ? texto_o_null(codigo_pais(c.paisTexto)) : u"null"_s},
    });
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_PARTES set   %1%2 and SPIN_ID=%3"_s.arg(
        columnas, RenglonDJ{c.dj, c.renglon}.donde(), id));
}

std::optional<Parte> cargar_parte(const QString& dj, const QString& renglon, int id)
{
    return leer_fila<Parte>(cnRtn,
                            u"select * from SEL_TB_RTN_INS_PARTES %1 and SPIN_ID=%2"_s.arg(
                                RenglonDJ{dj, renglon}.donde(), QString::number(id)),
                            columnas_parte());
}
