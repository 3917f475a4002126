// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is typed or pasted into a text of any form changes at most the row that the form is about, and ends nothing.
// TEXTOS sets how many of the texts each field gets, the next ones in turn:
//   TEXTOS=100 build/dev/programa/pruebas --gtest_filter='Hostiles*'

#include "apoyo/escenarios.h"
#include "campania/ingles.h"
#include "catalogue/screens/frmSubconceptos.h"
#include "declarations/copiar_dj.h"
#include "declarations/screens/frmDJ_buscar.h"
#include "widgets/ctlNumero.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <map>
#include <set>

namespace {

using namespace manejo;

constexpr const char* NUCLEOS[] = {"'",
                                   "''",
                                   "D'ANGELO",
                                   "FRENTE 20' -- FONDO 30'",
                                   "X'; DELETE FROM SEL_TB_RTN_CABDJ; --",
                                   "X' where 1=1 --",
                                   "X', SEDD_TOTAL_IMPUESTO=0 /*",
                                   "' or ''='",
                                   "'); drop table SEL_TB_RTN_PADRON; --",
                                   "/* nada */",
                                   "--",
                                   ";",
                                   "\"",
                                   "`",
                                   "[a]",
                                   "%",
                                   "_",
                                   "%1 %2 %99",
                                   "100%1",
                                   "\\",
                                   "\\'",
                                   "una línea\r\ny otra",
                                   "tabu\tlador",
                                   "<b>negrita</b>",
                                   "&tilde &amp;",
                                   "Ñandú çãö ß",
                                   "e\u0301",
                                   "\u202egnirts",
                                   "\u200b\ufeff",
                                   "😀 🏠",
                                   "$ 1.500,00",
                                   "20-12345678-6",
                                   "1e308",
                                   "-1",
                                   "999999999999999999999999",
                                   "NaN",
                                   "null",
                                   "1.50.00",
                                   "0x10",
                                   "{0} %s %n"};
constexpr int TEXTOS = 100;

// The cores as they are, behind a common word, and as a text far longer than any field.
QString hostil(int n)
{
    const int cuantos = int(std::size(NUCLEOS));
    const QString nucleo = QString::fromUtf8(NUCLEOS[n % cuantos]);
    switch (n % TEXTOS / cuantos) {
    case 0: return nucleo;
    case 1: return "CALLE 5 "_u + nucleo + " Y 6"_u;
    default: return nucleo.repeated(40) + QChar(0) + "FIN"_u;
    }
}

class Hostiles : public Escenarios
{
protected:
    void SetUp() override
    {
        Escenarios::SetUp();
        // Another month with the same deeds: its rows are nobody's concern.
        Oyente nadie;
        const QString otra = copiar_dj(dj_, nadie);
        ASSERT_FALSE(otra.isEmpty());
        cnRtn.ejecutar("update SEL_TB_RTN_CABDJ set SEDJ_ANIO=2025 where SEDJ_NRO='%1'"_u.arg(otra));
    }
    using Almacen = std::map<QString, QString>;
    // The rows of each table.
    static Almacen almacen()
    {
        Almacen tablas;
        for (Recordset rs(cnRtn, "select name from sqlite_master where type='table'"_u); !rs.eof(); rs.siguiente())
            tablas[rs.texto(0)] = filas("select * from %1"_u.arg(rs.texto(0)));
        return tablas;
    }
    // How many rows of one are not in the other.
    static size_t faltan(const QString& de, const QString& en)
    {
        const auto ordenadas = [](const QString& filas_) {
            const QStringList l = filas_.split(u'\n');
            return std::multiset<QString>(l.begin(), l.end());
        };
        std::vector<QString> resto;
        std::ranges::set_difference(ordenadas(de), ordenadas(en), std::back_inserter(resto));
        return resto.size();
    }
    // Tables in which more than one row went or came.
    static QString ajenas(const Almacen& antes, const Almacen& despues)
    {
        QStringList nombres;
        for (const auto& [tabla, filas_] : antes)
            if (const QString& otras = despues.at(tabla);
                otras != filas_ && (faltan(filas_, otras) > 1 || faltan(otras, filas_) > 1))
                nombres << tabla;
        return antes.size() == despues.size() ? nombres.join(u' ') : "las tablas"_u;
    }
    // The fields of a form on all of its pages, each with the page that shows it.
    static QList<std::pair<QString, int>> camposDePaginas(QWidget* f, const QString& marco)
    {
        QList<std::pair<QString, int>> todos;
        auto* paginas = f->findChild<QTabWidget*>();
        if (!paginas || !marco.isEmpty()) {
            for (const QString& campo : campos(f, marco))
                todos.append({campo, -1});
            return todos;
        }
        QStringList vistos;
        for (int i = 0; i < paginas->count(); ++i) {
            paginas->setCurrentIndex(i);
            for (const QString& campo : campos(f, {}))
                if (!vistos.contains(campo)) {
                    vistos << campo;
                    todos.append({campo, i});
                }
        }
        return todos;
    }
    void correr(const Escenario& e, const std::pair<QString, int>& campo, const QString& texto, bool pegando)
    {
        cnRtn.comenzar();
        QWidget* f = e.abrir();
        if (auto* paginas = f->findChild<QTabWidget*>(); campo.second >= 0)
            paginas->setCurrentIndex(campo.second);
        const auto antes = almacen();
        cajas_.clear();
        if (pegando)
            pegar(f, campo.first, texto);
        else
            teclear(f, campo.first, QString(texto).remove(QChar(0)));
        if (*e.barra)
            clicEn(f, e);
        else
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
        const std::string donde = (QString::fromUtf8(e.nombre) + u' ' + campo.first + ": "_u + texto).toStdString();
        EXPECT_EQ(ajenas(antes, almacen()), QString()) << donde;
        for (const QString& caja : std::as_const(cajas_))
            EXPECT_EQ(ingles_en(caja), QString()) << donde << '\n' << caja.toStdString();
        // What the field holds now has no character that parts lines, nor one that ends a text.
        if (auto* linea = f->findChild<QLineEdit*>(campo.first)) {
            EXPECT_FALSE(linea->text().contains(QRegularExpression("[\\x00-\\x1f\\x7f]"_u))) << donde;
        }
        cerrarTodo();
        cnRtn.deshacerTodo();
        ++entradas_;
    }
    void recorrer(const Escenario& e)
    {
        cnRtn.comenzar();
        const auto campos_ = camposDePaginas(e.abrir(), QLatin1StringView(e.marco));
        cerrarTodo();
        cnRtn.deshacerTodo();
        ASSERT_FALSE(campos_.isEmpty()) << e.nombre;
        const int cuantos = qEnvironmentVariableIsSet("TEXTOS") ? qEnvironmentVariableIntValue("TEXTOS") : 1;
        for (const auto& campo : campos_)
            for (int i = 0; i < cuantos; ++i, ++turno_)
                for (const bool pegando : {false, true})
                    correr(e, campo, hostil(turno_), pegando);
    }

