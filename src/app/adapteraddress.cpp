#include "app/adapteraddress.h"

#include "app/adapterfile.h"

#include <QtGlobal>

namespace {

constexpr char variable[] = "NELVO_ADAPTER";

QString addressInEnvironment()
{
    return qEnvironmentVariable(variable);
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
    const QString host = addressInEnvironment();
    return host.isEmpty() ? readAdapterFile(adapterFileName()).mistake
                          : hostMistake(QLatin1String(variable), host);
}
