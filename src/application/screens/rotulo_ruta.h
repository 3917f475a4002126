// SPDX-License-Identifier: GPL-3.0-or-later
// A label with a path that never widens its window.
#pragma once

#include <QLabel>

/// Shows a title and as much of a path as there is room for, its middle left out; the tip has it whole.
class RotuloRuta : public QLabel
{
    Q_OBJECT

public:
    RotuloRuta(const QString& titulo, const QString& ruta);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    QString titulo_;
    QString ruta_;
};
