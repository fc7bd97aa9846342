#pragma once

#include <QList>
#include <QWidget>

/// The widgets of a form that are told apart by a number of two digits: `prefix` "TDeg" and a `count` of 9
/// give TDeg01 to TDeg09, in order. A form that lacks one ends the program and says which.
template <typename Widget>
QList<Widget*> numberedWidgets(const QWidget& form, const QString& prefix, int count)
{
    QList<Widget*> found;
    for (int number = 1; number <= count; ++number) {
        const QString name = QStringLiteral("%1%2").arg(prefix).arg(number, 2, 10, QLatin1Char('0'));
        auto* widget = form.findChild<Widget*>(name);
        if (widget == nullptr) {
            qFatal("the form has no %s %s", Widget::staticMetaObject.className(), qPrintable(name));
        }
        found.append(widget);
    }
    return found;
}
