// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A picture of curves with axes, grid and legend.
#include "drawing.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFrame>
#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QRgb>
#include <QSize>
#include <QString>
#include <QVector>
#include <Qt>
#include <qwt_date.h>
#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_engine.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace
{

constexpr QSize size{1200, 675};
constexpr int textHeight{14};
constexpr int titleHeight{17};

/// Told apart by people who see few colours as well.
constexpr std::array<QRgb, 6> colours{0xff0072b2, 0xff56b4e9, 0xffd55e00, 0xffe69f00, 0xff009e73, 0xffcc79a7};

struct Format
{
    QwtDate::IntervalType interval;
    const char *text;
};

/// The lines of a label begin in one column, whatever is asked for; blanks put the shorter into the middle.
constexpr std::array formats{Format{QwtDate::Millisecond, "HH:mm:ss.zzz\n yyyy-MM-dd"},
                             Format{QwtDate::Second, "  HH:mm:ss\nyyyy-MM-dd"},
                             Format{QwtDate::Minute, "     HH:mm\nyyyy-MM-dd"},
                             Format{QwtDate::Hour, "     HH:mm\nyyyy-MM-dd"},
                             Format{QwtDate::Day, "yyyy-MM-dd"},
                             Format{QwtDate::Week, "yyyy-MM-dd"},
                             Format{QwtDate::Month, "yyyy-MM"},
                             Format{QwtDate::Year, "yyyy"}};

QFont fontOf(int height, bool bold = false)
{
    QFont font{QStringLiteral("DejaVu Sans")};
    font.setPixelSize(height);
    font.setBold(bold);
    return font;
}

QwtText textOf(const QString &text, const QFont &font)
{
    QwtText shown{text, QwtText::PlainText};
    shown.setFont(font);
    return shown;
}

/// From the first to the last; a single one in the middle of a second.
void setTimes(QwtPlot &plot, const QVector<double> &times)
{
    constexpr double halfSecond{500};
    const double margin{times.last() > times.first() ? 0 : halfSecond};
    auto *const scale = new QwtDateScaleDraw{Qt::UTC};
    for (const Format &format : formats) {
        scale->setDateFormat(format.interval, QString::fromLatin1(format.text));
    }
    plot.setAxisScaleDraw(QwtPlot::xBottom, scale);
    plot.setAxisScaleEngine(QwtPlot::xBottom, new QwtDateScaleEngine{Qt::UTC});
    plot.setAxisScale(QwtPlot::xBottom, times.first() - margin, times.last() + margin);
}

/// A little more than all values, so that no line lies on an edge.
void setValues(QwtPlot &plot, const QVector<Curve> &curves)
{
    constexpr double margin{0.02};
    double least{std::numeric_limits<double>::infinity()};
    double most{-least};
    for (const Curve &curve : curves) {
        for (const double value : curve.values) {
            // What is not a number is neither less nor more.
            least = std::fmin(least, value);
            most = std::fmax(most, value);
        }
    }
    if (least < most) {
        const double width{margin * (most - least)};
        plot.axisScaleEngine(QwtPlot::yLeft)->setMargins(width, width);
    }
}

/// The stretches of a curve between which values are missing.
QVector<QVector<QPointF>> stretchesOf(const QVector<double> &times, const QVector<double> &values)
{
    QVector<QVector<QPointF>> stretches;
    bool isOpen{false};
    for (int place{0}; place < times.size(); ++place) {
        const bool isThere{std::isfinite(values[place])};
        if (isThere && !isOpen) {
            stretches.append(QVector<QPointF>{});
        }
        if (isThere) {
            stretches.last().append({times[place], values[place]});
        }
        isOpen = isThere;
    }
    return stretches;
}

void addStretch(QwtPlot &plot, const QString &name, const QColor &colour, const QVector<QPointF> &points,
                bool isNamed)
{
    constexpr int width{2};
    constexpr int dot{6};
    auto *const curve = new QwtPlotCurve{textOf(name, fontOf(textHeight))};
    curve->setPen(colour, width);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setPaintAttribute(QwtPlotCurve::FilterPoints);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    curve->setLegendIconSize({24, textHeight});
    curve->setItemAttribute(QwtPlotItem::Legend, isNamed);
    if (points.size() == 1) {
        curve->setSymbol(new QwtSymbol{QwtSymbol::Ellipse, QBrush{colour}, QPen{colour}, {dot, dot}});
    }
    curve->setSamples(points);
    curve->attach(&plot);
}

void addCurve(QwtPlot &plot, const Readings &readings, int place)
{
    const Curve &curve = readings.curves[place];
    const QColor colour{colours[static_cast<std::size_t>(place) % colours.size()]};
    // A curve without a single value is named all the same.
    bool isNamed{true};
    for (const QVector<QPointF> &points : stretchesOf(readings.times, curve.values)) {
        addStretch(plot, curve.name, colour, points, isNamed);
        isNamed = false;
    }
    if (isNamed) {
        addStretch(plot, curve.name + " (no answer)", colour, {}, true);
    }
}

} // namespace

QImage draw(const Readings &readings)
{
    QwtPlot plot;
    plot.resize(size);
    auto *const canvas = new QwtPlotCanvas;
    canvas->setFrameStyle(QFrame::NoFrame);
    plot.setCanvas(canvas);
    plot.setCanvasBackground(Qt::white);
    plot.setTitle(textOf(readings.title, fontOf(titleHeight, true)));
    plot.setAxisTitle(QwtPlot::xBottom, textOf("Time (UTC)", fontOf(textHeight)));
    plot.setAxisTitle(QwtPlot::yLeft, textOf(readings.quantity, fontOf(textHeight)));
    for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft}) {
        plot.setAxisFont(axis, fontOf(textHeight));
    }
    setTimes(plot, readings.times);
    setValues(plot, readings.curves);
    auto *const grid = new QwtPlotGrid;
    grid->setPen(QColor{Qt::lightGray}, 0, Qt::DotLine);
    grid->attach(&plot);
    for (int place{0}; place < readings.curves.size(); ++place) {
        addCurve(plot, readings, place);
    }
    plot.insertLegend(new QwtLegend, QwtPlot::BottomLegend);
    plot.replot();

    QImage picture{size, QImage::Format_RGB32};
    picture.fill(Qt::white);
    QPainter painter{&picture};
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    constexpr double margin{16};
    renderer.render(&plot, &painter, QRectF{picture.rect()}.adjusted(margin, margin, -margin, -margin));
    return picture;
}
