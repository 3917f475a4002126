// SPDX-License-Identifier: GPL-3.0-or-later
// A report: bands that flow over pages, with a header and a footer on each. Pages are laid out when
// they are asked for, so that the first one of a long report shows at once.
#pragma once

#include "printing/screens/rptPagina.h"

#include <optional>
#include <vector>

class Informe
{
public:
    virtual ~Informe() = default;

    /// The page, from 0; nothing past the last one.
    [[nodiscard]] std::optional<Pagina> pagina(int n);
    /// How many pages there are; lays all of them out.
    [[nodiscard]] int paginas();
    /// Whether the count is known without laying out more.
    [[nodiscard]] bool completo() const { return completo_; }
    /// Lays out some more pages; true while there are more to come.
    bool adelantar(int cuantas);

protected:
    /// What stands above the bands of a page, from 0.
    virtual Banda cabecera(int pagina) const = 0;
    /// Room for the page's number at the foot; without room there is none.
    virtual double altoPie() const { return 6; }
    /// The next bands of the report; false at its end.
    virtual bool siguientes(std::vector<Banda>& bandas) = 0;

private:
    bool disponer();
    bool traer();
    [[nodiscard]] bool hayBanda();
    [[nodiscard]] size_t finDelGrupo(double& alto) const;

    std::vector<Pagina> hechas_;
    std::vector<Banda> pendientes_;
    size_t siguiente_ = 0;
    bool agotado_ = false;
    bool completo_ = false;
};
