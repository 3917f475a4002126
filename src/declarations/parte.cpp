#include "declarations/parte.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "declarations/escritura.h"

namespace {

QString codigo_pais(const QString& entrada)
{
    const auto apertura = entrada.lastIndexOf(u'(');
    return apertura < 0 ? QString() : entrada.mid(apertura + 1, entrada.lastIndexOf(u')') - apertura - 1);
}

QString id_o_null(int id)
{
    return id == 0 ? QStringLiteral("null") : QString::number(id);
}

// The assignments of the document's number and the CUIT, which hang on the type.
QString asignar_documento(const ControlesParte& c)
{
    const QString sin_cuit = QStringLiteral(", SPIN_CUIT=null");
    if (c.es(u"CUIT") && c.enTramite)
        return QStringLiteral(", SPIN_NRODOC=null") + sin_cuit;
    // The passport goes as it stands, deliberately.
    if (c.es(u"PASAPORTE"))
        return QStringLiteral(", SPIN_NRODOC='") + c.pasaporte + QStringLiteral("'") + sin_cuit;
    if (c.esCuitOCuil())
        return QStringLiteral(", SPIN_NRODOC=") + c.nroDoc.toSQL() + QStringLiteral(", SPIN_CUIT=") + c.nroDoc.toSQL();
    if (c.es(u"SIN IDENTIFICAR"))
        return QStringLiteral(", SPIN_NRODOC=NULL") + sin_cuit;
    return QStringLiteral(", SPIN_NRODOC='") + c.nroDoc.toSQL() + QStringLiteral("'") + sin_cuit;
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
    p.nacionalidad = c.extranjera ? QStringLiteral("E") : QStringLiteral("A");
    if (c.extranjera)
        p.codigoPais = codigo_pais(c.codigoPaisTexto);
    return p;
}

void modificar_parte(const ControlesParte& c)
{
    const auto texto = [](const char* columna, const QString& valor) {
        return QStringLiteral(", ") + QLatin1StringView(columna) + QStringLiteral("=") + texto_o_null(toSQL(valor));
    };
    const QString id = QString::number(c.id);
    cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_INS_PARTES set ") + QStringLiteral("  SPIN_ID=") + id + QStringLiteral(", SEDJ_NRO='") + c.dj
                   + QStringLiteral("'") + QStringLiteral(", SEDD_ID=") + c.renglon
                   + (c.tipoDoc ? QStringLiteral(", GTDC_ID='") + QString::number(*c.tipoDoc) + QStringLiteral("'") : QStringLiteral(", GTDC_ID=null"))
                   + asignar_documento(c) + QStringLiteral(", SPIN_CUIT_EN_TRAMITE=") + logico_sql(c.enTramite)
                   + texto("SPIN_RSOCIAL", c.razonSocial) + QStringLiteral(", SPIN_PORCEXENTO=")
                   + (c.exento && !c.exencionPorc.vacio() ? c.exencionPorc.toSQL() : c.exento ? QStringLiteral("0") : QStringLiteral("null"))
                   + texto("SPIN_OBS", c.observaciones) + QStringLiteral(", GTSO_ID=") + id_o_null(c.tipoSociedad)
                   + texto("SPIN_DOMICILIO", c.domicilio) + texto("SPIN_CODPOSTAL", c.codPostal) + QStringLiteral(", GLOC_ID=")
                   + id_o_null(c.localidad) + QStringLiteral(", GPRO_ID=") + id_o_null(c.provincia) + QStringLiteral(", SPIN_NACIONALIDAD=")
                   + (c.extranjera ? QStringLiteral("'E'") : QStringLiteral("'A'")) + QStringLiteral(", CPAI_CODIGO=")
                   + (c.extranjera ? texto_o_null(codigo_pais(c.codigoPaisTexto)) : QStringLiteral("null")) + donde_renglon(c.dj, c.renglon)
                   + QStringLiteral(" and SPIN_ID=") + id);
}

std::optional<Parte> cargar_parte(const QString& dj, const QString& renglon, int id)
{
    return leer_fila<Parte>(cnRtn, QStringLiteral("select * from SEL_TB_RTN_INS_PARTES ") + donde_renglon(dj, renglon)
                                       + QStringLiteral(" and SPIN_ID=") + QString::number(id),
                            columnas_parte());
}
