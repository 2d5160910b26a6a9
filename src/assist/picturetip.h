// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

namespace zephira {

struct AppContext;
class CodeMax;

/// Shows the picture that a `src` attribute under the mouse names, and its size, as a tip. Only files of this machine are
/// read, those of the page or of the project.
class PictureTip final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the tip.
    PictureTip(CodeMax &rt, const AppContext &context);

    /// The tip for a byte of the text, as rich text; empty if there is no picture.
    QString tipAt(qsizetype position) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    CodeMax &m_rt;
    const AppContext &m_context;
};

} // namespace zephira
