// Brings the hands into a station as it is shipped: the toolkit loads this where QT_QPA_GENERIC_PLUGINS names
// it.

#include "system/hands/hands.h"

#include <QGenericPlugin>

class HandsPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hands.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*arguments*/) override
    {
        return new Hands(qEnvironmentVariable("NELVO_HANDS"));
    }
};

#include "plugin.moc"
