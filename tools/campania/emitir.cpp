// SPDX-License-Identifier: GPL-3.0-or-later
// emitir PROGRAM_FOLDER DJ FOLDER: emits a DJ as its button does, saving into a folder. Prints what the user is
// told; 0 when the DJ was emitted, 1 when a failure was told, 3 when the program would end for a lost store.

#include "core/modGlobales.h"
#include "filing/archivo_dj.h"
#include "filing/empaquetado.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int EMITIDA = 0;
constexpr int FALLO_DICHO = 1;
constexpr int ALMACEN_PERDIDO = 3;

void decir(const QString& texto)
{
    std::printf("%s\n", qUtf8Printable(texto));
}

class Impreso : public Dialogo
{
    void avisar(const Mensaje& m) override { decir(m.texto + u'\n' + m.detalles); }
    bool preguntar(const Mensaje&) override { return true; }
};

int emitir(const QString& dj, const QString& carpeta)
{
    const EmisionArchivo emision = generar_archivo_dj(dj);
    if (emision.codigo.isEmpty()) {
        decir(emision.motivo);
        return FALLO_DICHO;
    }
    Impreso impreso;
    const auto pedir = [&carpeta](const QString&) { return QString(carpeta + u"/x.rar"_s); };
    return comprimir_dj(dj, impreso, pedir) ? EMITIDA : FALLO_DICHO;
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList a = QCoreApplication::arguments();
    fijar_carpeta_programa(a.at(1));
    try {
        cnRtn.abrir(a.at(1) + u"/vedra_rtn.db"_s, clave_almacen());
        return emitir(a.at(2), a.at(3));
    } catch (const ErrorAlmacen& e) {
        decir(e.descripcion);
        return e.perdido() ? ALMACEN_PERDIDO : FALLO_DICHO;
    } catch (const std::exception& e) {
        decir(QString::fromUtf8(e.what()));
        return FALLO_DICHO;
    }
}
