// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The sliders of the camera's pages with their spin boxes.
#pragma once

#include "camerapage.h"

#include <QAbstractSpinBox>
#include <QSlider>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstddef>

/// A slider and its spin box: the box shows position * unitsPerStep + lowest.
struct Pair
{
    const char *name;
    const char *page;
    const char *slider;
    const char *box;
    double unitsPerStep;
    double lowest;
    const char *sliderSlot;
    const char *boxSlot;
    bool decimalBox;
};

inline constexpr std::array<Pair, 11> pairs{{
    {"gamma", "LutSection", "gammaSlider", "gammaEdit", 0.1, 0.5, "GammaUserSliderChanged",
     "GammaUserValueChanged", true},
    {"CLHE", "LutSection", "clheSlider", "clheEdit", 1.0, 0.0, "ClheUserSliderChanged",
     "ClheUserValueChanged", true},
    {"sharpening gain", "EdgeSection", "sharpeningGainSlider", "sharpeningGainEdit", 0.1, 0.0,
     "SharpeningUserSliderChanged", "SharpeningUserValueChanged", true},
    {"sharpening threshold", "EdgeSection", "SharpeningTHSlider", "SharpeningTHEdit", 0.1, 0.0,
     "SharpeningTHSliderChanged", "SharpeningTHValueChanged", true},
    {"AHC black gain limit", "LutSection", "AhcBlackGainLimSlider", "AhcBlackGainLimSpin", 1.0, 0.0,
     "AhcBlackGainlimSliderChanged", "AhcBlackGainLimSpinValueChanged", false},
    {"AHC white gain limit", "LutSection", "AhcWhiteGainLimSlider", "AhcWhiteGainLimSpin", 1.0, 0.0,
     "AhcWhiteGainlimSliderChanged", "AhcWhiteGainLimSpinValueChanged", false},
    {"LUT temporal filter", "LutSection", "TempoFilterSlider", "TempoFilterSpin", 1.0, 0.0,
     "TempoFilterSliderChanged", "TempoFiltSpinValueChanged", false},
    {"GSK", "ExpertMode", "gskSlider", "gskEdit", 1.0, 0.0, "GSKExpertSliderChanged", "GSKExpertValueChanged",
     true},
    {"GFID", "ExpertMode", "gfidSlider", "gfidEdit", 1.0, 0.0, "GFIDExpertSliderChanged",
     "GFIDExpertValueChanged", true},
    {"GMS", "ExpertMode", "gmsSlider", "gmsEdit", 1.0, 0.0, "GMSExpertSliderChanged", "GMSExpertValueChanged",
     true},
    {"TINT", "ExpertMode", "tintSlider", "tintEdit", 1.0, 0.0, "TINTExpertSliderChanged",
     "TINTExpertValueChanged", true},
}};

/// The pair of that slider.
inline const Pair &pairOf(const char *slider)
{
    const auto found = std::find_if(pairs.begin(), pairs.end(),
                                    [slider](const Pair &pair) { return qstrcmp(pair.slider, slider) == 0; });
    Q_ASSERT(found != pairs.end());
    return *found;
}

/// One row for each pair, by its place in the table.
inline void addPairs()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < pairs.size(); ++place) {
        QTest::newRow(pairs.at(place).name) << place;
    }
}

/// A pair in the window, whatever the class of its spin box.
struct Widgets
{
    Widgets(const TestWindow &test, const Pair &pair)
        : slider{test.child<QSlider>(pair.slider)}, box{test.child<QAbstractSpinBox>(pair.box)}
    {}

    double value() const { return box.property("value").toDouble(); }
    void setValue(double value) { QVERIFY(box.setProperty("value", value)); }

    QSlider &slider;
    QAbstractSpinBox &box;
};

/// Types over what a spin box shows, and stays in it.
inline void typeInto(QAbstractSpinBox &box, const QString &text)
{
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
}
