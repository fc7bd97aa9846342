#pragma once

#include <QString>

/// What the laboratory's file says, nelvo.ini beside the program: UTF-8, one line "adapter=HOST"; empty lines
/// and remarks, behind ";" or "#", are skipped.
struct AdapterFile
{
    QString host; ///< a host name or an IPv4 address; empty when there is no such file or line
    QString mistake; ///< a sentence for the operator when the file says anything else; there is no host then
};

/// Where the file of the running program lies.
QString adapterFileName();

AdapterFile readAdapterFile(const QString& fileName);
