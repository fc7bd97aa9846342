#include "soak/model/modelshutters.h"

namespace {

constexpr int controllerAddress = 3;
constexpr qint64 retryMs = 10;

} // namespace

void ModelShutters::open(qint64 nowMs)
{
    wanted = {};
    shown = {};
    retryAtMs = never;
    closeAll(nowMs);
}

void ModelShutters::toggleWanted(int number)
{
    bool& state = wanted.at(static_cast<size_t>(number));
    state = !state;
}

void ModelShutters::toggleCommanded(int number, qint64 nowMs)
{
    bool& state = commanded.at(static_cast<size_t>(number));
    state = !state;
    send(nowMs);
}

void ModelShutters::change(qint64 nowMs)
{
    command(wanted, nowMs);
}

void ModelShutters::closeAll(qint64 nowMs)
{
    command({}, nowMs);
}

void ModelShutters::command(const States& open, qint64 nowMs)
{
    commanded = open;
    send(nowMs);
}

bool ModelShutters::retry(qint64 nowMs)
{
    if (retryAtMs == never || retryAtMs > nowMs) {
        return false;
    }
    retryAtMs = never;
    send(nowMs);
    return true;
}

void ModelShutters::send(qint64 nowMs)
{
    if (link.address() != controllerAddress && link.isBusy()) {
        retryAtMs = nowMs + retryMs;
        return;
    }
    shown = commanded;
    ++commands;
    char mask = 0;
    for (int n = 0; n < count; ++n) {
        if (commanded.at(static_cast<size_t>(n))) {
            mask = static_cast<char>(mask | (1 << n));
        }
    }
    link.selectAddress(controllerAddress);
    link.setEndOfString(3);
    link.setEndOrIdentify(1);
    link.sendRaw(QByteArray("\x1B") + mask + '\n');
}
