// SPDX-License-Identifier: GPL-3.0-or-later
// leer_dj [--codigo CODE] [--campos] [--json] FILE|FOLDER|ARCHIVE

#include "filing/codificacion.h"
#include "filing/lector_dj.h"
#include "rar5.h"
#include "visible.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int NO_SE_LEE = 2;

// Deeds, parties, properties and operations are numbered by three digits: 999 deeds with 999 of each are three
// quarters of this. What is larger is no return, and is not read into memory.
constexpr qint64 LARGO_MAXIMO = qint64(1) << 30;

// One line; what a file holds must not command the terminal.
void decir(const QString& texto)
{
    std::puts(visible(texto.toStdString()).c_str());
}

bool es_de_dj(const QString& nombre)
{
    return nombre.startsWith(u"SRTN"_s, Qt::CaseInsensitive) && nombre.endsWith(u".txt"_s, Qt::CaseInsensitive);
}

[[noreturn]] void fallar(const QString& texto)
{
    throw std::runtime_error(texto.toStdString());
}

void exigir_largo(const QString& ruta, quint64 largo)
{
    if (largo > quint64(LARGO_MAXIMO))
        fallar(u"%1: es demasiado grande para ser una declaración jurada (%2 bytes, y el máximo es %3)"_s.arg(
            ruta, QString::number(largo), QString::number(LARGO_MAXIMO)));
}

void exigir_una(const QString& ruta, qsizetype cuantas)
{
    if (cuantas != 1)
        fallar(u"%1: debe contener un solo archivo SRTN….txt, y hay %2"_s.arg(ruta, QString::number(cuantas)));
}

QByteArray de_archivo(const QString& ruta)
{
    QFile f(ruta);
    if (!QFileInfo(ruta).isFile() || !f.open(QIODevice::ReadOnly))
        fallar(u"No se puede leer "_s + ruta);
    exigir_largo(ruta, quint64(f.size()));
    return f.readAll();
}

QByteArray de_rar(const QString& ruta)
{
    const std::string archivo = QFile::encodeName(ruta).toStdString();
    std::vector<EntradaRar> devueltas;
    for (const EntradaRar& e : listar_rar(archivo))
        if (es_de_dj(QFileInfo(QString::fromStdString(e.nombre)).fileName()))
            devueltas.push_back(e);
    exigir_una(ruta, qsizetype(devueltas.size()));
    const EntradaRar& e = devueltas.front();
    const QString nombre = ruta + u": "_s + QString::fromStdString(e.nombre);
    exigir_largo(nombre, std::max(e.largo, e.almacenado));
    QByteArray bytes;
    if (!leer_entrada(archivo, e, [&bytes](const char* p, size_t n) { bytes.append(p, qsizetype(n)); }))
        fallar(nombre + u" está dañado"_s);
    return bytes;
}

QByteArray leer_entrada_de(const QString& ruta)
{
    const QFileInfo info(ruta);
    if (info.isDir()) {
        const QStringList nombres = QDir(ruta).entryList({u"SRTN*.txt"_s}, QDir::Files);
        exigir_una(ruta, nombres.size());
        return de_archivo(QDir(ruta).filePath(nombres.constFirst()));
    }
    return ruta.endsWith(u".rar"_s, Qt::CaseInsensitive) ? de_rar(ruta) : de_archivo(ruta);
}

QString linea_de(const FallaLectura& f)
{
    QString t = u"  línea %1, columna %2"_s.arg(f.linea).arg(f.columna);
    if (!f.campo.isEmpty())
        t += u", "_s + f.campo;
    if (!f.valor.isEmpty())
        t += u" «"_s + f.valor + u"»"_s;
    return t + u": "_s + f.mensaje;
}

QJsonArray en_json(const std::vector<FallaLectura>& fallas)
{
    QJsonArray lista;
    for (const FallaLectura& f : fallas)
        lista << QJsonObject{{u"linea"_s, f.linea},
                             {u"columna"_s, f.columna},
                             {u"campo"_s, f.campo},
                             {u"valor"_s, f.valor},
                             {u"mensaje"_s, f.mensaje}};
    return lista;
}

void mostrar_campos(const RegistroLeido& r)
{
    decir(u"línea %1: registro %2 (%3)"_s.arg(r.linea)
              .arg(QLatin1Char(r.registro->tipo))
              .arg(QString::fromUtf8(r.registro->titulo)));
    if (r.entero)
        for (size_t i = 0; i < r.registro->campos.size(); ++i)
            decir(u"    %1 «%2»"_s.arg(QLatin1String(r.registro->campos[i].nombre), -28).arg(texto_ansi(r.campos[i])));
}

