#include "app/formtable.h"

#include "support/testtext.h"

#include <QGridLayout>
#include <QMainWindow>

using namespace TestText;

namespace {

QString inWords(const QString& kind, const QString& place, const QString& frame)
{
    return "%1; %2; %3"_s.arg(kind, place, frame);
}

QString placeInWords(const char* layout, int row, int column, int rowSpan, int columnSpan)
{
    if (qstrlen(layout) == 0) {
        return "in no layout of the table"_s;
    }
    return "%1 (%2, %3) %4 x %5"_s.arg(QLatin1String(layout))
        .arg(row)
        .arg(column)
        .arg(rowSpan)
        .arg(columnSpan);
}

QString frameInWords(int shape, int shadow, int lineWidth)
{
    return "frame %1, shadow %2, line %3"_s.arg(shape).arg(shadow).arg(lineWidth);
}

QString builtPlace(const QMainWindow& window, QWidget* widget, const char* name)
{
    if (qstrlen(name) == 0) {
        return placeInWords(name, 0, 0, 1, 1);
    }
    auto* layout = layoutNamed(window, name);
    const int item = layout == nullptr ? -1 : layout->indexOf(widget);
    if (item < 0) {
        return "not in %1"_s.arg(QLatin1String(name));
    }
    int row = 0;
    int column = item;
    int rowSpan = 1;
    int columnSpan = 1;
    if (const auto* grid = qobject_cast<QGridLayout*>(layout)) {
        grid->getItemPosition(item, &row, &column, &rowSpan, &columnSpan);
    }
    return placeInWords(name, row, column, rowSpan, columnSpan);
}

} // namespace

bool isOfTheForm(const QMainWindow& window, const QObject& object)
{
    const QObject* chart = window.findChild<QWidget*>("Tshow"_s);
    for (const QObject* holder = object.parent(); holder != nullptr; holder = holder->parent()) {
        if (holder == chart) {
            return false;
        }
    }
    return true;
}

QList<QWidget*> widgetsNamed(const QMainWindow& window, const QString& name)
{
    QList<QWidget*> widgets;
    const auto found = window.findChildren<QWidget*>(name);
    for (QWidget* widget : found) {
        if (isOfTheForm(window, *widget)) {
            widgets.append(widget);
        }
    }
    return widgets;
}

QLayout* layoutNamed(const QMainWindow& window, const char* name)
{
    const auto found = window.findChildren<QLayout*>(QLatin1String(name));
    for (QLayout* layout : found) {
        if (isOfTheForm(window, *layout)) {
            return layout;
        }
    }
    return nullptr;
}

QString awaitedShape(const FormWidget& awaited)
{
    return inWords(QLatin1String(awaited.kind),
        placeInWords(awaited.layout, awaited.row, awaited.column, awaited.rowSpan, awaited.columnSpan),
        frameInWords(awaited.shape, awaited.shadow, awaited.lineWidth));
}

QString builtShape(const QMainWindow& window, const FormWidget& awaited)
{
    const auto found = widgetsNamed(window, awaited.name);
    if (found.size() != 1) {
        return "%1 widgets of this name"_s.arg(found.size());
    }
    QWidget* widget = found.first();
    const auto* frame = qobject_cast<const QFrame*>(widget);
    return inWords(QLatin1String(widget->metaObject()->className()),
        builtPlace(window, widget, awaited.layout),
        frame == nullptr ? frameInWords(QFrame::NoFrame, QFrame::Plain, 1)
                         : frameInWords(frame->frameShape(), frame->frameShadow(), frame->lineWidth()));
}
