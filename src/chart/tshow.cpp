#include "chart/tshow.h"

#include "chart/lineselect.h"

TShow::TShow(QWidget* parent)
    : QFrame(parent)
{
    setupUi(this);
}

LineSelect* TShow::addLine(QString name, bool shown, int red, int green, int blue)
{
    const int channel = selectors.size();
    auto* selector = new LineSelect(this);
    selector->setName(name);
    selector->setShown(shown);
    selector->setColor(red < 0 ? TSView->colorOf(channel) : QColor(red, green, blue));
    TSView->setShown(channel, shown);
    connect(selector, SIGNAL(toggled(bool)), this, SLOT(changeSelT(bool)), Qt::UniqueConnection);
    connect(selector, SIGNAL(fIn()), this, SLOT(fInLineSelect()), Qt::UniqueConnection);
    LSLine->insertWidget(channel, selector);
    selectors.append(selector);
    return selector;
}

void TShow::setStartTime(qint64 st)
{
    startTime = st;
    TSView->setStartTime(st);
}

void TShow::newT(int ch, double sec, double T)
{
    if (ch >= 0 && ch < selectors.size()) {
        TSView->addPoint(ch, sec, T);
    }
}

void TShow::changeSelT(bool f)
{
    for (int channel = 0; channel < selectors.size(); ++channel) {
        if (selectors.at(channel) == sender()) {
            TSView->setShown(channel, f);
        }
    }
}

void TShow::fInLineSelect()
{
    const int channel = selectors.indexOf(qobject_cast<LineSelect*>(sender()));
    if (channel >= 0) {
        TSView->select(channel);
    }
}
