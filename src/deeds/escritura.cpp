// SPDX-License-Identifier: GPL-3.0-or-later

#include "deeds/escritura.h"

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

bool requiere_testimonio(const ControlesEscritura& c)
{
    if (!c.noAlcanzado()) {
        if (c.renglon.isEmpty())
            return true;
        const Recordset rs(
            cnRtn, u" select SSUB_TESTIMONIO from SEL_TB_SUBCONCEPTOS as S inner join SEL_TB_RTN_INS_OPERACIONES as O "
                   u" on S.SSUB_ID=O.SSUB_ID  where O.SEDJ_NRO='"_s
                       + c.dj + u"' and SEDD_ID="_s + c.renglon + u" order by O.SEDO_ID"_s);
        return rs.eof() || rs.entero(0) != 0;
    }
    const Recordset rs(cnRtn, u"select SNAD_TESTIMONIO from SEL_TB_NO_ALCANZADOS_DESC where SNAD_ID="_s
                                  + QString::number(c.motivo));
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
    if (c.noAlcanzado() && c.motivo != 0)
        e.motivo = c.motivo;
    if (c.noAlcanzado() && c.motivoOtroActivo)
        e.motivoOtro = c.motivoOtro;
    if (!c.anulada())
        e.testimonio = toSQL(c.testimonio);
    return e;
}

int actualizar_escritura(const ControlesEscritura& c)
{
    const bool otro = c.noAlcanzado() && c.motivoOtroActivo && c.motivoTexto.toUpper() == u"OTRO";
    const bool con_testimonio = !c.anulada() && !c.testimonio.isEmpty();
    // The remark goes as it stands: an apostrophe in it breaks the statement, which is deliberate.
    return cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set  SEDD_DIA="_s + c.dia.toSQL() + u", SEDD_ESCRITURA_NRO="_s
                          + c.nro + u", SEDD_FOLIO="_s + c.folio + u", SEDD_TOTAL_IMPUESTO="_s + c.totalImpuesto.toSQL()
                          + u", SEDD_OBSERVACIONES="_s + texto_o_null(c.observaciones) + u", SEDD_ESTADO='"_s
                          + letra_estado(c.estado) + u"', SEDD_ALCANZADO="_s + (c.noAlcanzado() ? u"'N'"_s : u"'S'"_s)
                          + (c.noAlcanzado() ? u", SNAD_ID="_s + QString::number(c.motivo) : u", SNAD_ID=null"_s)
                          + u", SNAD_DESC_OTRO="_s + (otro ? entre_comillas(toSQL(c.motivoOtro)) : u"null"_s)
                          + (con_testimonio ? u", SEDD_FNAME_TESTIMONIO='"_s + toSQL(c.testimonio) + u"'"_s
                                            : u", SEDD_FNAME_TESTIMONIO=null"_s)
                          + RenglonDJ{c.dj, c.renglon}.donde());
}

void anular_escritura(const RenglonDJ& r, const QString& estado)
{
    cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set  SEDD_ESTADO='%1', SEDD_FNAME_TESTIMONIO=NULL "_s.arg(estado)
                   + r.donde());
}

void desanular_escritura(const RenglonDJ& r, const QString& impuesto)
{
    cnRtn.ejecutar(u"update SEL_TB_RTN_DETDJ set  SEDD_ESTADO='P'"_s + r.donde());
    cnRtn.ejecutar(u"update SEL_TB_RTN_CABDJ set  SEDJ_TOTAL_RETENIDO=SEDJ_TOTAL_RETENIDO+%1 where SEDJ_NRO='%2'"_s.arg(
        impuesto, r.dj));
}

std::optional<Escritura> cargar_escritura(const QString& dj, int renglon)
{
    auto e = leer_fila<Escritura>(
        cnRtn, u"select * from SEL_TB_RTN_DETDJ "_s + RenglonDJ{dj, QString::number(renglon)}.donde(),
        columnas_escritura());
    if (e)
        e->testimonio = fromSQL(e->testimonio);
    return e;
}
