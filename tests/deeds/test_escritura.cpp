// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "deeds/escritura.h"

#include <QDir>
#include <QFile>

namespace {

class EscrituraDJ : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        dj = nueva_dj();
    }
    ControlesEscritura nueva(const char* nro, const char* folio, int dia)
    {
        ControlesEscritura c;
        c.titulo = "T"_u;
        c.dj = dj;
        c.anio = 2026;
        c.mes = 10;
        c.nro = QString::fromUtf8(nro);
        c.folio = QString::fromUtf8(folio);
        c.dia.setValue(dia);
        c.estado = 2;  // NO PASO: nothing is asked of the testimonio
        c.totalImpuesto = Numero(2);
        c.totalImpuesto.setValue(0);
        return c;
    }
    QString dj;
};

TEST_F(EscrituraDJ, CamposEnSuOrden)
{
    ControlesEscritura c = nueva(" ", "", 0);
    c.estado = -1;
    const auto paso = [&](const char* foco, const char* mensaje) {
        const auto r = validar_escritura(c, oyente);
        EXPECT_FALSE(r.vale);
        EXPECT_EQ(r.foco, QLatin1StringView(foco));
        EXPECT_EQ(oyente.ultimo(), QString::fromUtf8(mensaje));
        EXPECT_EQ(oyente.titulos.last(), "T"_u);
    };
    paso("txtNroEscritura", "Ingrese el Nº Escritura");
    c.nro = "1"_u;
    paso("txtFolio", "Ingrese el Folio");
    c.folio = "1"_u;
    paso("nroDia", "Ingrese el día");
    c.dia.ClearText();
    paso("nroDia", "Ingrese el día");
    c.dia.setValue(32);
    paso("nroDia", "El día ingresado no es válido");
    c.mes = 2;
    c.anio = 2027;
    c.dia.setValue(29);
    paso("nroDia", "El día ingresado no es válido");
    c.anio = 2028;
    paso("cboDET_Estado", "Indique el estado de la escritura");
    c.estado = 0;
    c.alcanzado = 1;
    paso("cboDesc_NoAlcanzado", "Seleccione la descripcion de la operación No Alcanzada");
    c.motivo = 9;
    c.motivoTexto = "Otro"_u;
    c.motivoOtroActivo = true;
    paso("txtNoAlcanzado_Otro", "Ingrese la descripcion de la operación No Alcanzada");
    c.motivoOtro = "x"_u;
    EXPECT_TRUE(validar_escritura(c, oyente).vale);
}

// A stored deed 10, folio 40, day 5 (and an ERROSE 10); the new one against it.
struct Solapada
{
    const char* nro;
    const char* folio;
    int dia;
    int estado;
    bool respuesta;
    bool vale;
    const char* dice;
    const char* foco;
    int estadoFinal;
};
class EscrituraSolape : public EscrituraDJ, public testing::WithParamInterface<Solapada>
{
};
TEST_P(EscrituraSolape, ContraLasDemas)
{
    const Solapada& k = GetParam();
    nueva_escritura(dj, 1, 10, 40, 5);
    nueva_escritura(dj, 2, 20, 60, 9, "E");
    nueva_escritura(dj, 3, 30, 70, 12, "N");
    ControlesEscritura c = nueva(k.nro, k.folio, k.dia);
    c.estado = k.estado;
    c.alcanzado = 1;  // nothing is asked of the testimonio
    c.motivo = 1;
    oyente.respuesta = k.respuesta;
    const auto r = validar_escritura(c, oyente);
    EXPECT_EQ(r.vale, k.vale);
    EXPECT_EQ(r.foco, QLatin1StringView(k.foco));
    EXPECT_EQ(oyente.ultimo(), QString::fromUtf8(k.dice));
    EXPECT_EQ(c.estado, k.estadoFinal);
}
constexpr const char* NUMERO =
    "Atención: Se solapa el Nº Escritura\nExiste una escritura Nº 10 con folio 40 del dia 5\n\nDesea cargar un ERROSE para la escritura 10?";
constexpr const char* FOLIO =
    "Atención: Se solapa el Nº Folio\nExiste una escritura Nº 10 con folio 40 del dia 5\n\nDesea cargar un ERROSE para el folio 40?";
