// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>
#include <QWidget>

namespace zephira {

class FileStore;

/// The reader of template files, which is never shown itself: it holds the text of the file that was loaded last.
class TemplateReader final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text)

public:
    explicit TemplateReader(QWidget *parent = nullptr) : QWidget(parent) { hide(); }

    QString text() const { return m_text; }
    /// Loads a file as readTemplate() does. If that fails, the text stays.
    Result<void> loadFile(const FileStore &files, const QString &path);

private:
    QString m_text;
};

} // namespace zephira
