// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/escritura.h"

#include "core/asignaciones.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int POSICION_LETRA = 50;

struct Estado
{
    const char* titulo;
    const char* letra;
};
constexpr Estado ESTADOS[] = {{"PASO", "P"}, {"ANULADA/ERROSE", "E"}, {"ANULADA/NO PASO", "N"}};

}  // namespace

QStringList lista_estados()
{
    QStringList lista;
    for (const Estado& e : ESTADOS)
        lista << QString::fromLatin1(e.titulo).leftJustified(POSICION_LETRA) + QLatin1String(e.letra);
    return lista;
}

QString letra_estado(int indice)
{
    return lista_estados().value(indice).mid(POSICION_LETRA, 1);
}

Entradas motivos_no_alcanzado()
{
    return leer_entradas(u"select * from SEL_TB_NO_ALCANZADOS_DESC order by SNAD_ORDEN"_s, "SNAD_DESCRIPCION",
                         "SNAD_ID");
}

bool es_otro_motivo(const QString& motivo)
{
    return motivo.toUpper() == u"OTRO";
}

bool requiere_testimonio(const ControlesEscritura& c)
{
    if (!c.noAlcanzado()) {
        if (c.renglon.isEmpty())
            return true;
        const Recordset rs(
            cnRtn,
            u" select SSUB_TESTIMONIO from SEL_TB_SUBCONCEPTOS as S inner join SEL_TB_RTN_INS_OPERACIONES as O "
            u" on S.SSUB_ID=O.SSUB_ID  where O.SEDJ_NRO='%1' and SEDD_ID=%2 order by O.SEDO_ID"_s.arg(c.dj, c.renglon));
        return rs.eof() || rs.entero(0) != 0;
    }
    const Recordset rs(
        cnRtn, u"select SNAD_TESTIMONIO from SEL_TB_NO_ALCANZADOS_DESC where SNAD_ID=%1"_s.arg(c.motivo.value_or(0)));
    return !rs.eof() && rs.entero(0) != 0;
}

Escritura escritura_nueva(const ControlesEscritura& c)
{
    Escritura e;
    e.dj = c.dj;
    e.dia = int(c.dia.Value());
    e.nro = c.nro.toLongLong();
    e.folio = c.folio.toLongLong();
    e.totalImpuesto = c.totalImpuesto.Value();
    e.observaciones = c.observaciones;
    e.estado = letra_estado(c.estado);
    e.alcanzado = c.noAlcanzado() ? u"N"_s : u"S"_s;
    if (c.noAlcanzado())
        e.motivo = c.motivo;
    if (c.noAlcanzado() && c.motivoOtroActivo)
        e.motivoOtro = c.motivoOtro;
    if (!c.anulada())
        e.testimonio = c.testimonio;
    return e;
}

int actualizar_escritura(const ControlesEscritura& c)
{
    const bool otro = c.noAlcanzado() && c.motivoOtroActivo && es_otro_motivo(c.motivoTexto);
    const bool con_testimonio = !c.anulada() && !c.testimonio.isEmpty();
    const QString columnas = asignar_sql({
        {"SEDD_DIA", c.dia.toSQL()},
        {"SEDD_ESCRITURA_NRO", c.nro},
        {"SEDD_FOLIO", c.folio},
        {"SEDD_TOTAL_IMPUESTO", c.totalImpuesto.toSQL()},
        // The remark goes as it stands, deliberately; the form takes no apostrophe in it.
        {"SEDD_OBSERVACIONES", texto_o_null(c.observaciones)},
        {"SEDD_ESTADO", entre_comillas(letra_estado(c.estado))},
        {"SEDD_ALCANZADO", c.noAlcanzado() ? u"'N'"_s : u"'S'"_s},
        {"SNAD_ID", c.noAlcanzado() ? QString::number(c.motivo.value_or(0)) : u"null"_s},
        {"SNAD_DESC_OTRO", otro ? entre_comillas(toSQL(c.motivoOtro)) : u"null"_s},
        {"SEDD_FNAME_TESTIMONIO", con_testimonio ? entre_comillas(toSQL(c.testimonio)) : u"null"_s},
    });
    return cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set  %1%2"_s.arg(columnas, RenglonDJ{c.dj, c.renglon}.donde()));
}

void anular_escritura(const RenglonDJ& r, const QString& estado)
{
    cnRtn.ejecutar(
        u"update SEL_TB_RTN_DETDJ set  SEDD_ESTADO='%1', SEDD_FNAME_TESTIMONIO=NULL %2"_s.arg(estado, r.donde()));
}

void desanular_escritura(const RenglonDJ& r, const QString& impuesto)
{
    cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set  SEDD_ESTADO='P'%1"_s.arg(r.donde()));
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set  SEDJ_TOTAL_RETENIDO=SEDJ_TOTAL_RETENIDO+%1 where SEDJ_NRO='%2'"_s.arg(
        impuesto, r.dj));
}

std::optional<Escritura> cargar_escritura(const QString& dj, int renglon)
{
    auto e = leer_fila<Escritura>(
        cnRtn, u"select * from SEL_TB_RTN_DETDJ %1"_s.arg(RenglonDJ{dj, QString::number(renglon)}.donde()),
        columnas_escritura());
    if (e)
        e->testimonio = fromSQL(e->testimonio);
    return e;
}
