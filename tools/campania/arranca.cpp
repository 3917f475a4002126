// SPDX-License-Identifier: GPL-3.0-or-later
// arranca FOLDER: the program's start with FOLDER as its own. Prints the boxes that come, a line each (text, title and
// details parted by "|", line ends as blanks), and answers them; then "abierta" and stays, or ends with status 1.

#include "application/aplicacion.h"
#include "application/screens/MDIPrincipal.h"
#include "core/modGlobales.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void decir(QString linea)
{
    std::printf("%s\n", qUtf8Printable(linea.replace(u'\n', u' ')));
    std::fflush(stdout);
}

void responder()
{
    auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!caja || !caja->isVisible())
        return;
    decir(QStringList{caja->text(), caja->windowTitle(), caja->detailedText()}.join(u'|'));
    caja->button(QMessageBox::Ok)->click();
}

}  // namespace

int main(int argc, char** argv)
{
    Aplicacion aplicacion(argc, argv);
    fijar_carpeta_programa(QString::fromLocal8Bit(argv[1]));
    QTimer cajas;
    QObject::connect(&cajas, &QTimer::timeout, &cajas, responder);
    cajas.start(1);
    MDIPrincipal principal;
    if (!principal.iniciar())
        return EXIT_FAILURE;
    principal.show();
    decir(u"abierta"_s);
    return Aplicacion::exec();
}
