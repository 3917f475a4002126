// SPDX-License-Identifier: GPL-3.0-or-later
// A date that may be absent.
#pragma once

#include <QDateEdit>

class FechaOpcional : public QDateEdit
{
    Q_OBJECT

public:
    explicit FechaOpcional(QWidget* padre = nullptr);

    /// Invalid without a date.
    [[nodiscard]] QDate fecha() const;
    void ponerFecha(const QDate& fecha);

protected:
    /// A digit begins a date from today's, Delete leaves none.
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
};
