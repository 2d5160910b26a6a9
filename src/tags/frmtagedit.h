// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/filelookup.h"
#include "core/prompts.h"

#include <QDialog>

#include <memory>

class QLineEdit;

namespace zephira {

namespace Ui {
class frmTagEdit;
}

class ColourSwatch;
struct TagFields;

/// What the tag editor remembers from one use to the next while the program runs.
struct TagEditorMemory {
    int page = 0;
    std::shared_ptr<FileLookup> files = std::make_shared<FileLookup>();
};

/// The tag editor: sixteen pages, each with the fields of one tag. The built tag replaces the code view's selection,
/// and the window closes.
class frmTagEdit final : public QDialog
{
    Q_OBJECT
    /// The 0-based index of the visible page.
    Q_PROPERTY(int page READ page WRITE setPage)

public:
    frmTagEdit(const AppContext &context, QWidget *owner, std::shared_ptr<TagEditorMemory> memory);
    ~frmTagEdit() override;

    int page() const;
    void setPage(int page);

private:
    void addPages();
    void bindColours();
    void bindPictures();
    void pageShown(int page);
    TagFields fields() const;
    void insertTag(int page);
    void chooseColour(const ColourSwatch &swatch, QLineEdit *field);
    void choosePicture(QLineEdit *field, Question::Icon icon);

    const std::unique_ptr<Ui::frmTagEdit> m_ui;
    const AppContext m_context;
    const std::shared_ptr<TagEditorMemory> m_memory;
};

} // namespace zephira
