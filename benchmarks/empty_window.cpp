// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// An empty main window as Qt shows it, which benchmark_start_up starts beside the program.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    QMainWindow window;
    window.show();
    return QApplication::exec();
}
