#include "simulator/adapter.h"

#include <QList>

namespace Chamber {

namespace {

constexpr int longestCommand = 100;

QByteArray terminator(int endOfString)
{
    switch (endOfString) {
    case 0:
        return QByteArrayLiteral("\r\n");
    case 1:
        return QByteArrayLiteral("\r");
    case 2:
        return QByteArrayLiteral("\n");
    default:
        return {};
    }
}

} // namespace

Adapter::CommandResult Adapter::command(const QByteArray& line)
{
    struct Setting
    {
        const char* name;
        int* value;
        int highest;
    };
    const Setting settings[] = {
        {"++addr", &selectedAddress, 30},
        {"++eos", &endOfString, 3},
        {"++eoi", &endOrIdentify, 1},
        {"++auto", &automaticRead, 1},
    };

    if (line.size() > longestCommand) {
        return {};
    }
    const QList<QByteArray> words = line.simplified().split(' ');
    for (const Setting& setting : settings) {
        if (words.first() != setting.name) {
            continue;
        }
        if (words.size() == 1) {
            return {true, QByteArray::number(*setting.value)};
        }
        bool isNumber = false;
        const int value = words[1].toInt(&isNumber);
        if (words.size() > 2 || !isNumber || value < 0 || value > setting.highest) {
            return {};
        }
        *setting.value = value;
        return {true, {}};
    }
    return {};
}

BusMessage Adapter::message(const QByteArray& data) const
{
    return {data + terminator(endOfString), endOrIdentify == 1};
}

} // namespace Chamber
