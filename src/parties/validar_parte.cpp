// SPDX-License-Identifier: GPL-3.0-or-later
// The checks of a party, in their order, and the search for another party of the deed that
// stands for the same person.

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "parties/parte.h"

using namespace Qt::StringLiterals;

namespace {

Falla falla(const char* mensaje, const char* control, Icono icono = Icono::informacion)
{
    return {QString::fromUtf8(mensaje), QString::fromLatin1(control), {}, icono};
}

// The number of an Argentine with CUIT or CUIL: its form, its check digit, its first digit
// against the type of company.
std::optional<Falla> validar_cuit(const ControlesParte& c)
{
    const Falla invalido = falla("El número de CUIT ingresado no es válido", "nroDoc");
    const QString texto = c.nroDoc.toSQL();
    if (texto.size() != 11)
        return invalido;
    const double medio = numero_inicial(texto.mid(2, 8));
    if (medio <= 100 || medio >= 99999999 || !cuit_valido(c.nroDoc))
        return invalido;
    if (numero_inicial(texto.left(1)) == numero_inicial(digito_sociedad(c.tipoSociedadTexto)))
        return {};
    return Falla{
        u"El %1 comenzado con %2 no coincide con el tipo de sociedad seleccionado"_s.arg(c.tipoDocTexto, texto.left(2)),
        u"nroDoc"_s,
        {}};
}

bool fuera_de_rango(const ControlesParte& c)
{
    const QString tipo = c.tipoDocTexto.toUpper();
    if (c.esCuitOCuil() || c.esPasaporte() || tipo.startsWith(u"LC") || tipo.startsWith(u"CI"))
        return false;
    const double n = c.nroDoc.Value();
    return n != 0 && (n < 100000 || n >= 99999999);
}

std::optional<Falla> validar_identidad(const ControlesParte& c)
{
    const bool pasaporte = c.esPasaporte();
    if (c.argentina) {
        if (auto f = primera_falla({
                {!c.tipoSociedad, "Seleccione el tipo de sociedad", "cboTipoSociedad"},
                {!c.tipoDoc, "Ingrese el tipo de documento del participante", "cboTipoDoc"},
                {nombre_sociedad(c.tipoSociedadTexto) != UNIPERSONAL && !c.es(tipo_documento::CUIT),
                 "El tipo de documento no coincide con el tipo de sociedad seleccionado", "cboTipoDoc"},
                {!c.enTramite && c.esCuitOCuil() && c.nroDoc.Value() == 0, "Ingrese el CUIT o CUIL del participante",
                 "nroDoc"},
            }))
            return f;
        if (!c.enTramite && c.esCuitOCuil())
            if (auto f = validar_cuit(c))
                return f;
        if (!c.esCuitOCuil() && !pasaporte && c.nroDoc.Value() == 0)
            return falla("Ingrese el número de documento del participante", "nroDoc");
    }
    if (pasaporte && c.pasaporte.isEmpty())
        return falla("Ingrese Nº de pasaporte del participante", "txtPasaporte");
    if (c.argentina && fuera_de_rango(c))
        return falla("El número de documento no es válido", "nroDoc");
    return {};
}

}  // namespace

std::optional<Falla> validar_parte(ControlesParte& c)
{
    for (QString* texto : {&c.razonSocial, &c.pasaporte, &c.domicilio, &c.observaciones})
        *texto = texto->trimmed();
    if (!c.argentina && !c.extranjera)
        return falla("Indique la nacionalidad del contribuyente", "optArgentina");
    if (auto f = validar_identidad(c))
        return f;
    const double porcentaje = c.exencionPorc.Value();
    return primera_falla({
        {c.extranjera && c.pais < 0, "Ingrese el código pais del participante", "cboCodigoPais"},
        // A party without a type would stand in no list of the deed.
        {!c.tipoDoc, "Ingrese el tipo de documento del participante", "cboTipoDoc"},
        {!c.tipoSociedad, "Ingrese el tipo de sociedad", "cboTipoSociedad"},
        {c.razonSocial.isEmpty(), "Ingrese la denominación/razón social de la parte", "txtRazonSocial"},
        {!c.provinciaTexto.isEmpty() && !c.provincia, "El texto ingresado no es una provincia válida", "cboProv"},
        {!c.localidadTexto.isEmpty() && !c.localidad, "El texto ingresado no es una localidad válida", "cboLoc"},
        {c.es(tipo_documento::CUIT) && c.exento && porcentaje == 0,
         "Ingrese el porcentaje de exención sobre el impuesto de sellos que tiene el participante", "nroExencionPorc"},
        {(c.exentoActivo && c.exento && porcentaje < 0) || porcentaje > 100,
         "El porcentaje de exención ingresado no es válido", "nroExencionPorc", Icono::exclamacion},
        {c.rolActivo && !c.rolElegido, "Seleccione el rol que tiene el participante en el instrumento", "cboRol",
         Icono::exclamacion},
    });
}

