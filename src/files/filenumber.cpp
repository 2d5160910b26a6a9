// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/filenumber.h"

#include "files/textlines.h"

using namespace Qt::StringLiterals;

namespace zephira {

Result<QStringList> FileNumber::linesOf(const QString &path, qsizetype least)
{
    if (m_inUse)
        return Error{Error::Code::Refused, u"File already open"_s};
    m_inUse = true;
    Result<QStringList> lines = readLines(m_files, path);
    if (!lines)
        return lines;
    if (lines.value().size() < least)
        return Error{Error::Code::Malformed, u"Input past end of file"_s};
    m_inUse = false;
    return lines;
}

} // namespace zephira
