// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/respaldos.h"

#include "core/archivos_disco.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int DIAS = 10;
constexpr int MESES = 24;
constexpr int PREVIOS = 3;
constexpr qint64 UN_MINUTO = 60;
constexpr qsizetype LARGO_DIA = 10;
constexpr qsizetype LARGO_MES = 7;
// More than any page of the format: the first page is written anew, under a new random vector, by each transaction.
constexpr qint64 PRIMERA_PAGINA = 4096;

QString carpeta_de(const QString& almacen)
{
    return QFileInfo(ruta_real(almacen)).absolutePath() + u"/respaldos"_s;
}

QString nombre_de(const QString& almacen)
{
    return QFileInfo(ruta_real(almacen)).completeBaseName();
}

QString archivo_de(const QString& almacen, const QString& marca)
{
    return u"%1/%2-%3.db"_s.arg(carpeta_de(almacen), nombre_de(almacen), marca);
}

QString archivo_revision(const QString& almacen)
{
    return u"%1/%2-revision.txt"_s.arg(carpeta_de(almacen), nombre_de(almacen));
}

bool es_previo(const QString& marca)
{
    return marca.size() > LARGO_DIA;
}

// The newest first.
QStringList ordenadas(QStringList marcas, bool previas)
{
    marcas.removeIf([previas](const QString& m) { return es_previo(m) != previas; });
    std::sort(marcas.begin(), marcas.end(), std::greater<>());
    return marcas;
}

bool existe_marca(const QList<Respaldo>& lista, const QString& marca)
{
    return std::any_of(lista.cbegin(), lista.cend(), [&](const Respaldo& r) { return r.marca == marca; });
}

// The copy that was just made stays, whatever its date.
void podar(const QString& almacen, const QString& recien)
{
    QStringList marcas;
    for (const Respaldo& r : listar_respaldos(almacen))
        marcas << r.marca;
    for (const QString& marca : respaldos_que_sobran(marcas))
        if (marca != recien)
            QFile::remove(archivo_de(almacen, marca));
}

}  // namespace

QList<Respaldo> listar_respaldos(const QString& almacen)
{
    const QRegularExpression forma(
        u"^%1-(\\d{4}-\\d{2}-\\d{2}(-\\d{6})?)\\.db$"_s.arg(QRegularExpression::escape(nombre_de(almacen))));
    QList<Respaldo> lista;
    for (const QFileInfo& info : QDir(carpeta_de(almacen)).entryInfoList(QDir::Files))
        if (const auto m = forma.match(info.fileName()); m.hasMatch())
            lista << Respaldo{m.captured(1), info.absoluteFilePath(), info.size()};
    std::sort(lista.begin(), lista.end(), [](const Respaldo& a, const Respaldo& b) { return a.marca < b.marca; });
    return lista;
}

QString motivo_respaldo(const QString& marca, const QStringList& marcas)
{
    if (es_previo(marca))
        return u"previo"_s;
    return ordenadas(marcas, false).first(std::min<qsizetype>(DIAS, ordenadas(marcas, false).size())).contains(marca)
               ? u"diario"_s
               : u"mensual"_s;
}

QStringList respaldos_que_sobran(QStringList marcas)
{
    const QStringList dias = ordenadas(marcas, false);
    QSet<QString> quedan;
    QSet<QString> meses;
    for (qsizetype i = 0; i < dias.size(); ++i) {
        const QString mes = dias[i].first(LARGO_MES);
        const bool ultimo_del_mes = !meses.contains(mes) && meses.size() < MESES;
        if (i < DIAS || ultimo_del_mes)
            quedan << dias[i];
        meses << mes;
    }
    for (const QString& previo : ordenadas(marcas, true).mid(0, PREVIOS))
        quedan << previo;
    marcas.removeIf([&](const QString& m) { return quedan.contains(m); });
    return marcas;
}

bool toca_respaldo(Conexion& cn, const QDate& dia)
{
    QList<Respaldo> diarios = listar_respaldos(cn.ruta());
    diarios.removeIf([](const Respaldo& r) { return es_previo(r.marca); });
    if (diarios.isEmpty())
        return true;
    if (existe_marca(diarios, marca_del_dia(dia)))
        return false;
    QFile ultimo(diarios.constLast().archivo);
    const Imagen imagen(cn);
    return ultimo.size() != imagen.bytes() || !ultimo.open(QIODevice::ReadOnly)
           || ultimo.read(PRIMERA_PAGINA) != imagen.leer(0, PRIMERA_PAGINA);
}

void copiar_imagen(Conexion& cn, ArchivoNuevo& copia, const Progreso& progreso)
{
    const Imagen imagen(cn);
    qint64 copiados = 0;
    imagen.recorrer([&](const QByteArray& bloque) {
        copia.escribir(std::string_view(bloque.constData(), size_t(bloque.size())));
        copiados += bloque.size();
        if (progreso && !progreso(copiados, imagen.bytes()))
            throw Cancelado();
    });
    copia.cerrar();
}

Revision respaldar(Conexion& cn, const QString& marca, const Progreso& progreso)
{
    const QString almacen = cn.ruta();
    carpeta_privada(carpeta_de(almacen));
    // One name for all: what a crash left there is overwritten.
    ArchivoNuevo copia(archivo_de(almacen, marca), Asegurar::si,
                       u"%1/%2.nuevo"_s.arg(carpeta_de(almacen), nombre_de(almacen)));
    copiar_imagen(cn, copia, progreso);
    const Revision r = revisar_archivo(copia.aparte(), progreso);
    if (r.sana()) {
        copia.ocupar();
        podar(almacen, marca);
    }
    return r;
}

QString marca_del_dia(const QDate& dia)
{
    return dia.toString(Qt::ISODate);
}

QString marca_previa(const QString& almacen, QDateTime momento)
{
    const QString forma = u"yyyy-MM-dd-HHmmss"_s;
    QStringList previas;
    for (const Respaldo& r : listar_respaldos(almacen))
        if (es_previo(r.marca))
            previas << r.marca;
    // Several of one second are told apart, each later than the one before.
    if (!previas.isEmpty()) {
        const QDateTime ultima = QDateTime::fromString(previas.constLast(), forma);
        if (momento.msecsTo(ultima) > -1000 && momento.secsTo(ultima) < UN_MINUTO)
            momento = ultima.addSecs(1);
    }
    while (previas.contains(momento.toString(forma)))
        momento = momento.addSecs(1);
    return momento.toString(forma);
}

QDate ultima_revision(const QString& almacen)
{
    QFile f(archivo_revision(almacen));
    return f.open(QIODevice::ReadOnly) ? QDate::fromString(QString::fromLatin1(f.read(LARGO_DIA)), Qt::ISODate)
                                       : QDate();
}

void anotar_revision(const QString& almacen, const QDate& dia)
{
    carpeta_privada(carpeta_de(almacen));
    ArchivoNuevo nota(archivo_revision(almacen));
    nota.escribir((marca_del_dia(dia) + u'\n').toStdString());
    nota.ocupar();
}
