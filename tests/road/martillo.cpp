// martillo STORE: writes DJs, deeds and totals without end; prints each step once it is confirmed.

#include "core/modGlobales.h"
#include "declarations/copiar_dj.h"
#include "declarations/lista_dj.h"
#include "declarations/modABM_dj.h"
#include "declarations/renglones.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

class Callado : public Dialogo
{
    void avisar(const Mensaje&) override {}
    bool preguntar(const Mensaje&) override { return true; }
};

void confirmado(const char* que, const QString& cual)
{
    std::printf("%s %s\n", que, qUtf8Printable(cual));
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    cnRtn.abrir(QString::fromLocal8Bit(argv[1]), clave_almacen());
    Callado callado;
    const Recordset rs(cnRtn, QStringLiteral("select count(*) from SEL_TB_RTN_CABDJ"));
    for (int n = int(rs.entero(0)) + 1;; ++n) {
        CabeceraDJ dj;
        dj.nro = QStringLiteral("%1").arg(n, 15, 10, QLatin1Char('0')) + QStringLiteral("00");
        dj.titular = QStringLiteral("T");
        if (!alta_cabecera_dj(dj, callado))
            continue;
        confirmado("dj", dj.nro);
        Escritura e;
        e.dj = dj.nro;
        e.estado = QStringLiteral("P");
        e.alcanzado = QStringLiteral("S");
        for (int i = 0; i < 3; ++i)
            if (alta_detalle_dj(e, true, callado))
                confirmado("renglon", dj.nro + u' ' + QString::number(e.id));
        const QString copia = copiar_dj(dj.nro, callado);
        confirmado("copia", copia);
        if (borrar_renglon(dj.nro, 2, 0, callado))
            confirmado("menos", dj.nro);
    }
}
