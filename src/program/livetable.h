#pragma once

#include <QList>

class QWidget;

/// While it lives, changes inside a widget are not taken down for painting one by one; afterwards the widget
/// is painted once. For changes of the whole program table at a go, without events in between.
class HeldUpdates
{
public:
    /// `container` and its children must outlive this.
    explicit HeldUpdates(QWidget& container);
    ~HeldUpdates();
    HeldUpdates(const HeldUpdates&) = delete;
    HeldUpdates& operator=(const HeldUpdates&) = delete;

private:
    QWidget& whole;
    QList<QWidget*> held;
};
