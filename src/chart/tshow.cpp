#include "chart/tshow.h"

TShow::TShow(QWidget* parent)
    : QFrame(parent)
{
}

void TShow::addLine(const QString&, bool, int, int, int) { }
void TShow::setStartTime(qint64) { }
void TShow::newT(int, double, double) { }
