// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of calculation of the item, and its masks.

#include "catalogue/screens/frmEditarSubconceptoSellos.h"

#include "catalogue/screens/frmCrearMascara.h"
#include "catalogue/tipos_calculo.h"
#include "ui_frmEditarSubconceptoSellos.h"

using namespace Qt::StringLiterals;

void frmEditarSubconceptoSellos::TCBI(int id, const QString& descripcion)
{
    ocultos_[TIPO_CALCULO_BI] = id;
    ui->txtTipoCalculoBI->setText(descripcion);
    const auto casillas = casillas_de_tipo_bi(id);
    for (const auto& [casilla, si] : casillas.asKeyValueRange())
        findChild<QCheckBox*>(casilla)->setChecked(si);
}

void frmEditarSubconceptoSellos::elegirTipoBI()
{
    auto* tipos = cargar<frmTiposCalculoBI>();
    tipos->fijarTCBI(id_elegido(ocultos_, TIPO_CALCULO_BI));
    abrir(tipos);
}

void frmEditarSubconceptoSellos::crearMascara(QLineEdit* destino, const TablaMascara& tabla, const QString& titulo)
{
    auto* mascara = cargar<frmCrearMascara>();
    mascara->cargar_elementos(tabla);
    mascara->volcar_en(destino);
    mascara->setWindowTitle(titulo);
    mascara->mostrar_mascara(destino->text().toInt());
    abrir(mascara);
}

// The list tells each time that it closes; what can't be goes back to what was.
void frmEditarSubconceptoSellos::elegirTipoCalculo(const ctlCombo::Fila& fila)
{
    const QString actual = u"k"_s + QString::number(tipoCalculo_.value_or(0));
    QString clave = fila.clave;
    if (clave != actual) {
        const QString impedimento = impedimento_de_tipo(fila.texto, !alicuotas_.isEmpty(), !modulos_.isEmpty());
        if (impedimento.isEmpty()) {
            tipoCalculo_ = clave.mid(1).toInt();
            mostrarRangos(rangos_de_tipo(fila.texto));
        } else {
            avisar(impedimento, windowTitle());
            clave = actual;
        }
    }
    ui->ctlTipoCalculo->SeleccionarItem(clave, true);
}

// A kind without brackets leaves the tab as it is.
void frmEditarSubconceptoSellos::mostrarRangos(Rangos rangos)
{
    if (rangos == Rangos::ningunos)
        return;
    const bool alicuotas = rangos == Rangos::alicuotas;
    ui->SSTab1->setTabText(SOLAPA_RANGOS, alicuotas ? u"Alícuotas"_s : u"Módulos"_s);
    ui->fraAlicuotas->setVisible(alicuotas);
    ui->fraModulos->setVisible(!alicuotas);
    if (guardado_)
        alicuotas ? obtener_alicuotas() : obtener_modulos();
}
