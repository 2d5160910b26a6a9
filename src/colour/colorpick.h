// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/colournotations.h"
#include "core/appcontext.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace zephira {

namespace Ui {
class ColorPick;
}

class SelectingBox;

/// Shows one colour in three notations that are kept in step, to be copied from read-only boxes. It writes nothing to
/// the document.
class ColorPick final : public QDialog, private ColourBoxes
{
    Q_OBJECT
    /// Whether the form itself is writing into its boxes.
    Q_PROPERTY(bool Updating READ isUpdating)

public:
    ColorPick(const AppContext &context, QWidget *owner);
    ~ColorPick() override;

    bool isUpdating() const { return m_notations.isUpdating(); }

private:
    QString text(Notation notation, int channel) const override;
    void setText(Notation notation, int channel, const QString &text) override;
    void setMarked(Notation notation, int channel, bool marked) override;
    void setResult(Notation notation, const QString &text) override;
    void showColour(quint32 colour) override;

    SelectingBox *box(Notation notation, int channel) const;
    SelectingBox *result(Notation notation) const;
    void boxChanged(Notation notation, int channel);
    void choose();
    /// Takes over a colour that is selected in the document, two digits a channel.
    void takeColour(quint32 colour);

    const std::unique_ptr<Ui::ColorPick> m_ui;
    const AppContext m_context;
    ColourNotations m_notations;
    quint32 m_colour = 0;
};

} // namespace zephira
