// SPDX-License-Identifier: GPL-3.0-or-later
// The search of parties against a plain walk over the rows.

#include "apoyo/apoyo.h"
#include "parties/buscar_parte.h"

#include <QRegularExpression>
#include <QSet>

#include <random>

using namespace Qt::StringLiterals;

namespace {

class BuscarParte : public ConAlmacen
{
protected:
    struct Fila
    {
        QString dj;
        int renglon;
        QString tipo, nro, nombre;
        double cuit;
        int sociedad;
    };

    void agregar(const Fila& f)
    {
        if (!filas_.contains(f.dj))
            cnRtn.ejecutar("insert into SEL_TB_RTN_CABDJ (SEDJ_NRO) values ('%1')"_u.arg(f.dj));
        if (!filas_[f.dj].contains(f.renglon))
            nueva_escritura(f.dj, f.renglon, f.renglon, f.renglon, 1);
        Comando c(
            cnRtn,
            "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_RSOCIAL, SPIN_CUIT, GTSO_ID) values (?,?,?,?,?,?,?,?)"_u);
        c.parametro("id", ++filas_[f.dj][f.renglon]);
        c.parametro("dj", f.dj);
        c.parametro("renglon", f.renglon);
        c.parametro("tipo", f.tipo.isEmpty() ? QVariant() : QVariant(f.tipo));
        c.parametro("nro", f.nro.isEmpty() ? QVariant() : QVariant(f.nro));
        c.parametro("nombre", f.nombre);
        c.parametro("cuit", f.cuit == 0 ? QVariant() : QVariant(f.cuit));
        c.parametro("sociedad", f.sociedad);
        c.ejecutar();
        todas_ << f;
    }
    QStringList hallar(FiltroPartes f)
    {
        QStringList lista;
        leer_partes_halladas(consulta_busqueda_partes(f, "Buscar persona"_u, oyente),
                             [&lista](std::span<const std::string_view> c) {
                                 QStringList celdas;
                                 for (const std::string_view s : c)
                                     celdas << QString::fromUtf8(s.data(), qsizetype(s.size()));
                                 lista << celdas.join(u'|');
                             });
        return lista;
    }

    QHash<QString, QHash<int, int>> filas_;
    QList<Fila> todas_;
};

QRegularExpression expresion(const QString& patron)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(
                                  QRegularExpression::escape(patron).replace("\\%"_u, ".*"_u).replace(u'_', u'.')),
                              QRegularExpression::CaseInsensitiveOption
                                  | QRegularExpression::DotMatchesEverythingOption);
}

// Letters without their accents, but for the tilde of the Ñ.
QString llano(const QString& texto)
{
    QString partes = texto.normalized(QString::NormalizationForm_D);
    partes.remove(QRegularExpression("(?<![nN])\\p{Mn}|(?<=[nN])(?!\u0303)\\p{Mn}"_u));
    return partes.normalized(QString::NormalizationForm_C);
}

