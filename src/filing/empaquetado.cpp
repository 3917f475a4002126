// SPDX-License-Identifier: GPL-3.0-or-later

#include "filing/empaquetado.h"

#include "core/modGlobales.h"
#include "core/modUtiles.h"
#include "core/motivos.h"
#include "core/numero.h"
#include "filing/archivos_disco.h"
#include "filing/carpetas_dj.h"
#include "rar5.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int SIN_LIMITE = -1;

[[noreturn]] void fallar(const QString& que, const QString& archivo)
{
    throw ErrorTarea(que + QDir::toNativeSeparators(archivo));
}

void borrar(const QString& archivo)
{
    if (QFileInfo::exists(archivo) && !borrar_archivo(archivo))
        fallar(u"No se pudo borrar "_s, archivo);
}

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
        if (!QDir().mkpath(testimonios_))
            fallar(u"No se pudo crear "_s, testimonios_);
        if (const QString viejo = vaciar_testimonios(nro_); !viejo.isEmpty())
            fallar(u"No se pudo borrar "_s, viejo);
        if (!copiarTestimonios())
            return false;
        escribirLote(texto_ + u'\n');
        QProcess lotes;
        lotes.setStandardErrorFile(QProcess::nullDevice());
        lotes.setStandardOutputFile(QProcess::nullDevice());
        lotes.start(u"/bin/sh"_s, {lote()});
        if (QFileInfo::exists(archivo()) && !copiar_archivo(archivo(), carpeta_ + u"/dj.rar"_s))
            fallar(u"No se pudo copiar "_s, archivo());
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
                                  + QFileInfo(origen).suffix().toLower();
            if (!copiar_archivo(origen, copia))
                fallar(u"No se pudo copiar "_s, origen);
            empaquetar(copia);
        }
        return true;
    }

    void escribirLote(const QString& texto) const
    {
        QFile f(lote());
        const QByteArray bytes = QFile::encodeName(texto);
        if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size() || !f.flush())
            fallar(u"No se pudo escribir "_s, lote());
    }

    // The packer works while the user chooses; the copy waits for its end.
    bool guardar(const PedirDestino& pedir, QProcess& lotes) const
    {
        const QString nombre = u"SRTN"_s + nro_ + u".rar"_s;
        const QString elegido = pedir(QDir::home().filePath(nombre));
        lotes.waitForFinished(SIN_LIMITE);
        if (!elegido.isEmpty() && entero(lotes)
            && copiar_archivo(archivo(), QFileInfo(elegido).absolutePath() + u'/' + nombre))
            return true;
        dialogo_.avisar({u"Error: Se canceló la emisión de la declaracion jurada"_s, titulo(), Icono::informacion});
        return false;
    }

    // The shell only tells how its last line ended: the archive itself says whether it holds all.
    [[nodiscard]] bool entero(const QProcess& lotes) const
    {
        if (lotes.exitStatus() != QProcess::NormalExit || lotes.exitCode() != 0)
            return false;
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
