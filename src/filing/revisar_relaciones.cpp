// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/revisar_relaciones.h"

#include "core/numero.h"
#include "filing/codificacion.h"

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

qint64 numero(std::string_view cifras)
{
    qint64 n = 0;
    const bool negativo = !cifras.empty() && cifras.front() == '-';
    for (const char c : cifras.substr(negativo))
        n = n < (qint64(1) << 58) ? n * 10 + (c - '0') : n;
    return negativo ? -n : n;
}

// A sum that no file of this form comes to stays at the end of its range.
void sumar(qint64& suma, qint64 n)
{
    using Limites = std::numeric_limits<qint64>;
    if (n > 0)
        suma = suma > Limites::max() - n ? Limites::max() : suma + n;
    else
        suma = suma < Limites::min() - n ? Limites::min() : suma + n;
}

int lugar_de(const Registro& registro, std::string_view nombre)
{
    const auto it = std::ranges::find_if(registro.campos, [&](const CampoRegistro& c) { return c.nombre == nombre; });
    return it == registro.campos.end() ? -1 : int(it - registro.campos.begin());
}

qint64 numero_en(const RegistroLeido& r, int lugar)
{
    return lugar < 0 ? 0 : numero(r.campos[size_t(lugar)]);
}

}  // namespace

void ClavesVistas::agregar(Clave clave)
{
    ordenadas_ = ordenadas_ && (todas_.empty() || todas_.back() <= clave);
    todas_.push_back(clave);
}

bool ClavesVistas::contiene(Clave clave)
{
    constexpr int CERCA = 8;
    if (!std::exchange(ordenadas_, true))
        std::ranges::sort(todas_);
    if (cursor_ >= todas_.size() || clave < todas_[cursor_])
        cursor_ = 0;
    for (int i = 0; i < CERCA && cursor_ < todas_.size() && todas_[cursor_] < clave; ++i)
        ++cursor_;
    const auto it = std::lower_bound(todas_.begin() + std::ptrdiff_t(cursor_), todas_.end(), clave);
    cursor_ = size_t(it - todas_.begin());
    return it != todas_.end() && *it == clave;
}

RevisorRelaciones::Lugares RevisorRelaciones::lugares_de(const Registro& registro)
{
    return {&registro, lugar_de(registro, "SEDD_ID"), lugar_de(registro, "SEDO_ID"), lugar_de(registro, "SPIN_ID"),
            lugar_de(registro, "SINS_MONTO_FINAL")};
}

// Children come in the order of their deeds.
RevisorRelaciones::EscrituraLeida* RevisorRelaciones::buscarEscritura(qint64 id)
{
    if (ultima_ != escrituras_.end() && ultima_->first < id)
        ++ultima_;
    if (ultima_ == escrituras_.end() || ultima_->first != id)
        ultima_ = escrituras_.find(id);
    return ultima_ == escrituras_.end() ? nullptr : &ultima_->second;
}

void RevisorRelaciones::revisar(const RegistroLeido& r)
{
    switch (r.registro->tipo) {
    case '1': cabecera(r); break;
    case '2': escritura(r); break;
    default: hijo(r); break;
    }
}

void RevisorRelaciones::cabecera(const RegistroLeido& r)
{
    const auto texto = [&r](const char* c) { return texto_ansi(r.campo(c)).trimmed(); };
    lectura_.agente = texto("SRTN_NRO");
    lectura_.titular = texto("SEDJ_TITULAR_NOMBRE");
    lectura_.cuit = texto("SEDJ_TITULAR_CUIT");
    lectura_.posicion = texto("SEDJ_MES") + u'/' + texto("SEDJ_ANIO");
    lectura_.secuencia = texto("SEDJ_SECUENCIA");
    lectura_.estado = texto("SEDJ_ESTADO");
    total_ = numero(r.campo("SEDJ_TOTAL_RETENIDO"));
    lectura_.totalRetenido = double(total_) / 100;
    if (const qint64 mes = numero(r.campo("SEDJ_MES")); mes < 1 || mes > 12)
        fallas_.valor(r, "SEDJ_MES", u"el mes no existe"_s);
}

void RevisorRelaciones::escritura(const RegistroLeido& r)
{
    const qint64 id = numero(r.campo("SEDD_ID"));
    if (!escrituras_.emplace(id, EscrituraLeida{numero(r.campo("SEDD_TOTAL_IMPUESTO")), 0, false, false, r.linea})
             .second)
        fallas_.valor(r, "SEDD_ID", u"el renglón está repetido"_s);
    sumar(suma_, numero(r.campo("SEDD_TOTAL_IMPUESTO")));
    dudosas_ = dudosas_ || r.dudoso;
}

void RevisorRelaciones::hijo(const RegistroLeido& r)
{
    if (lugares_.registro != r.registro)
        lugares_ = lugares_de(*r.registro);
    const qint64 id = numero_en(r, lugares_.escritura);
    EscrituraLeida* escritura = buscarEscritura(id);
    if (!escritura) {
        fallas_.valor(r, "SEDD_ID", u"no hay una escritura con ese renglón"_s);
        return;
    }
    const qint64 operacion = numero_en(r, lugares_.operacion);
    const char tipo = r.registro->tipo;
    if (tipo == '3') {
        partes_.agregar({id, numero_en(r, lugares_.parte)});
    } else if (tipo == '5') {
        operaciones_.agregar({id, operacion});
        sumar(escritura->operaciones, numero_en(r, lugares_.monto));
        escritura->conOperacion = true;
        escritura->dudosa = escritura->dudosa || r.dudoso;
    } else if (tipo == '6' || tipo == '7') {
        if (!operaciones_.contiene({id, operacion}))
            fallas_.valor(r, "SEDO_ID", u"no hay una operación con ese número en la escritura"_s);
        if (tipo == '6' && !partes_.contiene({id, numero_en(r, lugares_.parte)}))
            fallas_.valor(r, "SPIN_ID", u"no hay una parte con ese número en la escritura"_s);
    }
}

void RevisorRelaciones::cerrarTotales()
{
    lectura_.totalEscrituras = double(suma_) / 100;
    if (lectura_.registros.find('1') == lectura_.registros.end())
        fallas_.falla({1, 1, {}, {}, u"falta la cabecera"_s});
    else if (suma_ != total_ && !dudosas_)
        fallas_.falla({1, 1, u"SEDJ_TOTAL_RETENIDO"_s, formato_decimal(double(total_) / 100, 2),
                       u"las escrituras suman "_s + formato_decimal(double(suma_) / 100, 2)});
    for (const auto& [id, e] : escrituras_)
        if (e.conOperacion && !e.dudosa && e.operaciones != e.impuesto)
            fallas_.falla(
                {e.linea, 1, u"SEDD_TOTAL_IMPUESTO"_s, formato_decimal(double(e.impuesto) / 100, 2),
                 u"las operaciones de la escritura suman "_s + formato_decimal(double(e.operaciones) / 100, 2)});
}
