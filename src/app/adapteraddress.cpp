#include "app/adapteraddress.h"

#include <QtGlobal>

QString adapterAddress()
{
    const QString named = qEnvironmentVariable("NELVO_ADAPTER");
    return named.isEmpty() ? QStringLiteral(NELVO_ADAPTER_ADDRESS) : named;
}
