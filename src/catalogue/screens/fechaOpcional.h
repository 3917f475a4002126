// SPDX-License-Identifier: GPL-3.0-or-later
// A date that may be missing, and shows empty then.
#pragma once

#include <QDateEdit>

class FechaOpcional : public QDateEdit
{
    Q_OBJECT

public:
    explicit FechaOpcional(QWidget* padre = nullptr);

    /// A null date without one.
    [[nodiscard]] QDate fecha() const;
    /// A null date empties the field.
    void ponerFecha(const QDate& fecha);

    /// From the empty field to today, else as usual.
    void stepBy(int pasos) override;

protected:
    /// A digit begins a date in the empty field; Delete empties it, and so does Backspace over the whole date.
    void keyPressEvent(QKeyEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
};
