// SPDX-License-Identifier: GPL-3.0-or-later
// oficina FOLDER [ROUNDS]: an office at work in the real windows on the store of the folder, one deed a round, without
// end or for so many rounds and then the emission. Prints each step once its screen says that it is stored, and each
// box ("caja"), so that whoever kills it, or lets its disk fail, can look for what was confirmed.

#include "application/aplicacion.h"
#include "application/screens/MDIPrincipal.h"
#include "core/modGlobales.h"
#include "core/reloj.h"
#include "manejo/manejo.h"
#include "widgets/formulario.h"

#include <QAction>
#include <QLocale>
#include <QStandardPaths>
#include <QTest>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace manejo;

namespace {

constexpr int INTENTOS = 4;

void decir(const QString& linea)
{
    std::puts(qUtf8Printable(QString(linea).replace(u'\n', u' ')));
    std::fflush(stdout);
}

bool abierto(const char* clase)
{
    for (const Formulario* f : Formulario::cargados())
        if (qstrcmp(f->metaObject()->className(), clase) == 0)
            return true;
    return false;
}

// A person tries again what was refused; whether it went in the end.
template <class Hecho, class Accion>
bool insistir(Hecho hecho, Accion accion)
{
    for (int i = 0; i < INTENTOS && !hecho(); ++i)
        accion();
    return hecho();
}

class Oficina
{
public:
    explicit Oficina(const QString& carpeta) : carpeta_(carpeta) {}

    void abrir(MDIPrincipal& principal)
    {
        insistir([] { return abierto("frmDJ_buscar"); }, [&] { principal.findChild<QAction*>(u"ssmDJ"_s)->trigger(); });
        insistir([] { return abierto("frmDJ_editar"); },
                 [] { pulsar(formulario("frmDJ_buscar"), u"tlbDJ"_s, u"modificar"_s); });
        solapa(formulario("frmDJ_editar"), u"SSTab1"_s, 1);
        const Recordset rs(cnRtn, u"select max(SEDD_ESCRITURA_NRO) from SEL_TB_RTN_DETDJ"_s);
        nro_ = int(rs.entero(0));
    }
    void vuelta(int cual)
    {
        ++nro_;
        try {
            if (escritura()) {
                parte();
                operacion();
                recibo();
                if (cual % 4 == 1)
                    borrarOperacion();
                if (cual % 4 == 3)
                    anular();
            }
            volver("frmDJ_editar");
            if (cual % 4 == 1)
                borrar();
            if (cual % 4 == 2)
                boleta();
        } catch (const Inesperado& e) {
            decir(u"inesperado "_s + QString::fromUtf8(e.what()));
        }
        volver("frmDJ_editar");
    }
    void emitir()
    {
        volver("frmDJ_buscar");
        insistir([this] { return abierto("frmReportes"); },
                 [] { pulsar(formulario("frmDJ_buscar"), u"tlbDJ"_s, u"emitir"_s); });
        if (abierto("frmReportes"))
            decir(u"emitida"_s);
        volver("frmDJ_buscar");
        insistir([] { return abierto("frmDJ_editar"); },
                 [] { pulsar(formulario("frmDJ_buscar"), u"tlbDJ"_s, u"rectificar"_s); });
        if (abierto("frmDJ_editar"))
            decir(u"rectificada "_s + texto(formulario("frmDJ_editar"), u"txtNroDJ"_s));
        volver("frmDJ_buscar");
    }

private:
    // Closes what stands on a form.
    static void volver(const char* clase)
    {
        for (int i = 0; i < 2 * INTENTOS; ++i) {
            Formulario* ultimo = Formulario::cargados().constLast();
            if (qstrcmp(ultimo->metaObject()->className(), clase) == 0)
                return;
            ultimo->cerrar();
            QApplication::processEvents();
        }
    }
    [[nodiscard]] QString clave() const { return QString::number(nro_) + u' ' + renglon_; }

