// Whatever stands in the state file: it is read, compacted, and the next start reads the same from it.

#include "fuzz/fuzztarget.h"

#include "app/conditions.h"
#include "support/files.h"

#include <QStringList>

namespace {

QStringList valuesIn(Conditions& conditions)
{
    QStringList values;
    for (int channel = 0; channel < 9; ++channel) {
        values.append(conditions.value(QStringLiteral("ActiveF%1").arg(channel)));
    }
    return values;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPrepared = (prepareFuzzing(), true);
    Q_UNUSED(isPrepared)
    FuzzInput input(data, size);
    putFile(stateFile, input.rest());

    Conditions first;
    first.load(stateFile);
    const QStringList values = valuesIn(first);
    Conditions second;
    second.load(stateFile);
    require(valuesIn(second) == values, "the next start reads the same");

    const QString key = QStringLiteral("ActiveF3");
    second.setValue(key, QStringLiteral("InActive"));
    Conditions third;
    third.load(stateFile);
    require(third.value(key) == QStringLiteral("InActive"), "the newest value is read");
    return 0;
}
