// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a layout holds, as texts to be compared.
#pragma once

#include <QLatin1String>
#include <QLayout>
#include <QLayoutItem>
#include <QMetaEnum>
#include <QSize>
#include <QSizePolicy>
#include <QSpacerItem>
#include <QString>
#include <QStringList>
#include <QWidget>

/// A spacer of a size such as "40x20", with its size policies.
inline QString spacer(const QString &size, const char *horizontal, const char *vertical)
{
    return QStringLiteral("spacer %1 %2 %3").arg(size, QLatin1String{horizontal}, QLatin1String{vertical});
}

/// The name of a widget or a layout; a spacer with its size and policies.
inline QString describe(QLayoutItem &item)
{
    if (const QWidget * widget{item.widget()}) {
        return widget->objectName();
    }
    if (const QLayout * layout{item.layout()}) {
        return layout->objectName();
    }
    const QSpacerItem *gap{item.spacerItem()};
    const auto policies = QMetaEnum::fromType<QSizePolicy::Policy>();
    const QSize size{gap->sizeHint()};
    return spacer(QStringLiteral("%1x%2").arg(size.width()).arg(size.height()),
                  policies.valueToKey(gap->sizePolicy().horizontalPolicy()),
                  policies.valueToKey(gap->sizePolicy().verticalPolicy()));
}

inline QStringList childrenOf(const QLayout &layout)
{
    QStringList children;
    for (int i{0}; i < layout.count(); ++i) {
        children << describe(*layout.itemAt(i));
    }
    return children;
}
