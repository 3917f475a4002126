// SPDX-License-Identifier: GPL-3.0-or-later

#include "catalogue/screens/fechaOpcional.h"

#include "core/reloj.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

// The lowest date stands for none; no item is as old.
FechaOpcional::FechaOpcional(QWidget* padre) : QDateEdit(padre)
{
    setSpecialValueText(u" "_s);
}

QDate FechaOpcional::fecha() const
{
    return date() == minimumDate() ? QDate() : date();
}

void FechaOpcional::ponerFecha(const QDate& fecha)
{
    setDate(fecha.isNull() ? minimumDate() : fecha);
}

void FechaOpcional::stepBy(int pasos)
{
    if (fecha().isNull())
        setDate(hoy());
    else
        QDateEdit::stepBy(pasos);
}

void FechaOpcional::keyPressEvent(QKeyEvent* e)
{
    const bool entera = lineEdit()->selectedText() == text();
    if (e->key() == Qt::Key_Delete || (e->key() == Qt::Key_Backspace && entera)) {
        ponerFecha({});
        return;
    }
    const QChar c = e->text().isEmpty() ? QChar() : e->text().front();
    if (c.isDigit() && (entera || fecha().isNull())) {
        setDate(hoy());
        setSelectedSection(DaySection);
    }
    // A part that is full has gone on to the next one already, which is all selected.
    if (c == u'/' && currentSection() != DaySection && lineEdit()->selectedText() == sectionText(currentSection()))
        return;
    QDateEdit::keyPressEvent(e);
}

// The calendar of an empty date opens at this month.
void FechaOpcional::mousePressEvent(QMouseEvent* e)
{
    QDateEdit::mousePressEvent(e);
    if (fecha().isNull())
        calendarWidget()->setCurrentPage(hoy().year(), hoy().month());
}
