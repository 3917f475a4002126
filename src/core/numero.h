// SPDX-License-Identifier: GPL-3.0-or-later
// The number field without its widget: the text that the user sees is the only truth about the
// number.
#pragma once

#include "core/clsLocaleInfo.h"
#include "core/redondeo.h"

#include <QString>

#include <functional>
#include <optional>

/// The number that a shown text stands for under the user's locale; throws ErrorConversion.
[[nodiscard]] double numero_de_texto(const QString& texto);

class Numero
{
public:
    Numero() = default;
    explicit Numero(int decimales) : cantidadDecimales(decimales) {}

    int cantidadDecimales = 0;
    bool useSepMiles = true;
    bool permiteNegativos = false;

    /// Called after each change of the text that did not come from `escribirTexto`.
    std::function<void()> alCambiar;

    /// What the key filter decides about one character key.
    struct Tecla
    {
        int keyAscii;        ///< the character that goes on, 0 for a dropped key
        bool cursorAlFinal;  ///< the text was changed, the caret goes to its end
    };
    /// Enter, Backspace and Escape pass; "." becomes the locale's separator, "-" and "+" set and
    /// clear the sign, anything but a digit is dropped.
    Tecla filtrar(int keyAscii);

    /// Focus in: the thousands separators go, but for a text that is no number.
    void entrar();
    /// Focus out: the text under the mask. An empty text and one that is no number stay.
    void formatear();

    /// 0 for an empty text; throws ErrorConversion for a text that is no number.
    [[nodiscard]] double Value() const;
    void setValue(double valor);
    [[nodiscard]] QString toString() const { return texto_; }
    /// The text with "." as separator and no grouping; the empty text stays empty. Throws ErrorConversion for a
    /// text that is no number: it must not reach a statement.
    [[nodiscard]] QString toSQL() const;
    void ClearText();

    /// The text as a program hands it over.
    void escribirTexto(const QString& texto)
    {
        texto_ = texto;
        tecleado_ = false;
        leido_.reset();
    }
    /// The text as a user changed it: only what the keys could have written is a number.
    void teclearTexto(const QString& texto)
    {
        escribirTexto(texto);
        tecleado_ = true;
    }
    /// The text of another number, as it came there.
    void copiarTexto(const Numero& otro)
    {
        escribirTexto(otro.texto_);
        tecleado_ = otro.tecleado_;
    }
    [[nodiscard]] bool vacio() const { return texto_.isEmpty(); }
    /// Whether the text, which may be empty, can be read.
    [[nodiscard]] bool legible() const { return texto_.isEmpty() || leer(); }
    /// What a pasted text puts into the field: the number that it holds as soon as what stands before it
    /// ("$", "N°", "Nro."), blanks and grouping are gone, and in a field without decimals hyphens and dots;
    /// any other text as it is.
    [[nodiscard]] QString de_pegado(const QString& texto) const;

private:
    void poner(const QString& texto);
    [[nodiscard]] QString desnudo() const;
    [[nodiscard]] std::optional<double> leer() const;
    [[nodiscard]] bool bienTecleado() const;
    [[nodiscard]] QString mascara(double valor) const;

    clsLocaleInfo local_;
    QString texto_;
    bool tecleado_ = false;
    mutable std::optional<double> leido_;  ///< what the text was read as, until it changes
};

/// The field as a statement takes it, 0 when it is empty.
[[nodiscard]] QString sql_o_cero(const Numero& n);
