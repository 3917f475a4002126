// SPDX-License-Identifier: GPL-3.0-or-later
// The checks that stand before a deed is stored, in their order.

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "deeds/escritura.h"
#include "filing/carpetas_dj.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct Vecina
{
    qint64 nro = 0;
    qint64 folio = 0;
    int dia = 0;
};

enum class Solape { ninguno, numero, folio, dia };

// The first stored deed that the new one clashes with, in the order of their numbers. ERROSE
// deeds do not count. A failed read leaves no answer.
std::optional<Solape> buscar_solape(const ControlesEscritura& c, Vecina& v)
{
    const auto N = qint64(numero_inicial(c.nro));
    const auto F = qint64(numero_inicial(c.folio));
    const auto D = int(c.dia.Value());
    try {
        for (Recordset rs(
                 cnRtn,
                 u" select SEDD_ID, SEDD_DIA, SEDD_ESCRITURA_NRO, SEDD_FOLIO,  SEDD_DIA, SEDD_ESTADO, SEDD_ALCANZADO "
                 u" from SEL_TB_RTN_DETDJ  where SEDJ_NRO='%1' and SEDD_ESTADO<>'E' order by SEDD_ESCRITURA_NRO "_s.arg(
                     c.dj));
             !rs.eof(); rs.siguiente()) {
            if (c.operacion == Modo::modificar && rs.texto("SEDD_ID") == c.renglon)
                continue;
            v = {rs.entero("SEDD_ESCRITURA_NRO"), rs.entero("SEDD_FOLIO"), int(rs.entero("SEDD_DIA"))};
            if (v.nro == N)
                return Solape::numero;
            if (N > v.nro && v.folio >= F)
                return Solape::folio;
            if (N > v.nro && v.folio < F && D < v.dia)
                return Solape::dia;
        }
    } catch (const ErrorAlmacen&) {
        return {};
    }
    return Solape::ninguno;
}

bool verificar_solapamiento(ControlesEscritura& c, Dialogo& dialogo, QString& foco)
{
    Vecina v;
    const auto solape = buscar_solape(c, v);
    if (!solape)
        return false;
    if (*solape == Solape::ninguno || c.anulada())
        return true;
    const QString nro = QString::number(v.nro);
    const QString folio = QString::number(v.folio);
    const QString dia = QString::number(v.dia);
    // "del dia" in one message and "del día" in the other are both the system's own.
    if (*solape == Solape::dia) {
        dialogo.avisar({u"Atención: El día se solapa con una escritura anterior\n"
                        u"Existe una escritura Nº %1 Folio %2 del día %3\n\n"_s.arg(nro, folio, dia),
                        c.titulo, Icono::informacion});
        foco = u"nroDia"_s;
        return false;
    }
    const bool mismo = *solape == Solape::numero;
    const QString pregunta = u"Atención: Se solapa el Nº %1\n"
                             u"Existe una escritura Nº %2 con folio %3 del dia %4\n\n"
                             u"Desea cargar un ERROSE para %5?"_s.arg(
                                 mismo ? u"Escritura"_s : u"Folio"_s, nro, folio, dia,
                                 mismo ? u"la escritura "_s + nro : u"el folio "_s + folio);
    const bool errose = dialogo.preguntar({pregunta, u"Duplicación de números"_s, Icono::pregunta});
    if (!errose)
        return false;
    c.estado = int(EstadoEscritura::errose);
    foco = mismo ? u"txtNroEscritura"_s : u"txtFolio"_s;
    return true;
}

