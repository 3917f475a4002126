// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs of brackets and roles.

#include "catalogue/cantidad.h"
#include "catalogue/roles_catalogo.h"
#include "catalogue/screens/frmEditarAlicuota.h"
#include "catalogue/screens/frmEditarModulo.h"
#include "catalogue/screens/frmEditarRol.h"
#include "catalogue/screens/frmEditarSubconceptoSellos.h"
#include "core/almacen.h"
#include "core/motivos.h"
#include "core/redondeo.h"
#include "ui_frmEditarSubconceptoSellos.h"

using namespace Qt::StringLiterals;

namespace {

QString cota(double valor)
{
    return valor == SIN_LIMITE ? u"Sin límite"_s : importe_agrupado(valor);
}

QString si_no(bool si)
{
    return si ? u"Si"_s : u"No"_s;
}

// The bracket or role of the grid's current row; the rows were added in the order of the list.
template <class T>
const T* elegido(const Grilla* grilla, const QList<T>& lista)
{
    const int fila = grilla->filaLeida();
    return fila < 0 || fila >= lista.size() ? nullptr : &lista[fila];
}

}  // namespace

void frmEditarSubconceptoSellos::prepararRangos()
{
    preparar_grilla(ui->grillaAlicuotas, {u"Desde"_s, u"Hasta"_s, u"Alicuota"_s, u"Expresión"_s},
                    {2000, 2000, 1600, 2000}, 3);
    preparar_grilla(ui->grillaModulos, {u"Desde"_s, u"Hasta"_s, u"Monto Impuesto"_s}, {2000, 2000, 2000});
    preparar_grilla(ui->grillaRoles,
                    {u"Id"_s, u"Descripción"_s, u"Interviene"_s, u"Obligado"_s, u"Requrido SM"_s, u"Depende de"_s,
                     u"Con valor de"_s, u"de la Tabla"_s, u"CuitEnTramite"_s},
                    {1300, 2600, 1200, 900, 1200, 2000, 1200, 1600, 1200});
    for (const auto& [grilla, barra, clave] : {std::tuple{ui->grillaAlicuotas, ui->tlbAlicuotas, "modificar"},
                                               std::tuple{ui->grillaModulos, ui->tlbModulos, "modificar"},
                                               std::tuple{ui->grillaRoles, ui->tlbRoles, "editar"}}) {
        grilla->setBarra(barra);
        atender(grilla, &Grilla::elegida, [barra = barra, clave = clave] { barra->pulsar(QLatin1StringView(clave)); });
    }
    ui->fraModulos->hide();
}

void frmEditarSubconceptoSellos::obtener_alicuotas()
{
    alicuotas_ = alicuotas_de(codigo());
    ui->grillaAlicuotas->llenar([this] {
        for (const clsAlicuotaSellos& a : std::as_const(alicuotas_))
            ui->grillaAlicuotas->agregar(QStringList{
                cota(a.ValorDesde), cota(a.ValorHasta), cantidad_llana(a.ValorAlicuota),
                a.Divisor == 0 ? QString() : cantidad_llana(a.Dividendo) + u'/' + cantidad_llana(a.Divisor)});
    });
    habilitarBarras();
}

void frmEditarSubconceptoSellos::obtener_modulos()
{
    modulos_ = modulos_de(codigo());
    ui->grillaModulos->llenar([this] {
        for (const clsModuloSellos& m : std::as_const(modulos_))
            ui->grillaModulos->agregar(
                QStringList{cota(m.ValorDesde), cota(m.ValorHasta), cantidad_llana(m.CantModulos)});
    });
    habilitarBarras();
}

void frmEditarSubconceptoSellos::obtener_roles()
{
    roles_ = roles_de(codigo());
    ui->grillaRoles->llenar([this] {
        for (const clsRol& r : std::as_const(roles_))
            ui->grillaRoles->agregar({QString::number(r.IdRol), r.Descripcion,
                                      r.Requerido ? u"Siempre"_s : u"Esporádico"_s, si_no(r.ParicipaImpuesto),
                                      si_no(r.CargaOblig_SM), r.SSUBAtributo, r.SSUBAtributo_valor,
                                      r.SSUBAtributo_tabla, si_no(r.Permite_CuitEnTramite)});
    });
    habilitarBarras();
}

void frmEditarSubconceptoSellos::habilitarBarras()
{
    const bool si = editando_ && guardado_;
    for (const auto& [barra, filas] : {std::pair{ui->tlbAlicuotas, alicuotas_.size()},
                                       {ui->tlbModulos, modulos_.size()},
                                       {ui->tlbRoles, roles_.size()}}) {
        barra->habilitar(u"alta"_s, si);
        for (const char* clave : {"modificar", "editar", "borrar"})
            barra->habilitar(QLatin1StringView(clave), si && filas > 0);
    }
}

template <class Editor, class T, class Borrar>
void frmEditarSubconceptoSellos::atenderBarra(const QString& clave, const T* elegido, const TextosBorrado& textos,
                                              const Borrar& borrar, void (frmEditarSubconceptoSellos::*releer)())
{
    if (clave == u"borrar" && elegido) {
        try {
            if (preguntar(textos.pregunta, textos.titulo))
                borrar(*elegido);
        } catch (const ErrorAlmacen& e) {
            avisar(motivo_de_escritura(e), textos.tituloError, Icono::informacion, e.motor);
        }
        (this->*releer)();
    } else if (clave == u"alta" || elegido) {
        auto* editor = cargar<Editor>();
        const bool nuevo = clave == u"alta";
        editor->Inicializar(nuevo ? Modo::nuevo : Modo::modificar, codigo(), nuevo ? T() : *elegido);
        abrir(editor);
    }
}

void frmEditarSubconceptoSellos::tlbAlicuotas_pulsada(const QString& clave)
{
    atenderBarra<frmEditarAlicuota>(
        clave, elegido(ui->grillaAlicuotas, alicuotas_),
        {u"¿Está seguro que desea borrar la alicuota seleccionada?"_s, u"Borrar alicuota de sellos"_s,
         u"Borrar alicuota de sellos"_s},
        [](const clsAlicuotaSellos& a) { borrar_rango(RANGOS_ALICUOTAS, a.IdAlicuota); },
        &frmEditarSubconceptoSellos::obtener_alicuotas);
}

void frmEditarSubconceptoSellos::tlbModulos_pulsada(const QString& clave)
{
    // The title of the question is that of the rates, deliberately.
    atenderBarra<frmEditarModulo>(
        clave, elegido(ui->grillaModulos, modulos_),
        {u"¿Está seguro que desea borrar el rango seleccionado?"_s, u"Borrar alicuota de sellos"_s,
         u"Borrar rango de módulos de sellos"_s},
        [](const clsModuloSellos& m) { borrar_rango(RANGOS_MODULOS, m.IdModulo); },
        &frmEditarSubconceptoSellos::obtener_modulos);
}

void frmEditarSubconceptoSellos::tlbRoles_pulsada(const QString& clave)
{
    atenderBarra<frmEditarRol>(
        clave, elegido(ui->grillaRoles, roles_),
        {u"¿Está seguro que desea borrar la parte seleccionada?"_s, u"Borrar parte"_s, u"Borrar rol"_s},
        [](const clsRol& r) { borrar_rol(r.IdRol); }, &frmEditarSubconceptoSellos::obtener_roles);
}
