#pragma once

#include <QHash>
#include <QString>
#include <QWidget>

/// A window's widgets by their names on the form. Each is looked for once: the window has thousands, and a
/// test asks for the same few in every tick.
class NamedWidgets
{
public:
    /// `theWindow` must outlive this, and so must its widgets.
    explicit NamedWidgets(const QWidget& theWindow)
        : window(theWindow)
    {
    }

    /// The widget of that name; a fatal error when there is none of that class.
    template <class Widget> Widget& find(const QString& name) const
    {
        QWidget*& found = known[name];
        if (found == nullptr) {
            found = window.findChild<Widget*>(name);
        }
        auto* widget = qobject_cast<Widget*>(found);
        if (widget == nullptr) {
            qFatal("no %s %s", Widget::staticMetaObject.className(), qPrintable(name));
        }
        return *widget;
    }

private:
    const QWidget& window;
    mutable QHash<QString, QWidget*> known;
};
