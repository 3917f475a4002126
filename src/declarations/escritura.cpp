#include "declarations/escritura.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

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

QString donde_renglon(const QString& dj, const QString& renglon)
{
    return QStringLiteral(" where SEDJ_NRO='") + dj + QStringLiteral("' and SEDD_ID=") + renglon;
}

bool requiere_testimonio(const ControlesEscritura& c)
{
    if (!c.noAlcanzado()) {
        if (c.renglon.isEmpty())
            return true;
        const Recordset rs(cnRtn, QStringLiteral(" select SSUB_TESTIMONIO from SEL_TB_SUBCONCEPTOS as S inner join SEL_TB_RTN_INS_OPERACIONES as O ")
                                      + QStringLiteral(" on S.SSUB_ID=O.SSUB_ID ") + QStringLiteral(" where O.SEDJ_NRO='") + c.dj
                                      + QStringLiteral("' and SEDD_ID=") + c.renglon + QStringLiteral(" order by O.SEDO_ID"));
        return rs.eof() || rs.entero(0) != 0;
    }
    const Recordset rs(cnRtn, QStringLiteral("select SNAD_TESTIMONIO from SEL_TB_NO_ALCANZADOS_DESC where SNAD_ID=") + QString::number(c.motivo));
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
    e.alcanzado = c.noAlcanzado() ? QStringLiteral("N") : QStringLiteral("S");
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
    return cnRtn.ejecutar(QStringLiteral("update SEL_TB_RTN_DETDJ set ") + QStringLiteral(" SEDD_DIA=") + c.dia.toSQL()
                          + QStringLiteral(", SEDD_ESCRITURA_NRO=") + c.nro + QStringLiteral(", SEDD_FOLIO=") + c.folio
                          + QStringLiteral(", SEDD_TOTAL_IMPUESTO=") + c.totalImpuesto.toSQL() + QStringLiteral(", SEDD_OBSERVACIONES=")
                          + texto_o_null(c.observaciones) + QStringLiteral(", SEDD_ESTADO='") + letra_estado(c.estado) + QStringLiteral("'")
                          + QStringLiteral(", SEDD_ALCANZADO=") + (c.noAlcanzado() ? QStringLiteral("'N'") : QStringLiteral("'S'"))
                          + (c.noAlcanzado() ? QStringLiteral(", SNAD_ID=") + QString::number(c.motivo) : QStringLiteral(", SNAD_ID=null"))
                          + QStringLiteral(", SNAD_DESC_OTRO=") + (otro ? entre_comillas(toSQL(c.motivoOtro)) : QStringLiteral("null"))
                          + (con_testimonio ? QStringLiteral(", SEDD_FNAME_TESTIMONIO='") + toSQL(c.testimonio) + QStringLiteral("'")
                                            : QStringLiteral(", SEDD_FNAME_TESTIMONIO=null"))
                          + donde_renglon(c.dj, c.renglon));
}

std::optional<Escritura> cargar_escritura(const QString& dj, int renglon)
{
    auto e = leer_fila<Escritura>(cnRtn, QStringLiteral("select * from SEL_TB_RTN_DETDJ ") + donde_renglon(dj, QString::number(renglon)),
                                  columnas_escritura());
    if (e)
        e->testimonio = fromSQL(e->testimonio);
    return e;
}
