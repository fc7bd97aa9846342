#pragma once

#include "app/mbemain.h"
#include "support/namedwidgets.h"
#include "support/panel.h"
#include "support/programtab.h"
#include "support/testtext.h"

#include <QString>

#include <memory>

/// A real station's window with an operator's hands and eyes. Widgets go by their names on the form; those of
/// a channel or shutter are named by cell() (support/panel.h).
class StationWindow
{
public:
    StationWindow();
    ~StationWindow();
    StationWindow(const StationWindow&) = delete;
    StationWindow& operator=(const StationWindow&) = delete;

    /// Builds the window, without showing it (clicks and keys reach it all the same).
    void build();
    bool isOpen() const { return main != nullptr; }
    void close();
    MBEMain& window() const { return *main; }
    ProgramTab& program();

    /// The widget of that name; a fatal error when there is none of that class.
    template <class Widget> Widget& find(const QString& name) const { return widgets->find<Widget>(name); }
    QWidget& widget(const QString& name) const { return find<QWidget>(name); }
    QString text(const QString& name) const { return widget(name).property("text").toString(); }
    QString style(const QString& name) const { return widget(name).styleSheet(); }
    QString statusBar() const;
    /// The buttons of a row, "CS" or "RunT", as letters: "o" for `on` in yellow, "x" for `off` in olive, "?"
    /// for anything else.
    QString states(const char* row, const QString& on, const QString& off) const;
    /// Whether a channel's Run button shows a running ramp, by text and colour.
    bool isRamping(int channel) const;

    /// A real click with the left button.
    void click(const QString& name) const;
    /// Replaces an entry's text by typing.
    void type(const QString& name, const QString& text) const { typeInto(widget(name), text); }
    static void typeInto(QWidget& entry, const QString& text);
    /// Types a target (deg C) and a duration (minutes) for a channel and clicks its Run button.
    void pressRun(int channel, const QString& target, const QString& duration) const;
    /// Turns the temperature control on or off, by the keyboard: it is a button without a partner.
    void togglePolling() const;

private:
    QChar state(const QString& name, const QString& on, const QString& off) const;

    std::unique_ptr<MBEMain> main;
    std::unique_ptr<NamedWidgets> widgets;
    std::unique_ptr<ProgramTab> tab;
};
