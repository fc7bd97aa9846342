// The chart as the station's window shows it, selectors included, against a tab of plain widgets.

#include "app/mbemain.h"
#include "chart/lineselect.h"
#include "chart/support/hand.h"
#include "chart/support/referenceview.h"
#include "chart/tshow.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

using namespace TestText;

namespace {

/// The tab as its form says, of the toolkit's own widgets and the reference painter.
class PlainTab
{
public:
    /// Stands where `tab` does, so that it has what a window hands down: fonts, colours and margins.
    explicit PlainTab(const QWidget& tab)
        : frame(tab.parentWidget())
    {
        setPanel(frame);
        frame.setGeometry(tab.geometry());
        auto* grid = new QGridLayout(&frame);
        grid->addLayout(&row, 0, 0, 1, 2);
        view.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
        grid->addWidget(&view, 1, 0, 1, 2);
    }

    void addSelector(const QString& name)
    {
        auto* selector = new QFrame;
        setPanel(*selector);
        auto* grid = new QGridLayout(selector);
        grid->setContentsMargins(1, 1, 1, 1);
        grid->setSpacing(1);
        auto* box = new QCheckBox(name);
        box->setChecked(true);
        grid->addWidget(box, 0, 1);
        const QColor color = view.colors.at(boxes.size());
        auto* swatch = new QLabel;
        swatch->setStyleSheet(QStringLiteral("background-color: %1").arg(color.name()));
        grid->addWidget(swatch, 0, 2);
        row.addWidget(selector);
        boxes.append(box);
    }

    QFrame frame;
    QHBoxLayout row;
    ReferenceView view{&frame};
    QList<QCheckBox*> boxes;

private:
    static void setPanel(QFrame& panel) { panel.setFrameStyle(QFrame::StyledPanel | QFrame::Raised); }
};

} // namespace

class ChartTabTest : public StationTest
{
    Q_OBJECT

private slots:
    void theTabIsThatOfPlainWidgets()
    {
        Station::storeInUse({});
        QVERIFY(station->open());
        const qint64 startMs = DrivenClock::nowMs();
        for (int record = 0; record < 60; ++record) {
            DrivenClock::advance(4000);
            station->tick(Station::emptyRound);
        }
        station->window().resize(1400, 1000);
        station->window().grab(); // lays everything out
        TShow& tab = station->find<TShow>("Tshow"_s);
        const TShowView& chart = station->find<TShowView>("TSView"_s);
        const QList<LineSelect*> selectors = tab.findChildren<LineSelect*>();
        QCOMPARE(selectors.size(), Channels::count);

        PlainTab plain(tab);
        for (const LineSelect* selector : selectors) {
            plain.addSelector(selector->findChild<QCheckBox*>()->text());
        }
        plain.view.now = static_cast<double>(DrivenClock::nowMs() - startMs) / 1000.0;
        for (const PointBuffer& points : chart.channels()) {
            QVector<QPointF> places;
            for (int i = 0; i < points.size(); ++i) {
                places.append(QPointF(points.at(i).sec, points.at(i).degC));
            }
            plain.view.series.append(places);
        }
        const auto isSame = [&] { return tab.grab().toImage() == plain.frame.grab().toImage(); };
        QVERIFY(isSame());

        Hand::move(*selectors.at(2), QPointF(1, 1), Qt::NoButton);
        plain.view.selected = 2;
        QVERIFY(isSame());

        // The first selector hides the first line.
        selectors.at(0)->findChild<QCheckBox*>()->setChecked(false);
        QVERIFY(!isSame());
        plain.boxes.at(0)->setChecked(false);
        plain.view.shown = {false};
        QVERIFY(isSame());
    }
};

NELVO_TEST_MAIN(ChartTabTest)
#include "charttab.moc"
