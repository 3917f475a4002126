// SPDX-License-Identifier: GPL-3.0-or-later
// The steps that go through the catalogue and through the directory of persons.
#pragma once

class Guia;
class QWidget;

/// From an operation's screen: finds an item by its text, makes a new one with two brackets and two roles,
/// and picks it. Throws Inesperado.
void nuevo_subconcepto(Guia& guia, QWidget* operacion);

/// From a party's screen: picks a person of an earlier DJ. Throws Inesperado.
void parte_anterior(Guia& guia, QWidget* parte);
