// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "settings/fileassociations.h"

#include <QDialog>

#include <array>
#include <memory>

class QCheckBox;

namespace zephira {

class FileTypeStore;

namespace Ui {
class frmfa;
}

/// Chooses the types of files that this program opens: eight categories, and any other type by its extension.
class frmfa final : public QDialog
{
    Q_OBJECT

public:
    /// `executable` is the full path of the program that opens the files.
    frmfa(const AppContext &context, FileTypeStore &store, const QString &executable, QWidget *owner);
    ~frmfa() override;

private:
    std::array<QCheckBox *, fileCategoryCount> boxes() const;
    void load();
    void apply();
    void help();
    void makeCustom();
    /// Return in a field makes the custom type.
    void followFocus(const QWidget *before, QWidget *now);

    const std::unique_ptr<Ui::frmfa> m_ui;
    const AppContext m_context;
    FileTypeStore &m_store;
    const ProgramPlace m_program;
    CategoryFlags m_bound = {};
    CategoryFlags m_toRestore = {};
};

} // namespace zephira
