#include "app/adapteraddress.h"

#include "app/adapterfile.h"

#include <QtGlobal>

namespace {

QString addressInEnvironment()
{
    return qEnvironmentVariable("NELVO_ADAPTER");
}

} // namespace

QString adapterAddress()
{
    QString named = addressInEnvironment();
    if (!named.isEmpty()) {
        return named;
    }
    const QString filed = readAdapterFile(adapterFileName()).host;
    return filed.isEmpty() ? QStringLiteral(NELVO_ADAPTER_ADDRESS) : filed;
}

QString adapterMistake()
{
    return addressInEnvironment().isEmpty() ? readAdapterFile(adapterFileName()).mistake : QString();
}
