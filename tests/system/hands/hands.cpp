#include "system/hands/hands.h"

#include <QApplication>
#include <QDateTime>
#include <QLineEdit>
#include <QMainWindow>
#include <QPixmap>
#include <QStatusBar>
#include <QStyle>
#include <QtTest>

namespace {

QMainWindow* stationWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("MBEMain")) {
            return qobject_cast<QMainWindow*>(widget);
        }
    }
    return nullptr;
}

// In the window or, where it has none of that name, in a dialog.
QWidget* widgetNamed(const QString& name, const QMainWindow& window)
{
    auto* found = window.findChild<QWidget*>(name);
    for (const QWidget* dialog : QApplication::topLevelWidgets()) {
        if (found == nullptr && dialog->isVisible()) {
            found = dialog->findChild<QWidget*>(name);
        }
    }
    return found;
}

QString ok(const QString& text = QString())
{
    return QStringLiteral("ok\t") + text;
}

QString error(const QString& why)
{
    return QStringLiteral("error\t") + why;
}

QString typeInto(QWidget& widget, const QString& text)
{
    auto* entry = qobject_cast<QLineEdit*>(&widget);
    if (entry == nullptr) {
        return error(widget.objectName() + QStringLiteral(" is no entry"));
    }
    entry->selectAll();
    QTest::keyClick(entry, Qt::Key_Delete);
    QTest::keyClicks(entry, text);
    return ok();
}

} // namespace

Hands::Hands(const QString& serverName)
{
    connect(&socket, &QLocalSocket::readyRead, this, &Hands::answerRequests);
    socket.connectToServer(serverName);
}

void Hands::answerRequests()
{
    while (socket.canReadLine()) {
        const QString request = QString::fromUtf8(socket.readLine().chopped(1));
        socket.write(answer(request.split(QLatin1Char('\t'))).toUtf8() + '\n');
        socket.flush(); // the window may have been the last thing to keep the program running
    }
}

QString Hands::answer(const QStringList& words)
{
    const QString& verb = words[0];
    if (verb == QLatin1String("dismiss")) {
        QWidget* box = QApplication::activeModalWidget();
        return box != nullptr && box->close() ? ok() : error(QStringLiteral("no box"));
    }
    QMainWindow* window = stationWindow();
    if (window == nullptr || !window->isVisible()) {
        return error(QStringLiteral("no window yet"));
    }
    if (verb == QLatin1String("status")) {
        return ok(window->statusBar()->currentMessage());
    }
    if (verb == QLatin1String("widgets")) {
        return ok(QApplication::style()->objectName());
    }
    if (verb == QLatin1String("maximized")) {
        return ok(QVariant(window->isMaximized()).toString());
    }
    if (verb == QLatin1String("close")) {
        return window->close() ? ok() : error(QStringLiteral("the window stays"));
    }
    if (verb == QLatin1String("clock")) {
        return ok(QString::number(QDateTime::currentMSecsSinceEpoch()));
    }
    if (words.size() < 2) {
        return error(QStringLiteral("words are missing behind ") + verb);
    }
    if (verb == QLatin1String("load")) {
        QMetaObject::invokeMethod(window, "APLoadProg", Q_ARG(QString, words[1]));
        return ok();
    }
    if (verb == QLatin1String("grab")) {
        return window->grab().save(words[1]) ? ok() : error(QStringLiteral("cannot save the picture"));
    }
    QWidget* widget = widgetNamed(words[1], *window);
    if (widget == nullptr) {
        return error(QStringLiteral("no widget ") + words[1]);
    }
    if (verb == QLatin1String("click")) {
        QTest::mouseClick(widget, Qt::LeftButton);
        return ok();
    }
    if (verb == QLatin1String("where")) {
        const QPoint middle = widget->mapToGlobal(widget->rect().center());
        return ok(QStringLiteral("%1 %2").arg(middle.x()).arg(middle.y()));
    }
    if (verb == QLatin1String("text")) {
        return ok(widget->property("text").toString());
    }
    if (verb == QLatin1String("style")) {
        return ok(widget->styleSheet());
    }
    if (verb == QLatin1String("type") && words.size() > 2) {
        return typeInto(*widget, words[2]);
    }
    return error(QStringLiteral("no such request: ") + verb);
}