constexpr const char* DIA =
    "Atención: El día se solapa con una escritura anterior\nExiste una escritura Nº 10 Folio 40 del día 5\n\n";
INSTANTIATE_TEST_SUITE_P(
    Casos, EscrituraSolape,
    testing::Values(
        Solapada{"10", "50", 5, 0, true, true, NUMERO, "txtNroEscritura", 1},
        Solapada{"10", "50", 5, 0, false, false, NUMERO, "", 0},
        Solapada{"11", "40", 5, 0, true, true, FOLIO, "txtFolio", 1},  // equal folios clash
        Solapada{"11", "39", 5, 0, false, false, FOLIO, "", 0},
        Solapada{"11", "41", 3, 0, true, false, DIA, "nroDia", 0},  // no way past the day
        Solapada{"11", "41", 5, 0, true, true, "", "", 0},
        Solapada{"9", "99", 31, 0, true, true, "", "", 0},  // below everything: nothing is looked at
        Solapada{"20", "61", 9, 0, true, true, "", "", 0},  // an ERROSE does not count
        Solapada{
            "30", "71", 12, 0, false, false,
            "Atención: Se solapa el Nº Escritura\nExiste una escritura Nº 30 con folio 70 del dia 12\n\nDesea cargar un ERROSE para la escritura 30?",
            "", 0},
        Solapada{"10", "40", 1, 1, true, true, "", "", 1},  // an annulled deed overlaps nothing
        Solapada{"011", "041", 5, 0, true, true, "", "", 0}));

TEST_F(EscrituraDJ, ModificarNoChocaConsigoMisma)
{
    nueva_escritura(dj, 1, 10, 40, 5);
    ControlesEscritura c = nueva("10", "40", 5);
    c.estado = 0;
    c.alcanzado = 1;
    c.motivo = 1;
    c.operacion = Modo::modificar;
    c.renglon = "1"_u;
    EXPECT_TRUE(validar_escritura(c, oyente).vale);
    cnRtn.ejecutarGuion("drop table SEL_TB_RTN_DJ_TESTIMONIOS; alter table SEL_TB_RTN_DETDJ rename to OTRA"_u);
    oyente.textos.clear();
    EXPECT_FALSE(validar_escritura(c, oyente).vale);  // a failed read gives no message
    EXPECT_TRUE(oyente.textos.isEmpty());
}

TEST_F(EscrituraDJ, Testimonio)
{
    const QString archivo = carpeta.path() + "/o'higgins.pdf"_u;
    QFile f(archivo);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    ControlesEscritura c = nueva("1", "1", 1);
    c.estado = 0;
    oyente.respuesta = false;
    auto r = validar_escritura(c, oyente);
    EXPECT_EQ(oyente.ultimo(), "Falta el archivo del testimonio. ¿Desea ingresarlo mas tarde?"_u);
    EXPECT_FALSE(r.vale);
    EXPECT_EQ(r.foco, "txtTestimonio"_u);
    c.testimonio = "/no/existe.pdf"_u;
    EXPECT_FALSE(validar_escritura(c, oyente).vale);
    EXPECT_EQ(oyente.ultimo(),
              "El archivo del testimonio no existe. \nVerifique que el nombre de archivo sea correcto."_u);
    // The copies that an emission makes are emptied by the next one.
    ASSERT_TRUE(QDir(carpeta.path()).mkpath("data/%1/testimonios"_u.arg(dj)));
    const QString copia = carpeta.path() + "/data/%1/testimonios/%1-0001.pdf"_u.arg(dj);
    ASSERT_TRUE(QFile::copy(archivo, copia));
    c.testimonio = copia;
    r = validar_escritura(c, oyente);
    EXPECT_FALSE(r.vale);
    EXPECT_EQ(r.foco, "txtTestimonio"_u);
    EXPECT_TRUE(oyente.ultimo().startsWith("El archivo es una copia hecha al emitir esta DJ"_u));
    c.testimonio = "  "_u + archivo + " "_u;
    EXPECT_TRUE(validar_escritura(c, oyente).vale);
    EXPECT_EQ(c.testimonio, archivo);

    nueva_escritura(dj, 4, 8, 8, 8);
    cnRtn.ejecutar(
        "update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO='%1'"_u.arg(QString(archivo).replace(u'\'', "''"_u)));
    r = validar_escritura(c, oyente);
    EXPECT_FALSE(r.vale);
    EXPECT_EQ(oyente.ultimo(), "Atención: El archivo ya fue asociado a la escritura Nº 8 del dia 8"_u);
    EXPECT_EQ(oyente.titulos.last(), "Testimonio"_u);
    c.operacion = Modo::modificar;
    c.renglon = "4"_u;
    EXPECT_TRUE(validar_escritura(c, oyente).vale);

    // Insert and update store the path in one form, and the check also finds the one of an older store.
    EXPECT_EQ(escritura_nueva(c).testimonio, archivo);
    ASSERT_EQ(actualizar_escritura(c), 1);
    EXPECT_EQ(dato("select SEDD_FNAME_TESTIMONIO from SEL_TB_RTN_DETDJ where SEDD_ID=4"_u), archivo);
    cnRtn.ejecutar(
        "update SEL_TB_RTN_DETDJ set SEDD_FNAME_TESTIMONIO='%1'"_u.arg(QString(archivo).replace("'"_u, "''''"_u)));
    c.operacion = Modo::nuevo;
    EXPECT_FALSE(validar_escritura(c, oyente).vale);
}

