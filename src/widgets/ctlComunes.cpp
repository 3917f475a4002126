// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ctlComunes.h"

#include "core/redondeo.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

// On leaving the combo, what was typed goes to the first entry that starts with it.
class FiltroCompletar : public QObject
{
public:
    explicit FiltroCompletar(QComboBox* combo) : QObject(combo), combo_(combo) {}
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut) {
            const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
            if (motivo != Qt::PopupFocusReason && motivo != Qt::ActiveWindowFocusReason)
                completar();
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    void completar()
    {
        const QString texto = combo_->currentText();
        if (texto.isEmpty()) {
            combo_->setCurrentIndex(-1);
            return;
        }
        const int i = combo_->findText(texto, Qt::MatchStartsWith);
        if (i >= 0 && (i != combo_->currentIndex() || combo_->itemText(i) != texto)) {
            combo_->setCurrentIndex(i);
            combo_->setEditText(combo_->itemText(i));
            emit combo_->activated(i);
        }
    }

    QComboBox* combo_;
};

void pintar(QWidget* w, bool si)
{
    QPalette p = w->palette();
    const QPalette base;
    p.setColor(QPalette::Base, base.color(si ? QPalette::Base : QPalette::Button));
    w->setPalette(p);
    w->setEnabled(si);
}

}  // namespace

void a_mayusculas(QLineEdit* texto)
{
    QObject::connect(texto, &QLineEdit::textEdited, texto, [texto](const QString& t) {
        const QString mayusculas = t.toUpper();
        if (mayusculas == t)
            return;
        const int cursor = texto->cursorPosition();
        texto->setText(mayusculas);
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

void combo_con_texto(QComboBox* combo)
{
    combo->setCompleter(nullptr);
    a_mayusculas(combo->lineEdit());
    combo->installEventFilter(new FiltroCompletar(combo));
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