    int turno_ = 0;
    int entradas_ = 0;
};

TEST_F(Hostiles, CambianALoSumoLaFilaDelFormulario)
{
    QList<Escenario> todos = deLaDJ() + deLaEscritura() + delCatalogo();
    todos << Escenario{"parte extranjera",
                       [] {
                           QWidget* e = abrirEscritura(false);
                           pulsar(e, "tlbPartes"_u, "editar"_u);
                           QWidget* f = formulario("frmDJ_detalle_parte");
                           clic(f, "optExtranjera"_u);
                           return f;
                       },
                       "tlb",
                       "aceptar",
                       0,
                       true}
          << Escenario{"no alcanzada",
                       [] {
                           QWidget* e = abrirEscritura(false);
                           elegir(e, "cboAlcanzado"_u, "No alcanzado"_u);
                           elegir(e, "cboDesc_NoAlcanzado"_u, "OTRO"_u);
                           return e;
                       },
                       "tlbDetalle",
                       "aceptar",
                       0,
                       false,
                       "fraCab"}
          << Escenario{"partes anteriores",
                       [] {
                           QWidget* e = abrirEscritura(false);
                           pulsar(e, "tlbPartes"_u, "agregar"_u);
                           pulsar(formulario("frmDJ_detalle_parte"), "tlb"_u, "buscar"_u);
                           QWidget* f = formulario("frmDJ_buscar_parte");
                           elegir(f, "cboCriterioRazonSocial"_u, "Contiene"_u);
                           elegir(f, "cboTipoDoc"_u, "DNI"_u);
                           return f;
                       },
                       "tlb",
                       "buscar",
                       0,
                       false}
          << Escenario{"catálogo",
                       [] {
                           auto* f = cargar<frmSubconceptos>();
                           f->mostrar();
                           for (const char* casilla : {"chkLey", "chkArticulo", "chkInciso"})
                               clic(f, QLatin1StringView(casilla));
                           return f;
                       },
                       "toolbar",
                       "buscar",
                       0,
                       false}
          << Escenario{"lista de DJ",
                       [] {
                           auto* f = cargar<frmDJ_buscar>();
                           f->mostrar();
                           return f;
                       },
                       "",
                       "",
                       0,
                       false};
    for (const Escenario& e : std::as_const(todos))
        recorrer(e);
    EXPECT_GT(entradas_, 150);
}

}  // namespace
