// SPDX-License-Identifier: GPL-3.0-or-later
// martillo STORE: writes DJs, deeds and totals without end; prints each step once it is confirmed.

#include "core/modGlobales.h"
#include "declarations/copiar_dj.h"
#include "declarations/lista_dj.h"
#include "declarations/renglones.h"
#include "system/sistema.h"
#include "tree/modABM_dj.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

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
    sistema::preparar_salidas();
    cnRtn.abrir(QString::fromLocal8Bit(argv[1]), clave_almacen());
    Callado callado;
    const Recordset rs(cnRtn, u"select count(*) from SEL_TB_RTN_CABDJ"_s);
    for (int n = int(rs.entero(0)) + 1;; ++n) {
        CabeceraDJ dj;
        dj.nro = u"%1"_s.arg(n, 15, 10, QLatin1Char('0')) + u"00"_s;
        dj.titular = u"T"_s;
        if (!alta_cabecera_dj(dj, callado))
            continue;
        confirmado("dj", dj.nro);
        Escritura e;
        e.dj = dj.nro;
        e.estado = u"P"_s;
        e.alcanzado = u"S"_s;
        for (int i = 0; i < 3; ++i)
            if (alta_detalle_dj(e, true, callado))
                confirmado("renglon", dj.nro + u' ' + QString::number(e.id));
        const QString copia = copiar_dj(dj.nro, callado);
        confirmado("copia", copia);
        if (borrar_renglon(dj.nro, 2, 0, callado))
            confirmado("menos", dj.nro);
    }
}
