// SPDX-License-Identifier: GPL-3.0-or-later

#include "textos.h"

#include "core/respaldos.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void fallar(const QString& texto)
{
    throw std::runtime_error(texto.toStdString());
}

QString leer_texto(const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly))
        fallar(u"No se puede leer "_s + ruta);
    return QString::fromUtf8(f.readAll());
}

AlmacenParaCambiar::AlmacenParaCambiar(const QString& almacen, const QString& clave)
{
    // A lock is made beside stores alone.
    if (!QFileInfo(almacen).isFile())
        fallar(u"No está la base de datos "_s + almacen);
    candado_.tomar(almacen);
    cn.abrir(almacen, clave);
}

QString AlmacenParaCambiar::respaldar(const QDateTime& momento)
{
    const QString marca = marca_previa(cn.ruta(), momento);
    const Revision r = ::respaldar(cn, marca);
    if (!r.sana())
        throw ErrorTarea(u"La base de datos está dañada: no se la toca."_s, r.fallas.mid(0, 1).join(u'\n'));
    for (const Respaldo& hecho : listar_respaldos(cn.ruta()))
        if (hecho.marca == marca)
            return hecho.archivo;
    return {};
}
