#pragma once

#include <QString>

#include <cstddef>

/// The short way to write a text in a test: "Open"_s is a QString.
namespace TestText {

inline QString operator""_s(const char* utf8, std::size_t size)
{
    return QString::fromUtf8(utf8, static_cast<int>(size));
}

} // namespace TestText
