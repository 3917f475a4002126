// SPDX-License-Identifier: GPL-3.0-or-later
// asistente --elegir | --aviso TEXTO: the windows of the launcher. What was chosen goes to the standard output.

#include "asistente/eleccion.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QApplication aplicacion(argc, argv);
    const QStringList argumentos = QApplication::arguments();
    QApplication::setWindowIcon(QIcon::fromTheme(u"vedra-rtn"_s));
    if (argumentos.value(1) == u"--aviso" && argumentos.size() == 3) {
        QMessageBox caja(QMessageBox::Warning, u"VEDRA-RTN"_s, argumentos[2]);
        caja.setTextFormat(Qt::PlainText);
        caja.addButton(u"&Aceptar"_s, QMessageBox::AcceptRole);
        caja.exec();
        return EXIT_SUCCESS;
    }
    if (argumentos.mid(1) != QStringList{u"--elegir"_s}) {
        std::fputs("Uso: asistente --elegir | --aviso TEXTO\n", stderr);
        return 2;
    }
    Eleccion eleccion;
    if (eleccion.exec() != QDialog::Accepted)
        return EXIT_FAILURE;
    return std::puts(qUtf8Printable(eleccion.elegida())) >= 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
