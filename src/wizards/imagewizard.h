// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class ImageWizard;
}

class FileLookup;
struct ImageFields;

/// Inserts a picture, whose size is read from its file.
class ImageWizard final : public QDialog
{
    Q_OBJECT

public:
    ImageWizard(const AppContext &context, QWidget *owner, std::shared_ptr<FileLookup> lookup);
    ~ImageWizard() override;

private:
    ImageFields fields() const;
    void browse();
    /// Fills in the picture's size; leaves the fields unchanged if the file isn't a picture.
    void measure(const QString &file);
    void insertImage();

    const std::unique_ptr<Ui::ImageWizard> m_ui;
    const AppContext m_context;
    const std::shared_ptr<FileLookup> m_lookup;
};

} // namespace zephira
