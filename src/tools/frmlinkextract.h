// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/result.h"
#include "tools/linklist.h"
#include "tools/searchtext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmlinkextract;
}

/// Lists the link targets of a file, copies and opens them, and writes them as a page of links. The window's place is
/// remembered.
class frmlinkextract final : public QDialog
{
    Q_OBJECT

public:
    frmlinkextract(const AppContext &context, QWidget *owner);
    ~frmlinkextract() override;

    /// Appends the targets found in `richText` to the list. Before that, the list is cleared if `clearList` says so,
    /// gets a scroll extent in pixels unless `extent` is 0, and the file is loaded into `richText` unless its name is
    /// blank. If the file can't be read or there are too many targets, a message says so. Returns whether the search
    /// was completed, which it isn't if the form is closed meanwhile.
    Q_INVOKABLE bool ExtractURL(zephira::SearchText *richText, zephira::LinkList *list, const QString &filePath,
                                bool clearList, int extent);
    /// Writes the page of links in UTF-8, replacing an existing file. Returns whether that succeeded.
    Q_INVOKABLE bool SaveLinksPage(const QString &filePath);

    void done(int result) override;

private:
    void extractFromFile();
    void save();
    void copy(const QModelIndex &row);
    void open(const QModelIndex &row);
    void restorePlace();
    Result<QString> read(const QString &path) const;
    Result<void> write(const QString &path);

    const std::unique_ptr<Ui::frmlinkextract> m_ui;
    const AppContext m_context;
};

} // namespace zephira
