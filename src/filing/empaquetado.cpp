// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/empaquetado.h"

#include "core/archivos_disco.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "filing/carpetas_dj.h"
#include "filing/guion_lote.h"
#include "filing/lote_empaquetador.h"
#include "rar5.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

void borrar(const QString& archivo)
{
    if (QFileInfo::exists(archivo))
        borrar_archivo(archivo);
}

class Empaquetado
{
public:
    Empaquetado(const QString& nro, Dialogo& dialogo, std::chrono::milliseconds sin_noticias)
        : nro_(nro), dialogo_(dialogo), sin_noticias_(sin_noticias), base_(carpeta_programa()),
          carpeta_(carpeta_dj(nro)), copias_(carpeta_testimonios(nro)), guion_(base_)
    {
    }

    bool correr(const PedirDestino& pedir)
    {
        borrar(lote());
        borrar(archivo());
        // The batch file stands from here on, empty until all its lines are known.
        escribirLote({});
        empaquetar(carpeta_ + u"/SRTN"_s + nro_ + u".txt"_s);
        hacer_carpeta_testimonios(nro_);
        if (const auto falla = vaciar_testimonios(nro_))
            throw *falla;
        try {
            if (!copiarTestimonios())
                return false;
        } catch (const Interrumpido&) {
            return cancelada({});
        }
        escribirLote(guion_.texto());
        LoteEnMarcha lotes({guion_.orden(lote()), base_, archivo(), largos_.size(), bytes_}, sin_noticias_);
        // Normally the packer is still at work and no copy is made here; half an archive is never one.
        if (lotes.termino() && QFileInfo::exists(archivo()))
            copiar_archivo(archivo(), carpeta_ + u"/dj.rar"_s, Asegurar::si);
        return guardar(pedir, lotes);
    }

private:
    [[nodiscard]] QString lote() const { return base_ + u"/comprimir.bat"_s; }
    [[nodiscard]] QString archivo() const { return base_ + u"/dj.rar"_s; }
    [[nodiscard]] QString titulo() const { return u"Emitir DJ "_s + nro_; }

    void empaquetar(const QString& fichero)
    {
        const QFileInfo info(fichero);
        largos_[info.fileName()] = info.size();
        bytes_ += info.size();
        guion_.empaquetar(fichero);
    }

    struct Testimonio
    {
        qint64 id;
        QString escritura;
        QString archivo;  // as stored
    };

    [[nodiscard]] std::vector<Testimonio> testimonios() const
    {
        std::vector<Testimonio> hay;
        Recordset rs(cnRtn, u"select SEDD_ID, SEDD_ESCRITURA_NRO, SEDD_FNAME_TESTIMONIO"
                            u" from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1'"_s.arg(nro_));
        for (; !rs.eof(); rs.siguiente())
            if (!fromSQL(rs.texto(2)).isEmpty())
                hay.push_back({rs.entero(0), rs.texto(1), rs.texto(2)});
        return hay;
    }

    bool copiarTestimonios()
    {
        const std::vector<Testimonio> todos = testimonios();
        for (const Testimonio& t : todos) {
            const QString origen = fromSQL(t.archivo);
            if (!QFileInfo(origen).isFile()) {
                dialogo_.avisar({u"Error en la escritura Nº %1,  no existe el archivo del testimonio \n%2"
                                 u"\n\nComplete la declaracion jurada e intente mas tarde."_s.arg(t.escritura, origen),
                                 titulo(), Icono::informacion});
                return false;
            }
            const QString copia = copias_ + u'/' + nro_ + u'-' + con_ceros(t.id, 4) + u'.'
                                  + QFileInfo(t.archivo).suffix().toLower();
            const QString que = u"Copiando los testimonios\n"_s + QFileInfo(origen).fileName();
            copiar_archivo(origen, copia, Asegurar::no,
                           [&](qint64) { return dialogo_.seguir(que, largos_.size(), qint64(todos.size()) + 1); });
            empaquetar(copia);
        }
        return true;
    }

    void escribirLote(const QByteArray& texto) const
    {
        ArchivoNuevo f(lote(), Asegurar::no);
        f.escribir(texto.toStdString());
        f.ocupar();
    }

    // The packer works while the user chooses; what is saved waits for its end.
    bool guardar(const PedirDestino& pedir, LoteEnMarcha& lotes)
    {
        const QString nombre = u"SRTN"_s + nro_ + u".rar"_s;
        const QString elegido = pedir(nombre);
        try {
            if (elegido.isEmpty())
                lotes.terminar();
            if (elegido.isEmpty() || !lotes.esperar(dialogo_, titulo()))
                return cancelada({});
            if (!lotes.bien() || !entero())
                return cancelada(motivoDelEmpaquetador(lotes));
            const QString que = u"Guardando %1"_s.arg(nombre);
            llevar_archivo(archivo(), QFileInfo(elegido).absolutePath() + u'/' + nombre,
                           [&](qint64 hechos) { return dialogo_.seguir(que, hechos, bytes_); });
            return true;
        } catch (const Interrumpido&) {
            return cancelada({});
        } catch (const ErrorDisco& e) {
            return cancelada(e.texto);
        }
    }

    bool cancelada(const QString& motivo)
    {
        dialogo_.avisar(
            {u"Error: Se canceló la emisión de la declaracion jurada"_s, titulo(), Icono::informacion, motivo});
        return false;
    }

    [[nodiscard]] QString motivoDelEmpaquetador(LoteEnMarcha& lotes) const
    {
        const QString rar = ruta_herramienta(u"rar"_s);
        if (!QFileInfo(rar).isExecutable())
            return u"No se puede ejecutar "_s + QDir::toNativeSeparators(rar);
        const QString queja = lotes.queja();
        return queja.isEmpty() ? u"El archivo %1 no quedó completo."_s.arg(QDir::toNativeSeparators(archivo())) : queja;
    }

    // The shell only tells how its last line ended: the archive itself says whether it holds all.
    [[nodiscard]] bool entero() const
    {
        try {
            QHash<QString, qint64> faltan = largos_;
            for (const EntradaRar& e : listar_rar(archivo().toStdString())) {
                const auto it = faltan.constFind(QFileInfo(QString::fromStdString(e.nombre)).fileName());
                if (it != faltan.cend() && *it == qint64(e.largo))
                    faltan.erase(it);
            }
            return faltan.isEmpty();
        } catch (const std::exception&) {
            // Another packer's archive may be one that is not read here.
            return QFileInfo(archivo()).size() > 0;
        }
    }

    QString nro_;
    QHash<QString, qint64> largos_;  // of what is packed, by name
    qint64 bytes_ = 0;
    Dialogo& dialogo_;
    std::chrono::milliseconds sin_noticias_;
    QString base_;
    QString carpeta_;
    QString copias_;
    GuionLote guion_;
};

}  // namespace

bool comprimir_dj(const QString& nro, Dialogo& dialogo, const PedirDestino& pedir,
                  std::chrono::milliseconds sin_noticias)
{
    return Empaquetado(nro, dialogo, sin_noticias).correr(pedir);
}
