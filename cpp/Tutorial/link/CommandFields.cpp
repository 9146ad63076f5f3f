#include "Tutorial/link/CommandFields.h"

CommandFields::CommandFields(const QString &command)
{
    int start = 0;
    int end = command.indexOf(kSeparator);
    while (end >= 0 && m_fields.size() < kMostFields - 1) {
        m_fields.append(command.mid(start, end - start));
        start = end + 1;
        end = command.indexOf(kSeparator, start);
    }
    m_fields.append(command.mid(start));
}
