// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modGlobales.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

Conexion cnRtn;
Conexion cnTmp;
Candado candadoRtn;

QString RutaBaseDatos;
QString CadenaConexion;
int UsoSubconcepto = 0;
QString BancoNombre;
qint32 BancoId = 0;
qint32 BancoCuenta = 0;
qint32 BancoConvenio = 0;
double ValorModulo = 0;
double AlicuotaIVA = 0;
qint32 TipoRedondeo = 0;
qint32 ModoImporteMinimo = 0;
qint32 ModoImporteFijo = 0;
qint16 LeyVigente = 0;
QDate LeyVigenciaDesde;

namespace {
QString carpeta_fijada;
}

QString carpeta_programa()
{
    return carpeta_fijada.isEmpty() ? QCoreApplication::applicationDirPath() : carpeta_fijada;
}

QString ruta_herramienta(const QString& nombre, const QString& carpeta)
{
#ifdef Q_OS_WIN
    return carpeta + u'/' + nombre + u".exe"_s;
#else
    return carpeta + u'/' + nombre;
#endif
}

void fijar_carpeta_programa(const QString& carpeta)
{
    carpeta_fijada = carpeta;
}

QString clave_almacen()
{
    return u"Xk7pQ2mR"_s;
}
