// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A slider that is moved without a drag is let go as after one.
#include "sliderhand.h"

#include <QCoreApplication>
#include <QPoint>
#include <QRect>
#include <QStyle>
#include <QStyleOptionSlider>

namespace
{

/// How a slider describes itself to the style; Qt gives that to classes derived from it alone.
struct DescribingSlider : QSlider
{
    static QStyleOptionSlider describe(const QSlider &slider)
    {
        QStyleOptionSlider option;
        (slider.*(&DescribingSlider::initStyleOption))(&option);
        return option;
    }
};

QRect partOf(const QSlider &slider, QStyle::SubControl part)
{
    const QStyleOptionSlider option{DescribingSlider::describe(slider)};
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, part, &slider);
}

bool isOnHandle(const QSlider &slider, const QPoint &place)
{
    const QStyleOptionSlider option{DescribingSlider::describe(slider)};
    return slider.style()->hitTestComplexControl(QStyle::CC_Slider, &option, place, &slider) ==
           QStyle::SC_SliderHandle;
}

/// The position at which the handle's middle is nearest to a place.
int positionAt(const QSlider &slider, const QPoint &place)
{
    const QRect groove{partOf(slider, QStyle::SC_SliderGroove)};
    const QRect handle{partOf(slider, QStyle::SC_SliderHandle)};
    const bool horizontal{slider.orientation() == Qt::Horizontal};
    const int length{horizontal ? handle.width() : handle.height()};
    const int first{horizontal ? groove.left() : groove.top()};
    const int last{(horizontal ? groove.right() : groove.bottom()) - length + 1};
    const int start{(horizontal ? place.x() : place.y()) - length / 2};
    return QStyle::sliderValueFromPosition(slider.minimum(), slider.maximum(), start - first, last - first,
                                           DescribingSlider::describe(slider).upsideDown);
}

} // namespace

void SliderHand::keyPressed(QSlider &slider)
{
    if (held != &slider) {
        held = &slider;
        positionBefore = slider.value();
    }
}

void SliderHand::keyReleased(const QKeyEvent &event)
{
    if (!event.isAutoRepeat()) {
        letGoIfMoved();
    }
}

void SliderHand::left(QSlider &slider)
{
    if (held == &slider) {
        letGoIfMoved();
    }
}

void SliderHand::letGoIfMoved()
{
    QSlider *const slider{held};
    held.clear();
    if (slider != nullptr && slider->value() != positionBefore) {
        letGo(*slider);
    }
}

void SliderHand::letGo(QSlider &slider)
{
    if (!slider.isSliderDown()) {
        slider.setSliderDown(true);
        slider.setSliderDown(false);
    }
}

bool SliderHand::bringsHandle(QSlider &slider, QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || event.buttons() != Qt::LeftButton || !slider.isEnabled() ||
        slider.minimum() == slider.maximum() || isOnHandle(slider, event.pos())) {
        return false;
    }
    slider.setSliderPosition(positionAt(slider, event.pos()));
    // On its middle, also where the steps are so far apart that the press is still beside it: from here on it
    // is a drag like any other.
    const QPoint middle{partOf(slider, QStyle::SC_SliderHandle).center()};
    event.accept();
    if (!isOnHandle(slider, middle)) {
        // A style whose handle cannot be taken hold of in its middle: it would be brought without end.
        letGo(slider);
        return true;
    }
    QMouseEvent onHandle{QEvent::MouseButtonPress, middle,          slider.mapToGlobal(middle),
                         event.button(),           event.buttons(), event.modifiers()};
    QCoreApplication::sendEvent(&slider, &onHandle);
    return true;
}
