// SPDX-License-Identifier: GPL-3.0-or-later
// The application: its language, and the one handler of what nobody else traps.
#pragma once

#include <QApplication>

class Aplicacion : public QApplication
{
    Q_OBJECT

public:
    Aplicacion(int& argc, char** argv);

    bool notify(QObject* objeto, QEvent* evento) override;

    /// Shows the error, with the details behind it, rolls back what is open, closes the connections and ends the program
    /// with status 1.
    [[noreturn]] static void terminar(const QString& error, const QString& detalles = {});

protected:
    bool event(QEvent* evento) override;

private:
    bool pintando_ = false;
};
