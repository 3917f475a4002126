// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/lector_dj.h"

#include "core/numero.h"
#include "filing/codificacion.h"
#include "filing/partir_registro.h"

#include <QCryptographicHash>

#include <cstring>
#include <limits>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t FALLAS_MAXIMAS = 1000;
constexpr size_t BLOQUE = 1 << 16;

const Registro* registro_de(char tipo)
{
    for (const Registro& r : registros())
        if (r.tipo == tipo)
            return &r;
    return nullptr;
}

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

struct Dominio
{
    char tipo;
    const char* campo;
    const char* letras;
};
// What a field of one letter may hold.
constexpr Dominio DOMINIOS[] = {{'1', "SEDJ_ESTADO", "01"},
                                {'2', "SEDD_ESTADO", "PNE"},
                                {'2', "SEDD_ALCANZADO", "SN"},
                                {'3', "SPIN_NACIONALIDAD", "AE"}};

class Lector
{
public:
    Lector(QByteArrayView bytes, const std::function<void(const RegistroLeido&)>& ver)
        : bytes_(bytes.data(), size_t(bytes.size())), ver_(ver), resumen_(QCryptographicHash::Md5)
    {
        for (int i = 0; i < 256; ++i)
            codigos_[size_t(i)] = char(caracter_ansi(static_cast<unsigned char>(i)) & 0xff);
    }

    LecturaDJ leer()
    {
        while (lugar_ < bytes_.size())
            leerRegistro();
        cerrarTotales();
        volcar();
        l_.codigo = QString::fromLatin1(resumen_.result().toHex()).toUpper();
        return std::move(l_);
    }

private:
    // The bytes up to the line end; a testimonio may hold line ends of its own.
    std::string_view tomarLinea()
    {
        size_t desde = lugar_;
        if (bytes_[lugar_] == '8')
            if (const size_t fin = bytes_.find(MARCA_FIN, lugar_); fin != std::string_view::npos)
                desde = fin;
        const size_t salto = bytes_.find("\r\n", desde);
        const bool hay = salto != std::string_view::npos;
        const std::string_view linea = bytes_.substr(lugar_, (hay ? salto : bytes_.size()) - lugar_);
        if (!hay)
            falla({linea_, int(linea.size()) + 1, {}, {}, u"falta el fin de línea"_s});
        lugar_ = hay ? salto + 2 : bytes_.size();
        return linea;
    }

    void leerRegistro()
    {
        r_.linea = ++linea_;
        r_.bytes = tomarLinea();
        lineasDeMas_ = 0;
        for (size_t p = r_.bytes.find('\n'); p != std::string_view::npos; p = r_.bytes.find('\n', p + 1))
            ++lineasDeMas_;
        digerir();
        const char tipo = r_.bytes.empty() ? '\0' : r_.bytes.front();
        r_.registro = registro_de(tipo);
        if (!r_.registro) {
            falla({linea_, 1, {}, texto_ansi(r_.bytes.substr(0, 20)), u"el tipo de registro no existe"_s});
            return;
        }
        ++l_.registros[tipo];
        if (tipo < anterior_ || (tipo == '1' && l_.registros['1'] > 1)
            || (tipo != '1' && l_.registros.find('1') == l_.registros.end()))
            falla({linea_, 1, {}, QString(QLatin1Char(tipo)), u"el registro está fuera de su orden"_s});
        anterior_ = std::max(anterior_, tipo);
        if (const int i = partidor_.partir(r_); i >= 0)
            fallaDeCampo(size_t(i));
        else
            revisar();
        if (ver_)
            ver_(r_);
        if (tipo == '8')
            linea_ += lineasDeMas_;
    }

    void digerir()
    {
        const size_t antes = pendiente_.size();
        pendiente_.resize(antes + r_.bytes.size());
        char* a = pendiente_.data() + antes;
        for (const char c : r_.bytes)
            *a++ = codigos_[static_cast<unsigned char>(c)];
        if (!r_.bytes.empty() && r_.bytes.front() == '4')
            pendiente_.append("\r\n");
        if (pendiente_.size() > BLOQUE)
            volcar();
    }

