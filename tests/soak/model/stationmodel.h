#pragma once

#include "soak/model/modelprogram.h"

#include "support/drivenchamber.h"

#include <QString>

/// The station's rules beside a station: follows what an operator does, what arrives and how time goes on,
/// and holds every byte that the station sends against what it has to send.
class StationModel : public DrivenWatcher
{
public:
    StationModel();

    /// A station starts; its first bytes are awaited.
    void open();

    void cameFromStation(const QByteArray& bytes) override;
    void goesToStation(const QByteArray& bytes) override;
    void linkGone() override;
    void chamberSaid(const QByteArray& event) override;
    void polled() override;
    void played() override;
    void retried() override;
    bool isAwaitingBytes() const override;

    /// Bytes that should have come by now count as missing.
    void checkOutstanding();
    /// What was wrong first; empty while nothing was.
    const QString& divergence() const { return wrong; }
    void diverge(const QString& what);

    ModelLink link;
    ModelShutters shutters{link};
    ModelCells cells{link};
    ModelProgram program{cells, shutters};

private:
    QString wrong;
};
