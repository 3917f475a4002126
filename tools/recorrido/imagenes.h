// SPDX-License-Identifier: GPL-3.0-or-later
// The manual's pictures: which window, at which moment of the guided month.
#pragma once

#include <QString>
#include <QStringList>

#include <array>

class QWidget;

struct ImagenManual
{
    const char* nombre;   ///< of its file in docs/manual/imagenes, without the extension
    const char* momento;  ///< the name of the month's own picture
    const char* ventana;  ///< its class
};

inline constexpr std::array IMAGENES_MANUAL{
    ImagenManual{"principal", "inicio", "MDIPrincipal"},
    ImagenManual{"ventana", "operacion-base", "MDIPrincipal"},
    ImagenManual{"agentes", "agentes", "frmRTN_buscar"},
    ImagenManual{"agente", "agente", "frmRTN_editar"},
    ImagenManual{"declaraciones", "lista", "frmDJ_buscar"},
    ImagenManual{"dj-general", "dj-cabecera", "frmDJ_editar"},
    ImagenManual{"dj-renglones", "dj-renglones", "frmDJ_editar"},
    ImagenManual{"dj-boletas", "dj-boletas", "frmDJ_editar"},
    ImagenManual{"rectificativa", "rectificativa", "frmDJ_editar"},
    ImagenManual{"escritura-nueva", "escritura", "frmDJ_detalle"},
    ImagenManual{"escritura", "escritura-completa", "frmDJ_detalle"},
    ImagenManual{"parte", "parte", "frmDJ_detalle_parte"},
    ImagenManual{"parte-extranjera", "parte-extranjera", "frmDJ_detalle_parte"},
    ImagenManual{"buscar-parte", "buscar-parte", "frmDJ_buscar_parte"},
    ImagenManual{"inmueble", "inmueble", "frmDJ_editar_inmueble"},
    ImagenManual{"operacion-base", "operacion-base", "frmDJ_detalle_op"},
    ImagenManual{"operacion-roles", "operacion-roles", "frmDJ_detalle_op"},
    ImagenManual{"operacion-impuesto", "operacion-impuesto", "frmDJ_detalle_op"},
    ImagenManual{"detalles", "detalles", "frmDetalleSSUB"},
    ImagenManual{"pasos", "operacion-pasos", "frmPasos"},
    ImagenManual{"catalogo", "catalogo", "frmSubconceptos"},
    ImagenManual{"subconcepto-general", "subconcepto-general", "frmEditarSubconceptoSellos"},
    ImagenManual{"subconcepto-base", "subconcepto-base", "frmEditarSubconceptoSellos"},
    ImagenManual{"subconcepto-alicuotas", "subconcepto-alicuotas", "frmEditarSubconceptoSellos"},
    ImagenManual{"subconcepto-roles", "subconcepto-roles", "frmEditarSubconceptoSellos"},
    ImagenManual{"tipos-de-calculo", "tipos-de-calculo", "frmTiposCalculoBI"},
    ImagenManual{"mascara", "mascara", "frmCrearMascara"},
    ImagenManual{"alicuota", "alicuota", "frmEditarAlicuota"},
    ImagenManual{"modulos", "modulos", "frmEditarModulo"},
    ImagenManual{"rol", "rol", "frmEditarRol"},
    ImagenManual{"recibo", "recibo", "frmReportes"},
    ImagenManual{"boleta", "boleta", "frmReportes"},
    ImagenManual{"dj-impresa", "emision", "frmReportes"},
    ImagenManual{"manual", "manual", "frmManual"},
    ImagenManual{"acerca", "acerca", "frmAcercaDe"},
};

/// Takes them, each at the first moment of its name, into a folder; into none when it has no name.
class ImagenesManual
{
public:
    /// `datos` is the folder in which the month works: no picture shows it.
    ImagenesManual(const QString& carpeta, const QString& datos);

    void tomar(const QString& momento, QWidget* principal);
    /// Those that were not taken.
    [[nodiscard]] QStringList faltan() const;

private:
    void guardar(QWidget* ventana, const QString& nombre) const;

    QString carpeta_;
    QString datos_;
    QStringList tomadas_;
};
