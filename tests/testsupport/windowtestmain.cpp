// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main function of a test program with windows.
#include "testrunner.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    return runTests();
}