QJsonObject registro_json(const RegistroLeido& r)
{
    QJsonObject campos;
    if (r.entero)
        for (size_t i = 0; i < r.registro->campos.size(); ++i)
            if (r.registro->campos[i].forma.clase != Clase::literal)
                campos.insert(QLatin1String(r.registro->campos[i].nombre), texto_ansi(r.campos[i]));
    return {{u"linea"_s, r.linea}, {u"tipo"_s, QString(QLatin1Char(r.registro->tipo))}, {u"campos"_s, campos}};
}

QJsonObject resumen_json(const LecturaDJ& l, const QJsonArray& registros)
{
    return {{u"codigo"_s, l.codigo},
            {u"agente"_s, l.agente},
            {u"titular"_s, l.titular},
            {u"cuit"_s, l.cuit},
            {u"posicion"_s, l.posicion},
            {u"secuencia"_s, l.secuencia},
            {u"estado"_s, l.estado},
            {u"totalRetenido"_s, l.totalRetenido},
            {u"totalEscrituras"_s, l.totalEscrituras},
            {u"fallas"_s, en_json(l.fallas)},
            {u"avisos"_s, en_json(l.avisos)},
            {u"registros"_s, registros}};
}

void resumir(const QString& ruta, const LecturaDJ& l)
{
    decir(u"Archivo: "_s + ruta);
    decir(u"Agente %1, %2, CUIT %3"_s.arg(l.agente, l.titular, l.cuit));
    decir(u"Posición %1, secuencia %2, %3"_s.arg(l.posicion, l.secuencia,
                                                 l.estado == u"0" ? u"NORMAL"_s : u"SIN MOVIMIENTOS"_s));
    for (const Registro& r : registros())
        if (const auto it = l.registros.find(r.tipo); it != l.registros.end())
            decir(
                u"  registros %1 (%2): %3"_s.arg(QLatin1Char(r.tipo)).arg(QString::fromUtf8(r.titulo)).arg(it->second));
    decir(u"Total retenido: %1; las escrituras suman %2"_s.arg(l.totalRetenido, 0, 'f', 2)
              .arg(l.totalEscrituras, 0, 'f', 2));
    decir(u"Código de integridad: "_s + l.codigo);
    for (const FallaLectura& f : l.avisos)
        decir(u"Aviso:"_s + linea_de(f));
    for (const FallaLectura& f : l.fallas)
        decir(u"Falla:"_s + linea_de(f));
    decir(l.fallas.empty() ? u"Todo está bien."_s : u"Hay %1 fallas."_s.arg(l.fallas.size()));
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    QCommandLineParser a;
    a.setApplicationDescription(u"Lee y revisa el archivo de una declaración jurada emitida."_s);
    a.addHelpOption();
    a.addOption({u"codigo"_s, u"Código impreso en el papel, para comparar."_s, u"código"_s});
    a.addOption({u"campos"_s, u"Lista cada campo."_s});
    a.addOption({u"json"_s, u"Da todo como JSON."_s});
    a.addPositionalArgument(u"entrada"_s, u"Archivo, carpeta o archivo RAR."_s);
    a.process(aplicacion);
    if (a.positionalArguments().size() != 1)
        a.showHelp(NO_SE_LEE);
    const QString ruta = a.positionalArguments().constFirst();
    try {
        const QByteArray bytes = leer_entrada_de(ruta);
        const bool json = a.isSet(u"json"_s);
        QJsonArray registros_json;
        LecturaDJ l = leer_archivo_dj(bytes, [&](const RegistroLeido& r) {
            if (json)
                registros_json << registro_json(r);
            else if (a.isSet(u"campos"_s))
                mostrar_campos(r);
        });
        QString codigo = a.value(u"codigo"_s).toUpper();
        if (codigo.remove(u' '); !codigo.isEmpty() && codigo != l.codigo)
            l.fallas.push_back({0, 0, {}, codigo, u"el código del papel no es el del archivo ("_s + l.codigo + u')'});
        if (json)
            std::fputs(visible_json(QJsonDocument(resumen_json(l, registros_json)).toJson().toStdString()).c_str(),
                       stdout);
        else
            resumir(ruta, l);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            fallar(u"no se pudo escribir la salida"_s);
        return l.fallas.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "leer_dj: %s\n", visible(e.what()).c_str());
        return NO_SE_LEE;
    }
}
