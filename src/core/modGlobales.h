// SPDX-License-Identifier: GPL-3.0-or-later
// State of the whole process: the shared connections and what start-up loads.
#pragma once

#include "core/almacen.h"
#include "core/candado.h"

#include <QDate>
#include <QString>

extern Conexion cnRtn;      ///< the connection through which every form reads and writes
extern Conexion cnTmp;      ///< serves the grid of contract values
extern Candado candadoRtn;  ///< held while the program has the store open

extern QString RutaBaseDatos;
extern QString CadenaConexion;
extern int UsoSubconcepto;
extern QString BancoNombre;
extern qint32 BancoId;
extern qint32 BancoCuenta;
extern qint32 BancoConvenio;
extern double ValorModulo;  ///< pesos a module, of the law that was asked for last
extern double AlicuotaIVA;
extern qint32 TipoRedondeo;
extern qint32 ModoImporteMinimo;
extern qint32 ModoImporteFijo;
extern qint16 LeyVigente;
extern QDate LeyVigenciaDesde;

/// Folder in which the program lies, without a slash at its end.
[[nodiscard]] QString carpeta_programa();
/// Makes another folder take the program's place.
void fijar_carpeta_programa(const QString& carpeta);

/// The full name of a program of the project's, which lies beside this one or in another folder.
[[nodiscard]] QString ruta_herramienta(const QString& nombre, const QString& carpeta = carpeta_programa());

/// Password of the store.
[[nodiscard]] QString clave_almacen();
