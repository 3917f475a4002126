// SPDX-License-Identifier: GPL-3.0-or-later
// What tests share: a store of their own, a user who answers, rows in one line.
#pragma once

#include "core/dialogo.h"
#include "core/modGlobales.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

inline QString operator""_u(const char* texto, size_t largo)
{
    return QString::fromUtf8(texto, qsizetype(largo));
}

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& texto, std::ostream* os)
{
    *os << '"' << texto.toStdString() << '"';
}
QT_END_NAMESPACE

/// Takes down what is said, and answers what is asked with `respuesta`.
class Oyente : public Dialogo
{
public:
    void avisar(const Mensaje& m) override { anotar(m); }
    bool preguntar(const Mensaje& m) override
    {
        anotar(m);
        return respuesta;
    }
    bool seguir(const QString& que, qint64 /*hecho*/, qint64 /*total*/) override
    {
        avances << que;
        return !que.contains(hasta) || hasta.isEmpty();
    }
    /// What was said last; empty when nothing was.
    [[nodiscard]] QString ultimo() const { return textos.isEmpty() ? QString() : textos.constLast(); }

    bool respuesta = true;
    QString hasta;  ///< a work is ended when its progress says this
    QStringList avances;
    QStringList textos;
    QStringList titulos;
    QStringList detalles;
    QList<Icono> iconos;

private:
    void anotar(const Mensaje& m)
    {
        textos << m.texto;
        titulos << m.titulo;
        detalles << m.detalles;
        iconos << m.icono;
    }
};

/// The catalogue's store, copied for each test and open as the program's own; the program's
/// folder is a temporary one.
class ConAlmacen : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// First cell of a query; "null" for a null, "nada" without rows.
    static QString dato(const QString& sql);
    /// All rows of a query: cells parted by "|", rows by a line end.
    static QString filas(const QString& sql);
    [[nodiscard]] QString ruta() const { return carpeta.path() + "/vedra_rtn.db"_u; }

    /// A DJ of the posición 2026/10 with its agent; gives its number.
    static QString nueva_dj(int secuencia = 0);
    /// A deed of that DJ.
    static void nueva_escritura(const QString& dj, int id, int nro, int folio, int dia, const char* estado = "P",
                                const char* alcanzado = "S");

    QTemporaryDir carpeta;
    Oyente oyente;
};

/// Whether nobody but its owner gets at it. On Windows that is said by the folder that it lies in, not by a mode.
[[nodiscard]] bool solo_del_dueno(const QString& ruta);

/// Path of a store with the catalogue alone, made once.
[[nodiscard]] QString almacen_base();
