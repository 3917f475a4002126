// SPDX-License-Identifier: GPL-3.0-or-later

#include "parties/parte.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "tree/renglon.h"

using namespace Qt::StringLiterals;

namespace {

QString codigo_pais(const QString& entrada)
{
    const auto apertura = entrada.lastIndexOf(u'(');
    return apertura < 0 ? QString() : entrada.mid(apertura + 1, entrada.lastIndexOf(u')') - apertura - 1);
}

QString id_o_null(int id)
{
    return id == 0 ? u"null"_s : QString::number(id);
}

// The assignments of the document's number and the CUIT, which hang on the type.
QString asignar_documento(const ControlesParte& c)
{
    const QString sin_cuit = u", SPIN_CUIT=null"_s;
    if (c.es(u"CUIT") && c.enTramite)
        return u", SPIN_NRODOC=null"_s + sin_cuit;
    // The passport goes as it stands, deliberately.
    if (c.es(u"PASAPORTE"))
        return u", SPIN_NRODOC='"_s + c.pasaporte + u"'"_s + sin_cuit;
    if (c.esCuitOCuil())
        return u", SPIN_NRODOC="_s + c.nroDoc.toSQL() + u", SPIN_CUIT="_s + c.nroDoc.toSQL();
    if (c.es(u"SIN IDENTIFICAR"))
        return u", SPIN_NRODOC=NULL"_s + sin_cuit;
    return u", SPIN_NRODOC='"_s + c.nroDoc.toSQL() + u"'"_s + sin_cuit;
}

}  // namespace

QString nombre_sociedad(const QString& entrada)
{
    return entrada.left(POSICION_DIGITO_CUIT).trimmed();
}

bool es_cuit(const Numero& nro)
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
    if (!(c.es(u"CUIT") && c.enTramite))
        p.nroDoc = c.numero();
    if (c.esCuitOCuil() && !p.nroDoc.isEmpty())
        p.cuit = c.nroDoc.Value();
    p.cuitEnTramite = c.enTramite;
    p.razonSocial = c.razonSocial;
    if (c.exento)
        p.porcExento = c.exencionPorc.Value();
    p.observaciones = c.observaciones;
    if (c.tipoSociedad != 0)
        p.tipoSociedad = c.tipoSociedad;
    p.domicilio = c.domicilio;
    p.codPostal = c.codPostal;
    if (c.localidad != 0)
        p.localidad = c.localidad;
    if (c.provincia != 0)
        p.provincia = c.provincia;
    p.nacionalidad = c.extranjera ? u"E"_s : u"A"_s;
    if (c.extranjera)
        p.codigoPais = codigo_pais(c.codigoPaisTexto);
    return p;
}

void modificar_parte(const ControlesParte& c)
{
    const auto texto = [](const char* columna, const QString& valor) {
        return u", "_s + QLatin1StringView(columna) + u"="_s + texto_o_null(toSQL(valor));
    };
    const QString id = QString::number(c.id);
    cnRtn.ejecutar(u"update SEL_TB_RTN_INS_PARTES set   SPIN_ID="_s + id + u", SEDJ_NRO='"_s + c.dj + u"', SEDD_ID="_s
                   + c.renglon
                   + (c.tipoDoc ? u", GTDC_ID='"_s + QString::number(*c.tipoDoc) + u"'"_s : u", GTDC_ID=null"_s)
                   + asignar_documento(c) + u", SPIN_CUIT_EN_TRAMITE="_s + logico_sql(c.enTramite)
                   + texto("SPIN_RSOCIAL", c.razonSocial) + u", SPIN_PORCEXENTO="_s
                   + (c.exento && !c.exencionPorc.vacio() ? c.exencionPorc.toSQL()
                      : c.exento                          ? u"0"_s
                                                          : u"null"_s)
                   + texto("SPIN_OBS", c.observaciones) + u", GTSO_ID="_s + id_o_null(c.tipoSociedad)
                   + texto("SPIN_DOMICILIO", c.domicilio) + texto("SPIN_CODPOSTAL", c.codPostal) + u", GLOC_ID="_s
                   + id_o_null(c.localidad) + u", GPRO_ID="_s + id_o_null(c.provincia) + u", SPIN_NACIONALIDAD="_s
                   + (c.extranjera ? u"'E'"_s : u"'A'"_s) + u", CPAI_CODIGO="_s
                   + (c.extranjera ? texto_o_null(codigo_pais(c.codigoPaisTexto)) : u"null"_s)
                   + RenglonDJ{c.dj, c.renglon}.donde() + u" and SPIN_ID="_s + id);
}

std::optional<Parte> cargar_parte(const QString& dj, const QString& renglon, int id)
{
    return leer_fila<Parte>(cnRtn,
                            u"select * from SEL_TB_RTN_INS_PARTES "_s + RenglonDJ{dj, renglon}.donde()
                                + u" and SPIN_ID="_s + QString::number(id),
                            columnas_parte());
}
