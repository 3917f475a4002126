// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/lector_dj.h"

#include "filing/codificacion.h"
#include "filing/lineas_archivo.h"
#include "filing/partir_registro.h"
#include "filing/revisar_relaciones.h"
#include "filing/revisar_valores.h"

using namespace Qt::StringLiterals;

namespace {

const Registro* registro_de(char tipo)
{
    for (const Registro& r : registros())
        if (r.tipo == tipo)
            return &r;
    return nullptr;
}

class Lector
{
public:
    Lector(QByteArrayView bytes, const std::function<void(const RegistroLeido&)>& ver)
        : lineas_(std::string_view(bytes.data(), size_t(bytes.size()))), ver_(ver)
    {
    }

    LecturaDJ leer()
    {
        while (lineas_.quedan())
            leerRegistro();
        relaciones_.cerrarTotales();
        lectura_.codigo = lineas_.codigo();
        return std::move(lectura_);
    }

private:
    void leerRegistro()
    {
        const LineaArchivo linea = lineas_.tomar();
        r_.linea = ++linea_;
        r_.bytes = linea.bytes;
        if (!linea.terminada)
            fallas_.falla({linea_, int(r_.bytes.size()) + 1, {}, {}, u"falta el fin de línea"_s});
        const char tipo = r_.bytes.empty() ? '\0' : r_.bytes.front();
        r_.registro = registro_de(tipo);
        if (!r_.registro) {
            fallas_.falla({linea_, 1, {}, texto_ansi(r_.bytes.substr(0, 20)), u"el tipo de registro no existe"_s});
            return;
        }
        revisarOrden(tipo);
        if (const int i = partidor_.partir(r_); i >= 0) {
            fallas_.campo(r_, size_t(i));
        } else {
            revisar_valores(r_, fallas_);
            relaciones_.revisar(r_);
        }
        if (ver_)
            ver_(r_);
        if (tipo == '8')
            linea_ += linea.deMas;
    }

    void revisarOrden(char tipo)
    {
        ++lectura_.registros[tipo];
        if (tipo < anterior_ || (tipo == '1' && lectura_.registros['1'] > 1)
            || (tipo != '1' && lectura_.registros.find('1') == lectura_.registros.end()))
            fallas_.falla({linea_, 1, {}, QString(QLatin1Char(tipo)), u"el registro está fuera de su orden"_s});
        anterior_ = std::max(anterior_, tipo);
    }

    LineasArchivo lineas_;
    const std::function<void(const RegistroLeido&)>& ver_;
    LecturaDJ lectura_;
    AnotadorFallas fallas_{lectura_};
    RevisorRelaciones relaciones_{lectura_, fallas_};
    PartidorRegistros partidor_;
    RegistroLeido r_;
    int linea_ = 0;
    char anterior_ = '0';
};

}  // namespace

LecturaDJ leer_archivo_dj(QByteArrayView bytes, const std::function<void(const RegistroLeido&)>& ver)
{
    return Lector(bytes, ver).leer();
}
