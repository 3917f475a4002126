// leer_dj [--codigo CODE] [--campos] [--json] FILE|FOLDER|ARCHIVE

#include "filing/lector_dj.h"
#include "rar5.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr int NO_SE_LEE = 2;

void decir(const QString& texto)
{
    std::fputs(qUtf8Printable(texto + u'\n'), stdout);
}

bool es_de_dj(const QString& nombre)
{
    return nombre.startsWith(QStringLiteral("SRTN")) && nombre.endsWith(QStringLiteral(".txt"));
}

[[noreturn]] void fallar(const QString& texto)
{
    throw std::runtime_error(texto.toStdString());
}

QByteArray de_archivo(const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly))
        fallar(QStringLiteral("No se puede leer ") + ruta);
    return f.readAll();
}

QByteArray de_rar(const QString& ruta)
{
    const std::string archivo = QFile::encodeName(ruta).toStdString();
    for (const EntradaRar& e : listar_rar(archivo)) {
        if (!es_de_dj(QFileInfo(QString::fromStdString(e.nombre)).fileName()))
            continue;
        QByteArray bytes;
        if (!leer_entrada(archivo, e, [&bytes](const char* p, size_t n) { bytes.append(p, qsizetype(n)); }))
            fallar(ruta + QStringLiteral(": ") + QString::fromStdString(e.nombre) + QStringLiteral(" está dañado"));
        return bytes;
    }
    fallar(ruta + QStringLiteral(": no contiene un archivo SRTN….txt"));
}

QByteArray leer_entrada_de(const QString& ruta)
{
    const QFileInfo info(ruta);
    if (info.isDir()) {
        const QStringList nombres = QDir(ruta).entryList({QStringLiteral("SRTN*.txt")}, QDir::Files);
        if (nombres.size() != 1)
            fallar(ruta + QStringLiteral(": debe contener un solo archivo SRTN….txt, y hay %1").arg(nombres.size()));
        return de_archivo(QDir(ruta).filePath(nombres.constFirst()));
    }
    return ruta.endsWith(QStringLiteral(".rar"), Qt::CaseInsensitive) ? de_rar(ruta) : de_archivo(ruta);
}

QString linea_de(const FallaLectura& f)
{
    QString t = QStringLiteral("  línea %1, columna %2").arg(f.linea).arg(f.columna);
    if (!f.campo.isEmpty())
        t += QStringLiteral(", ") + f.campo;
    if (!f.valor.isEmpty())
        t += QStringLiteral(" «") + f.valor + QStringLiteral("»");
    return t + QStringLiteral(": ") + f.mensaje;
}

QJsonArray en_json(const std::vector<FallaLectura>& fallas)
{
    QJsonArray lista;
    for (const FallaLectura& f : fallas)
        lista << QJsonObject{{QStringLiteral("linea"), f.linea}, {QStringLiteral("columna"), f.columna}, {QStringLiteral("campo"), f.campo},
                             {QStringLiteral("valor"), f.valor}, {QStringLiteral("mensaje"), f.mensaje}};
    return lista;
}

void mostrar_campos(const RegistroLeido& r)
{
    decir(QStringLiteral("línea %1: registro %2 (%3)").arg(r.linea).arg(QLatin1Char(r.registro->tipo)).arg(QString::fromUtf8(r.registro->titulo)));
    if (r.entero)
        for (size_t i = 0; i < r.registro->campos.size(); ++i)
            decir(QStringLiteral("    %1 «%2»").arg(QLatin1String(r.registro->campos[i].nombre), -28).arg(texto_ansi(r.campos[i])));
}

QJsonObject registro_json(const RegistroLeido& r)
{
    QJsonObject campos;
    if (r.entero)
        for (size_t i = 0; i < r.registro->campos.size(); ++i)
            if (r.registro->campos[i].forma.clase != Clase::literal)
                campos.insert(QLatin1String(r.registro->campos[i].nombre), texto_ansi(r.campos[i]));
    return {{QStringLiteral("linea"), r.linea}, {QStringLiteral("tipo"), QString(QLatin1Char(r.registro->tipo))}, {QStringLiteral("campos"), campos}};
}

