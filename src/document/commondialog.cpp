// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/commondialog.h"

#include "core/paths.h"

namespace zephira {

QString CommonDialog::fileTitle() const
{
    return fileTitleOf(m_fileName);
}

} // namespace zephira
