// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Scenarios that misbehave: those that ship, and others that a seed makes.
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Names of the scenarios that ship.
QStringList shippedScenarios();

/// The text of a scenario: ports with hostile names, a slow link, odd values in the units, and faults of
/// every kind. The same seed makes the same text.
QString generatedScenario(quint32 seed);

/// What is never typed on purpose: for boxes that take numbers, ports and handlers.
const QStringList &oddTexts();
