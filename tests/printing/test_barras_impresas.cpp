// SPDX-License-Identifier: GPL-3.0-or-later
// The bar codes on paper, by two readers that share no code, and their bars dot by dot.

#include "impresos.h"

#include <QDir>
#include <QImageReader>
#include <QRandomGenerator>

namespace {

class ImpresosBarras : public Impresos
{
protected:
    /// How many to try: BARRAS=N tries N slips and a quarter as many DJs.
    static int cuantas(int parte)
    {
        const int n = qEnvironmentVariableIntValue("BARRAS");
        return (n > 0 ? n : 20) / parte;
    }
    /// The pages of a form as pictures, in their order.
    QList<QImage> hojas(Informe& informe, int dpi)
    {
        QDir dir(carpeta.path() + "/hojas"_u);
        dir.removeRecursively();
        dir.mkpath("."_u);
        correr("pdftoppm"_u, {"-r"_u, QString::number(dpi), "-gray"_u, pdf(informe), dir.filePath("h"_u)});
        QImageReader::setAllocationLimit(0);
        QList<QImage> paginas;
        for (const QString& nombre : dir.entryList(QDir::Files, QDir::Name))
            paginas << QImage(dir.filePath(nombre));
        return paginas;
    }
    /// What the readers find on pictures, one code a picture: a list each, in the order of the pictures.
    QList<QStringList> leer(const QList<QImage>& imagenes, const QString& formato)
    {
        QStringList archivos;
        for (const QImage& imagen : imagenes) {
            archivos << "%1/tira%2.pgm"_u.arg(carpeta.path()).arg(archivos.size());
            EXPECT_TRUE(imagen.save(archivos.constLast()));
        }
        const QStringList zbar{"-q"_u, "--raw"_u, "-Sdisable"_u, "-Si25.enable"_u, "-Scode128.enable"_u};
        QStringList zxing;
        // A line is: file, its format, the text between quotes, what is wrong.
        for (const QString& linea :
             correr("ZXingReader"_u, QStringList{"-1"_u, "-norotate"_u, "-format"_u, formato} + archivos)
                 .split(u'\n', Qt::SkipEmptyParts))
            zxing << linea.section(u'"', 1, 1);
        return {correr("zbarimg"_u, zbar + archivos).split(u'\n', Qt::SkipEmptyParts), zxing};
    }
    /// The lower third of each copy of slips, where the bars are.
    static QList<QImage> copias(const QList<QImage>& paginas)
    {
        QList<QImage> tiras;
        for (const QImage& p : paginas)
            for (int i = 0; i < 4; ++i)
                tiras << p.copy(0, p.height() * (i * 6825 + 5800) / 29700, p.width(), p.height() * 2100 / 29700);
        return tiras;
    }
    /// Dots of white and black along a row, by turns, beginning with white.
    static QList<int> tramos(const QImage& imagen, int y)
    {
        QList<int> anchos{0};
        bool blanco = true;
        for (int x = 0; x < imagen.width(); ++x) {
            if ((qGray(imagen.pixel(x, y)) > 127) != blanco) {
                blanco = !blanco;
                anchos << 0;
            }
            ++anchos.last();
        }
        return anchos;
    }
    /// The same of the bars: they stand alike over some millimetres. The first and the last are the whites beside them.
    static QList<int> barras(const QImage& imagen, int dpi)
    {
        for (int y = 0; y + dpi / 4 < imagen.height(); y += dpi / 20)
            if (const auto t = tramos(imagen, y);
                t.size() > 50 && t == tramos(imagen, y + dpi / 8) && t == tramos(imagen, y + dpi / 4))
                return t;
        return {0, 0};
    }
    static BoletaImpresa boleta(QRandomGenerator& azar)
    {
        ControlesBoleta c;
        c.vencimiento = QDate(2026, 1, 1).addDays(azar.bounded(700));
        c.impuesto.setValue(azar.bounded(1000000000) / 100.0);
        c.interes.setValue(azar.bounded(1000000) / 100.0);
        BoletaImpresa b;
        b.nro = "202%1%2"_u.arg(20000000000LL + azar.bounded(1000000000))
                    .arg(azar.bounded(100000000), 8, 10, QLatin1Char('0'));
        b.codigo = codigo_barras_boleta(b.nro, c);
        return b;
    }
};

TEST_F(ImpresosBarras, LosDosLectoresLeenLasCuatroCopiasDeCadaBoleta)
{
    QRandomGenerator azar(5707);
    QList<BoletaImpresa> boletas;
    QStringList codigos;
    for (int i = 0; i < cuantas(1); ++i) {
        boletas << boleta(azar);
        codigos << QStringList(4, boletas.constLast().codigo);
    }
    rptRTN_boldep1 informe(boletas);
    for (const QStringList& leidos : leer(copias(hojas(informe, 200)), "ITF"_u))
        EXPECT_EQ(leidos, codigos);
}

TEST_F(ImpresosBarras, LosDosLectoresLeenElCodigoDeCadaDJ)
{
    QRandomGenerator azar(4821);
    QList<QImage> imagenes;
    QStringList codigos;
    for (int i = 0; i < cuantas(4); ++i) {
        QString codigo;
        for (int n = 0; n < 32; ++n)
            codigo += QString::number(azar.bounded(16), 16).toUpper();
        rpt_dj informe(dj_de(i % 7), codigo, "v"_u);
        imagenes << hojas(informe, 200).last();
        codigos << codigo;
    }
    for (const QStringList& leidos : leer(imagenes, "Code128"_u))
        EXPECT_EQ(leidos, codigos);
}

// At the dots of common printers each bar is as wide as it should be, and nothing stands beside the code.
TEST_F(ImpresosBarras, BarrasDePuntosEnterosConSusZonasDeSilencio)
{
    QRandomGenerator azar(1);
    const BoletaImpresa b = boleta(azar);
    for (const int dpi : {200, 300, 600}) {
        const int modulo = dpi / 100;
        rptRTN_boldep1 slip({b});
        rpt_dj_sin_mov dj(dj_de(0), CODIGO, "v"_u);
        QList<QImage> codigos = copias(hojas(slip, dpi));
        codigos << hojas(dj, dpi);
        for (const QImage& imagen : std::as_const(codigos)) {
            QList<int> anchos = barras(imagen, dpi);
            for (const int silencio : {anchos.takeFirst(), anchos.takeLast()})
                EXPECT_GE(silencio, 10 * modulo + 4 * dpi / 25) << dpi;  // and the edge that a printer leaves white
            const bool es_dj = &imagen == &codigos.constLast();
            for (const int ancho : std::as_const(anchos))
                EXPECT_TRUE(ancho % modulo == 0
                            && (es_dj ? ancho <= 4 * modulo : ancho == modulo || ancho == 3 * modulo))
                    << dpi << ": " << ancho;
            if (!es_dj) {
                EXPECT_EQ(anchos.size(), 4 + 40 * 10 + 3);
            }
        }
    }
}

}  // namespace
