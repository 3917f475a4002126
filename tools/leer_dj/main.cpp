// SPDX-License-Identifier: GPL-3.0-or-later
// leer_dj [--codigo CODE] [--campos] [--json] FILE|FOLDER|ARCHIVE

#include "core/redondeo.h"
#include "filing/codificacion.h"
#include "filing/lector_dj.h"
#include "rar5.h"
#include "system/sistema.h"
#include "visible.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int NO_SE_LEE = 2;

constexpr const char* AYUDA = R"(Uso: leer_dj [--codigo CÓDIGO] [--campos] [--json] ENTRADA

Lee y revisa el archivo de una declaración jurada emitida.

  ENTRADA           el archivo SRTN….txt, su carpeta, o el archivo SRTN….rar

  --codigo CÓDIGO   código impreso en el papel, para comparar; no importan blancos ni mayúsculas
  --campos          lista cada campo de cada registro
  --json            da todo como JSON
  --ayuda           muestra esto

Termina con 0 si todo está bien; con 1 si hay fallas; con 2 si no se puede leer o está mal usado.
)";

struct Pedido
{
    QString entrada;
    QString codigo;
    bool campos = false;
    bool json = false;
    bool ayuda = false;
};

// What is asked for, or what is wrong with it.
QString entender(const QStringList& argumentos, Pedido& p)
{
    QStringList sueltos;
    for (qsizetype i = 0; i < argumentos.size(); ++i) {
        const QString& a = argumentos[i];
        if (a == u"--campos")
            p.campos = true;
        else if (a == u"--json")
            p.json = true;
        else if (a == u"--ayuda" || a == u"--help" || a == u"-h")
            p.ayuda = true;
        else if (a == u"--codigo" && i + 1 < argumentos.size())
            p.codigo = argumentos[++i];
        else if (a == u"--codigo")
            return u"Falta el CÓDIGO."_s;
        else if (a.startsWith(u"--codigo="_s))
            p.codigo = a.mid(a.indexOf(u'=') + 1);
        else if (a.startsWith(u'-'))
            return u"No existe la opción «%1»."_s.arg(a);
        else
            sueltos << a;
    }
    if (p.ayuda)
        return {};
    if (sueltos.size() != 1)
        return sueltos.isEmpty() ? u"Falta la ENTRADA."_s : u"Sobra «%1»."_s.arg(sueltos.constLast());
    p.entrada = sueltos.constFirst();
    return {};
}

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

QString linea_de(const RarezaLeida& r)
{
    const QString que = r.campo.isEmpty() ? u"no se puede saber qué campo falta o sobra (largo %1, previsto %2)"_s
                        : r.largo == 0    ? u"falta %3, como el formato admite"_s
                                          : u"%3 tiene otro largo (%1, previsto %2)"_s;
    return u"registros %1: %2: %3, el primero en la línea %4"_s.arg(
        QString(QLatin1Char(r.tipo)),
        QString(que)
            .replace(u"%1"_s, QString::number(r.largo))
            .replace(u"%2"_s, QString::number(r.previsto))
            .replace(u"%3"_s, r.campo),
        r.veces == 1 ? u"1 vez"_s : u"%1 veces"_s.arg(r.veces), QString::number(r.linea));
}

QJsonArray en_json(const std::vector<RarezaLeida>& rarezas)
{
    QJsonArray lista;
    for (const RarezaLeida& r : rarezas)
        lista << QJsonObject{{u"tipo"_s, QString(QLatin1Char(r.tipo))},
                             {u"campo"_s, r.campo},
                             {u"largo"_s, r.largo},
                             {u"previsto"_s, r.previsto},
                             {u"veces"_s, r.veces},
                             {u"linea"_s, r.linea}};
    return lista;
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
            {u"rarezas"_s, en_json(l.rarezas)},
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
    decir(u"Total retenido: $ %1; las escrituras suman $ %2"_s.arg(importe_agrupado(l.totalRetenido),
                                                                   importe_agrupado(l.totalEscrituras)));
    decir(u"Código de integridad: "_s + l.codigo);
    for (const RarezaLeida& r : l.rarezas)
        decir(u"Aviso:  "_s + linea_de(r));
    for (const FallaLectura& f : l.fallas)
        decir(u"Falla:"_s + linea_de(f));
    decir(l.fallas.empty() ? u"Todo está bien."_s : u"Hay %1 fallas."_s.arg(l.fallas.size()));
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    sistema::preparar_salidas();
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    Pedido p;
    if (const QString mal = entender(QCoreApplication::arguments().mid(1), p); !mal.isEmpty()) {
        std::fprintf(stderr, "leer_dj: %s\n\n%s", visible(mal.toStdString()).c_str(), AYUDA);
        return NO_SE_LEE;
    }
    if (p.ayuda) {
        std::fputs(AYUDA, stdout);
        return EXIT_SUCCESS;
    }
    try {
        const QByteArray bytes = leer_entrada_de(p.entrada);
        QJsonArray registros_json;
        LecturaDJ l = leer_archivo_dj(bytes, [&](const RegistroLeido& r) {
            if (p.json)
                registros_json << registro_json(r);
            else if (p.campos)
                mostrar_campos(r);
        });
        // As it is read from paper: in groups, in any letters.
        QString codigo = p.codigo.toUpper();
        codigo.removeIf([](QChar c) { return c.isSpace(); });
        if (!codigo.isEmpty() && codigo != l.codigo)
            l.fallas.push_back({0, 0, {}, codigo, u"el código del papel no es el del archivo ("_s + l.codigo + u')'});
        if (p.json)
            std::fputs(visible_json(QJsonDocument(resumen_json(l, registros_json)).toJson().toStdString()).c_str(),
                       stdout);
        else
            resumir(p.entrada, l);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            fallar(u"no se pudo escribir la salida"_s);
        return l.fallas.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "leer_dj: %s\n", visible(e.what()).c_str());
        return NO_SE_LEE;
    }
}
