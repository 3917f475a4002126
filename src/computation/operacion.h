// SPDX-License-Identifier: GPL-3.0-or-later
// The operation of a deed in the store: its item, its row, its contract values, its roles, and
// the totals that hang on it.
#pragma once

#include "catalogue/subconcepto_memoria.h"
#include "computation/calculo.h"
#include "core/dialogo.h"
#include "core/filas.h"
#include "tree/arbol_dj.h"
#include "tree/renglon.h"

#include <QStringList>

/// Which operation.
struct ClaveOperacion
{
    QString dj;
    QString renglon;
    QString operacion;
    [[nodiscard]] RenglonDJ deRenglon() const { return {dj, renglon}; }
    /// " where SEDJ_NRO='…' and SEDD_ID=… and SEDO_ID=…"
    [[nodiscard]] QString donde() const;
};

/// The item of a code under a law, filled from the catalogue. Nothing when the law has no such
/// item or it is not enabled for notaries: that is told, and `habilitado` says which it was.
struct ResultadoSubconcepto
{
    std::optional<clsSubconcepto> subconcepto;
    bool hallado = false;
    bool conMinimo = false;
    QString nombreValorContractual;
};
[[nodiscard]] ResultadoSubconcepto buscar_subconcepto(int ley, int codigo, Dialogo& dialogo);

/// Modes of the ancillary obligation; the item data is 1 when the mode's bit is in the mask, else 0.
struct ModoObligacion
{
    QString texto;
    int dato = 0;
};
[[nodiscard]] QList<ModoObligacion> modos_obligacion(int mascara);

/// What the row of an operation takes from the screen besides its number fields.
struct DatosOperacion
{
    int ley = 0;
    int codigo = 0;
    const clsSubconcepto* subconcepto = nullptr;
    bool obligAccesoria = false;
    bool obligFijo = false;
    int obligModo = 0;
    QString obligModoTexto;
    QString obligPoliza;
    QString observaciones;
};
/// Writes the row. Throws ErrorAlmacen.
void actualizar_operacion(const ClaveOperacion& clave, CamposImpuesto c, const DatosOperacion& d);
[[nodiscard]] std::optional<Operacion> cargar_operacion(const ClaveOperacion& clave);

/// Links a property of the deed to the operation. Throws ErrorAlmacen.
void vincular_inmueble(const ClaveOperacion& clave, int inmueble);

/// The sums that "guardar_det" leaves in the deed and in the DJ, in pesos.
struct Totales
{
    double renglon = 0;
    double dj = 0;
};
/// Nothing after a failure, which is told.
[[nodiscard]] std::optional<Totales> guardar_totales(const ClaveOperacion& clave, Dialogo& dialogo);

/// The contract values, one call a row; gives their sum in pesos. A row without currency comes
/// once for each currency, and is summed as often: the join is deliberately so.
double leer_valores(const ClaveOperacion& clave, const AgregarFila& fila);
[[nodiscard]] std::optional<ValorContractual> cargar_valor(const ClaveOperacion& clave, const QString& id);
void modificar_valor(const ValorContractual& v);
void borrar_valor(const ClaveOperacion& clave, const QString& id);

/// A party of the deed with its role in the operation.
struct ParteRol
{
    QString id, tipoDoc, nroDoc, denominacion, idRol, rol, observaciones;
    std::optional<double> porcExento;
};
[[nodiscard]] QList<ParteRol> leer_partes_con_roles(const ClaveOperacion& clave);
/// Replaces the roles of the operation; false after a failure, which is told.
[[nodiscard]] bool guardar_roles(const ClaveOperacion& clave, const QList<ParteRol>& partes, const QString& titulo,
                                 Dialogo& dialogo);
/// Whether every mandatory role is held; `texto` takes the list of the mandatory ones.
[[nodiscard]] bool roles_obligatorios(const clsSubconcepto* s, const QList<ParteRol>& partes, QString& texto);
