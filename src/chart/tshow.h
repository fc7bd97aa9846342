#pragma once

#include <QFrame>

class TShow : public QFrame
{
    Q_OBJECT

public:
    explicit TShow(QWidget* parent = nullptr);
    void addLine(const QString& name, bool shown, int red, int green, int blue);

public slots:
    void setStartTime(qint64 startTime);
    void newT(int ch, double sec, double T);
};
