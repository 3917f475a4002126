// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/aplicacion.h"
#include "application/escritorio.h"
#include "core/preferencias.h"

#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Not the program's own: what a form throws is to reach the test.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication aplicacion(argc, argv);
    // What tests prefer is not what the user of this machine prefers, nor what the next test does.
    const QTemporaryDir preferencias;
#ifdef Q_OS_WIN
    seguir_escritorio(&aplicacion);
    fijar_preferencias(preferencias.filePath(QStringLiteral("preferencias.ini")));
#else
    qputenv("XDG_CONFIG_HOME", preferencias.path().toLocal8Bit());
#endif
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    return RUN_ALL_TESTS();
}
