#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/// The bytes that the fuzzer tries, taken from the front piece by piece; what is not there is 0.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : bytes(QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)))
    {
    }

    bool isAtEnd() const { return taken >= bytes.size(); }
    int byte() { return isAtEnd() ? 0 : static_cast<uchar>(bytes[taken++]); }
    /// A number in [0, count).
    int below(int count) { return byte() % count; }
    QByteArray piece(int length)
    {
        QByteArray part = bytes.mid(taken, length);
        taken += part.size();
        return part;
    }
    QByteArray rest() { return piece(bytes.size() - taken); }
    /// Any double there is.
    double number()
    {
        double value = 0.0;
        const QByteArray raw = piece(static_cast<int>(sizeof value));
        std::memcpy(&value, raw.constData(), static_cast<std::size_t>(raw.size()));
        return value;
    }

private:
    const QByteArray bytes;
    int taken = 0;
};

/// Ends the fuzzer, which keeps the input, when what must hold does not.
inline void require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

/// An application without a display in a working directory of its own, in memory where the system has such a
/// place; both stay for the fuzzer's life.
void prepareFuzzing();

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