    void volcar()
    {
        resumen_.addData(QByteArrayView(pendiente_.data(), qsizetype(pendiente_.size())));
        pendiente_.clear();
    }

    void falla(const FallaLectura& f)
    {
        if (l_.fallas.size() < FALLAS_MAXIMAS)
            l_.fallas.push_back(f);
    }

    [[nodiscard]] int columna(size_t campo) const
    {
        int c = 2;
        for (size_t i = 0; i < campo; ++i)
            c += r_.registro->campos[i].ancho;
        return c;
    }

    void fallaDeCampo(size_t i)
    {
        const CampoRegistro& c = r_.registro->campos[i];
        const int col = columna(i);
        const auto desde = std::min(size_t(col) - 1, r_.bytes.size());
        falla({linea_, col, QString::fromLatin1(c.nombre),
               texto_ansi(r_.bytes.substr(desde, size_t(std::max(c.ancho, 1)))),
               u"el campo no cabe en el registro (largo %1, previsto %2)"_s.arg(r_.bytes.size())
                   .arg(r_.registro->ancho() + 1)});
    }

    void fallaDeValor(const char* campo, const QString& mensaje)
    {
        size_t i = 0;
        while (i < r_.registro->campos.size() && std::strcmp(r_.registro->campos[i].nombre, campo) != 0)
            ++i;
        const std::string_view v = i < r_.registro->campos.size() ? r_.campos[i] : std::string_view();
        const int col = v.data() ? int(v.data() - r_.bytes.data()) + 1 : 1;
        falla({linea_, col, QString::fromLatin1(campo), texto_ansi(v.substr(0, 60)), mensaje});
    }

    void revisar()
    {
        const auto previsto = r_.registro->ancho() + 1;
        if (r_.registro->tipo != '8' && (r_.dudoso || int(r_.bytes.size()) != previsto)
            && l_.avisos.size() < FALLAS_MAXIMAS)
            l_.avisos.push_back(
                {linea_,
                 1,
                 {},
                 {},
                 r_.dudoso ? u"no se puede saber qué campo falta o sobra (largo %1, previsto %2)"_s.arg(r_.bytes.size())
                                 .arg(previsto)
                           : u"el registro tiene otro largo (%1, previsto %2)"_s.arg(r_.bytes.size()).arg(previsto)});
        if (r_.registro->tipo != '8')
            for (const unsigned char c : r_.bytes)
                if (c < 0x20) {
                    falla({linea_, 1, {}, {}, u"hay un carácter de control en el registro"_s});
                    break;
                }
        for (const Dominio& d : DOMINIOS)
            if (const std::string_view v = d.tipo == r_.registro->tipo ? r_.campo(d.campo) : std::string_view();
                v.size() == 1 && !std::strchr(d.letras, v.front()))
                fallaDeValor(d.campo, u"el valor no es de los que admite el campo"_s);
        switch (r_.registro->tipo) {
        case '1': cabecera(); break;
        case '2': escritura(); break;
        default: hijo(); break;
        }
    }

    void cabecera()
    {
        const auto texto = [this](const char* c) { return texto_ansi(r_.campo(c)).trimmed(); };
        l_.agente = texto("SRTN_NRO");
        l_.titular = texto("SEDJ_TITULAR_NOMBRE");
        l_.cuit = texto("SEDJ_TITULAR_CUIT");
        l_.posicion = texto("SEDJ_MES") + u'/' + texto("SEDJ_ANIO");
        l_.secuencia = texto("SEDJ_SECUENCIA");
        l_.estado = texto("SEDJ_ESTADO");
        total_ = numero(r_.campo("SEDJ_TOTAL_RETENIDO"));
        l_.totalRetenido = double(total_) / 100;
        if (const qint64 mes = numero(r_.campo("SEDJ_MES")); mes < 1 || mes > 12)
            fallaDeValor("SEDJ_MES", u"el mes no existe"_s);
    }

