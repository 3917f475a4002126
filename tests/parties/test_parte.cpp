// SPDX-License-Identifier: GPL-3.0-or-later

#include "apoyo/apoyo.h"
#include "parties/parte.h"

namespace {

ControlesParte completa()
{
    ControlesParte c;
    c.titulo = "T"_u;
    c.argentina = true;
    c.tipoSociedad = 1;
    c.tipoSociedadTexto = "UNIPERSONAL"_u.leftJustified(200) + u'2';
    c.tipoDoc = 80;
    c.tipoDocTexto = "CUIT"_u;
    c.nroDoc.escribirTexto("20123456786"_u);
    c.razonSocial = "N"_u;
    return c;
}

void sociedad(ControlesParte& c, const char* nombre, char digito)
{
    c.tipoSociedadTexto = QString::fromUtf8(nombre).leftJustified(200) + QChar::fromLatin1(digito);
}

void documento(ControlesParte& c, const char* tipo, int id, const char* nro)
{
    c.tipoDocTexto = QString::fromUtf8(tipo);
    c.tipoDoc = id;
    c.nroDoc.escribirTexto(QString::fromUtf8(nro));
}

// What is changed in a good party, and what is said of it (nothing when it stays good).
struct Caso
{
    void (*cambiar)(ControlesParte&);
    const char* control;
    const char* mensaje;
};
class Parte_ : public testing::TestWithParam<Caso>
{
};
TEST_P(Parte_, PrimeraFalla)
{
    ControlesParte c = completa();
    GetParam().cambiar(c);
    const auto f = validar_parte(c);
    EXPECT_EQ(f ? f->control : QString(), QLatin1StringView(GetParam().control));
    EXPECT_EQ(f ? f->mensaje : QString(), QString::fromUtf8(GetParam().mensaje));
}
using C = ControlesParte;
constexpr const char* CUIT_MAL = "El número de CUIT ingresado no es válido";
constexpr const char* DOC_MAL = "El número de documento no es válido";
INSTANTIATE_TEST_SUITE_P(
    ParteReglas, Parte_,
    testing::Values(
        Caso{[](C&) {}, "", ""},
        Caso{[](C& c) { c.argentina = false; }, "optArgentina", "Indique la nacionalidad del contribuyente"},
        Caso{[](C& c) { c.tipoSociedad.reset(); }, "cboTipoSociedad", "Seleccione el tipo de sociedad"},
        Caso{[](C& c) {
                 c.tipoDoc.reset();
                 c.tipoDocTexto.clear();
             },
             "cboTipoDoc", "Ingrese el tipo de documento del participante"},
        Caso{[](C& c) {
                 sociedad(c, "COOPERATIVA", '3');
                 documento(c, "DNI", 96, "22333444");
             },
             "cboTipoDoc", "El tipo de documento no coincide con el tipo de sociedad seleccionado"},
        Caso{[](C& c) { c.nroDoc.ClearText(); }, "nroDoc", "Ingrese el CUIT o CUIL del participante"},
        Caso{[](C& c) { c.nroDoc.escribirTexto("2012345678"_u); }, "nroDoc", CUIT_MAL},
        Caso{[](C& c) { c.nroDoc.escribirTexto("20123456785"_u); }, "nroDoc", CUIT_MAL},
        Caso{[](C& c) { c.nroDoc.escribirTexto("20000001007"_u); }, "nroDoc", CUIT_MAL},  // the middle is not above 100
        Caso{[](C& c) { sociedad(c, "SOCIEDAD ANONIMA", '3'); }, "nroDoc",
             "El CUIT comenzado con 20 no coincide con el tipo de sociedad seleccionado"},
        Caso{[](C& c) { documento(c, "CUIL", 86, "30712345671"); }, "nroDoc",
             "El CUIL comenzado con 30 no coincide con el tipo de sociedad seleccionado"},
        Caso{[](C& c) {
                 c.enTramite = true;
                 c.nroDoc.ClearText();
             },
             "", ""},
        Caso{[](C& c) { documento(c, "DNI", 96, ""); }, "nroDoc", "Ingrese el número de documento del participante"},
        Caso{[](C& c) { documento(c, "DNI", 96, "99999"); }, "nroDoc", DOC_MAL},
        Caso{[](C& c) { documento(c, "DNI", 96, "100000"); }, "", ""},
        Caso{[](C& c) { documento(c, "DNI", 96, "99999999"); }, "nroDoc", DOC_MAL},
        Caso{[](C& c) { documento(c, "LC", 90, "12345"); }, "", ""},
        Caso{[](C& c) { documento(c, "CI POLICIA FEDERAL", 0, "12345"); }, "", ""},
        Caso{[](C& c) {
                 documento(c, "PASAPORTE", 94, "");
                 c.pasaporte = "  "_u;
             },
             "txtPasaporte", "Ingrese Nº de pasaporte del participante"},
        Caso{[](C& c) {
                 c.argentina = false;
                 c.extranjera = true;
             },
             "cboCodigoPais", "Ingrese el código pais del participante"},
        Caso{[](C& c) {
                 c.argentina = false;
                 c.extranjera = true;
                 c.pais = 1;
                 c.tipoSociedad.reset();
             },
             "cboTipoSociedad", "Ingrese el tipo de sociedad"},
        Caso{[](C& c) { c.razonSocial = "  "_u; }, "txtRazonSocial",
             "Ingrese la denominación/razón social de la parte"},
        Caso{[](C& c) { c.provinciaTexto = "X"_u; }, "cboProv", "El texto ingresado no es una provincia válida"},
        Caso{[](C& c) { c.localidadTexto = "X"_u; }, "cboLoc", "El texto ingresado no es una localidad válida"},
        Caso{[](C& c) { c.exento = true; }, "nroExencionPorc",
             "Ingrese el porcentaje de exención sobre el impuesto de sellos que tiene el participante"},
        Caso{[](C& c) {
                 c.exento = true;
                 c.exencionPorc.escribirTexto("100,01"_u);
             },
             "nroExencionPorc", "El porcentaje de exención ingresado no es válido"},
        Caso{[](C& c) {
                 documento(c, "DNI", 96, "22333444");
                 c.exento = true;
             },
             "", ""},
        Caso{[](C& c) { c.rolActivo = true; }, "cboRol",
             "Seleccione el rol que tiene el participante en el instrumento"}));

class Parte2 : public ConAlmacen
{
protected:
    void SetUp() override
    {
        ConAlmacen::SetUp();
        dj = nueva_dj();
        nueva_escritura(dj, 1, 1, 1, 1);
        cnRtn.ejecutar(
            "insert into SEL_TB_RTN_INS_PARTES (SPIN_ID, SEDJ_NRO, SEDD_ID, GTDC_ID, SPIN_NRODOC, SPIN_CUIT) values "
            "(1, '%1', 1, '80', '20123456786', 20123456786), (2, '%1', 1, '96', '22333444', null), (3, '%1', 1, '94', 'AB1', null)"_u
                .arg(dj));
    }
    QString choque(const char* tipo, int id, const char* nro)
    {
        ControlesParte c = completa();
        c.dj = dj;
        c.renglon = "1"_u;
        documento(c, tipo, id, nro);
        c.pasaporte = QString::fromUtf8(nro);
        oyente.textos.clear();
        EXPECT_EQ(verificar_colision_partes(c, oyente), true);
        oyente.respuesta = false;
        const auto dichos = oyente.textos.size();
        EXPECT_EQ(verificar_colision_partes(c, oyente), dichos == 0);
        oyente.respuesta = true;
        return oyente.ultimo();
    }
    QString dj;
};

TEST_F(Parte2, Colisiones)
{
    const QString seguir = "\n\n¿Esta seguro de ingresarlo de todas formas?"_u;
    EXPECT_EQ(choque("CUIT", 80, "20123456786"),
              "En la escritura ya existe otro contribuyente con el mismo número de CUIT/CUIL"_u + seguir);
    EXPECT_EQ(choque("CUIT", 80, "27222333445"), QString());
    EXPECT_EQ(choque("CUIL", 86, "20123456786"), QString());  // another type is another condition
    EXPECT_EQ(choque("PASAPORTE", 94, "AB1"),
              "En la escritura ya existe otro contribuyente con el Nº de Pasaporte ingresado"_u + seguir);
    EXPECT_EQ(choque("DNI", 96, "22333444"),
              "En la escritura ya existe otro contribuyente con el Nº de Documento ingresado"_u + seguir);
    EXPECT_EQ(choque("SIN IDENTIFICAR", 99, "22333444"),
              "En la escritura ya existe otro contribuyente con el Nº de Documento ingresado"_u + seguir);
    EXPECT_EQ(
        choque("DNI", 96, "12345678"),
        "Hay colisión de CUITs/CUILs/NºDocumento entre las partes del instrumento.\nYa existe otro contribuyente cuyo CUIT/CUIL se corresponde con el DNI ingresado\n\n¿Desea darlo de alta con el mismo número de todas formas?"_u);
    EXPECT_EQ(oyente.titulos.last(), "Advertencia"_u);
}

TEST_F(Parte2, LoQueSeGuardaPorTipo)
{
    ControlesParte c = completa();
    c.dj = dj;
    c.renglon = "1"_u;
    c.id = 2;
    c.razonSocial = "O'BRIEN"_u;
    const QString fila =
        "select GTDC_ID, SPIN_NRODOC, SPIN_CUIT, SPIN_CUIT_EN_TRAMITE, SPIN_RSOCIAL, SPIN_PORCEXENTO, SPIN_NACIONALIDAD, CPAI_CODIGO from SEL_TB_RTN_INS_PARTES where SPIN_ID=2"_u;
    modificar_parte(c);
    EXPECT_EQ(filas(fila), "80|20123456786|20123456786.0|0|O'BRIEN|null|A|null"_u);
    c.enTramite = true;
    c.exento = true;
    modificar_parte(c);
    EXPECT_EQ(filas(fila), "80|null|null|1|O'BRIEN|0.0|A|null"_u);
    c.enTramite = false;
    documento(c, "PASAPORTE", 94, "");
    c.pasaporte = "XY9"_u;
    c.argentina = false;
    c.extranjera = true;
    c.paisTexto = "BRASIL - Física (50000000316)"_u;
    modificar_parte(c);
    EXPECT_EQ(filas(fila), "94|XY9|null|0|O'BRIEN|0.0|E|50000000316"_u);
    documento(c, "SIN IDENTIFICAR", 99, "5");
    modificar_parte(c);
    EXPECT_EQ(filas(fila), "99|null|null|0|O'BRIEN|0.0|E|50000000316"_u);
    documento(c, "DNI", 96, "22333444");
    c.exento = false;
    const Parte p = parte_de(c);
    EXPECT_EQ(p.nroDoc, "22333444"_u);
    EXPECT_FALSE(p.cuit);
    EXPECT_FALSE(p.porcExento);
    EXPECT_EQ(p.codigoPais, "50000000316"_u);
    const auto leida = cargar_parte(dj, "1"_u, 1);
    EXPECT_DOUBLE_EQ(*leida->cuit, 20123456786.0);
}

}  // namespace
