// SPDX-License-Identifier: GPL-3.0-or-later

#include "agents/screens/frmRTN_editar.h"

#include "agents/agente.h"
#include "tree/registros.h"
#include "ui_frmRTN_editar.h"
#include "widgets/ctlComunes.h"
#include "widgets/enlaces.h"
#include "widgets/marca_largo.h"
#include "widgets/mensajes.h"

#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;

namespace {

constexpr Enlace<Agente> CAMPOS[] = {
    {"txtTitular", &Agente::titular},
    {"txtCUIT", &Agente::cuit},
    {"txtDomicilio", &Agente::domicilio},
    {"txtCodPostal", &Agente::codPostal},
    {"txtTelefono", &Agente::telefono},
    {"txtEmail", &Agente::email},
    {"txtAdscripto1_nombre", &Agente::adscripto1},
    {"txtAdscripto1_cuit", &Agente::adscripto1Cuit},
    {"txtAdscripto2_nombre", &Agente::adscripto2},
    {"txtAdscripto2_cuit", &Agente::adscripto2Cuit},
};

}  // namespace

frmRTN_editar::frmRTN_editar() : ui(std::make_unique<Ui::frmRTN_editar>())
{
    ui->setupUi(this);
    const LargoEmitido largos[] = {
        {"txtTitular", ancho_emitido("SEDJ_TITULAR_NOMBRE")},
        {"txtDomicilio", ancho_emitido("SEDJ_DOMICILIO")},
        {"txtCodPostal", ancho_emitido("SEDJ_CODPOSTAL")},
        {"txtTelefono", ancho_emitido("SEDJ_TELEFONO")},
        {"txtEmail", ancho_emitido("SEDJ_EMAIL")},
        {"txtAdscripto1_nombre", ancho_emitido("SEDJ_ADSCRIPTO1_NOMBRE")},
        {"txtAdscripto2_nombre", ancho_emitido("SEDJ_ADSCRIPTO2_NOMBRE")},
    };
    marcar_largos(this, largos);
    for (QLineEdit* texto :
         {ui->txtTitular, ui->txtDomicilio, ui->txtCodPostal, ui->txtAdscripto1_nombre, ui->txtAdscripto2_nombre})
        a_mayusculas(texto);
    static const QRegularExpression sin_apostrofo(u"[^']*"_s);
    ui->txtEmail->setValidator(new QRegularExpressionValidator(sin_apostrofo, this));
    llenar_combo(ui->cboLocalidad, localidades_propias());
    aceptarOSalir(ui->tlb, [this] { aceptar(); });
}

frmRTN_editar::~frmRTN_editar() = default;

void frmRTN_editar::Inicializar(Modo operacion, int nro)
{
    Operacion = operacion;
    nro_ = nro;
    setWindowTitle(operacion == Modo::nuevo ? u"Nuevo agente de retención"_s : u"Modificar agente de retención"_s);
    if (operacion == Modo::modificar)
        if (const auto agente = cargar_agente(nro))
            mostrarAgente(*agente);
    marcarGuardado();
}

Agente frmRTN_editar::leer_controles() const
{
    Agente a;
    a.nroRegNotarial = int(ui->nroRegNotarial->Value());
    a.localidad = elegido(ui->cboLocalidad);
    leer_textos(this, CAMPOS, a);
    return a;
}

void frmRTN_editar::mostrarAgente(const Agente& a)
{
    ui->nroRegNotarial->setValue(a.nroRegNotarial);
    seleccionar_item(ui->cboLocalidad, a.localidad.value_or(-1));
    mostrar_textos(this, CAMPOS, a);
}

void frmRTN_editar::aceptar()
{
    Agente agente = leer_controles();
    const auto falla = validar_agente(agente);
    mostrarAgente(agente);
    if (falla) {
        mostrarFalla(*falla);
        return;
    }
    DialogoPantalla dialogo(this);
    if (Operacion == Modo::nuevo ? agregar_agente(agente, windowTitle(), dialogo)
                                 : modificar_agente(agente, nro_, windowTitle(), dialogo))
        descargar();
}
