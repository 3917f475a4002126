// SPDX-License-Identifier: GPL-3.0-or-later
// Looks over the windows in view as somebody who sees little, hears them, or has no mouse.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// What is wrong with the windows in view, a line each, "form: control: fault": a text that has less room than its hint, a
/// list with a horizontal bar, a control that a screen reader has no name for, an access key that two controls of a form
/// share, a text that hardly differs from its ground.
[[nodiscard]] QStringList revisar_ventanas(QWidget* principal);
