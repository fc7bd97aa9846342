#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QMap>
#include <QRect>
#include <QSize>
#include <QVector>

class QWidget;

/// Which place a widget has in its parent, where that is more than being a child.
enum class WidgetRole : qint32 { Child, Central, StatusBar, Page, Scrolled };

/// A place in a layout: of the child with the number `widget`, of the nested layout with the number `layout`,
/// or else of a spacer.
struct LayoutPlace
{
    qint32 widget = -1;
    qint32 layout = -1;
    QSize spacer;
    QRect cell; ///< in a grid: column, row and their spans
};

/// A layout and what it places. An empty kind is no layout.
struct LayoutNode
{
    QByteArray kind;
    QVector<LayoutPlace> places;
    QVector<LayoutNode> nested;
};

/// A widget without its texts, styles and logic: its kind (the Qt class it is or derives from), its bounds
/// and what is inside it, but not the parts that its kind makes by itself.
struct WidgetNode
{
    QByteArray kind;
    WidgetRole role = WidgetRole::Child;
    bool isShown = false; ///< of a window: it shows; of another widget: it was not hidden
    QSize smallest;
    QSize largest;
    QSize size; ///< of a window
    qint32 currentPage = -1; ///< of tabs
    LayoutNode layout;
    QVector<WidgetNode> children;
};

QDataStream& operator<<(QDataStream& out, const LayoutPlace& place);
QDataStream& operator>>(QDataStream& in, LayoutPlace& place);
QDataStream& operator<<(QDataStream& out, const LayoutNode& node);
QDataStream& operator>>(QDataStream& in, LayoutNode& node);
QDataStream& operator<<(QDataStream& out, const WidgetNode& node);
QDataStream& operator>>(QDataStream& in, WidgetNode& node);

/// The Qt class that `widget` is or derives from.
QByteArray kindOf(const QWidget& widget);

/// All widgets of this program, windows first: each node is one without a parent.
QVector<WidgetNode> describeWidgets();

/// How many widgets of each kind this program has, those included that others make by themselves.
QMap<QByteArray, int> countWidgets();
