// SPDX-License-Identifier: GPL-3.0-or-later

#include "application/traduccion.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

struct Texto
{
    const char* contexto;
    const char* original;
    const char* espanol;
};

// What the toolkit's catalogue leaves in English, or says wrong.
constexpr Texto TEXTOS[] = {
    {"Print Device Input Slot", "Automatic", "Automática"},
    {"Print Device Output Bin", "Automatic", "Automática"},
    {"QAbstractFileIconProvider", "Alias", "Alias"},
    {"QAbstractFileIconProvider", "Drive", "Unidad"},
    {"QAbstractFileIconProvider", "File", "Archivo"},
    {"QAbstractFileIconProvider", "%1 File", "Archivo %1"},
    {"QAbstractFileIconProvider", "File Folder", "Carpeta de archivos"},
    {"QAbstractFileIconProvider", "Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "Shortcut", "Acceso directo"},
    {"QAbstractFileIconProvider", "Unknown", "Desconocido"},
    {"QCupsPrinterSupport", "Authentication Needed", "Autenticación necesaria"},
    {"QCupsPrinterSupport", "Authentication needed to use %1 on %2.", "Para usar %1 en %2 debe identificarse."},
    {"QCupsPrinterSupport", "Authentication needed to use %1.", "Para usar %1 debe identificarse."},
    {"QCupsPrinterSupport", "Username:", "Usuario:"},
    {"QCupsPrinterSupport", "Password:", "Contraseña:"},
    {"QFileDialog", "Go to the parent directory", "Ir al directorio superior"},
    {"QFileSystemModel",
     "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no punctuation marks.",
     "<b>No se puede usar el nombre «%1».</b><p>Pruebe con otro nombre, con menos letras o sin signos."},
    {"QMessageBox", "Show Details...", "Detalles"},
    {"QMessageBox", "Hide Details...", "Ocultar detalles"},
    {"QPageSize", "Architect D", "Arquitecto D"},
    {"QPrintDialog", "Invalid Pages Definition", "Páginas mal indicadas"},
    {"QPrintDialog",
     "%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make"
     " sure ranges do not intersect with each other.",
     "%1 no está bien escrito. Separe páginas e intervalos con «,», indique los intervalos con «-» y cuide que no se"
     " superpongan."},
    {"QPrintDialog", "Duplex Settings Conflicts", "Opciones de doble faz incompatibles"},
    {"QPrintDialog", "There are conflicts in duplex settings. Do you want to fix them?",
     "Las opciones de doble faz no son compatibles. ¿Desea corregirlas?"},
    {"QPrintPropertiesDialog", "Advanced Option Conflicts", "Opciones avanzadas incompatibles"},
    {"QPrintPropertiesDialog", "There are conflicts in some advanced options. Do you want to fix them?",
     "Algunas opciones avanzadas no son compatibles. ¿Desea corregirlas?"},
    {"QPrintPropertiesDialog", "Page Setup Conflicts", "Opciones de página incompatibles"},
    {"QPrintPropertiesDialog", "There are conflicts in page setup options. Do you want to fix them?",
     "Las opciones de página no son compatibles. ¿Desea corregirlas?"},
    {"QPrintPropertiesWidget", "Advanced", "Avanzadas"},
    {"QPrintPropertiesWidget", "There are conflicts in some options. Please fix them.",
     "Algunas opciones no son compatibles. Por favor, corríjalas."},
    {"QPrintSettingsOutput", "Double Sided Printing", "Impresión a doble faz"},
    {"QPrintSettingsOutput", "Off", "No"},
    {"QPrintSettingsOutput", "Long side binding", "Encuadernación por el lado largo"},
    {"QPrintSettingsOutput", "Short side binding", "Encuadernación por el lado corto"},
    {"QPrintSettingsOutput", "Pages", "Páginas"},
    {"QPrintSettingsOutput",
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: "
     "3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Indique páginas o intervalos separados por comas. Un intervalo son dos números separados por un guión. Ej.: "
     "3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9."},
};

class Faltantes : public QTranslator
{
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* contexto, const char* original, const char*, int) const override
    {
        for (const Texto& t : TEXTOS)
            if (std::strcmp(t.contexto, contexto) == 0 && std::strcmp(t.original, original) == 0)
                return QString::fromUtf8(t.espanol);
        return {};
    }
};

}  // namespace

void instalar_espanol(QObject* duenio)
{
    auto* propio = new QTranslator(duenio);
    if (propio->load(u"qtbase_es"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))
        || propio->load(u":/traducciones/qtbase_es"_s))
        QCoreApplication::installTranslator(propio);
    QCoreApplication::installTranslator(new Faltantes(duenio));
}
