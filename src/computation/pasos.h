// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of a calculation as it took them: plain data, in their order. What a kind of step does is a table, so
// that one and the same row tells it in words and works it out again.
#pragma once

#include <QString>

#include <array>
#include <initializer_list>
#include <span>
#include <vector>

/// A figure that a step takes or gives.
enum class Cifra : quint8 {
    ninguna,
    // What the screen's fields hold; they go from step to step.
    totalVC,
    valuacion,
    prestamo,
    obligacion,
    base,
    comparado,
    moa,
    exencion,
    exento,
    calculado,
    pagoACuenta,
    adicionales,
    impuesto,
    // What is kept in between, not rounded.
    sumaVC,
    partes,
    porcion,
    sumaExenta,
    valuacionAjustada,
    baseSola,
    sumaObligacion,
    minimo,
    // What the law, the catalogue and the parties say.
    valorModulo,
    exencionItem,
    factorValuacion,
    modulosMinimo,
    // Of one step alone.
    codigo,
    ley,
    modo,
    valorContractual,
    porcExento,
    desde,
    hasta,
    alicuotaTramo,
    modulosTramo,
    anterior,
    cuantas
};

/// How a step's result comes of its figures, the first of them being a, b and c.
enum class Cuenta : quint8 {
    nota,          ///< nothing is written
    copia,         ///< a
    conserva,      ///< a, which is what was there
    cero,          ///< 0
    cien,          ///< 100
    suma,          ///< a + b
    resta,         ///< a - b
    final,         ///< a - b + c
    siguiente,     ///< a + 1
    producto,      ///< a b, or a (b c)
    mayor,         ///< the greater of a and b
    porcion,       ///< 100 / a / 100
    acumula,       ///< a + b / 100 c
    en_cien,       ///< a 100
    proporcion,    ///< a / 100 b 100
    porcentaje,    ///< a / 100 b
    neto,          ///< a - a (b / 100)
    tramoModulos,  ///< d, when b <= a <= c
    tramoAlicuota  ///< d, when b < a <= c; the base 0 belongs to a bracket that begins there
};

enum class ClasePaso : quint8 {
    valorSumado,
    totalVC,
    subconcepto,
    leyArticulo,
    tipoCalculo,
    leyPorFecha,
    sinSubconcepto,
    parteObligada,
    parteAjena,
    sinPartes,
    porcion,
    exentoDeParte,
    exencionDePartes,
    exencionTotal,
    exencionDelSubconcepto,
    exencionProporcional,
    sinBase,
    valuacionAjustada,
    baseMayor,
    baseContractual,
    baseValuacion,
    valuacionMenosPrestamo,
    precioMenosPrestamo,
    prestamoMayor,
    baseNula,
    sinObligacion,
    obligacionFija,
    obligacionPorcentual,
    base,
    baseConObligacion,
    comparado,
    tramoModulos,
    sinTramoModulos,
    tramoAlicuota,
    sinTramoAlicuota,
    modulosPuestos,
    exentoDelTodo,
    calculado,
    sinMinimo,
    minimo,
    minimoPrimero,
    minimoDespues,
    exencionAnulada,
    modoDesconocido,
    exentoDelCalculado,
    exentoDelImpuesto,
    calculadoNeto,
    calculadoMenosExento,
    impuestoNetoDelCalculado,
    impuestoNeto,
    impuestoMenosExento,
    impuestoEsCalculado,
    sinModulos,
    fijoProporcional,
    fijoSinBase,
    fijoModulos,
    tipoSinCuenta,
    sinExencionFija,
    conservaCalculado,
    conservaImpuesto,
    conservaExento,
    impuestoFinal,
    cuantas
};

/// Whether a table has one row for each kind of step, in their order.
template <class Tabla>
constexpr bool una_por_clase(const Tabla& tabla)
{
    for (size_t i = 0; i < tabla.size(); ++i)
        if (tabla[i].clase != ClasePaso(i))
            return false;
    return tabla.size() == size_t(ClasePaso::cuantas);
}

constexpr int CIFRAS_POR_PASO = 4;
constexpr int SIN_REDONDEO = -1;

/// What a kind of step does: its figures in their order, what it writes (a calculated amount may be written as the
/// tax too), and the decimals to which that is rounded.
struct FormaPaso
{
    ClasePaso clase;
    Cuenta cuenta;
    int decimales;
    Cifra destino, otro;
    std::array<Cifra, CIFRAS_POR_PASO> cifras;
};
[[nodiscard]] const FormaPaso& forma_de(ClasePaso clase);

struct Paso
{
    ClasePaso clase = ClasePaso::cuantas;
    int numero = 0;  ///< from 1, in the order in which they were taken
    std::array<double, CIFRAS_POR_PASO> cifras{};
    double resultado = 0;
    QString texto{};    ///< the item, the law's article, the party
    QString detalle{};  ///< the party's role, the amount of a contract value

    bool operator==(const Paso&) const = default;
};

/// Takes the steps down. It never stops the calculation: what can't be kept leaves a record that is not complete.
class Pasos
{
public:
    /// Begins anew; the room that the earlier steps took stays.
    void vaciar() noexcept
    {
        lista_.clear();
        roto_ = false;
    }
    void anotar(ClasePaso clase, std::initializer_list<double> cifras = {}, double resultado = 0,
                const QString& texto = {}, const QString& detalle = {}) noexcept;

    [[nodiscard]] const std::vector<Paso>& lista() const { return lista_; }
    /// Whether the calculation came to its end.
    [[nodiscard]] bool completo() const;

private:
    std::vector<Paso> lista_;
    bool roto_ = false;  ///< a step is missing
};

/// The contract values' sum, when the calculation took it, and the calculation behind it; numbered through.
[[nodiscard]] std::vector<Paso> juntar_pasos(std::span<const Paso> valores, std::span<const Paso> calculo);
