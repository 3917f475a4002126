// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlComunes.h"

#include "widgets/colores.h"

#include "core/redondeo.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

// Neither a list that opens nor a box on top is a leaving.
class FiltroSalida : public QObject
{
public:
    FiltroSalida(QComboBox* combo, std::function<void()> accion) : QObject(combo), accion_(std::move(accion)) {}
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut) {
            const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
            if (motivo != Qt::PopupFocusReason && motivo != Qt::ActiveWindowFocusReason)
                accion_();
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    std::function<void()> accion_;
};

// What was typed goes to the first entry that starts with it.
void completar(QComboBox* combo)
{
    const QString texto = combo->currentText();
    if (texto.isEmpty()) {
        combo->setCurrentIndex(-1);
        return;
    }
    const int i = combo->findText(texto, Qt::MatchStartsWith);
    if (i >= 0 && (i != combo->currentIndex() || combo->itemText(i) != texto)) {
        combo->setCurrentIndex(i);
        combo->setEditText(combo->itemText(i));
        emit combo->activated(i);
    }
}

void pintar(QWidget* w, bool si)
{
    pintar_fondo(w, si);
    w->setEnabled(si);
}

// Asked for each time: the label's text may be another one by now.
class Nombrador : public QObject
{
public:
    Nombrador(QWidget* control, QWidget* parte) : QObject(parte), control_(control), parte_(parte)
    {
        parte->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::Show || evento->type() == QEvent::FocusIn)
            parte_->setAccessibleName(nombre());
        return QObject::eventFilter(objeto, evento);
    }

private:
    [[nodiscard]] QString nombre() const
    {
        if (const QWidget* padre = control_->parentWidget(); padre && control_->accessibleName().isEmpty())
            for (const auto* rotulo : padre->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
                if (rotulo->buddy() == control_)
                    return rotulo->text();
        return control_->accessibleName();
    }

    QWidget* control_;
    QWidget* parte_;
};

}  // namespace

void nombrar_por(QWidget* control, QWidget* parte)
{
    new Nombrador(control, parte);
}

void a_mayusculas(QLineEdit* texto)
{
    QObject::connect(texto, &QLineEdit::textChanged, texto, [texto](const QString& t) {
        const QString mayusculas = t.toUpper();
        if (mayusculas == t)
            return;
        const int cursor = texto->cursorPosition();
        const bool tecleado = texto->isModified();
        texto->setText(mayusculas);
        texto->setModified(tecleado);
        texto->setCursorPosition(cursor);
    });
}

void marcar_boton(QAbstractButton* boton, bool si)
{
    const bool exclusivo = boton->autoExclusive();
    boton->setAutoExclusive(false);
    boton->setChecked(si);
    boton->setAutoExclusive(exclusivo);
}

void solo_digitos_en(QLineEdit* texto)
{
    static const QRegularExpression digitos(u"[0-9]*"_s);
    texto->setValidator(new QRegularExpressionValidator(digitos, texto));
}

void habilitar_texto(QLineEdit* texto, bool si)
{
    pintar(texto, si);
}

void habilitar_combo(QComboBox* combo, bool si)
{
    pintar(combo, si);
}

void llenar_combo(QComboBox* combo, const Entradas& entradas)
{
    const QSignalBlocker callado(combo);
    combo->clear();
    for (const Entrada& e : entradas)
        combo->addItem(e.texto, e.dato);
    combo->setCurrentIndex(-1);
    if (combo->isEditable())
        combo->clearEditText();
}

void seleccionar_item(QComboBox* combo, qint64 dato)
{
    combo->setCurrentIndex(-1);
    for (int i = 0; i < combo->count(); ++i)
        if (combo->itemData(i).toLongLong() == dato && combo->itemData(i).isValid()) {
            combo->setCurrentIndex(i);
            return;
        }
}

void seleccionar_texto(QComboBox* combo, const QString& texto)
{
    combo->setCurrentIndex(combo->findText(texto, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void buscar_en_combo(QComboBox* combo, int criterio, const QString& texto, int inicio, int largo,
                     const QString& formato)
{
    const QString buscado = formato.isEmpty() ? texto : con_formato(texto, formato);
    for (int i = 0; i < combo->count(); ++i) {
        const bool coincide = criterio == 0 ? combo->itemData(i).toString().mid(inicio - 1, largo) == buscado
                                            : combo->itemText(i).contains(buscado);
        if (coincide) {
            combo->setCurrentIndex(i);
            return;
        }
    }
    combo->setCurrentIndex(-1);
}

Tecleo::Tecleo(QComboBox* combo) : QObject(combo)
{
    combo->installEventFilter(this);
}

// The event is sent on from here, so that its end is known.
bool Tecleo::eventFilter(QObject* objeto, QEvent* evento)
{
    const bool tecla = evento->type() == QEvent::KeyPress || evento->type() == QEvent::Wheel;
    if (!tecla || enCurso_)
        return false;
    const QScopedValueRollback en_curso(enCurso_, true);
    QCoreApplication::sendEvent(objeto, evento);
    return true;
}

void al_salir(QComboBox* combo, const std::function<void()>& accion)
{
    combo->installEventFilter(new FiltroSalida(combo, accion));
}

void combo_con_texto(QComboBox* combo)
{
    combo->setCompleter(nullptr);
    a_mayusculas(combo->lineEdit());
    al_salir(combo, [combo] { completar(combo); });
}

std::optional<int> elegido(const QComboBox* combo)
{
    return combo->currentIndex() < 0 ? std::optional<int>() : combo->currentData().toInt();
}

std::optional<int> filtro_elegido(const QComboBox* combo)
{
    return combo->currentIndex() <= 0 ? std::optional<int>() : combo->currentData().toInt();
}

std::optional<int> elegido_por_texto(const QComboBox* combo)
{
    const int i = combo->currentText().isEmpty() ? -1 : combo->findText(combo->currentText(), Qt::MatchFixedString);
    return i < 0 ? std::optional<int>() : combo->itemData(i).toInt();
}
