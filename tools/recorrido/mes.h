// SPDX-License-Identifier: GPL-3.0-or-later
// The guided month: what the notary does in the real windows, and what must stand there afterwards. A
// surprise throws Inesperado.
#pragma once

#include "manejo/manejo.h"
#include "recorrido/guia.h"

class MDIPrincipal;

/// A deed as the notary has it on paper.
struct Papel
{
    const char* nro;
    const char* folio;
    const char* dia;
    const char* estado;
    const char* motivo;      ///< null for a reached deed
    const char* testimonio;  ///< name of its file, null without one
};

struct ValorPapel
{
    const char* moneda;
    const char* monto;
    const char* cambio;
};

/// An operation with what it must yield.
struct OperacionPapel
{
    const char* codigo;  ///< null when it is picked in the catalogue
    const char* titulo;
    QList<ValorPapel> valores;
    QStringList roles;
    const char* modulos;  ///< typed by hand, null when they come from the tables
    const char* impuesto;
};

class Mes
{
public:
    Mes(MDIPrincipal& principal, Guia& guia) : principal_(principal), g_(guia) {}

    /// From the register of agents to the emission of a rectificativa.
    void correr();

private:
    // The road.
    void agentes();
    void nuevaDJ();
    void escrituras();
    void alcanzadas();
    void deImporteFijo();
    void sinOperacion();
    void conSubconceptoNuevo();
    void lista();
    void boletas();
    void emitir(const QString& nro, const QString& nombre);
    void rectificar();
    void acercaDe();

    // One form each.
    void menu(const char* nombre);
    void manual(QWidget* f);
    void escritura(const Papel& p);
    void aceptarEscritura(const QList<CajaEsperada>& cajas = {});
    void salirDeEscritura(const QList<CajaEsperada>& cajas = {});
    void parte(const char* sociedad, const char* doc, const char* nro, const char* nombre,
               const char* exento = nullptr);
    void extranjero(const char* pais, const char* pasaporte, const char* nombre);
    void inmueble(const char* partida, const char* valuacion);
    void operacion(const OperacionPapel& o);
    void comoSeCalculo(QWidget* f, const QString& impuesto);
    void valor(QWidget* f, const ValorPapel& v);
    void rol(QWidget* f, int fila, const QString& descripcion);
    void reporte(const QString& titulo, const QString& nombre);
    void recibo();
    [[nodiscard]] static QString codigo(const QString& nro);
    void buscarFila(QWidget* f, const QString& nro);

    MDIPrincipal& principal_;
    Guia& g_;
    int fotoParte_ = 0;
};
