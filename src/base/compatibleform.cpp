#include "base/compatibleform.h"

QString compatibleForm(const QString& text)
{
    return text.size() > longestCompatible ? text : text.normalized(QString::NormalizationForm_KC);
}
