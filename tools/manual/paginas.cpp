// SPDX-License-Identifier: GPL-3.0-or-later

#include "paginas.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <stdexcept>

using namespace Qt::StringLiterals;

QString leer_texto(const QString& archivo)
{
    QFile f(archivo);
    if (!f.open(QIODevice::ReadOnly))
        throw std::runtime_error((archivo + u": "_s + f.errorString()).toStdString());
    return QString::fromUtf8(f.readAll());
}

QList<PaginaManual> paginas_del_manual(const QString& carpeta)
{
    static const QRegularExpression PARTE(u"^## (.+)$"_s);
    static const QRegularExpression PAGINA(u"^- \\[(.+)\\]\\((.+\\.md)\\)$"_s);
    QList<PaginaManual> paginas;
    for (const QString& linea : leer_texto(carpeta + u"/contenido.md"_s).split(u'\n')) {
        if (const auto parte = PARTE.match(linea); parte.hasMatch())
            paginas << PaginaManual{parte.captured(1), {}};
        else if (const auto pagina = PAGINA.match(linea); pagina.hasMatch())
            paginas << PaginaManual{pagina.captured(1), pagina.captured(2)};
    }
    if (paginas.isEmpty())
        throw std::runtime_error("contenido.md: no tiene páginas");
    return paginas;
}

QString cambiar_enlaces(const QString& markdown, const QString& archivo,
                        const std::function<QString(const QString&, const QString&)>& cambio)
{
    static const QRegularExpression ENLACE(u"\\[([^\\]]*)\\]\\(([^)]+\\.md)\\)"_s);
    const QString carpeta = QFileInfo(archivo).path();
    QString salida;
    qsizetype desde = 0;
    for (auto it = ENLACE.globalMatch(markdown); it.hasNext();) {
        const auto e = it.next();
        salida.append(QStringView(markdown).sliced(desde, e.capturedStart() - desde));
        salida += cambio(e.captured(1), QDir::cleanPath(carpeta + u'/' + e.captured(2)));
        desde = e.capturedEnd();
    }
    return salida.append(QStringView(markdown).sliced(desde));
}
