// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main function of a test program without windows.
#include "testrunner.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application{argc, argv};
    return runTests();
}
