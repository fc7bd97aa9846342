// The yardstick of station-start: a window of the same widgets in the same layouts, without texts, styles and
// logic. Usage: station-start-bare FILE, the widget tree that the station's own run wrote.

#include "benchmarks/station/firstpaint.h"
#include "benchmarks/station/widgettree.h"
#include "benchmarks/support/figures.h"
#include "support/steadyclock.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolButton>

#include <cstdio>

namespace {

using Maker = QWidget* (*)(QWidget* parent);

template <class Widget> QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

QWidget* makeWidget(const QByteArray& kind, QWidget* parent)
{
    static const QHash<QByteArray, Maker> makers = {
        {"QCheckBox", &make<QCheckBox>},
        {"QComboBox", &make<QComboBox>},
        {"QDoubleSpinBox", &make<QDoubleSpinBox>},
        {"QFileDialog", &make<QFileDialog>},
        {"QFrame", &make<QFrame>},
        {"QGroupBox", &make<QGroupBox>},
        {"QLabel", &make<QLabel>},
        {"QLineEdit", &make<QLineEdit>},
        {"QMainWindow", &make<QMainWindow>},
        {"QMenu", &make<QMenu>},
        {"QMenuBar", &make<QMenuBar>},
        {"QPushButton", &make<QPushButton>},
        {"QRadioButton", &make<QRadioButton>},
        {"QScrollArea", &make<QScrollArea>},
        {"QScrollBar", &make<QScrollBar>},
        {"QSpinBox", &make<QSpinBox>},
        {"QStatusBar", &make<QStatusBar>},
        {"QTabWidget", &make<QTabWidget>},
        {"QToolButton", &make<QToolButton>},
        {"QWidget", &make<QWidget>},
    };
    const Maker maker = makers.value(kind);
    if (maker == nullptr) {
        fail(("the bare window cannot make a " + kind).constData());
    }
    return maker(parent);
}

QLayout* makeLayout(const QByteArray& kind)
{
    if (kind == "QGridLayout") {
        return new QGridLayout;
    }
    if (kind == "QHBoxLayout") {
        return new QHBoxLayout;
    }
    if (kind == "QVBoxLayout") {
        return new QVBoxLayout;
    }
    fail(("the bare window cannot make a " + kind).constData());
}

void fill(QLayout& layout, const LayoutNode& node, const QVector<QWidget*>& widgets);

void place(QGridLayout& grid, const LayoutPlace& at, QLayout* nested, const QVector<QWidget*>& widgets)
{
    const QRect cell = at.cell;
    if (at.widget >= 0) {
        grid.addWidget(widgets[at.widget], cell.y(), cell.x(), cell.height(), cell.width());
    } else if (nested != nullptr) {
        grid.addLayout(nested, cell.y(), cell.x(), cell.height(), cell.width());
    } else {
        grid.addItem(new QSpacerItem(at.spacer.width(), at.spacer.height()), cell.y(), cell.x(),
            cell.height(), cell.width());
    }
}

void place(QBoxLayout& box, const LayoutPlace& at, QLayout* nested, const QVector<QWidget*>& widgets)
{
    if (at.widget >= 0) {
        box.addWidget(widgets[at.widget]);
    } else if (nested != nullptr) {
        box.addLayout(nested);
    } else {
        box.addItem(new QSpacerItem(at.spacer.width(), at.spacer.height()));
    }
}

void fill(QLayout& layout, const LayoutNode& node, const QVector<QWidget*>& widgets)
{
    auto* grid = qobject_cast<QGridLayout*>(&layout);
    auto* box = qobject_cast<QBoxLayout*>(&layout);
    for (const LayoutPlace& at : node.places) {
        QLayout* nested = at.layout < 0 ? nullptr : makeLayout(node.nested[at.layout].kind);
        if (grid != nullptr) {
            place(*grid, at, nested, widgets);
        } else {
            place(*box, at, nested, widgets);
        }
        if (nested != nullptr) {
            fill(*nested, node.nested[at.layout], widgets);
        }
    }
}

void giveRole(QWidget& parent, QWidget& child, WidgetRole role)
{
    switch (role) {
    case WidgetRole::Child:
        break;
    case WidgetRole::Central:
        qobject_cast<QMainWindow*>(&parent)->setCentralWidget(&child);
        break;
    case WidgetRole::StatusBar:
        qobject_cast<QMainWindow*>(&parent)->setStatusBar(qobject_cast<QStatusBar*>(&child));
        break;
    case WidgetRole::Page:
        qobject_cast<QTabWidget*>(&parent)->addTab(&child, QString());
        break;
    case WidgetRole::Scrolled:
        qobject_cast<QScrollArea*>(&parent)->setWidgetResizable(true);
        qobject_cast<QScrollArea*>(&parent)->setWidget(&child);
        break;
    }
}

QWidget* build(const WidgetNode& node, QWidget* parent)
{
    QWidget* widget = makeWidget(node.kind, parent);
    widget->setMinimumSize(node.smallest);
    widget->setMaximumSize(node.largest);
    QVector<QWidget*> children;
    for (const WidgetNode& child : node.children) {
        children.append(build(child, widget));
        giveRole(*widget, *children.last(), child.role);
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
        tabs->setCurrentIndex(node.currentPage);
    }
    if (!node.layout.kind.isEmpty()) {
        QLayout* layout = makeLayout(node.layout.kind);
        widget->setLayout(layout);
        fill(*layout, node.layout, children);
    }
    if (parent != nullptr && !node.isShown && node.role == WidgetRole::Child) {
        widget->hide();
    }
    return widget;
}

QVector<WidgetNode> readTree(const char* path)
{
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly)) {
        fail("the widget tree cannot be read");
    }
    QDataStream in(&file);
    QVector<WidgetNode> nodes;
    in >> nodes;
    return nodes;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        fail("usage: station-start-bare FILE");
    }
    const qint64 before = steadyNowNs();
    const QVector<WidgetNode> nodes = readTree(argv[1]);
    // Knowing the tree is no part of what is measured: the reader takes this time off.
    std::printf("reading %lld\n", static_cast<long long>(steadyNowNs() - before));

    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QWidget* window = nullptr;
    for (const WidgetNode& node : nodes) {
        QWidget* widget = build(node, nullptr);
        if (node.isShown) {
            window = widget;
            window->resize(node.size);
        }
    }
    if (window == nullptr) {
        fail("the widget tree shows no window");
    }
    FirstPaint painted(*window, [] {
        const QMap<QByteArray, int> counts = countWidgets();
        for (auto count = counts.begin(); count != counts.end(); ++count) {
            std::printf("count %s %d\n", count.key().constData(), count.value());
        }
    });
    window->show();
    return QApplication::exec();
}