    void escritura()
    {
        const qint64 id = numero(r_.campo("SEDD_ID"));
        if (!escrituras_.emplace(id, Escritura_{numero(r_.campo("SEDD_TOTAL_IMPUESTO")), 0, false, false, linea_})
                 .second)
            fallaDeValor("SEDD_ID", u"el renglón está repetido"_s);
        sumar(suma_, numero(r_.campo("SEDD_TOTAL_IMPUESTO")));
        dudosas_ = dudosas_ || r_.dudoso;
    }

    void hijo()
    {
        const qint64 id = numero(r_.campo("SEDD_ID"));
        const auto it = escrituras_.find(id);
        if (it == escrituras_.end()) {
            fallaDeValor("SEDD_ID", u"no hay una escritura con ese renglón"_s);
            return;
        }
        const qint64 operacion = numero(r_.campo("SEDO_ID"));
        const char tipo = r_.registro->tipo;
        if (tipo == '3') {
            partes_.emplace(id, numero(r_.campo("SPIN_ID")));
        } else if (tipo == '5') {
            operaciones_.emplace(id, operacion);
            sumar(it->second.operaciones, numero(r_.campo("SINS_MONTO_FINAL")));
            it->second.conOperacion = true;
            it->second.dudosa = it->second.dudosa || r_.dudoso;
        } else if (tipo == '6' || tipo == '7') {
            if (!operaciones_.contains({id, operacion}))
                fallaDeValor("SEDO_ID", u"no hay una operación con ese número en la escritura"_s);
            if (tipo == '6' && !partes_.contains({id, numero(r_.campo("SPIN_ID"))}))
                fallaDeValor("SPIN_ID", u"no hay una parte con ese número en la escritura"_s);
        }
    }

    void cerrarTotales()
    {
        l_.totalEscrituras = double(suma_) / 100;
        if (l_.registros.find('1') == l_.registros.end())
            falla({1, 1, {}, {}, u"falta la cabecera"_s});
        else if (suma_ != total_ && !dudosas_)
            falla({1, 1, u"SEDJ_TOTAL_RETENIDO"_s, formato_decimal(double(total_) / 100, 2),
                   u"las escrituras suman "_s + formato_decimal(double(suma_) / 100, 2)});
        for (const auto& [id, e] : escrituras_)
            if (e.conOperacion && !e.dudosa && e.operaciones != e.impuesto)
                falla({e.linea, 1, u"SEDD_TOTAL_IMPUESTO"_s, formato_decimal(double(e.impuesto) / 100, 2),
                       u"las operaciones de la escritura suman "_s + formato_decimal(double(e.operaciones) / 100, 2)});
    }

    struct Escritura_
    {
        qint64 impuesto = 0;
        qint64 operaciones = 0;
        bool conOperacion = false;
        bool dudosa = false;
        int linea = 0;
    };

    std::string_view bytes_;
    const std::function<void(const RegistroLeido&)>& ver_;
    QCryptographicHash resumen_;
    std::array<char, 256> codigos_{};
    std::string pendiente_;
    size_t lugar_ = 0;
    int linea_ = 0;
    int lineasDeMas_ = 0;
    char anterior_ = '0';
    RegistroLeido r_;
    PartidorRegistros partidor_;
    LecturaDJ l_;
    qint64 total_ = 0;
    qint64 suma_ = 0;
    bool dudosas_ = false;
    std::map<qint64, Escritura_> escrituras_;
    std::set<std::pair<qint64, qint64>> operaciones_;
    std::set<std::pair<qint64, qint64>> partes_;
};

}  // namespace

std::string_view RegistroLeido::campo(const char* nombre) const
{
    for (size_t i = 0; i < registro->campos.size(); ++i)
        if (std::strcmp(registro->campos[i].nombre, nombre) == 0)
            return campos[i];
    return {};
}

QString texto_ansi(std::string_view bytes)
{
    QString t;
    t.reserve(qsizetype(bytes.size()));
    for (const char c : bytes)
        t += QChar(caracter_ansi(static_cast<unsigned char>(c)));
    return t;
}

LecturaDJ leer_archivo_dj(QByteArrayView bytes, const std::function<void(const RegistroLeido&)>& ver)
{
    return Lector(bytes, ver).leer();
}
