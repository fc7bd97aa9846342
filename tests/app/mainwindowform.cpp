// The main window's form, widget by widget against a table.

#include "app/formtable.h"
#include "support/testmain.h"
#include "ui_mainwindow.h"

#include <QMainWindow>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include <memory>

using namespace TestText;

namespace {

struct BuiltForm
{
    QMainWindow window;
    Ui::MainWindow form;

    BuiltForm() { form.setupUi(&window); }
};

// Answers every text of the form's context with the same text in brackets.
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, "MainWindow") == 0 ? bracketed(QString::fromUtf8(source)) : QString();
    }
    static QString bracketed(const QString& text) { return QLatin1Char('<') + text + QLatin1Char('>'); }
};

QString shownText(const QWidget& widget)
{
    return widget.property("text").toString();
}

} // namespace

class MainWindowFormTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<BuiltForm> built;

private slots:
    void init() { built = std::make_unique<BuiltForm>(); }
    void cleanup() { built.reset(); }

    void widget_data()
    {
        QTest::addColumn<int>("index");
        const QList<FormWidget> table = formWidgets();
        for (int i = 0; i < table.size(); ++i) {
            QTest::newRow(qPrintable(table[i].name)) << i;
        }
    }

    void widget()
    {
        QFETCH(int, index);
        const FormWidget awaited = formWidgets().at(index);

        QCOMPARE(builtShape(built->window, awaited), awaitedShape(awaited));
        const auto* widget = built->window.findChild<QWidget*>(awaited.name);
        QCOMPARE(widget->styleSheet(), QLatin1String(awaited.style));
        QCOMPARE(shownText(*widget), awaited.text);
    }

    void layout_data()
    {
        QTest::addColumn<int>("index");
        const QList<FormLayout> table = formLayouts();
        for (int i = 0; i < table.size(); ++i) {
            QTest::newRow(table[i].name) << i;
        }
    }

    void layout()
    {
        QFETCH(int, index);
        const FormLayout awaited = formLayouts().at(index);

        QLayout* layout = layoutNamed(built->window, awaited.name);
        QVERIFY(layout != nullptr);
        QCOMPARE(layout->metaObject()->className(), awaited.kind);
        QCOMPARE(layout->parent()->objectName(), QLatin1String(awaited.holder));
        QCOMPARE(layout->count(), awaited.items);
        if (const auto* grid = qobject_cast<QGridLayout*>(layout)) {
            if (awaited.spacing >= 0) {
                QCOMPARE(grid->horizontalSpacing(), awaited.spacing);
                QCOMPARE(grid->verticalSpacing(), awaited.spacing);
            }
            for (int row = 0; row < grid->rowCount(); ++row) {
                QCOMPARE(grid->rowStretch(row), 0);
            }
            for (int column = 0; column < grid->columnCount(); ++column) {
                QCOMPARE(grid->columnStretch(column), 0);
            }
        }
        if (awaited.margin >= 0) {
            const int margin = awaited.margin;
            QCOMPARE(layout->contentsMargins(), QMargins(margin, margin, margin, margin));
        }
    }

    void holdsNothingElse()
    {
        QSet<QString> known;
        for (const FormWidget& widget : formWidgets()) {
            known.insert(widget.name);
        }
        for (const FormLayout& layout : formLayouts()) {
            known.insert(QLatin1String(layout.name));
        }
        // The toolkit's own parts of a tab widget, a scroll area and a main window.
        static const QRegularExpression toolkit("^(_layout|qt_.*|Scroll(Left|Right)Button)$"_s);
        QStringList strangers;
        const auto children = built->window.findChildren<QObject*>();
        for (const QObject* child : children) {
            const QString name = child->objectName();
            if ((child->isWidgetType() || qobject_cast<const QLayout*>(child) != nullptr) && !name.isEmpty()
                && isOfTheForm(built->window, *child) && !known.contains(name)
                && !toolkit.match(name).hasMatch()) {
                strangers.append(name);
            }
        }
        QCOMPARE(strangers, QStringList());
    }

    void window()
    {
        const QMainWindow& window = built->window;
        QCOMPARE(window.objectName(), "MainWindow"_s);
        QCOMPARE(window.windowTitle(), "MainWindow"_s);
        QCOMPARE(window.size(), QSize(1058, 894));
        QCOMPARE(window.centralWidget(), built->form.centralwidget);
        QCOMPARE(window.menuWidget(), built->form.menubar);
        QCOMPARE(built->form.statusbar->parentWidget(), &window);
        QCOMPARE(built->form.menubar->actions().size(), 0);
    }

    void opensOnTheTimeChartTab()
    {
        const QTabWidget& tabs = *built->form.tabWidget;
        QCOMPARE(tabs.count(), 2);
        QCOMPARE(tabs.widget(0), built->form.tab_9);
        QCOMPARE(tabs.widget(1), built->form.tab_10);
        QCOMPARE(tabs.tabText(0), "Auto Program"_s);
        QCOMPARE(tabs.tabText(1), "Time Chart"_s);
        QCOMPARE(tabs.currentIndex(), 1);
    }

    void programTable()
    {
        QVERIFY(built->form.scrollArea->widgetResizable());
        QCOMPARE(built->form.scrollArea->widget(), built->form.SA01);
        QCOMPARE(built->form.gridLayout_8->itemAtPosition(0, 0)->layout(), built->form.Program);
    }

    void programBar()
    {
        const QHBoxLayout& bar = *built->form.horizontalLayout_2;
        QCOMPARE(built->form.gridLayout_9->itemAtPosition(1, 0)->layout(), &bar);
        QCOMPARE(built->form.ProgRun->maximumHeight(), 24);
        QCOMPARE(built->form.ProgPause->maximumHeight(), QWIDGETSIZE_MAX);
        const QSpacerItem* spacer = bar.itemAt(2)->spacerItem();
        QVERIFY(spacer != nullptr);
        QCOMPARE(spacer->sizeHint(), QSize(40, 20));
        QCOMPARE(spacer->expandingDirections(), Qt::Horizontal);
        for (int place = 0; place < bar.count(); ++place) {
            QCOMPARE(bar.stretch(place), 0);
        }
    }

    void spacerKeepsThePanelsTogether()
    {
        const QLayoutItem* item = built->form.gridLayout_4->itemAtPosition(0, 2);
        QVERIFY(item != nullptr);
        auto* spacer = const_cast<QLayoutItem*>(item)->spacerItem();
        QVERIFY(spacer != nullptr);
        QCOMPARE(spacer->expandingDirections(), Qt::Horizontal);
    }

    void temperatureControlIsOnAtStart() { QVERIFY(built->form.TMPCtrlActive->isChecked()); }

    void everyTextGoesThroughTheTranslator_data() { widget_data(); }

    void everyTextGoesThroughTheTranslator()
    {
        QFETCH(int, index);
        const FormWidget awaited = formWidgets().at(index);
        if (awaited.text.isEmpty()) {
            return;
        }
        BracketTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const BuiltForm translated;
        QCOMPARE(shownText(*translated.window.findChild<QWidget*>(awaited.name)),
            BracketTranslator::bracketed(awaited.text));
    }

    void titlesGoThroughTheTranslator()
    {
        BracketTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const BuiltForm translated;
        QCOMPARE(translated.window.windowTitle(), "<MainWindow>"_s);
        QCOMPARE(translated.form.tabWidget->tabText(0), "<Auto Program>"_s);
        QCOMPARE(translated.form.tabWidget->tabText(1), "<Time Chart>"_s);
    }
};

NELVO_TEST_MAIN(MainWindowFormTest)
#include "mainwindowform.moc"
