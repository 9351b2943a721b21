// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The sixteen coordinates of the regions of interest, edited as an operator does.
#pragma once

#include "camerapage.h"
#include "controls.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSpinBox>
#include <QString>
#include <QTest>

#include <array>
#include <cstddef>

/// One of the sixteen spin boxes, with the other coordinate of its pair.
struct Coordinate
{
    const char *box;
    int number;
    const char *name;
    const char *first;
    const char *second;
};

inline constexpr std::array<Coordinate, 16> coordinates{{
    {"Roi0IncX1", 0, "X1", "Roi0IncX1", "Roi0IncX2"},
    {"Roi0IncX2", 0, "X2", "Roi0IncX1", "Roi0IncX2"},
    {"Roi0IncY1", 0, "Y1", "Roi0IncY1", "Roi0IncY2"},
    {"Roi0IncY2", 0, "Y2", "Roi0IncY1", "Roi0IncY2"},
    {"Roi1IncX1", 1, "X1", "Roi1IncX1", "Roi1IncX2"},
    {"Roi1IncX2", 1, "X2", "Roi1IncX1", "Roi1IncX2"},
    {"Roi1IncY1", 1, "Y1", "Roi1IncY1", "Roi1IncY2"},
    {"Roi1IncY2", 1, "Y2", "Roi1IncY1", "Roi1IncY2"},
    {"Roi0ExcX1", 2, "X1", "Roi0ExcX1", "Roi0ExcX2"},
    {"Roi0ExcX2", 2, "X2", "Roi0ExcX1", "Roi0ExcX2"},
    {"Roi0ExcY1", 2, "Y1", "Roi0ExcY1", "Roi0ExcY2"},
    {"Roi0ExcY2", 2, "Y2", "Roi0ExcY1", "Roi0ExcY2"},
    {"Roi1ExcX1", 3, "X1", "Roi1ExcX1", "Roi1ExcX2"},
    {"Roi1ExcX2", 3, "X2", "Roi1ExcX1", "Roi1ExcX2"},
    {"Roi1ExcY1", 3, "Y1", "Roi1ExcY1", "Roi1ExcY2"},
    {"Roi1ExcY2", 3, "Y2", "Roi1ExcY1", "Roi1ExcY2"},
}};

inline void addCoordinates()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < coordinates.size(); ++place) {
        QTest::newRow(coordinates.at(place).box) << place;
    }
}

/// The handler of a coordinate, such as x1RoiUserValueChanged.
inline QByteArray handlerOf(const char *name)
{
    return QByteArray{name}.toLower() + "RoiUserValueChanged";
}

inline void finishEdit(TestWindow &test, const char *name, int number)
{
    QVERIFY(QMetaObject::invokeMethod(&test.window(), handlerOf(name).constData(), Qt::DirectConnection,
                                      Q_ARG(int, number)));
}

/// The flags while only that region is enabled beside region 0.
inline constexpr std::array<const char *, 4> flagsOfOnly{
    {"false, false, false", "true, false, false", "false, true, false", "false, false, true"}};

/// Shows the regions of the connected camera, with that one enabled.
inline void openRegion(TestWindow &test, int number)
{
    openCameraPage(test, "LutSection");
    if (number != 0) {
        test.click(regionOf(number).enable);
    }
    test.takeCallsAndRecords();
}

inline void show(TestWindow &test, const char *box, int value)
{
    test.child<QSpinBox>(box).setValue(value);
}

inline int shown(const TestWindow &test, const char *box)
{
    return test.child<QSpinBox>(box).value();
}

/// Types over what a spin box shows, and stays in it.
inline void type(TestWindow &test, const QString &name, int value)
{
    auto &box = test.child<QSpinBox>(name);
    QVERIFY(box.isEnabled());
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QString::number(value));
    QCOMPARE(box.value(), value);
}

inline void press(TestWindow &test, const QString &name, Qt::Key key)
{
    QTest::keyClick(&test.child<QSpinBox>(name), key);
    QCoreApplication::processEvents();
}

inline QString sent(const char *name, int value, int number, const QString &flags, bool accepted = true)
{
    return QStringLiteral("setRoi%1(%2, %3, %4) -> %5")
        .arg(QString{name}, QString::number(value), QString::number(number), flags,
             accepted ? "true" : "false");
}

inline QString record(const QString &line)
{
    return "log(2, \"" + line + "\")";
}

/// The box that tells the order of the coordinates; the first one is X1 or Y1.
inline QString orderBox(int number, const QString &firstName)
{
    return QStringLiteral("window icon \"ROI\" \"ROI %1 %2 must be lower than ROI %3\" [OK]")
        .arg(QString::number(number), firstName, firstName.startsWith('X') ? "X2" : "Y2");
}
