// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmTags;
}

struct AppContext;
class EditingControl;

/// The tag palette: a fixed list of tags. The selected one replaces the code view's selection. The window stays open
/// for further tags.
class frmTags final : public QDialog
{
    Q_OBJECT

public:
    frmTags(const AppContext &context, QWidget *owner);
    ~frmTags() override;

private:
    void insertSelected();

    const std::unique_ptr<Ui::frmTags> m_ui;
    EditingControl &m_editor;
};

} // namespace zephira
