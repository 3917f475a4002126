// SPDX-License-Identifier: GPL-3.0-or-later
// The text of the batch file that calls the packer once for each file.
#pragma once

#include <QByteArray>
#include <QString>

/// Who carries a batch file out: the shell of Unix, or that of Windows.
enum class Interprete { sh, cmd };
#ifdef Q_OS_WIN
constexpr Interprete INTERPRETE = Interprete::cmd;
#else
constexpr Interprete INTERPRETE = Interprete::sh;
#endif

/// The lines of one batch file. It is started in the program's folder.
class GuionLote
{
public:
    /// `base`: the program's folder, with the packer; the archive `dj.rar` is made there.
    explicit GuionLote(QString base, Interprete interprete = INTERPRETE);

    void empaquetar(const QString& fichero);
    /// The file's bytes.
    [[nodiscard]] QByteArray texto() const;
    /// What is handed to the interpreter to carry out `lote`, the batch file in the program's folder.
    [[nodiscard]] QString orden(const QString& lote) const;

private:
    [[nodiscard]] QString palabra(const QString& texto) const;
    [[nodiscard]] QString nombre(const QString& fichero) const;

    QString base_;
    Interprete interprete_;
    QString lineas_;
};