TEST_F(EscrituraDJ, QuienRequiereTestimonio)
{
    nueva_escritura(dj, 1, 1, 1, 1);
    ControlesEscritura c = nueva("1", "1", 1);
    EXPECT_TRUE(requiere_testimonio(c));
    c.renglon = "1"_u;
    EXPECT_TRUE(requiere_testimonio(c));  // no operation yet
    cnRtn.ejecutar(
        "insert into SEL_TB_RTN_INS_OPERACIONES (SEDJ_NRO, SEDD_ID, SEDO_ID, SSUB_ID) values ('%1', 1, 1, 5707029), ('%1', 1, 2, 5707001)"_u
            .arg(dj));
    EXPECT_FALSE(requiere_testimonio(c));
    c.alcanzado = 1;
    for (const auto& [motivo, si] : {std::pair{1, false}, {3, true}, {77, false}}) {
        c.motivo = motivo;
        EXPECT_EQ(requiere_testimonio(c), si);
    }
}

TEST_F(EscrituraDJ, LaFilaQueQueda)
{
    nueva_escritura(dj, 1, 1, 1, 1);
    ControlesEscritura c = nueva("15", "16", 17);
    c.renglon = "1"_u;
    c.estado = 0;
    c.alcanzado = 1;
    c.motivo = 9;
    c.motivoTexto = "Otro"_u;
    c.motivoOtroActivo = true;
    c.motivoOtro = "D'ANGELO"_u;
    c.testimonio = "/a'b.pdf"_u;
    c.totalImpuesto.setValue(1234.5);
    EXPECT_EQ(actualizar_escritura(c), 1);
    const QString todo =
        "select SEDD_DIA, SEDD_ESCRITURA_NRO, SEDD_FOLIO, SEDD_TOTAL_IMPUESTO, SEDD_OBSERVACIONES, SEDD_ESTADO, SEDD_ALCANZADO, SNAD_ID, SNAD_DESC_OTRO, SEDD_FNAME_TESTIMONIO from SEL_TB_RTN_DETDJ"_u;
    EXPECT_EQ(filas(todo), "17|15|16|1234.5|null|P|N|9|D'ANGELO|/a'b.pdf"_u);
    c.estado = 1;
    c.alcanzado = 0;
    EXPECT_EQ(actualizar_escritura(c), 1);
    EXPECT_EQ(filas(todo), "17|15|16|1234.5|null|E|S|null|null|null"_u);
    c.observaciones = "O'BRIEN"_u;
    EXPECT_THROW(actualizar_escritura(c), ErrorAlmacen);  // the remark is not quoted
    EXPECT_EQ(cargar_escritura(dj, 1)->estado, "E"_u);
    EXPECT_EQ(letra_estado(2) + lista_estados()[2].left(15), "NANULADA/NO PASO"_u);
}

}  // namespace