    bool escritura()
    {
        insistir([] { return abierto("frmDJ_detalle"); },
                 [] { pulsar(formulario("frmDJ_editar"), u"tlbDetalle"_s, u"agregar"_s); });
        auto* f = formulario("frmDJ_detalle");
        escribir(f, u"txtNroEscritura"_s, QString::number(nro_));
        escribir(f, u"txtFolio"_s, QString::number(nro_));
        escribir(f, u"nroDia"_s, u"5"_s);
        escribir(f, u"txtObs"_s, u"NUEVA"_s);
        if (!aceptarEscritura(f))
            return false;
        renglon_ = texto(f, u"txtRenglonDJ"_s);
        decir(u"escritura "_s + clave());
        return true;
    }
    static bool aceptarEscritura(QWidget* f)
    {
        return insistir([f] { return !habilitado(f, u"tlbDetalle"_s, u"aceptar"_s); },
                        [f] { pulsar(f, u"tlbDetalle"_s, u"aceptar"_s); });
    }
    void parte()
    {
        insistir([] { return abierto("frmDJ_detalle_parte"); },
                 [] { pulsar(formulario("frmDJ_detalle"), u"tlbPartes"_s, u"agregar"_s); });
        auto* f = formulario("frmDJ_detalle_parte");
        clic(f, u"optArgentina"_s);
        elegir(f, u"cboTipoSociedad"_s, u"UNIPERSONAL"_s);
        elegir(f, u"cboTipoDoc"_s, u"DNI"_s);
        escribir(f, u"nroDoc"_s, u"22333444"_s);
        escribir(f, u"txtRazonSocial"_s, u"ríos ana"_s);
        escribir(f, u"txtDomicilio"_s, u"los álamos 15"_s);
        elegir(f, u"cboProv"_s, u"MARVEN"_s);
        elegir(f, u"cboLoc"_s, u"EL SAUCE"_s);
        if (insistir([] { return !abierto("frmDJ_detalle_parte"); }, [f] { pulsar(f, u"tlb"_s, u"aceptar"_s); }))
            decir(u"parte "_s + clave());
        volver("frmDJ_detalle");
    }
    void operacion()
    {
        solapa(formulario("frmDJ_detalle"), u"SSTab1"_s, 1);
        insistir([] { return abierto("frmDJ_detalle_op"); },
                 [] { pulsar(formulario("frmDJ_detalle"), u"tlbOp"_s, u"agregar"_s); });
        auto* f = formulario("frmDJ_detalle_op");
        teclear(f, u"ctlCodS"_s, u"29"_s);
        const bool abierta = insistir([f] { return habilitado(f, u"tlb"_s, u"guardar_det"_s); },
                                      [f] { pulsar(f, u"tlb"_s, u"guardar_op"_s); });
        if (abierta
            && insistir([f] { return !habilitado(f, u"tlb"_s, u"guardar_det"_s); },
                        [f] { pulsar(f, u"tlb"_s, u"guardar_det"_s); }))
            decir(u"operacion "_s + clave());
        volver("frmDJ_detalle");
    }
    void recibo()
    {
        auto* f = formulario("frmDJ_detalle");
        // The button needs an operation.
        if (!habilitado(f, u"tlbDetalle"_s, u"recibo"_s))
            return;
        if (insistir([] { return abierto("frmReportes"); }, [f] { pulsar(f, u"tlbDetalle"_s, u"recibo"_s); }))
            decir(u"recibo "_s + clave());
        volver("frmDJ_detalle");
    }
    void borrarOperacion()
    {
        auto* f = formulario("frmDJ_detalle");
        if (insistir([f] { return filas(f, u"flxOp"_s) == 0; }, [f] { pulsar(f, u"tlbOp"_s, u"quitar"_s); }))
            decir(u"sin_operacion "_s + clave());
    }
    void anular()
    {
        auto* f = formulario("frmDJ_detalle");
        pulsar(f, u"tlbDetalle"_s, u"editar"_s);
        elegir(f, u"cboDET_Estado"_s, u"ANULADA/NO PASO"_s);
        if (aceptarEscritura(f))
            decir(u"anulada "_s + clave());
    }
    // The deeds stand in the order of their numbers, and this one has the highest.
    void borrar()
    {
        auto* f = formulario("frmDJ_editar");
        const int antes = filas(f, u"flxOp"_s);
        celda(f, u"flxOp"_s, antes - 1, 1);
        if (!insistir([&] { return filas(f, u"flxOp"_s) < antes; }, [f] { pulsar(f, u"tlbDetalle"_s, u"borrar"_s); }))
            return;
        decir(u"borrada "_s + clave());
        --nro_;
    }
    void boleta()
    {
        auto* f = formulario("frmDJ_editar");
        solapa(f, u"SSTab1"_s, 2);
        escribir(f, u"nroEfectivo"_s, texto(f, u"nroBOL_Total_depositar"_s).remove(u'.').section(u',', 0, 0));
        const int antes = filas(f, u"flxB"_s);
        if (insistir([&] { return filas(f, u"flxB"_s) > antes; }, [f] { pulsar(f, u"tlbB"_s, u"generar"_s); }))
            decir(u"boleta "_s + QString::number(antes + 1));
        volver("frmDJ_editar");
        solapa(formulario("frmDJ_editar"), u"SSTab1"_s, 1);
    }

    QString carpeta_;
    int nro_ = 0;
    QString renglon_;
};

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Aplicacion aplicacion(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    const QString carpeta = QString::fromLocal8Bit(argv[1]);
    const int vueltas = argc > 2 ? std::atoi(argv[2]) : 0;
    fijar_carpeta_programa(carpeta);
    fijar_hoy(QDate(2026, 11, 12));
    int salida = EXIT_FAILURE;
    const auto trabajar = [&] {
        MDIPrincipal principal;
        if (!principal.iniciar())
            return;
        principal.resize(1200, 760);
        principal.show();
        principal.activateWindow();
        QApplication::processEvents();
        Oficina oficina(carpeta);
        oficina.abrir(principal);
        for (int i = 0; vueltas == 0 || i < vueltas; ++i)
            oficina.vuelta(i);
        oficina.emitir();
        principal.close();
        decir(u"fin"_s);
        salida = EXIT_SUCCESS;
    };
    Cajas::aceptando(
        trabajar, [](const QString& caja) { decir(u"caja "_s + caja); }, carpeta + u"/salida/x.rar"_s);
    return salida;
}
