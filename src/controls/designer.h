// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The visual page designer as the rest of the program sees it.
class Designer
{
public:
    virtual ~Designer() = default;

    /// Whether the window is in visual mode.
    virtual bool isShowing() const = 0;
    /// Changed since it was loaded.
    virtual bool isDirty() const = 0;
    virtual QString documentHtml() = 0;
    virtual void setDocumentHtml(const QString &html) = 0;
    virtual void loadDocument(const QString &path) = 0;
    /// Puts markup in the place of the designer's selection.
    virtual void pasteHtml(const QString &html) = 0;
    /// Runs a command by its published number.
    virtual void execCommand(int command) = 0;
};

/// Stands for the designer as long as the visual view has not been opened: never showing, never dirty.
class NoDesigner final : public Designer
{
public:
    bool isShowing() const override { return false; }
    bool isDirty() const override { return false; }
    QString documentHtml() override { return {}; }
    void setDocumentHtml(const QString &) override {}
    void loadDocument(const QString &) override {}
    void pasteHtml(const QString &) override {}
    void execCommand(int) override {}
};

} // namespace zephira
