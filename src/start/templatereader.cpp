// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/templatereader.h"

#include "start/templates.h"

namespace zephira {

Result<void> TemplateReader::loadFile(const FileStore &files, const QString &path)
{
    Result<QString> text = readTemplate(files, path);
    if (!text)
        return text.error();
    m_text = std::move(text).value();
    return {};
}

} // namespace zephira
