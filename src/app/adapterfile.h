#pragma once

#include <QString>

/// What the laboratory's file says, nelvo.ini beside the program: UTF-8, one line "adapter=HOST"; empty lines
/// and remarks, behind ";" or "#", are skipped.
struct AdapterFile
{
    QString host; ///< a host name or an IPv4 address; empty when there is no such file or line
    QString mistake; ///< a sentence for the operator when the file says anything else; there is no host then
};

/// A sentence for the operator when `text`, which stands in `place`, is neither a host name nor an IPv4
/// address; else empty.
QString hostMistake(const QString& place, const QString& text);

/// Where the file of the running program lies.
QString adapterFileName();

AdapterFile readAdapterFile(const QString& fileName);
