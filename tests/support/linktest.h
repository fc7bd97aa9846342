#pragma once

#include "app/adapteraddress.h"
#include "gpib/gpib.h"
#include "support/scriptedadapter.h"

#include <QtTest>

#include <memory>

/// A test with a link of its own for each of its functions, connected to the adapter that the test plays, its
/// one opening line taken off the wire.
class LinkTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<ScriptedAdapter> adapter;
    std::unique_ptr<GPIB> gpib;

protected slots:
    void init()
    {
        adapter = std::make_unique<ScriptedAdapter>();
        gpib = std::make_unique<GPIB>();
        gpib->connectAdapter(adapter->address(), adapterPort);
        QVERIFY(adapter->expect("++eoi\n"));
    }

    void cleanup()
    {
        gpib.reset();
        adapter.reset();
    }
};
