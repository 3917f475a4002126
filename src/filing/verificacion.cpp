#include "filing/verificacion.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"

#include <QFileInfo>
#include <QStringList>

namespace {

const QString INCOMPLETA = QStringLiteral("La declaración jurada está incompleta.");

// A mistyped number may leave hundreds of millions of them missing: no box holds that list.
constexpr qsizetype MAXIMO_LISTADO = 5000;

// What is missing in the numbers between the first deed and the last; empty when nothing is.
QString huecos(const QString& nro)
{
    QStringList faltan;
    Recordset rs(cnRtn, QStringLiteral(" select SEDD_ESCRITURA_NRO from SEL_TB_RTN_DETDJ ") + QStringLiteral(" where SEDJ_NRO='") + nro
                            + QStringLiteral("' ") + QStringLiteral(" and SEDD_ESTADO<>'E' ") + QStringLiteral(" order by SEDD_ESCRITURA_NRO"));
    if (rs.eof())
        return {};
    for (qint64 anterior = rs.entero(0); !rs.eof(); rs.siguiente()) {
        const qint64 actual = rs.entero(0);
        for (qint64 n = anterior + 1; n < actual && faltan.size() < MAXIMO_LISTADO; ++n)
            faltan << QString::number(n);
        anterior = actual;
    }
    if (faltan.size() == MAXIMO_LISTADO)
        faltan << QStringLiteral("...");
    return faltan.isEmpty() ? QString() : INCOMPLETA + QStringLiteral("\nFaltan declarar las escrituras Nº: ") + faltan.join(QStringLiteral(", "));
}

QString sin_operacion(const QString& nro)
{
    const Recordset rs(cnRtn, QStringLiteral(" select * from SEL_TB_RTN_DETDJ as D ") + QStringLiteral(" where  SEDJ_NRO='") + nro
                                  + QStringLiteral("' ") + QStringLiteral(" and SEDD_ALCANZADO='S' and SEDD_ESTADO='P' ")
                                  + QStringLiteral(" and not exists ( select * from SEL_TB_RTN_INS_OPERACIONES as O ")
                                  + QStringLiteral(" where D.SEDJ_NRO=O.SEDJ_NRO and D.SEDD_ID=O.SEDD_ID) "));
    return rs.eof() ? QString()
                    : INCOMPLETA + QStringLiteral("\nHay escrituras alcanzadas no anuladas a las cuales les falta cargar la operación.");
}

QString sin_testimonio(const QString& nro)
{
    Recordset rs(cnRtn, QStringLiteral(" select SEDD_ID, SEDD_ESCRITURA_NRO, SEDD_FNAME_TESTIMONIO, REQUIERE_TESTIMONIO")
                            + QStringLiteral(" from SEL_VW_DJ_DETALLE ") + QStringLiteral("  where SEDJ_NRO='") + nro
                            + QStringLiteral("'  and  SEDD_ESTADO='P' ") + QStringLiteral("  order by SEDD_ESCRITURA_NRO "));
    QStringList sin_archivo;
    QStringList no_existe;
    // The deed with the lowest number is never looked at; the skip is deliberate.
    if (!rs.eof())
        rs.siguiente();
    for (; !rs.eof(); rs.siguiente()) {
        if (rs.entero(3) == 0)
            continue;
        const QString archivo = fromSQL(rs.texto(2).trimmed());
        if (archivo.isEmpty())
            sin_archivo << rs.texto(1);
        else if (!QFileInfo(archivo).isFile())
            no_existe << rs.texto(1);
    }
    if (sin_archivo.isEmpty() && no_existe.isEmpty())
        return {};
    const QString coma = QStringLiteral(", ");
    return INCOMPLETA + QStringLiteral(" Faltan testimonios\n\n")
        + (sin_archivo.isEmpty() ? QString() : QStringLiteral("Escrituras que no tienen archivo: ") + sin_archivo.join(coma) + QStringLiteral("\n\n"))
        + (no_existe.isEmpty() ? QString() : QStringLiteral("Escrituras cuyo archivo no existe: ") + no_existe.join(coma));
}

}  // namespace

bool verificar_dj_completa(const QString& nro, const QString& tituloVentana, Dialogo& dialogo)
{
    try {
        for (QString (*revisar)(const QString&) : {huecos, sin_operacion, sin_testimonio}) {
            const QString falta = revisar(nro);
            if (falta.isEmpty())
                continue;
            dialogo.avisar({falta, tituloVentana + QStringLiteral(" - DJ incompleta"), Icono::informacion});
            return false;
        }
    } catch (const ErrorAlmacen& e) {
        // The emission deliberately goes on after an error.
        dialogo.avisar({e.descripcion, QStringLiteral("Verificar DJ completa"), Icono::informacion});
    }
    return true;
}