// A file belongs to one deed of a DJ only.
bool verificar_testimonio_unico(const ControlesEscritura& c, Dialogo& dialogo)
{
    try {
        const QString otra = c.operacion == Modo::modificar ? u" and SEDD_ID<>%1"_s.arg(c.renglon) : QString();
        // An older store may hold the apostrophes of a path doubled.
        const QString archivo = toSQL(c.testimonio);
        const QString doblado = toSQL(c.testimonio).replace(u"'"_s, u"''"_s);
        const Recordset rs(cnRtn, u" select SEDD_ID, SEDD_ESCRITURA_NRO, SEDD_DIA  from SEL_TB_RTN_DETDJ "
                                  u" where SEDJ_NRO='%1' and SEDD_FNAME_TESTIMONIO in ('%2', '%3')%4"_s.arg(
                                      c.dj, archivo, doblado, otra));
        if (rs.eof())
            return true;
        dialogo.avisar({u"Atención: El archivo ya fue asociado a la escritura Nº %1 del dia %2"_s.arg(
                            rs.texto("SEDD_ESCRITURA_NRO"), rs.texto("SEDD_DIA")),
                        u"Testimonio"_s, Icono::informacion});
    } catch (const ErrorAlmacen&) {
        return false;
    }
    return false;
}

bool dia_del_mes(const ControlesEscritura& c)
{
    const int dia = int(c.dia.Value());
    return dia >= 1 && dia <= QDate(c.anio, c.mes, 1).daysInMonth();
}

// The checks that only look at the fields, up to the one against the other deeds.
std::optional<Falla> falta_en_campos(const ControlesEscritura& c)
{
    return primera_falla({
        {c.nro.isEmpty(), "Ingrese el Nº Escritura", "txtNroEscritura"},
        {c.folio.isEmpty(), "Ingrese el Folio", "txtFolio"},
        {c.dia.vacio() || c.dia.Value() == 0, "Ingrese el día", "nroDia"},
        {!dia_del_mes(c), "El día ingresado no es válido", "nroDia"},
        {c.estado < 0, "Indique el estado de la escritura", "cboDET_Estado"},
    });
}

std::optional<Falla> falta_motivo(const ControlesEscritura& c)
{
    const bool otro = es_otro_motivo(c.motivoTexto);
    return primera_falla({
        {c.noAlcanzado() && !c.motivo, "Seleccione la descripcion de la operación No Alcanzada", "cboDesc_NoAlcanzado"},
        {c.noAlcanzado() && otro && c.motivoOtro.isEmpty() && c.motivoOtroActivo,
         "Ingrese la descripcion de la operación No Alcanzada", "txtNoAlcanzado_Otro"},
    });
}

}  // namespace

ResultadoEscritura validar_escritura(ControlesEscritura& c, Dialogo& dialogo)
{
    for (QString* texto : {&c.nro, &c.folio, &c.observaciones, &c.motivoOtro})
        *texto = texto->trimmed();
    c.testimonio = c.anulada() ? QString() : c.testimonio.trimmed();

    const auto tropiezo = [&](const Falla& f) {
        dialogo.avisar({f.mensaje, c.titulo, f.icono});
        return ResultadoEscritura{false, f.control};
    };
    if (const auto falla = falta_en_campos(c))
        return tropiezo(*falla);
    QString foco;
    if (!verificar_solapamiento(c, dialogo, foco))
        return {false, foco};
    if (const auto falla = falta_motivo(c))
        return tropiezo(*falla);
    if (c.anulada())
        return {true, foco};

    const QString campo = u"txtTestimonio"_s;
    if (c.testimonio.isEmpty()) {
        if (!requiere_testimonio(c)
            || dialogo.preguntar(
                {u"Falta el archivo del testimonio. ¿Desea ingresarlo mas tarde?"_s, c.titulo, Icono::pregunta}))
            return {true, foco};
        return {false, campo};
    }
    if (!QFileInfo(c.testimonio).isFile())
        return tropiezo(
            {u"El archivo del testimonio no existe. \nVerifique que el nombre de archivo sea correcto."_s, campo, {}});
    if (QFileInfo(c.testimonio).canonicalPath() == QFileInfo(carpeta_testimonios(c.dj)).canonicalFilePath())
        return tropiezo({u"El archivo es una copia hecha al emitir esta DJ, y la próxima emisión la borra. \n"
                         u"Elija el archivo original."_s,
                         campo,
                         {}});
    return verificar_testimonio_unico(c, dialogo) ? ResultadoEscritura{true, foco} : ResultadoEscritura{false, campo};
}
