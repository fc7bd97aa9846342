#include "benchmarks/station/widgettree.h"

#include <QApplication>
#include <QGridLayout>
#include <QMainWindow>
#include <QScrollArea>
#include <QTabWidget>

namespace {

// The widgets directly inside `widget` that the program put there. Kinds that are not looked into make their
// parts by themselves.
QList<QWidget*> contentOf(const QWidget& widget)
{
    QList<QWidget*> content;
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            content.append(tabs->widget(i));
        }
        return content;
    }
    if (const auto* area = qobject_cast<const QScrollArea*>(&widget)) {
        content.append(area->widget());
        return content;
    }
    const QByteArray kind = kindOf(widget);
    if (kind == "QWidget" || kind == "QFrame" || kind == "QMainWindow" || kind == "QGroupBox") {
        return widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }
    return content;
}

WidgetRole roleOf(const QWidget& widget, const QWidget& parent)
{
    if (const auto* window = qobject_cast<const QMainWindow*>(&parent)) {
        if (window->centralWidget() == &widget) {
            return WidgetRole::Central;
        }
        return kindOf(widget) == "QStatusBar" ? WidgetRole::StatusBar : WidgetRole::Child;
    }
    if (qobject_cast<const QTabWidget*>(&parent) != nullptr) {
        return WidgetRole::Page;
    }
    return qobject_cast<const QScrollArea*>(&parent) != nullptr ? WidgetRole::Scrolled : WidgetRole::Child;
}

LayoutNode describeLayout(const QLayout* layout, const QList<QWidget*>& widgets)
{
    LayoutNode node;
    if (layout == nullptr) {
        return node;
    }
    node.kind = layout->metaObject()->className();
    const auto* grid = qobject_cast<const QGridLayout*>(layout);
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        LayoutPlace place;
        if (item->widget() != nullptr) {
            place.widget = widgets.indexOf(item->widget());
        } else if (item->layout() != nullptr) {
            place.layout = node.nested.size();
            node.nested.append(describeLayout(item->layout(), widgets));
        } else {
            place.spacer = item->sizeHint();
        }
        if (grid != nullptr) {
            int row = 0;
            int column = 0;
            int rows = 1;
            int columns = 1;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            place.cell = QRect(column, row, columns, rows);
        }
        node.places.append(place);
    }
    return node;
}

WidgetNode describe(const QWidget& widget)
{
    WidgetNode node;
    node.kind = kindOf(widget);
    node.isShown = widget.isWindow() ? widget.isVisible() : !widget.isHidden();
    node.smallest = widget.minimumSize();
    node.largest = widget.maximumSize();
    node.size = widget.size();
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        node.currentPage = tabs->currentIndex();
    }
    const QList<QWidget*> content = contentOf(widget);
    for (const QWidget* child : content) {
        node.children.append(describe(*child));
        node.children.last().role = roleOf(*child, widget);
    }
    // The main window's own layout places what has a role in it.
    if (qobject_cast<const QMainWindow*>(&widget) == nullptr && !content.isEmpty()) {
        node.layout = describeLayout(widget.layout(), content);
    }
    return node;
}

} // namespace

QDataStream& operator<<(QDataStream& out, const LayoutPlace& place)
{
    return out << place.widget << place.layout << place.spacer << place.cell;
}

QDataStream& operator>>(QDataStream& in, LayoutPlace& place)
{
    return in >> place.widget >> place.layout >> place.spacer >> place.cell;
}

QDataStream& operator<<(QDataStream& out, const LayoutNode& node)
{
    return out << node.kind << node.places << node.nested;
}

QDataStream& operator>>(QDataStream& in, LayoutNode& node)
{
    return in >> node.kind >> node.places >> node.nested;
}

QDataStream& operator<<(QDataStream& out, const WidgetNode& node)
{
    return out << node.kind << static_cast<qint32>(node.role) << node.isShown << node.smallest << node.largest
               << node.size << node.currentPage << node.layout << node.children;
}

QDataStream& operator>>(QDataStream& in, WidgetNode& node)
{
    qint32 role = 0;
    in >> node.kind >> role >> node.isShown >> node.smallest >> node.largest >> node.size >> node.currentPage
        >> node.layout >> node.children;
    node.role = static_cast<WidgetRole>(role);
    return in;
}

QByteArray kindOf(const QWidget& widget)
{
    const QMetaObject* meta = widget.metaObject();
    while (meta->className()[0] != 'Q') {
        meta = meta->superClass();
    }
    return meta->className();
}

QVector<WidgetNode> describeWidgets()
{
    QVector<WidgetNode> nodes;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->parentWidget() == nullptr) {
            nodes.append(describe(*window));
        }
    }
    return nodes;
}

QMap<QByteArray, int> countWidgets()
{
    QMap<QByteArray, int> counts;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        ++counts[kindOf(*widget)];
    }
    return counts;
}
