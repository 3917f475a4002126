// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/fecha_opcional.h"

#include "core/reloj.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

// Shows as nothing; no law is as old.
const QDate SIN_FECHA(1800, 1, 1);

}  // namespace

FechaOpcional::FechaOpcional(QWidget* padre) : QDateEdit(padre)
{
    setMinimumDate(SIN_FECHA);
    setSpecialValueText(u" "_s);
}

QDate FechaOpcional::fecha() const
{
    return date() == SIN_FECHA ? QDate() : date();
}

void FechaOpcional::ponerFecha(const QDate& fecha)
{
    setDate(fecha.isValid() ? fecha : SIN_FECHA);
}

void FechaOpcional::keyPressEvent(QKeyEvent* evento)
{
    const bool borra = evento->key() == Qt::Key_Delete || evento->key() == Qt::Key_Backspace;
    if (borra && (lineEdit()->selectedText() == text() || !fecha().isValid())) {
        ponerFecha({});
        return;
    }
    if (!fecha().isValid() && !evento->text().isEmpty() && evento->text().front().isDigit()) {
        ponerFecha(hoy());
        setSelectedSection(sectionAt(0));
    }
    QDateEdit::keyPressEvent(evento);
}

void FechaOpcional::mousePressEvent(QMouseEvent* evento)
{
    QDateEdit::mousePressEvent(evento);
    if (!fecha().isValid() && calendarWidget() && calendarWidget()->isVisible())
        calendarWidget()->setCurrentPage(hoy().year(), hoy().month());
}
