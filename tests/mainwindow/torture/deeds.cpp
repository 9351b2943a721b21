// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an operator does with one control, and what changes behind the operator's back.
#include "deeds.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <utility>

using veltrix_simulator::Value;

Deed press(const QString &button)
{
    return [=](TestWindow &test) {
        test.child<QAbstractButton>(button).click();
    };
}

Deed choose(const QString &comboBox, int index)
{
    return [=](TestWindow &test) {
        test.child<QComboBox>(comboBox).setCurrentIndex(index);
    };
}

Deed turnTo(int page)
{
    return [=](TestWindow &test) {
        test.child<QTabWidget>(QStringLiteral("Principal_tab")).setCurrentIndex(page);
    };
}

Deed releaseSlider(const QString &slider)
{
    return [=](TestWindow &test) {
        auto &widget = test.child<QSlider>(slider);
        widget.setSliderDown(true);
        widget.setSliderDown(false);
    };
}

Deed finishEdit(const QString &spinBox)
{
    return [=](TestWindow &test) {
        auto &widget = test.child<QWidget>(spinBox);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    };
}

Deed setValue(const QString &name, const QVariant &value)
{
    return [=](TestWindow &test) {
        test.child<QWidget>(name).setProperty("value", value);
    };
}

Deed invoke(const char *handler)
{
    return [=](TestWindow &test) {
        test.invoke(handler);
    };
}

Deed both(const Deed &first, const Deed &second)
{
    return [=](TestWindow &test) {
        first(test);
        second(test);
    };
}

void changeUnits(TestWindow &test)
{
    static const std::pair<const char *, Value> changes[]{
        {"blendUnit.videoMode", 1},
        {"blendUnit.zoom.method", 1},
        {"blendUnit.zoom.factor", 1.5},
        {"blendUnit.startingMode", 3},
        {"blendUnit.warp0.a12", 2.75},
        {"camera.videoOutput", 3},
        {"camera.frameRate", 25},
        {"camera.gamma", 144179},
        {"camera.roi0.x1", 100},
        {"camera.roi1.x1", 10},
        {"camera.roi1.y2", 20},
        {"camera.roi2.x1", 30},
        {"camera.roi3.x1", 40},
        {"camera.clhe", 4321},
        {"camera.colorLut", 5},
        {"camera.contrastType", 1},
        {"camera.lutTemporalFilter", 7},
        {"camera.ahcGainLimitation.black", 11},
        {"camera.edgeCorrection.type", 2},
        {"camera.polarity", true},
        {"camera.sdiOutput", false},
        {"camera.bprEnable", false},
        {"camera.gainCorrection", false},
        {"camera.offsetCorrection", false},
        {"camera.verticalFlip", true},
        {"camera.gms", 77},
        {"camera.gsk", 3},
    };
    for (const auto &[key, value] : changes) {
        test.simulator.set(key, value);
    }
}

void changeDefaults(TestWindow &test)
{
    static const std::pair<const char *, Value> changes[]{
        {"configuration.defaultFrameRate", 25},
        {"configuration.defaultGamma", 2.2},
        {"configuration.defaultClhe", 1234.5},
        {"configuration.defaultSharpeningGain", 12.5},
        {"configuration.gskDefault", 3},
        {"configuration.gfidDefault", 333},
        {"configuration.defaultContrastType", 1},
        {"configuration.defaultColorLut", 4},
        {"configuration.defaultPolarity", true},
        {"configuration.defaultHorizontalFlip", true},
        {"configuration.defaultEdgeCorrectionType", 1},
        {"configuration.defaultSharpeningGainValue", 7},
        {"configuration.defaultSharpeningThreshold", 9},
        {"configuration.defaultVideoOutput", 2},
        {"configuration.defaultSdiOutput", false},
        {"configuration.defaultRoi0ExcEnable", true},
        {"configuration.defaultRoi1IncEnable", true},
        {"configuration.defaultRoi1ExcEnable", true},
        {"configuration.defaultTempoFilter", 5},
        {"configuration.defaultAhcBlackGainLimit", 33},
    };
    for (const auto &[key, value] : changes) {
        test.simulator.set(key, value);
    }
}