QJsonObject resumen_json(const LecturaDJ& l, const QJsonArray& registros)
{
    return {{QStringLiteral("codigo"), l.codigo},
            {QStringLiteral("agente"), l.agente},
            {QStringLiteral("titular"), l.titular},
            {QStringLiteral("cuit"), l.cuit},
            {QStringLiteral("posicion"), l.posicion},
            {QStringLiteral("secuencia"), l.secuencia},
            {QStringLiteral("estado"), l.estado},
            {QStringLiteral("totalRetenido"), l.totalRetenido},
            {QStringLiteral("totalEscrituras"), l.totalEscrituras},
            {QStringLiteral("fallas"), en_json(l.fallas)},
            {QStringLiteral("avisos"), en_json(l.avisos)},
            {QStringLiteral("registros"), registros}};
}

void resumir(const QString& ruta, const LecturaDJ& l)
{
    decir(QStringLiteral("Archivo: ") + ruta);
    decir(QStringLiteral("Agente %1, %2, CUIT %3").arg(l.agente, l.titular, l.cuit));
    decir(QStringLiteral("Posición %1, secuencia %2, %3").arg(l.posicion, l.secuencia, l.estado == u"0" ? QStringLiteral("NORMAL") : QStringLiteral("SIN MOVIMIENTOS")));
    for (const Registro& r : registros())
        if (const auto it = l.registros.find(r.tipo); it != l.registros.end())
            decir(QStringLiteral("  registros %1 (%2): %3").arg(QLatin1Char(r.tipo)).arg(QString::fromUtf8(r.titulo)).arg(it->second));
    decir(QStringLiteral("Total retenido: %1; las escrituras suman %2").arg(l.totalRetenido, 0, 'f', 2).arg(l.totalEscrituras, 0, 'f', 2));
    decir(QStringLiteral("Código de integridad: ") + l.codigo);
    for (const FallaLectura& f : l.avisos)
        decir(QStringLiteral("Aviso:") + linea_de(f));
    for (const FallaLectura& f : l.fallas)
        decir(QStringLiteral("Falla:") + linea_de(f));
    decir(l.fallas.empty() ? QStringLiteral("Todo está bien.") : QStringLiteral("Hay %1 fallas.").arg(l.fallas.size()));
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    QCommandLineParser a;
    a.setApplicationDescription(QStringLiteral("Lee y revisa el archivo de una declaración jurada emitida."));
    a.addHelpOption();
    a.addOption({QStringLiteral("codigo"), QStringLiteral("Código impreso en el papel, para comparar."), QStringLiteral("código")});
    a.addOption({QStringLiteral("campos"), QStringLiteral("Lista cada campo.")});
    a.addOption({QStringLiteral("json"), QStringLiteral("Da todo como JSON.")});
    a.addPositionalArgument(QStringLiteral("entrada"), QStringLiteral("Archivo, carpeta o archivo RAR."));
    a.process(aplicacion);
    if (a.positionalArguments().size() != 1)
        a.showHelp(NO_SE_LEE);
    const QString ruta = a.positionalArguments().constFirst();
    try {
        const QByteArray bytes = leer_entrada_de(ruta);
        const bool json = a.isSet(QStringLiteral("json"));
        QJsonArray registros_json;
        LecturaDJ l = leer_archivo_dj(bytes, [&](const RegistroLeido& r) {
            if (json)
                registros_json << registro_json(r);
            else if (a.isSet(QStringLiteral("campos")))
                mostrar_campos(r);
        });
        QString codigo = a.value(QStringLiteral("codigo")).toUpper();
        if (codigo.remove(u' '); !codigo.isEmpty() && codigo != l.codigo)
            l.fallas.push_back({0, 0, {}, codigo, QStringLiteral("el código del papel no es el del archivo (") + l.codigo + u')'});
        if (json)
            std::fputs(QJsonDocument(resumen_json(l, registros_json)).toJson().constData(), stdout);
        else
            resumir(ruta, l);
        return l.fallas.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "leer_dj: %s\n", e.what());
        return NO_SE_LEE;
    }
}
