// SPDX-License-Identifier: GPL-3.0-or-later

#include "declarations/copiar_dj.h"

#include "core/modGlobales.h"
#include "declarations/numero_dj.h"
#include "tree/modABM_dj.h"

using namespace Qt::StringLiterals;

namespace {

QString todo(const char* tabla, const QString& nro)
{
    return u"select * from %1 where SEDJ_NRO='%2'"_s.arg(QLatin1String(tabla), nro);
}

template <class T, class Alta>
bool copiar_tabla(const char* tabla, std::span<const Columna<T>> columnas, const QString& de, const QString& a,
                  Alta alta)
{
    Recordset rs(cnRtn, todo(tabla, de));
    if (rs.eof())
        return true;
    for (const LectorFilas<T> lector(rs, columnas); !rs.eof(); rs.siguiente()) {
        T fila = lector.leer();
        fila.dj = a;
        if (!alta(fila))
            return false;
    }
    return true;
}

}  // namespace

QString copiar_dj(const QString& nro, Dialogo& dialogo)
{
    auto cabecera = leer_fila<CabeceraDJ>(cnRtn, todo("SEL_TB_RTN_CABDJ", nro), columnas_cabecera());
    if (!cabecera) {
        dialogo.avisar({u"No existe la declaración jurada %1: no se la puede copiar."_s.arg(nro), u"Rectificar DJ"_s,
                        Icono::exclamacion});
        return {};
    }
    const QString nuevo = NumeroDJ(nro).siguiente();
    cabecera->nro = nuevo;
    ++cabecera->secuencia;

    Tanda tanda(cnRtn);
    const bool bien = alta_cabecera_dj(*cabecera, dialogo)
                      && copiar_tabla<Escritura>("SEL_TB_RTN_DETDJ", columnas_escritura(), nro, nuevo,
                                                 [&](auto& f) { return alta_detalle_dj(f, false, dialogo); })
                      && copiar_tabla<Inmueble>("SEL_TB_RTN_INS_INMUEBLES", columnas_inmueble(), nro, nuevo,
                                                [&](auto& f) { return alta_inmueble(f, false, dialogo); })
                      && copiar_tabla<Parte>("SEL_TB_RTN_INS_PARTES", columnas_parte(), nro, nuevo,
                                             [&](auto& f) { return alta_parte(f, false, dialogo); })
                      && copiar_tabla<Operacion>("SEL_TB_RTN_INS_OPERACIONES", columnas_operacion(), nro, nuevo,
                                                 [&](auto& f) { return alta_operacion(f, false, dialogo); })
                      && copiar_tabla<ValorContractual>(
                          "SEL_TB_RTN_INS_VC", columnas_valor(), nro, nuevo,
                          [&](auto& f) { return alta_valor_contractual(f, false, dialogo); })
                      && copiar_tabla<RolOperacion>("SEL_TB_RTN_INS_ROLES", columnas_rol(), nro, nuevo,
                                                    [&](auto& f) { return alta_rol(f, dialogo); });
    tanda.terminar();
    return bien ? nuevo : QString();
}
