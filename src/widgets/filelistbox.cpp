// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/filelistbox.h"

#include "widgets/filenames.h"

namespace zephira {

FileListBox::FileListBox(QWidget *parent) : QWidget(parent)
{
    hide();
}

QStringList FileListBox::entries() const
{
    return fileNames(m_path, m_pattern);
}

} // namespace zephira
