// SPDX-License-Identifier: GPL-3.0-or-later
// The field in which forms take numbers: `Numero` with a line edit around it.
#pragma once

#include "core/numero.h"

#include <QWidget>

class QContextMenuEvent;
class QDropEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

class ctlNumero : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int CantidadDecimales READ CantidadDecimales WRITE setCantidadDecimales)
    Q_PROPERTY(double Value READ Value WRITE setValue)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE setMaxLength)
    Q_PROPERTY(bool Enabled READ Enabled WRITE Habilitar)
    Q_PROPERTY(bool Negrita READ Negrita WRITE setNegrita)
    Q_PROPERTY(bool UseSepMiles READ UseSepMiles WRITE setUseSepMiles)
    Q_PROPERTY(bool PermiteNegativos READ PermiteNegativos WRITE setPermiteNegativos)

public:
    explicit ctlNumero(QWidget* padre = nullptr);

    [[nodiscard]] int CantidadDecimales() const { return modelo_.cantidadDecimales; }
    void setCantidadDecimales(int n) { modelo_.cantidadDecimales = n; }
    [[nodiscard]] int MaxLength() const { return maximo_; }
    /// 0 is without limit.
    void setMaxLength(int n);
    /// A field that is not enabled keeps its text and can be clicked into; it refuses typing, and Tab passes it.
    [[nodiscard]] bool Enabled() const;
    void Habilitar(bool si);
    [[nodiscard]] bool Negrita() const;
    void setNegrita(bool si);
    [[nodiscard]] bool UseSepMiles() const { return modelo_.useSepMiles; }
    void setUseSepMiles(bool si) { modelo_.useSepMiles = si; }
    [[nodiscard]] bool PermiteNegativos() const { return modelo_.permiteNegativos; }
    void setPermiteNegativos(bool si) { modelo_.permiteNegativos = si; }

    [[nodiscard]] double Value() const { return modelo_.Value(); }
    void setValue(double valor) { modelo_.setValue(valor); }
    [[nodiscard]] QString toString() const { return modelo_.toString(); }
    [[nodiscard]] QString toSQL() const { return modelo_.toSQL(); }
    void ClearText() { modelo_.ClearText(); }

    /// The number behind the field; the tax calculation works on it.
    [[nodiscard]] Numero& modelo() { return modelo_; }
    [[nodiscard]] const Numero& modelo() const { return modelo_; }

signals:
    /// After the key filter; the form may change the key, 0 drops it.
    void KeyPress(int& keyAscii);
    /// The text changed, by typing or by program.
    void cambiado();
    /// The field was left and its text stands under the mask.
    void salida();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool tecla(const QString& texto);
    bool teclaConOrden(const QKeyEvent* evento);
    bool raton(const QMouseEvent* evento);
    void entrar(Qt::FocusReason motivo);
    bool salir(Qt::FocusReason motivo);
    void pegar(const QString& texto);
    bool soltar(QDropEvent* evento);
    bool menuContextual(const QContextMenuEvent* evento);
    void avisarComa();
    void pintarFondo();

    Numero modelo_;
    QLineEdit* txt_;
    int maximo_ = 0;
    bool editando_ = false;
    bool clicDeEntrada_ = false;  ///< the click that brought the focus is still under way
};
