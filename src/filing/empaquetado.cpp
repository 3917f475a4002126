// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/empaquetado.h"

#include "core/archivos_disco.h"
#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/numero.h"
#include "filing/carpetas_dj.h"
#include "rar5.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int SIN_LIMITE = -1;

void borrar(const QString& archivo)
{
    if (QFileInfo::exists(archivo))
        borrar_archivo(archivo);
}

constexpr mode_t NADIE_MAS = 077;

// The batch file at work. However the emission ends, the archive that it builds does not stay behind.
class LoteEnMarcha
{
public:
    LoteEnMarcha(const QString& lote, const QString& archivo) : archivo_(archivo)
    {
        proceso_.setStandardOutputFile(QProcess::nullDevice());
        // Another packer makes its files for the user alone, too.
        proceso_.setChildProcessModifier([] { umask(NADIE_MAS); });
        proceso_.start(u"/bin/sh"_s, {lote});
    }
    ~LoteEnMarcha()
    {
        esperar();
        QFile::remove(archivo_);
        QFile::remove(archivo_ + u".nuevo"_s);
    }
    LoteEnMarcha(const LoteEnMarcha&) = delete;
    LoteEnMarcha& operator=(const LoteEnMarcha&) = delete;

    // Until every line was carried out; whether the last one ended well.
    bool esperar()
    {
        if (proceso_.state() != QProcess::NotRunning)
            proceso_.waitForFinished(SIN_LIMITE);
        return proceso_.exitStatus() == QProcess::NormalExit && proceso_.exitCode() == 0;
    }
    // What the packer complained of; the shell's own complaint of the first line is none.
    [[nodiscard]] QString queja()
    {
        const QStringList lineas = QString::fromUtf8(proceso_.readAllStandardError()).split(u'\n');
        return lineas.filter(QRegularExpression(u"^rar: "_s)).join(u'\n');
    }

private:
    QString archivo_;
    QProcess proceso_;
};

class Empaquetado
{
public:
    Empaquetado(const QString& nro, Dialogo& dialogo)
        : nro_(nro), dialogo_(dialogo), base_(carpeta_programa()), carpeta_(carpeta_dj(nro)),
          testimonios_(carpeta_testimonios(nro))
    {
    }

    bool correr(const PedirDestino& pedir)
    {
        borrar(lote());
        borrar(archivo());
        // The batch file stands from here on, empty until all its lines are known.
        escribirLote({});
        // The quote in front of the command's name makes the line one name that fails; it does no harm.
        texto_ = palabra_shell(u"rm "_s + archivo()) + u'\n';
        empaquetar(carpeta_ + u"/SRTN"_s + nro_ + u".txt"_s);
        hacer_carpeta_testimonios(nro_);
        if (const auto falla = vaciar_testimonios(nro_))
            throw *falla;
        if (!copiarTestimonios())
            return false;
        escribirLote(texto_ + u'\n');
        LoteEnMarcha lotes(lote(), archivo());
        if (QFileInfo::exists(archivo()))
            copiar_archivo(archivo(), carpeta_ + u"/dj.rar"_s, Asegurar::si);
        return guardar(pedir, lotes);
    }

private:
    [[nodiscard]] QString lote() const { return base_ + u"/comprimir.bat"_s; }
    [[nodiscard]] QString archivo() const { return base_ + u"/dj.rar"_s; }
    [[nodiscard]] QString titulo() const { return u"Emitir DJ "_s + nro_; }

    void empaquetar(const QString& fichero)
    {
        ficheros_ << QFileInfo(fichero).fileName();
        texto_ += palabra_shell(base_ + u"/rar"_s) + u" a -y "_s + palabra_shell(archivo()) + u' '
                  + palabra_shell(fichero) + u'\n';
    }

    bool copiarTestimonios()
    {
        Recordset rs(cnRtn, u"select SEDD_ID, SEDD_ESCRITURA_NRO, SEDD_FNAME_TESTIMONIO"
                            u" from SEL_TB_RTN_DETDJ where SEDJ_NRO='%1'"_s.arg(nro_));
        for (; !rs.eof(); rs.siguiente()) {
            const QString origen = fromSQL(rs.texto(2));
            if (origen.isEmpty())
                continue;
            if (!QFileInfo(origen).isFile()) {
                dialogo_.avisar({u"Error en la escritura Nº %1,  no existe el archivo del testimonio \n%2"
                                 u"\n\nComplete la declaracion jurada e intente mas tarde."_s.arg(rs.texto(1), origen),
                                 titulo(), Icono::informacion});
                return false;
            }
            const QString copia = testimonios_ + u'/' + nro_ + u'-' + con_ceros(rs.entero(0), 4) + u'.'
                                  + QFileInfo(rs.texto(2)).suffix().toLower();
            copiar_archivo(origen, copia, Asegurar::no);
            empaquetar(copia);
        }
        return true;
    }

    void escribirLote(const QString& texto) const
    {
        ArchivoNuevo f(lote(), Asegurar::no);
        f.escribir(QFile::encodeName(texto).toStdString());
        f.ocupar();
    }

    // The packer works while the user chooses; the copy waits for its end.
    bool guardar(const PedirDestino& pedir, LoteEnMarcha& lotes) const
    {
        const QString nombre = u"SRTN"_s + nro_ + u".rar"_s;
        const QString elegido = pedir(nombre);
        QString motivo;
        try {
            const bool bien = lotes.esperar();
            if (!elegido.isEmpty() && bien && entero()) {
                copiar_archivo(archivo(), QFileInfo(elegido).absolutePath() + u'/' + nombre, Asegurar::si);
                return true;
            }
            motivo = elegido.isEmpty() ? QString() : motivoDelEmpaquetador(lotes);
        } catch (const ErrorDisco& e) {
            motivo = e.texto;
        }
        dialogo_.avisar(
            {u"Error: Se canceló la emisión de la declaracion jurada"_s, titulo(), Icono::informacion, motivo});
        return false;
    }

    [[nodiscard]] QString motivoDelEmpaquetador(LoteEnMarcha& lotes) const
    {
        if (!QFileInfo(base_ + u"/rar"_s).isExecutable())
            return u"No se puede ejecutar "_s + base_ + u"/rar"_s;
        const QString queja = lotes.queja();
        return queja.isEmpty() ? u"El archivo %1 no quedó completo."_s.arg(archivo()) : queja;
    }

    // The shell only tells how its last line ended: the archive itself says whether it holds all.
    [[nodiscard]] bool entero() const
    {
        try {
            QStringList nombres;
            for (const EntradaRar& e : listar_rar(QFile::encodeName(archivo()).toStdString()))
                nombres << QFileInfo(QString::fromStdString(e.nombre)).fileName();
            return std::all_of(ficheros_.begin(), ficheros_.end(),
                               [&](const QString& f) { return nombres.contains(f); });
        } catch (const std::exception&) {
            // Another packer's archive may be one that is not read here.
            return QFileInfo(archivo()).size() > 0;
        }
    }

    QString nro_;
    QStringList ficheros_;
    Dialogo& dialogo_;
    QString base_;
    QString carpeta_;
    QString testimonios_;
    QString texto_;
};

}  // namespace

QString palabra_shell(const QString& texto)
{
    return u'\'' + QString(texto).replace(u'\'', u"'\\''"_s) + u'\'';
}

bool comprimir_dj(const QString& nro, Dialogo& dialogo, const PedirDestino& pedir)
{
    return Empaquetado(nro, dialogo).correr(pedir);
}