namespace {

// The condition that another party stands for the same person, by the type of document.
QString condicion_colision(const ControlesParte& c)
{
    const QString id = c.tipoDoc ? QString::number(*c.tipoDoc) : QString();
    const QString nro = c.numero();
    if (c.esCuitOCuil())
        return u" and (GTDC_ID='%1'  and (SPIN_CUIT=%2 or SPIN_NRODOC='%2'))  "_s.arg(id, nro);
    if (c.es(u"DNI") || c.es(u"LE") || c.es(u"LC"))
        return u" and ( (GTDC_ID='%1' and SPIN_NRODOC='%2')   or  ( mid(trim(str(SPIN_CUIT)),1,1)='2' "
               u"   and substr(mid(trim(str(SPIN_CUIT)),1,10),-8) = '%2') )"_s.arg(id, nro);
    return u" and (SPIN_NRODOC='%1')"_s.arg(toSQL(nro));
}

Mensaje pregunta_colision(const ControlesParte& c, const Recordset& rs)
{
    const QString nro = c.numero();
    const auto igual = [&](const char* que) {
        return Mensaje{u"En la escritura ya existe otro contribuyente con el %1\n\n"
                       u"¿Esta seguro de ingresarlo de todas formas?"_s.arg(QString::fromUtf8(que)),
                       c.titulo, Icono::pregunta};
    };
    if (c.esCuitOCuil() && !rs.nulo("SPIN_CUIT") && numero_sql(rs.real("SPIN_CUIT")) == nro)
        return igual("mismo número de CUIT/CUIL");
    if (c.esPasaporte() && rs.texto("SPIN_NRODOC") == nro)
        return igual("Nº de Pasaporte ingresado");
    if (rs.texto("SPIN_NRODOC") == nro)
        return igual("Nº de Documento ingresado");
    return {u"Hay colisión de CUITs/CUILs/NºDocumento entre las partes del instrumento.\n"
            u"Ya existe otro contribuyente %1 se corresponde con el %2 ingresado\n\n"
            u"¿Desea darlo de alta con el mismo número de todas formas?"_s.arg(
                c.esCuitOCuil() ? u"con Nºde documento que"_s : u"cuyo CUIT/CUIL"_s, c.tipoDocTexto),
            u"Advertencia"_s, Icono::pregunta};
}

}  // namespace

bool verificar_colision_partes(const ControlesParte& c, Dialogo& dialogo)
{
    if (c.enTramite)
        return true;
    try {
        const QString otra = c.operacion == Modo::modificar ? u" and SPIN_ID<>%1"_s.arg(c.id) : QString();
        const Recordset rs(
            cnRtn, u"select *, substr(mid(trim(str(SPIN_CUIT)),1,11),-8) as exp_cuit from SEL_TB_RTN_INS_PARTES "
                   u" where (SEDJ_NRO='%1' and SEDD_ID=%2) %3%4"_s.arg(c.dj, c.renglon, otra, condicion_colision(c)));
        return rs.eof() || dialogo.preguntar(pregunta_colision(c, rs));
    } catch (const ErrorAlmacen& e) {
        dialogo.avisar({e.descripcion, c.titulo, Icono::informacion, e.motor});
        return false;
    }
}
