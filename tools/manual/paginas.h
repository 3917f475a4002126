// SPDX-License-Identifier: GPL-3.0-or-later
// The manual as it is written: a folder of Markdown, whose order is told by contenido.md.
#pragma once

#include <QList>
#include <QString>

#include <functional>

struct PaginaManual
{
    QString titulo;
    QString archivo;  ///< below the manual's folder, "pantallas/frmDJ_editar.md"; empty for the title of a part
};

/// Throws std::runtime_error when the file can't be read.
[[nodiscard]] QString leer_texto(const QString& archivo);
/// The pages in the order of contenido.md: its headings are parts, its links are pages. Throws std::runtime_error when
/// it names none.
[[nodiscard]] QList<PaginaManual> paginas_del_manual(const QString& carpeta);
/// The Markdown with each link to another page replaced; the function gets the link's text and the page's file.
[[nodiscard]] QString cambiar_enlaces(const QString& markdown, const QString& archivo,
                                      const std::function<QString(const QString&, const QString&)>& cambio);