TEST_F(BuscarParte, ContraUnRecorridoSimple)
{
    std::mt19937 azar(11);
    const auto uno_de = [&azar](const QStringList& l) { return l[qsizetype(azar() % size_t(l.size()))]; };
    const QStringList apellidos{"PEREZ"_u, "D'ANGELO"_u, "ÑANDÚ"_u, "O'BRIEN"_u, "SOSA"_u, "100%"_u, "LÓPEZ  PAZ"_u};
    const QStringList nombres{"JUAN"_u, "ANA MARIA"_u, "JOSÉ"_u, "S.A."_u, "PEREZ"_u};
    const QStringList tipos{"80"_u, "86"_u, "96"_u, "94"_u, QString()};
    for (int i = 0; i < 300; ++i) {
        const QString tipo = uno_de(tipos);
        const bool cuit = tipo == u"80" || tipo == u"86";
        const QString nro = azar() % 8 == 0
                                ? QString()
                                : QString::number(cuit ? 20100000000 + azar() % 40 : 30000000 + azar() % 40);
        agregar({u"2012345678626%1000"_s.arg(azar() % 4 + 1), int(azar() % 4 + 1), tipo, nro,
                 (uno_de(apellidos) + u' ' + uno_de(nombres)).left(60), cuit && !nro.isEmpty() ? nro.toDouble() : 0,
                 int(azar() % 3 + 1)});
    }
    const QHash<QString, QString> textos{{"80"_u, "CUIT"_u}, {"86"_u, "CUIL"_u}, {"96"_u, "DNI"_u}};
    int con_algo = 0;
    for (int i = 0; i < 400; ++i) {
        FiltroPartes f{
            .dj = "20123456786261000"_u,
            .renglon = QString::number(azar() % 4 + 1),
            .tipoSociedad = azar() % 3 == 0 ? std::optional(int(azar() % 3 + 1)) : std::nullopt,
            .criterio = Criterio(azar() % 5),
            .razonSocial = uno_de({""_u, "PEREZ"_u, "juan, perez"_u, "D'ANGELO (ANA; MARIA)"_u, "maria  ana o'brien"_u,
                                   "100%"_u, "ñandú josé"_u, "S_SA"_u, "PEREZ JUAN"_u, " PAZ "_u, "%%"_u}),
            .tipoDoc = azar() % 2 == 0 ? std::optional(uno_de({"80"_u, "86"_u, "96"_u}).toInt()) : std::nullopt,
            .nroDoc = azar() % 3 == 0
                          ? QString()
                          : QString::number(azar() % 2 ? 20100000000 + azar() % 40 : 30000000 + azar() % 40)};
        f.tipoDocTexto = textos.value(QString::number(f.tipoDoc.value_or(0)));
        const bool cabeza = f.criterio == Criterio::contiene || f.criterio == Criterio::termina;
        const bool cola = f.criterio == Criterio::comienza || f.criterio == Criterio::contiene;
        QString limpio = f.razonSocial;
        limpio = limpio.replace(QRegularExpression("[,;()]"_u), " "_u).simplified();
        QStringList palabras = limpio.split(u' ', Qt::SkipEmptyParts);
        const QString directo = palabras.join(u'%');
        std::reverse(palabras.begin(), palabras.end());
        const auto con = [&](const QString& s) {
            return llano((cabeza ? "%"_u : QString()) + s + (cola ? "%"_u : QString()));
        };
        QList<QRegularExpression> vale{expresion(con(f.razonSocial))};
        if (palabras.size() > 1)
            vale << expresion(con(directo)) << expresion(con(palabras.join(u'%')));
        QSet<QString> esperadas;
        for (const Fila& x : std::as_const(todas_)) {
            if (x.dj == f.dj || x.renglon == f.renglon.toInt() || x.tipo.isEmpty()
                || (f.tipoSociedad && f.tipoSociedad != x.sociedad))
                continue;
            const bool nombre = f.criterio == Criterio::sin_filtro || f.razonSocial.isEmpty()
                                || std::any_of(vale.begin(), vale.end(), [&x](const QRegularExpression& e) {
                                       return e.match(llano(x.nombre)).hasMatch();
                                   });
            const bool doc = !f.tipoDoc || f.nroDoc.isEmpty()
                             || (f.tipoDoc == 96 ? x.tipo == u"96" && x.nro == f.nroDoc
                                                 : x.cuit == f.nroDoc.toDouble());
            if (nombre && doc)
                esperadas << x.tipo + u'|' + x.nro + u'|' + x.nombre;
        }
        QStringList halladas = hallar(f);
        for (QString& h : halladas)
            h.remove(h.indexOf(u'|'), h.indexOf(u'|', h.indexOf(u'|') + 1) - h.indexOf(u'|'));
        con_algo += !esperadas.isEmpty();
        ASSERT_EQ(halladas.size(), esperadas.size()) << f.razonSocial.toStdString() << " criterio " << int(f.criterio);
        ASSERT_EQ(QSet<QString>(halladas.begin(), halladas.end()), esperadas);
    }
    EXPECT_GT(con_algo, 100);
}

TEST_F(BuscarParte, LaSentenciaYElDocumentoQueNoVale)
{
    FiltroPartes f{.dj = "D"_u,
                   .renglon = "3"_u,
                   .tipoSociedad = 2,
                   .criterio = Criterio::termina,
                   .razonSocial = "O'Brien,  (Ana)"_u,
                   .tipoDoc = 80,
                   .tipoDocTexto = "CUIT"_u,
                   .nroDoc = "20A"_u};
    EXPECT_EQ(
        consulta_busqueda_partes(f, "Buscar persona"_u, oyente),
        " select distinct SPIN_NRODOC, P.GTDC_ID, TC.GTDC_DESCRIPCION, SPIN_RSOCIAL from SEL_TB_RTN_INS_PARTES as P inner join GLB_TB_AFIP_TIPOS_DOC as TC  on P.GTDC_ID=TC.GTDC_ID "
        " where (P.SEDJ_NRO<>'D' and P.SEDD_ID<>3)  and  (GTSO_ID=2) and ( sin_tildes(SPIN_RSOCIAL) like '%O''Brien,  (Ana)'  or ( sin_tildes(SPIN_RSOCIAL) like '%O''Brien%Ana')  or ( sin_tildes(SPIN_RSOCIAL) like '%Ana%O''Brien')  )"
        " and  P.SPIN_CUIT=-1 order by SPIN_NRODOC "_u);
    EXPECT_EQ(oyente.textos, QStringList{"El valor ingresado para CUIT no es válido"_u});
    EXPECT_EQ(f.razonSocial, "O'Brien Ana"_u);
    f = {.dj = "D"_u, .renglon = "3"_u, .tipoDoc = 94, .tipoDocTexto = "PASAPORTE"_u, .nroDoc = "A'1"_u};
    EXPECT_TRUE(consulta_busqueda_partes(f, {}, oyente).contains(" and  P.GTDC_ID=94 and P.SPIN_NRODOC='A''1' "_u));
    // The type with the identifier 0 is a type like any other.
    f.tipoDoc = 0;
    EXPECT_TRUE(consulta_busqueda_partes(f, {}, oyente).contains(" and  P.GTDC_ID=0 and P.SPIN_NRODOC='A''1' "_u));
    // An empty number is a null and finds nobody.
    EXPECT_FALSE(parte_con_documento("80"_u, QString()));
}

}  // namespace
