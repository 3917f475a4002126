// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/lote_empaquetador.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int ENTRE_MIRADAS_MS = 30;

}  // namespace

LoteEnMarcha::LoteEnMarcha(TrabajoEmpaquetador trabajo, std::chrono::milliseconds sin_noticias)
    : trabajo_(std::move(trabajo)), sin_noticias_(sin_noticias)
{
    proceso_.iniciar(trabajo_.orden, trabajo_.carpeta);
    callado_.start();
}

LoteEnMarcha::~LoteEnMarcha()
{
    terminar();
    QFile::remove(trabajo_.archivo);
    QFile::remove(trabajo_.archivo + u".nuevo"_s);
}

bool LoteEnMarcha::termino()
{
    return proceso_.proceso().state() == QProcess::NotRunning || proceso_.proceso().waitForFinished(0);
}

bool LoteEnMarcha::esperar(Dialogo& dialogo, const QString& titulo)
{
    while (proceso_.proceso().state() != QProcess::NotRunning) {
        proceso_.proceso().waitForFinished(ENTRE_MIRADAS_MS);
        oir();
        if (!dialogo.seguir(avance(), bytesHechos_ + bytesDeEste_, trabajo_.bytes)) {
            terminar();
            return false;
        }
        if (proceso_.proceso().state() == QProcess::NotRunning
            || std::chrono::milliseconds(callado_.elapsed()) < sin_noticias_)
            continue;
        if (dialogo.preguntar({u"El empaquetador no avanza desde hace %1 segundos.\n\n¿Desea esperarlo, o terminarlo y "
                               u"cancelar la emisión?"_s.arg(callado_.elapsed() / 1000),
                               titulo, Icono::exclamacion, fichero_, u"&Terminar"_s, u"&Esperar"_s})) {
            terminar();
            return false;
        }
        callado_.start();
    }
    return true;
}

bool LoteEnMarcha::bien() const
{
    return proceso_.proceso().exitStatus() == QProcess::NormalExit && proceso_.proceso().exitCode() == 0;
}

QString LoteEnMarcha::queja()
{
    const QStringList lineas = QString::fromUtf8(proceso_.proceso().readAllStandardError()).split(u'\n');
    return lineas.filter(QRegularExpression(u"^rar: "_s)).join(u'\n');
}

void LoteEnMarcha::terminar()
{
    proceso_.terminar();
}

// Any word of the packer and any growth of the archive are progress; only this program's own packer tells how far it is.
void LoteEnMarcha::oir()
{
    const QByteArray salida = proceso_.proceso().readAllStandardOutput();
    const qint64 largo = QFileInfo(trabajo_.archivo).size();
    if (!salida.isEmpty() || largo != largo_)
        callado_.start();
    largo_ = largo;
    dicho_ += salida;
    qsizetype desde = 0;
    for (qsizetype fin = dicho_.indexOf('\n'); fin >= 0; fin = dicho_.indexOf('\n', desde)) {
        oirLinea(QString::fromUtf8(dicho_.mid(desde, fin - desde)));
        desde = fin + 1;
    }
    dicho_.remove(0, desde);
}

void LoteEnMarcha::oirLinea(const QString& linea)
{
    static const QRegularExpression FORMA(u"^(\\d{1,18})/(\\d{1,18}) (.+)$"_s);
    const QRegularExpressionMatch m = FORMA.match(linea);
    if (!m.hasMatch())
        return;
    fichero_ = m.captured(3);
    bytesDeEste_ = m.captured(1).toLongLong();
    if (bytesDeEste_ == m.captured(2).toLongLong()) {
        ++hechos_;
        bytesHechos_ += bytesDeEste_;
        bytesDeEste_ = 0;
    }
}

QString LoteEnMarcha::avance() const
{
    if (fichero_.isEmpty())
        return u"Empaquetando la declaración jurada…"_s;
    const auto bytes = [](qint64 n) {
        return QLocale(QLocale::Spanish).formattedDataSize(n, 1, QLocale::DataSizeSIFormat);
    };
    return u"Empaquetados %1 de %2 archivos\n%3 (%4 de %5)"_s.arg(hechos_)
        .arg(trabajo_.ficheros)
        .arg(fichero_, bytes(bytesHechos_ + bytesDeEste_), bytes(trabajo_.bytes));
}
